#include "window/ListExport.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QSaveFile>
#include <QTableView>

#include "export/CsvText.h"
#include "export/OdsDocument.h"
#include "parish/WindowSettings.h"
#include "text/Dates.h"
#include "window/RowsFilter.h"

namespace fidaleon::app {
namespace {

constexpr const char* FOLDER = "listas.carpeta";
constexpr const char* FORMAT = "listas.formato";
constexpr double CENTIMETRES_PER_INCH = 2.54;
constexpr std::size_t LONGEST_NUMBER = 15;  // digits that a spreadsheet keeps exactly

/// Leading zeros mean something: "007" is a text.
bool isWholeNumber(const std::string& s) {
  const std::string digits = s.starts_with('-') ? s.substr(1) : s;
  if (digits.empty() || digits.size() > LONGEST_NUMBER) return false;
  if (digits.size() > 1 && digits.front() == '0') return false;
  return digits.find_first_not_of("0123456789") == std::string::npos;
}

std::string isoDate(const text::Date& day) {
  const std::string stored = text::toStored(day);
  return stored.substr(0, 4) + "-" + stored.substr(4, 2) + "-" + stored.substr(6);
}

ListCell cellOf(const RowsModel& rows, int row, int column) {
  using Kind = ListCell::Kind;
  const std::string& stored = rows.stored(row, column);
  const std::string shown = rows.index(row, column).data().toString().toStdString();
  switch (rows.view()->columns[static_cast<std::size_t>(column)].kind) {
    case ColumnKind::Date:
      if (const auto day = text::parseStored(stored)) return {Kind::Date, isoDate(*day)};
      return {Kind::Text, shown};
    case ColumnKind::Number:
      return {isWholeNumber(stored) ? Kind::Number : Kind::Text, shown};
    case ColumnKind::Time:
      return {text::parseTime(stored) ? Kind::Time : Kind::Text, shown};
    case ColumnKind::Text:
      return {Kind::Text, stored == "---" ? std::string() : stored};
    case ColumnKind::Flag:
      break;
  }
  return {Kind::Text, shown};
}

std::vector<int> columnsFromLeft(const QTableView& view) {
  std::vector<int> columns;
  const QHeaderView* header = view.horizontalHeader();
  for (int place = 0; place < header->count(); ++place) {
    const int column = header->logicalIndex(place);
    if (!header->isSectionHidden(column)) columns.push_back(column);
  }
  return columns;
}

QString filterOf(ListFormat format) {
  return format == ListFormat::Csv ? QObject::tr("Texto separado por punto y coma (*.csv)")
                                   : QObject::tr("Hoja de cálculo (*.ods)");
}

QString endingOf(ListFormat format) {
  return format == ListFormat::Csv ? "csv" : "ods";
}

/// What the user chose, and remembers for the next time.
struct Target {
  QString file;
  ListFormat format = ListFormat::Ods;
};

class TargetDialog : public QFileDialog {
 public:
  TargetDialog(const QString& folder, ListFormat format, QWidget* over)
      : QFileDialog(over, tr("Guardar la lista"), folder) {
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setNameFilters({filterOf(ListFormat::Ods), filterOf(ListFormat::Csv)});
    selectNameFilter(filterOf(format));
    setDefaultSuffix(endingOf(format));
    connect(this, &QFileDialog::filterSelected, this,
            [this] { setDefaultSuffix(endingOf(wanted())); });
  }
  Target chosen() const {
    const QString file = selectedFiles().value(0);
    return {file, formatOf(file, wanted())};
  }

 protected:
  // "lista 3.5" has an ending already as far as the toolkit can tell.
  void accept() override {
    const QString file = selectedFiles().value(0);
    const QString ending = endingOf(formatOf(file, wanted()));
    if (!file.endsWith("." + ending, Qt::CaseInsensitive)) selectFile(file + "." + ending);
    QFileDialog::accept();
  }

 private:
  ListFormat wanted() const {
    return selectedNameFilter() == filterOf(ListFormat::Csv) ? ListFormat::Csv : ListFormat::Ods;
  }
};

std::string whyNot(QFileDevice::FileError error) {
  switch (error) {
    case QFileDevice::NoError:  // less was written than there was, and nothing more said
    case QFileDevice::ResourceError:
    case QFileDevice::WriteError:
      return "no queda sitio en el disco, o se ha perdido la conexión con él.";
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError:
      return "no hay permiso para escribir ahí, o la carpeta no existe.";
    case QFileDevice::RenameError:
      return "otro programa tiene abierto el archivo.";
    default:
      return "el sistema responde con el error número " + std::to_string(error) + ".";
  }
}

std::string trySaving(const ListTable& table, const Target& target) {
  try {
    return replaceFile(target.file, written(table, target.format));
  } catch (const std::runtime_error& e) {
    return e.what();
  }
}

void tellFailure(Desk& desk, const QString& file, const std::string& why) {
  desk.entorno().ui.msgBox(
      "No se ha podido guardar la lista en «" + file.toStdString() + "»: " + why,
      forms::MsgButtons::Ok, forms::MsgIcon::Critical, "Guardar la lista");
}

}  // namespace

ListTable readList(const QTableView& view) {
  const auto& shown = static_cast<const RowsFilter&>(*view.model());
  const RowsModel& rows = shown.rows();
  const std::vector<int> columns = columnsFromLeft(view);
  ListTable table;
  table.name = rows.view()->node.Path.substr(rows.view()->node.Path.find('\\') + 1);
  for (const int column : columns)
    table.columns.push_back({rows.view()->columns[static_cast<std::size_t>(column)].title,
                             view.columnWidth(column) * CENTIMETRES_PER_INCH / view.logicalDpiX()});
  for (int row = 0; row < shown.rowCount(); ++row) {
    const int source = shown.mapToSource(shown.index(row, 0)).row();
    std::vector<ListCell> cells;
    for (const int column : columns) cells.push_back(cellOf(rows, source, column));
    table.rows.push_back(std::move(cells));
  }
  return table;
}

std::string written(const ListTable& table, ListFormat format) {
  return format == ListFormat::Csv ? csvText(table) : odsDocument(table);
}

ListFormat formatOf(const QString& file, ListFormat otherwise) {
  for (const ListFormat format : {ListFormat::Csv, ListFormat::Ods})
    if (file.endsWith("." + endingOf(format), Qt::CaseInsensitive)) return format;
  return otherwise;
}

std::string replaceFile(const QString& file, const std::string& bytes) {
  QSaveFile out(file);
  const auto size = static_cast<qint64>(bytes.size());
  const bool done =
      out.open(QIODevice::WriteOnly) && out.write(bytes.data(), size) == size && out.commit();
  return done ? std::string() : whyNot(out.error());
}

QString saveList(Desk& desk, const QTableView& view, QWidget* over) {
  const ListTable table = readList(view);
  const QString known = QString::fromStdString(readWindowSetting(desk, FOLDER));
  TargetDialog dialog(QDir(known).exists() && !known.isEmpty() ? known : QDir::homePath(),
                      readWindowSetting(desk, FORMAT) == "csv" ? ListFormat::Csv : ListFormat::Ods,
                      over);
  dialog.selectFile(QString::fromStdString(table.name).replace('\\', ' ') + " " +
                    QDate::currentDate().toString(Qt::ISODate));
  if (dialog.exec() != QDialog::Accepted) return {};
  const Target target = dialog.chosen();
  const forms::Hourglass hourglass(desk.entorno().ui);
  const std::string why = trySaving(table, target);
  if (!why.empty()) {
    tellFailure(desk, target.file, why);
    return {};
  }
  writeWindowSetting(desk, FOLDER, QFileInfo(target.file).absolutePath().toStdString());
  writeWindowSetting(desk, FORMAT, endingOf(target.format).toStdString());
  return QObject::tr("Lista guardada en «%1».").arg(QDir::toNativeSeparators(target.file));
}

}  // namespace fidaleon::app
