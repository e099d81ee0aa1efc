#include "window/ImportDialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "import/NombreCompleto.h"
#include "parish/legacy/ImportRun.h"
#include "parish/legacy/LegacyTables.h"
#include "qt/Appearance.h"
#include "qt/Room.h"
#include "window/CarefulQuestion.h"
#include "window/OutcomeReport.h"

namespace fidaleon::app {
namespace {

constexpr std::array<const char*, 4> REGISTERS = {"&Bautismo", "&Confirmación", "&Matrimonio",
                                                  "&Defunción"};
constexpr std::size_t SHOWN_NAMES = 20;
constexpr std::size_t SHOWN_ROWS = 10;

QTableWidget* readOnlyTable(const QString& name, QWidget* parent) {
  auto* table = new QTableWidget(parent);
  table->setAccessibleName(name);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setAlternatingRowColors(true);
  table->setTabKeyNavigation(false);
  table->verticalHeader()->hide();
  return table;
}

void fill(QTableWidget& table, const QStringList& titles,
          const std::vector<std::vector<std::string>>& rows) {
  table.clear();
  table.setColumnCount(static_cast<int>(titles.size()));
  table.setRowCount(static_cast<int>(rows.size()));
  table.setHorizontalHeaderLabels(titles);
  for (int r = 0; r < table.rowCount(); ++r)
    for (int c = 0; c < table.columnCount(); ++c)
      table.setItem(r, c,
                    new QTableWidgetItem(QString::fromStdString(
                        rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)])));
  table.resizeColumnsToContents();
}

std::string spokenName(const std::string& text, std::uint8_t order) {
  const NombreCompleto n = separarNombre(text, order);
  return n.nombre + " · " + n.apellido1 + " · " + n.apellido2;
}

/// The register that is being brought stands in bold; all four are in sight.
class Stage : public FDAPI::cEtiqueta {
 public:
  explicit Stage(QCheckBox& box) : box_(box) {}
  ~Stage() override { setNegrita(false); }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;
  void setNegrita(bool on) override {
    QFont font = box_.font();
    font.setBold(on);
    box_.setFont(font);
  }
  int Arriba() const override { return box_.y(); }
  void setArriba(int) override {}

 private:
  QCheckBox& box_;
};

class Progress : public FDAPI::cProgreso {
 public:
  explicit Progress(QWidget& over) : dialog_(QString(), QObject::tr("&Cancelar"), 0, 0, &over) {
    dialog_.setWindowModality(Qt::WindowModal);
    dialog_.setAutoReset(false);
    dialog_.setAutoClose(false);
    dialog_.setMinimumDuration(0);
    // A key that was meant for what stood there before does not stop it.
    dialog_.findChild<QPushButton*>()->setAutoDefault(false);
    dialog_.setMinimumWidth(dialog_.fontMetrics().averageCharWidth() * 50);
  }
  void Cargar(std::int64_t count, const std::string& what, int, int) override {
    const QString books =
        count == 1 ? QObject::tr("un libro") : QObject::tr("%1 libros").arg(count);
    dialog_.setLabelText(QString::fromStdString(what) + ": " + books);
    dialog_.setMaximum(static_cast<int>(count));
    // Left to its own clock it would come up over a message and hide it.
    dialog_.show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  void setValue(std::int64_t done) override {
    dialog_.setValue(static_cast<int>(done));
    if (dialog_.wasCanceled()) throw forms::Cancelled();
  }

 private:
  QProgressDialog dialog_;
};

}  // namespace

ImportDialog::ImportDialog(Desk& desk, QWidget* parent) : QDialog(parent), desk_(desk) {
  setWindowTitle(tr("Traer los datos del programa anterior"));
  auto* layout = new QVBoxLayout(this);
  auto* tabs = new QTabWidget(this);
  tabs->addTab(registersPage(), tr("&1. Qué se trae"));
  tabs->addTab(namesPage(), tr("&2. Nombres y fechas"));
  tabs->addTab(lettersPage(), tr("&3. Eñes y acentos"));
  layout->addWidget(tabs);
  auto* buttons = new QDialogButtonBox(this);
  try_ = buttons->addButton(tr("&Ensayar…"), QDialogButtonBox::ActionRole);
  bring_ = buttons->addButton(tr("&Traer…"), QDialogButtonBox::ActionRole);
  buttons->addButton(tr("Cerrar"), QDialogButtonBox::RejectRole);
  try_->setToolTip(tr("Cuenta todo lo que hay, y no escribe nada"));
  try_->setDefault(true);
  bring_->setToolTip(tr("Después de ensayarlo"));
  connect(try_, &QPushButton::clicked, this, [this] { run(true); });
  connect(bring_, &QPushButton::clicked, this, [this] { run(false); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  fillInstitutions();
  for (auto* list : findChildren<QComboBox*>())
    connect(list, &QComboBox::currentIndexChanged, this, [this] { changed(); });
  for (auto* field : findChildren<QLineEdit*>())
    connect(field, &QLineEdit::textChanged, this, [this] { changed(); });
  for (auto* box : findChildren<QCheckBox*>())
    connect(box, &QCheckBox::toggled, this, [this] { changed(); });
  lookInto({});
  qt::resizeWithin(*this, {qt::charsWidth(*this, 120), 460});
}

QWidget* ImportDialog::registersPage() {
  auto* page = new QWidget(this);
  auto* layout = new QVBoxLayout(page);
  auto* form = new QFormLayout;
  folder_ = new QLineEdit(page);
  folder_->setReadOnly(true);
  auto* choose = new QPushButton(tr("E&legir…"), page);
  connect(choose, &QPushButton::clicked, this, [this] { chooseFolder(); });
  auto* line = new QHBoxLayout;
  line->addWidget(folder_);
  line->addWidget(choose);
  form->addRow(tr("Carpeta con las tablas:"), line);
  institution_ = new QComboBox(page);
  connect(institution_, &QComboBox::currentIndexChanged, this, [this] { institutionChosen(); });
  form->addRow(tr("&Institución de los libros:"), institution_);
  layout->addLayout(form);
  auto* grid = new QGridLayout;
  int column = 0;
  for (const QString& title :
       {tr("Registro"), tr("Tabla"), tr("Formato de sus libros"), tr("Parroquia de todos"),
        tr("Nombre"), tr("Diócesis"), tr("Población")})
    grid->addWidget(new QLabel(title, page), 0, column++);
  for (std::size_t i = 0; i < lines_.size(); ++i) addLine(i, *grid);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(4, 3);
  grid->setColumnStretch(5, 1);
  grid->setColumnStretch(6, 2);
  layout->addLayout(grid);
  auto* note = new QLabel(
      tr("El programa anterior no guardaba la parroquia de cada partida. Márquela para que todas "
         "las de un registro lleven la que diga aquí."),
      page);
  note->setWordWrap(true);
  layout->addWidget(note);
  layout->addStretch();
  return page;
}

void ImportDialog::addLine(std::size_t which, QGridLayout& grid) {
  Line& line = lines_[which];
  const QString name = QString(tr(REGISTERS[which])).remove('&');
  line.bring = new QCheckBox(tr(REGISTERS[which]), this);
  line.where = new QLabel(this);
  line.format = new QComboBox(this);
  line.useParish = new QCheckBox(this);
  line.parish = new QLineEdit(this);
  line.diocese = new QLineEdit(this);
  line.town = new QComboBox(this);
  line.format->setAccessibleName(tr("Formato de los libros de %1").arg(name));
  line.useParish->setAccessibleName(tr("Poner la parroquia en %1").arg(name));
  line.parish->setAccessibleName(tr("Parroquia de %1").arg(name));
  line.diocese->setAccessibleName(tr("Diócesis de %1").arg(name));
  line.town->setAccessibleName(tr("Población de %1").arg(name));
  line.parish->setMaxLength(50);
  line.diocese->setMaxLength(30);
  // Long lines show whole when the list is open.
  for (QComboBox* list : {line.format, line.town}) {
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(list == line.format ? 18 : 12);
  }
  fillFormats(*line.format);
  fillTowns(*line.town);
  int column = 0;
  for (QWidget* widget :
       std::initializer_list<QWidget*>{line.bring, line.where, line.format, line.useParish,
                                       line.parish, line.diocese, line.town})
    grid.addWidget(widget, static_cast<int>(which) + 1, column++);
  for (QWidget* widget : std::initializer_list<QWidget*>{line.parish, line.diocese, line.town}) {
    widget->setEnabled(false);
    connect(line.useParish, &QCheckBox::toggled, widget, &QWidget::setEnabled);
  }
}

QWidget* ImportDialog::namesPage() {
  auto* page = new QWidget(this);
  auto* form = new QFormLayout(page);
  year00_ = new QLineEdit("20", page);
  year00_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{2}"), year00_));
  form->addRow(tr("El &año 00 es el:"), year00_);
  auto* why = new QLabel(tr("El programa anterior guardaba dos cifras del año: todas las fechas "
                            "quedan en 19.., y solo el 00 puede ser otro. Con 20, el 2000."),
                         page);
  why->setWordWrap(true);
  form->addRow(why);
  order_ = new QComboBox(page);
  order_->addItem(tr("Delante el nombre"));
  order_->addItem(tr("Delante los apellidos"));
  form->addRow(tr("&Nombres completos sin coma:"), order_);
  names_ = readOnlyTable(tr("Cómo se separan los nombres"), page);
  form->addRow(names_);
  return page;
}

QWidget* ImportDialog::lettersPage() {
  auto* page = new QWidget(this);
  auto* layout = new QVBoxLayout(page);
  auto* form = new QFormLayout;
  shownTable_ = new QComboBox(page);
  for (const char* name : REGISTERS) shownTable_->addItem(QString(tr(name)).remove('&'));
  connect(shownTable_, &QComboBox::currentIndexChanged, this, [this] { showRows(); });
  form->addRow(tr("&Ver la tabla de:"), shownTable_);
  codePage_ = new QComboBox(page);
  codePage_->addItem(tr("La que digan las tablas"), "");
  codePage_->addItem(tr("850 (MS-DOS, Europa occidental)"), "850");
  codePage_->addItem(tr("437 (MS-DOS)"), "437");
  codePage_->addItem(tr("1252 (Windows)"), "1252");
  codePage_->addItem("UTF-8", "UTF-8");
  connect(codePage_, &QComboBox::currentIndexChanged, this, [this] {
    showRows();
    showNames();
  });
  form->addRow(tr("&Página de códigos:"), codePage_);
  layout->addLayout(form);
  reading_ = new QLabel(page);
  reading_->setWordWrap(true);
  layout->addWidget(reading_);
  rows_ = readOnlyTable(tr("Las primeras filas de la tabla"), page);
  layout->addWidget(rows_);
  return page;
}

void ImportDialog::fillFormats(QComboBox& list) {
  for (auto rows = desk_.parish().Execute("Select * from Libros_Formato"); !rows.EOF_();
       rows.MoveNext())
    list.addItem(QString::fromStdString(rows.text("Descripcion")),
                 static_cast<int>(rows.integer("IDFormato")));
}

void ImportDialog::fillTowns(QComboBox& list) {
  list.addItem(QString());
  for (auto rows = desk_.parish().Execute(
           "SELECT Municipio.Nombre AS Poblacion, Provincia.Nombre AS Provincia FROM Municipio "
           "INNER JOIN Provincia ON Municipio.CodProvincia = Provincia.IDProvincia ORDER BY "
           "Municipio.Nombre");
       !rows.EOF_(); rows.MoveNext()) {
    const QString town = QString::fromStdString(rows.text("Poblacion"));
    const QString province = QString::fromStdString(rows.text("Provincia"));
    list.addItem(town + " (" + province + ")", QStringList{town, province});
  }
}

void ImportDialog::fillInstitutions() {
  for (auto rows = desk_.parish().Execute(
           "SELECT IDInstitucion, Nombre, Diocesis FROM Institucion ORDER BY IDInstitucion");
       !rows.EOF_(); rows.MoveNext())
    institution_->addItem(QString::fromStdString(rows.text("Nombre")),
                          QStringList{QString::number(rows.integer("IDInstitucion")),
                                      QString::fromStdString(rows.text("Diocesis"))});
}

void ImportDialog::institutionChosen() {
  const QString diocese = institution_->currentData().toStringList().value(1);
  for (Line& line : lines_) {
    if (line.parish == nullptr || line.useParish->isChecked()) continue;
    line.parish->setText(institution_->currentText());
    line.parish->setCursorPosition(0);
    line.diocese->setText(diocese);
  }
}

void ImportDialog::chooseFolder() {
  const QString chosen = QFileDialog::getExistingDirectory(
      this, tr("Carpeta con las tablas del programa anterior"), folder_->text());
  if (!chosen.isEmpty()) lookInto(chosen.toStdString());
}

void ImportDialog::lookInto(const std::filesystem::path& folder) {
  folder_->setText(QString::fromStdString(folder.string()));
  const auto found =
      folder.empty() ? std::array<std::filesystem::path, 4>{} : findLegacyTables(folder);
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    Line& line = lines_[i];
    line.folder = found[i];
    line.bring->setEnabled(!found[i].empty());
    line.bring->setChecked(!found[i].empty());
    line.where->setText(found[i].empty()
                            ? tr("No está")
                            : QString::fromStdString(found[i].lexically_relative(folder).string()));
    line.where->setToolTip(QString::fromStdString(found[i].string()));
  }
  for (std::size_t i = lines_.size(); i-- > 0;)
    if (!found[i].empty()) shownTable_->setCurrentIndex(static_cast<int>(i));
  showNames();
  showRows();
  changed();
}

void ImportDialog::showNames() {
  std::vector<std::vector<std::string>> rows;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (lines_[i].folder.empty()) continue;
    for (const std::string& name :
         fullNamesIn(lines_[i].folder, i, order().codePage, SHOWN_NAMES - rows.size()))
      rows.push_back({name, spokenName(name, 0), spokenName(name, 1)});
  }
  fill(*names_, {tr("En la tabla"), tr("Delante el nombre"), tr("Delante los apellidos")}, rows);
}

void ImportDialog::showRows() {
  const auto which = static_cast<std::size_t>(shownTable_->currentIndex());
  LegacyGlance glance;
  if (!lines_[which].folder.empty())
    glance = glanceAt(lines_[which].folder, which, order().codePage, SHOWN_ROWS);
  QStringList titles;
  for (const std::string& title : glance.titles) titles << QString::fromStdString(title);
  fill(*rows_, titles, glance.rows);
  reading_->setText(!glance.refusal.empty()   ? QString::fromStdString(glance.refusal)
                    : glance.codePage.empty() ? tr("Esa tabla no está.")
                                              : tr("Se lee con la página de códigos %1. Mire si "
                                                   "las eñes y los acentos salen bien.")
                                                    .arg(QString::fromStdString(glance.codePage)));
}

ImportOrder ImportDialog::order() const {
  ImportOrder order;
  order.parish = desk_.files().directory;
  order.institution = institution_->currentData().toStringList().value(0).toStdString();
  order.year00 = year00_->text().toStdString();
  order.nameFirst = order_->currentIndex() == 0;
  order.codePage = codePage_->currentData().toString().toStdString();
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    if (!line.bring->isChecked()) continue;
    const QStringList town = line.town->currentData().toStringList();
    order.registers[i] = {line.folder,
                          line.useParish->isChecked(),
                          line.parish->text().toStdString(),
                          line.diocese->text().toStdString(),
                          town.value(0).toStdString(),
                          town.value(1).toStdString(),
                          line.format->currentData().toInt()};
  }
  return order;
}

void ImportDialog::changed() {
  bool any = false;
  for (const Line& line : lines_) any |= line.bring->isChecked();
  try_->setEnabled(any && year00_->hasAcceptableInput() && institution_->count() > 0);
  bring_->setEnabled(false);
}

bool ImportDialog::sure() {
  return askCarefully(this, windowTitle(), tr("¿Traer los datos a la parroquia?"),
                      tr("Se hará un libro antiguo de cada libro del programa anterior, también si "
                         "ya se trajo otra "
                         "vez. Antes se guarda una copia, a la que puede volver."),
                      tr("&Traer los datos"));
}

void ImportDialog::run(bool trial) {
  if (!trial && !sure()) return;
  try {
    carryOut(trial);
  } catch (const std::exception& e) {
    QMessageBox::warning(this, windowTitle(), QString::fromUtf8(e.what()));
  }
}

void ImportDialog::carryOut(bool trial) {
  ImportOrder asked = order();
  asked.trial = trial;
  ResultadoImportacion result;
  {
    std::array<std::optional<Stage>, 4> stages;
    FDAPI::ColEtiqueta labels;
    for (std::size_t i = 0; i < stages.size(); ++i)
      labels.push_back(&stages[i].emplace(*lines_[i].bring));
    Progress progress(*this);
    result = runImport(desk_, asked, progress, labels);
  }
  QString saved;
  if (!trial) {
    Clock& clock = desk_.entorno().clock;
    const auto file = reportFile(asked, text::toStored(clock.today()), clock.now());
    try {
      files::replace(file, result.texto());
      saved = QString::fromStdString(file.string());
    } catch (const std::filesystem::filesystem_error&) {
      // It stands in the window, from where it can be saved elsewhere.
    }
  }
  OutcomeReport(tr("Informe de la importación"), result.texto(), "importacion.txt", this, saved)
      .exec();
  bring_->setEnabled(trial && !result.cancelada);
  if (!trial) accept();
}

}  // namespace fidaleon::app
