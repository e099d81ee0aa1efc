#include "window/ListExport.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QTableView>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "export/CsvText.h"
#include "export/OdsDocument.h"
#include "files/Durable.h"
#include "parish/WindowSettings.h"
#include "text/Dates.h"
#include "text/SystemErrors.h"
#include "window/ChosenRows.h"
#include "window/LongRun.h"
#include "window/RowsFilter.h"

namespace fidaleon::app {
namespace {

constexpr const char* FOLDER = "listas.carpeta";
constexpr const char* FORMAT = "listas.formato";
constexpr double CENTIMETRES_PER_INCH = 2.54;
constexpr std::size_t BETWEEN_LOOKS = 500;  // rows, at whether the user would rather stop
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
  const std::string stored(rows.stored(row, column));
  const std::string shown = rows.shown(row, column);
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

/// The user would rather not wait.
class GivenUp {};

std::string whyNot(const std::error_code& error) {
  if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory ||
      error == std::errc::permission_denied || error == std::errc::read_only_file_system)
    return "no hay permiso para escribir ahí, o la carpeta no existe.";
  if (error == std::errc::text_file_busy || error == std::errc::device_or_resource_busy)
    return "otro programa tiene abierto el archivo.";
  if (error == std::errc::no_space_on_device || error == std::errc::file_too_large ||
      error == std::errc::io_error)
    return "no queda sitio en el disco, o se ha perdido la conexión con él.";
  return "el sistema responde: " + text::systemReason(error);
}

void writeInParts(const std::filesystem::path& file,
                  const std::function<void(const Sink&)>& write) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::fopen(file.c_str(), "wbx"),
                                                            &std::fclose);
  const auto done = [&](bool well) {
    if (!well) throw std::system_error(errno, std::generic_category());
  };
  done(out != nullptr);
  write([&](std::string_view part) {
    done(std::fwrite(part.data(), 1, part.size(), out.get()) == part.size());
  });
  done(std::fflush(out.get()) == 0);
}

void tellFailure(Desk& desk, const QString& file, const std::string& why) {
  desk.entorno().ui.msgBox(
      "No se ha podido guardar la lista en «" + file.toStdString() + "»: " + why,
      forms::MsgButtons::Ok, forms::MsgIcon::Critical, "Guardar la lista");
}

/// False when the user gave up or has been told of a failure; then the file is as it was.
bool save(Desk& desk, ListTable table, const Target& target, QWidget* over) {
  LongRun run;
  table.row = [&run, count = table.count, row = std::move(table.row)](std::size_t n) {
    if (n % BETWEEN_LOOKS == 0 && !run.tell(n, count)) throw GivenUp();
    return row(n);
  };
  std::string why;
  try {
    run.run(over, QObject::tr("Se está guardando la lista…"),
            [&] { why = writeList(table, target.format, target.file); });
  } catch (const GivenUp&) {
    return false;
  }
  if (!why.empty()) tellFailure(desk, target.file, why);
  return why.empty();
}

}  // namespace

ListTable readList(const QTableView& view, Extent extent) {
  const auto& shown = static_cast<const RowsFilter&>(*view.model());
  const RowsModel& rows = shown.rows();
  const std::vector<int> columns = columnsFromLeft(view);
  ListTable table;
  table.name = rows.view()->node.Path.substr(rows.view()->node.Path.find('\\') + 1);
  for (const int column : columns)
    table.columns.push_back({rows.view()->columns[static_cast<std::size_t>(column)].title,
                             view.columnWidth(column) * CENTIMETRES_PER_INCH / view.logicalDpiX()});
  const std::vector<int> chosen = extent == Extent::Chosen ? chosenRows(view) : std::vector<int>();
  table.count =
      extent == Extent::Chosen ? chosen.size() : static_cast<std::size_t>(shown.rowCount());
  table.row = [&shown, &rows, columns, extent, chosen](std::size_t n) {
    const int row = extent == Extent::Chosen ? chosen[n] : static_cast<int>(n);
    const int source = shown.mapToSource(shown.index(row, 0)).row();
    ListLine cells;
    for (const int column : columns) cells.push_back(cellOf(rows, source, column));
    return cells;
  };
  return table;
}

ListFormat formatOf(const QString& file, ListFormat otherwise) {
  for (const ListFormat format : {ListFormat::Csv, ListFormat::Ods})
    if (file.endsWith("." + endingOf(format), Qt::CaseInsensitive)) return format;
  return otherwise;
}

std::string writeList(const ListTable& table, ListFormat format, const QString& file) {
  try {
    // A link stays one, to the new list.
    files::Replacement next(std::filesystem::weakly_canonical(file.toStdString()));
    if (format == ListFormat::Ods)
      writeOds(table, next.passing());
    else
      writeInParts(next.passing(), [&](const Sink& sink) { writeCsv(table, sink); });
    next.takeName();
    return {};
  } catch (const std::system_error& e) {
    return whyNot(e.code());
  } catch (const std::runtime_error& e) {
    return e.what();
  }
}

QString saveList(Desk& desk, const QTableView& view, Extent extent, QWidget* over) {
  const ListTable table = readList(view, extent);
  const QString known = QString::fromStdString(readWindowSetting(desk, FOLDER));
  TargetDialog dialog(QDir(known).exists() && !known.isEmpty() ? known : QDir::homePath(),
                      readWindowSetting(desk, FORMAT) == "csv" ? ListFormat::Csv : ListFormat::Ods,
                      over);
  dialog.selectFile(QString::fromStdString(table.name).replace('\\', ' ') +
                    (extent == Extent::Chosen ? QObject::tr(" elegidas ") : " ") +
                    QDate::currentDate().toString(Qt::ISODate));
  if (dialog.exec() != QDialog::Accepted) return {};
  const Target target = dialog.chosen();
  if (!save(desk, table, target, over)) return {};
  writeWindowSetting(desk, FOLDER, QFileInfo(target.file).absolutePath().toStdString());
  writeWindowSetting(desk, FORMAT, endingOf(target.format).toStdString());
  return QObject::tr("Lista guardada en «%1».").arg(QDir::toNativeSeparators(target.file));
}

}  // namespace fidaleon::app
