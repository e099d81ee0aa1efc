#include "window/PreferencesDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/contract/Teclado.h"
#include "parish/copies/CopyRetention.h"
#include "qt/Appearance.h"
#include "qt/Letters.h"
#include "qt/PageScroll.h"
#include "qt/Room.h"
#include "registers/allocation/LimiteFolios.h"
#include "text/Utf8.h"
#include "window/CarefulQuestion.h"

namespace fidaleon::app {
namespace {

constexpr int LETTERS[] = {9, 10, 11, 12, 13, 14, 16, 18, 20, 24};
constexpr int MOST_PAGES = 9999, LEAST_COPIES = 5, MOST_COPIES = 500;

QString toQt(const std::string& s) {
  return QString::fromStdString(s);
}

/// A page of lines with a few words below each of what it does and from when on.
class Page : public QWidget {
 public:
  explicit Page(QWidget* parent) : QWidget(parent), lines_(new QFormLayout(this)) {
    lines_->setRowWrapPolicy(QFormLayout::WrapLongRows);
    lines_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  }

  template <class Field>
  Field* add(const QString& label, Field* field, const QString& explanation,
             const QString& name = {}) {
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(beside_ ? with(field) : field);
    auto* small = new QLabel(explanation, this);
    small->setWordWrap(true);
    small->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(small);
    auto* title = new QLabel(label, this);
    title->setBuddy(field);
    lines_->addRow(title, column);
    field->setAccessibleName(name.isEmpty() ? QString(label).remove('&').remove(':') : name);
    field->setAccessibleDescription(explanation);
    return field;
  }
  /// A button at the right of the field that is added next.
  template <class What>
  void besideNext(const QString& text, const QString& name, What what) {
    beside_ = new QToolButton(this);
    beside_->setText(text);
    beside_->setAccessibleName(name);
    beside_->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(beside_, &QToolButton::clicked, this, what);
  }

 private:
  QWidget* with(QWidget* field) {
    auto* both = new QWidget(this);
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field, 1);
    row->addWidget(beside_);
    beside_ = nullptr;
    return both;
  }

  QFormLayout* lines_;
  QToolButton* beside_ = nullptr;
};

/// With what is stored, even where it is not offered.
void choose(QComboBox& box, const QVariant& stored, const QString& shown) {
  if (box.findData(stored) < 0) box.addItem(shown, stored);
  box.setCurrentIndex(box.findData(stored));
}

QString dataOf(const QComboBox& box) {
  return box.currentData().toString();
}

}  // namespace

PreferencesDialog::PreferencesDialog(Desk& desk, ParishDoor& door, QWidget* parent)
    : QDialog(parent), desk_(desk), door_(door), keepers_(keepersOf(desk.parish())) {
  setWindowTitle(tr("Preferencias"));
  setPalette(qt::legible(palette()));
  auto* layout = new QVBoxLayout(this);
  auto* pages = new QTabWidget(this);
  pages->setAccessibleName(tr("Apartados"));
  const auto add = [&](QWidget* page, const QString& title) {
    pages->addTab(new qt::PageScroll(page, screen()->availableSize(), pages), title);
  };
  add(generalPage(), tr("&General"));
  add(paperPage(), tr("&Libros y documentos"));
  add(copiesPage(), tr("Cop&ias"));
  layout->addWidget(pages);
  auto* buttons = new QDialogButtonBox(this);
  auto* ok = buttons->addButton(tr("&Aceptar"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Cancelar"), QDialogButtonBox::RejectRole);
  ok->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  qt::resizeWithin(*this, {qt::charsWidth(*this, 84), sizeHint().height()});
  user_->setFocus();
}

QWidget* PreferencesDialog::generalPage() {
  const Settings& settings = desk_.entorno().settings;
  auto* page = new Page(this);
  user_ = page->add(tr("&Usuario:"), new QLineEdit(toQt(desk_.config().Usuario), page),
                    tr("Quién se lee en los demás equipos que tiene algo abierto. Si lo cambia, la "
                       "parroquia se abre otra vez al aceptar."));
  edition_ = page->add(tr("&Edición:"), new QComboBox(page),
                       tr("La diócesis: cambia algunos campos y el texto de los documentos, para "
                          "todos los equipos. La parroquia se abre otra vez al aceptar."));
  for (const auto& [name, code] : editions()) edition_->addItem(toQt(name), toQt(code));
  choose(*edition_, toQt(desk_.entorno().installation.Aplicacion), toQt(desk_.edition()));
  page->besideNext(tr("E&xaminar…"), tr("Examinar la carpeta de la parroquia"),
                   [this] { chooseParish(); });
  folder_ = page->add(tr("Car&peta de la parroquia:"),
                      new QLineEdit(toQt(desk_.files().directory.string()), page),
                      tr("La que se abre cada día. Si elige otra, se pasa a ella al aceptar."));
  folder_->setReadOnly(true);
  letter_ = page->add(tr("&Tamaño de la letra:"), new QComboBox(page),
                      tr("De todas las ventanas, desde que acepta."));
  letter_->addItem(tr("El del sistema"), QString());
  for (const int points : LETTERS)
    letter_->addItem(tr("%1 puntos").arg(points), QString::number(points));
  const QString letter = toQt(readPreference(settings, desk_.config(), Preference::LetterSize));
  choose(*letter_, letter, letter);
  enter_ = page->add(tr("La tecla I&ntro:"), new QComboBox(page),
                     tr("Al escribir partidas y fichas, desde la próxima que se abra. Si pasa de "
                        "campo, se acepta con Ctrl + Intro."));
  enter_->addItem(tr("Pasa al campo siguiente"), true);
  enter_->addItem(tr("Acepta"), false);
  enter_->setCurrentIndex(introPasaDeCampo(settings) ? 0 : 1);
  return page;
}

QWidget* PreferencesDialog::paperPage() {
  const Settings& settings = desk_.entorno().settings;
  auto* page = new Page(this);
  printer_ = page->add(tr("I&mpresora:"), new QComboBox(page),
                       tr("La que se propone al imprimir, desde el próximo documento."));
  printer_->addItem(tr("La del sistema"), QString());
  for (const QString& name : QPrinterInfo::availablePrinterNames()) printer_->addItem(name, name);
  const QString printer = toQt(readPreference(settings, desk_.config(), Preference::Printer));
  choose(*printer_, printer, tr("%1 (ahora no está)").arg(printer));
  institution_ = page->add(tr("In&stitución:"), new QComboBox(page),
                           tr("De qué institución es el encargado de abajo."));
  for (const InstitutionKeepers& one : keepers_) institution_->addItem(toQt(one.name));
  keeper_ = page->add(tr("Encargado que &firma:"), new QComboBox(page),
                      tr("El que proponen los certificados de esa institución, en todos los "
                         "equipos, hasta que se elija otro al imprimir."));
  connect(institution_, &QComboBox::currentIndexChanged, this, [this] { showKeepers(); });
  connect(keeper_, &QComboBox::activated, this, [this] {
    keepers_[static_cast<std::size_t>(institution_->currentIndex())].usual =
        dataOf(*keeper_).toStdString();
  });
  showKeepers();
  pages_ = page->add(tr("F&olios de un libro, como mucho:"), new QSpinBox(page),
                     tr("Al pasar de ese folio, las partidas avisan de que el libro está lleno. Es "
                        "de este usuario, y cuenta desde la próxima partida."));
  pages_->setRange(0, MOST_PAGES);
  pages_->setSpecialValueText(tr("Sin límite"));
  pages_->setValue(static_cast<int>(
      limiteDeFolios(readPreference(settings, desk_.config(), Preference::PageLimit)).value_or(0)));
  return page;
}

QWidget* PreferencesDialog::copiesPage() {
  auto* page = new Page(this);
  copies_ = page->add(
      tr("Copias que &hace el programa:"), new QSpinBox(page),
      tr("Cuántas de las últimas se conservan, en la carpeta «copias» de la parroquia; de las "
         "anteriores queda una por semana. Cuenta desde la próxima copia. Si trabajan varios "
         "equipos, ponga lo mismo en todos: vale la cifra más baja."));
  copies_->setRange(LEAST_COPIES, MOST_COPIES);
  copies_->setValue(static_cast<int>(copiesKept(desk_.entorno().settings, desk_.config())));
  page->besideNext(tr("Exa&minar…"), tr("Examinar la carpeta de sus copias"),
                   [this] { chooseCopiesFolder(); });
  copiesFolder_ = page->add(
      tr("Carpeta de las copias que hace &usted:"),
      new QLineEdit(
          toQt(readPreference(desk_.entorno().settings, desk_.config(), Preference::CopiesFolder)),
          page),
      tr("Dónde propone guardarlas «Archivo > Copia de seguridad»: una memoria, otro equipo. "
         "Vacía, su carpeta personal."));
  return page;
}

void PreferencesDialog::showKeepers() {
  keeper_->clear();
  const auto at = static_cast<std::size_t>(std::max(0, institution_->currentIndex()));
  institution_->setEnabled(!keepers_.empty());
  keeper_->setEnabled(!keepers_.empty());
  if (keepers_.empty()) return;
  const InstitutionKeepers& shown = keepers_[at];
  keeper_->addItem(tr("Ninguno"), QString());
  for (const std::string& name : shown.keepers) keeper_->addItem(toQt(name), toQt(name));
  choose(*keeper_, toQt(shown.usual), toQt(shown.usual));
}

void PreferencesDialog::chooseParish() {
  if (const auto chosen = door_.choose(this)) folder_->setText(toQt(chosen->string()));
}

void PreferencesDialog::chooseCopiesFolder() {
  const QString chosen =
      QFileDialog::getExistingDirectory(this, tr("Carpeta de las copias"), copiesFolder_->text());
  if (!chosen.isEmpty()) copiesFolder_->setText(chosen);
}

bool PreferencesDialog::isComplete() {
  const auto refuse = [this](QWidget* field, const QString& why) {
    for (QWidget* up = field; up; up = up->parentWidget())
      if (auto* pages = qobject_cast<QTabWidget*>(
              up->parentWidget() ? up->parentWidget()->parentWidget() : nullptr))
        pages->setCurrentWidget(up);
    QMessageBox::warning(this, windowTitle(), why);
    field->setFocus(Qt::OtherFocusReason);
    return false;
  };
  const QString user = user_->text().trimmed();
  if (user.isEmpty()) return refuse(user_, tr("Escriba el nombre del usuario."));
  if (user.contains('\\'))
    return refuse(user_, tr("El nombre del usuario no puede llevar el signo «\\»."));
  const QString folder = copiesFolder_->text().trimmed();
  const QFileInfo facts(folder);
  if (!folder.isEmpty() && !(facts.isDir() && facts.isWritable() && facts.isAbsolute()))
    return refuse(copiesFolder_,
                  tr("En «%1» no se puede guardar: la carpeta no existe, o no hay permiso. Si es "
                     "una memoria, conéctela antes.")
                      .arg(folder));
  return true;
}

// False when it stays as it was; the user knows why.
bool PreferencesDialog::changeEdition(const std::string& code) {
  if (code == desk_.entorno().installation.Aplicacion) return true;
  if (!askCarefully(this, windowTitle(),
                    tr("¿Cambiar la edición de la parroquia a %1?").arg(edition_->currentText()),
                    tr("Las partidas y los documentos serán los de esa diócesis, en todos los "
                       "equipos. No se borra nada: lo escrito en campos que esa edición no tiene "
                       "deja de verse, y vuelve con la edición de ahora."),
                    tr("Ca&mbiar")))
    return false;
  const std::vector<locks::Holder> others = desk_.presence().alone(
      "está cambiando la edición de la parroquia", [&] { desk_.setEdition(code); });
  if (others.empty()) return true;
  QString who;
  for (const locks::Holder& other : others) who += "\n" + toQt(spoken(other));
  QMessageBox::warning(this, windowTitle(),
                       tr("La edición no se puede cambiar mientras alguien más trabaja en la "
                          "parroquia:\n%1\n\nNo se ha cambiado nada.")
                           .arg(who));
  return false;
}

void PreferencesDialog::write() {
  Settings& settings = desk_.entorno().settings;
  const auto keep = [&](Preference which, const QString& value) {
    writePreference(settings, desk_.config(), which, value.toStdString());
  };
  keep(Preference::LetterSize, dataOf(*letter_));
  keep(Preference::Printer, dataOf(*printer_));
  keep(Preference::PageLimit, pages_->value() ? QString::number(pages_->value()) : QString());
  keep(Preference::CopiesKept, QString::number(copies_->value()));
  keep(Preference::CopiesFolder, copiesFolder_->text().trimmed());
  const std::vector<InstitutionKeepers> before = keepersOf(desk_.parish());
  for (const InstitutionKeepers& one : keepers_)
    for (const InstitutionKeepers& was : before)
      if (was.institution == one.institution && was.usual != one.usual)
        setUsualKeeper(desk_.parish(), one.institution, one.usual);
  ponerIntroPasaDeCampo(settings, enter_->currentData().toBool());
  qt::useLetters(dataOf(*letter_).toInt());
}

void PreferencesDialog::accept() {
  if (!isComplete()) return;
  const std::string edition = dataOf(*edition_).toStdString();
  const std::string user = text::trim(text::sanitized(user_->text().toStdString()));
  const std::filesystem::path folder = folder_->text().toStdString();
  try {
    const bool sameEdition = edition == desk_.entorno().installation.Aplicacion;
    if (!changeEdition(edition)) return;
    write();
    if (user != desk_.config().Usuario) {
      takeSettingsAlong(desk_.entorno().settings, desk_.config(), user);
      writePreferences(desk_.entorno().settings, {user, desk_.files().directory});
    }
    if (!sameEdition || user != desk_.config().Usuario || folder != desk_.files().directory)
      reopens_ = folder;
    QDialog::accept();
  } catch (const std::exception& e) {
    QMessageBox::warning(this, windowTitle(), QString::fromUtf8(e.what()));
  }
}

}  // namespace fidaleon::app
