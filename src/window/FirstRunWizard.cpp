#include "window/FirstRunWizard.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "core/contract/FDAPI.h"
#include "parish/ParishFiles.h"
#include "sample/SampleNames.h"
#include "store/Open.h"
#include "store/schema/Schema.h"
#include "text/Utf8.h"
#include "window/CarefulQuestion.h"

namespace fidaleon::app {
namespace {

struct Province {
  std::int32_t code;
  std::string name;
};

// The provinces that every parish database begins with.
std::vector<Province> provinces() {
  std::vector<Province> all;
  const store::Table* table = store::parishSchema().find("Provincia");
  for (const auto& row : table->rows())
    all.push_back({static_cast<std::int32_t>(row.at(2).integer()), row.at(1).text()});
  std::sort(all.begin(), all.end(),
            [](const Province& a, const Province& b) { return text::compare(a.name, b.name) < 0; });
  return all;
}

QLabel* explanation(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setWordWrap(true);
  label->setContentsMargins(24, 0, 0, 8);
  return label;
}

}  // namespace

FirstRunWizard::FirstRunWizard(const NewParish& proposal, QWidget* parent)
    : QWizard(parent), server_(proposal.server) {
  setWindowTitle(tr("Bienvenida a Fidaleon"));
  setWizardStyle(QWizard::ModernStyle);
  setOption(QWizard::NoBackButtonOnStartPage);
  setButtonText(QWizard::NextButton, tr("&Siguiente"));
  setButtonText(QWizard::BackButton, tr("&Atrás"));
  setButtonText(QWizard::FinishButton, tr("&Crear la parroquia"));
  setButtonText(QWizard::CancelButton, tr("Cancelar"));
  addPage(parishPage(proposal));
  addPage(contentPage(proposal));
  setMinimumSize(560, accounts_->count() > 1 ? 480 : 0);
}

QWizardPage* FirstRunWizard::parishPage(const NewParish& proposal) {
  auto* page = new QWizardPage(this);
  page->setTitle(tr("La parroquia"));
  page->setSubTitle(
      tr("Estos datos aparecerán en las listas y en los documentos. Podrá corregirlos después."));
  auto* layout = new QFormLayout(page);
  name_ = new QLineEdit(QString::fromStdString(proposal.name), page);
  name_->setMaxLength(120);
  name_->setPlaceholderText(tr("Por ejemplo: San Esteban Protomártir"));
  layout->addRow(tr("&Nombre de la parroquia:"), name_);
  province_ = new QComboBox(page);
  for (const Province& p : provinces()) province_->addItem(QString::fromStdString(p.name), p.code);
  province_->setCurrentIndex(province_->findData(proposal.province));
  province_->setPlaceholderText(tr("Elija la provincia"));
  layout->addRow(tr("&Provincia:"), province_);
  town_ = new QLineEdit(QString::fromStdString(proposal.town), page);
  town_->setMaxLength(120);
  layout->addRow(tr("P&oblación:"), town_);
  edition_ = new QComboBox(page);
  for (const auto& [name, code] : editions())
    edition_->addItem(QString::fromStdString(name), QString::fromStdString(code));
  edition_->setCurrentIndex(
      std::max(0, edition_->findData(QString::fromStdString(proposal.edition))));
  layout->addRow(tr("&Edición:"), edition_);
  user_ = new QLineEdit(QString::fromStdString(proposal.user), page);
  user_->setMaxLength(60);
  layout->addRow(tr("&Usuario de este equipo:"), user_);
  return page;
}

QWizardPage* FirstRunWizard::contentPage(const NewParish& proposal) {
  auto* page = new QWizardPage(this);
  page->setTitle(tr("Los datos"));
  page->setSubTitle(tr("Con qué se empieza y dónde se guarda."));
  auto* layout = new QVBoxLayout(page);
  content_ = new QButtonGroup(page);
  auto* empty = new QRadioButton(tr("Empezar con una parroquia &vacía"), page);
  layout->addWidget(empty);
  layout->addWidget(explanation(tr("Sin libros ni partidas, lista para trabajar."), page));
  auto* sample = new QRadioButton(tr("Crear una parroquia de &ejemplo"), page);
  layout->addWidget(sample);
  layout->addWidget(explanation(
      tr("Con libros de bautismo, confirmación y defunción, un padrón con sus colaboradores y sus "
         "grupos, y una agenda. Todas las personas son inventadas: sirve para aprender y probar "
         "sin miedo, no para trabajar de verdad. Sus documentos llevan la palabra MUESTRA."),
      page));
  content_->addButton(empty, static_cast<int>(Content::Empty));
  content_->addButton(sample, static_cast<int>(Content::Sample));
  content_->button(static_cast<int>(proposal.content))->setChecked(true);
  QWidget* place = placePart(proposal, page);
  layout->addWidget(place);
  place->setVisible(!proposal.server);
  if (proposal.server)
    layout->addWidget(new QLabel(
        tr("Los datos se guardarán en %1.").arg(QString::fromStdString(proposal.server->shown())),
        page));
  layout->addStretch();
  return page;
}

QWidget* FirstRunWizard::placePart(const NewParish& proposal, QWidget* page) {
  auto* place = new QWidget(page);
  auto* layout = new QVBoxLayout(place);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(tr("Carpeta de los &datos:"), place);
  layout->addWidget(label);
  auto* line = new QHBoxLayout;
  directory_ = new QLineEdit(QString::fromStdString(proposal.directory.string()), place);
  label->setBuddy(directory_);
  line->addWidget(directory_);
  auto* browse = new QToolButton(place);
  browse->setText(tr("E&xaminar…"));
  connect(browse, &QToolButton::clicked, this, [this] { chooseDirectory(); });
  line->addWidget(browse);
  layout->addLayout(line);
  layout->addWidget(explanation(
      tr("Si varios equipos van a trabajar a la vez, elija una carpeta compartida por todos."),
      place));
  accounts_ = new QComboBox(place);
  accounts_->addItem(tr("Solo esta cuenta del equipo"));
  for (const AccountGroup& group : ownGroups())
    accounts_->addItem(
        tr("También las demás cuentas del grupo «%1»").arg(QString::fromStdString(group.name)),
        group.id);
  auto* who = new QLabel(tr("&Quién puede abrirlos:"), place);
  who->setBuddy(accounts_);
  const bool choice = accounts_->count() > 1;
  who->setVisible(choice);
  accounts_->setVisible(choice);
  layout->addWidget(who);
  layout->addWidget(accounts_);
  return place;
}

void FirstRunWizard::chooseDirectory() {
  const QString chosen =
      QFileDialog::getExistingDirectory(this, tr("Carpeta de los datos"), directory_->text());
  if (!chosen.isEmpty()) directory_->setText(chosen);
}

NewParish FirstRunWizard::parish() const {
  NewParish p;
  p.name = text::trim(text::sanitized(name_->text().toStdString()));
  p.province = province_->currentData().toInt();
  p.town = text::trim(text::sanitized(town_->text().toStdString()));
  p.edition = edition_->currentData().toString().toStdString();
  p.user = text::trim(text::sanitized(user_->text().toStdString()));
  p.content = static_cast<Content>(content_->checkedId());
  p.directory = directory_->text().trimmed().toStdString();
  p.server = server_;
  const QVariant group = accounts_->currentData();
  if (group.isValid() && !server_) p.group = group.toUInt();
  return p;
}

bool FirstRunWizard::validateCurrentPage() {
  NewParish entered = parish();
  const bool lastPage = nextId() == -1;
  if (!lastPage) entered.directory = "/nonexistent/fidaleon";  // asked for on the next page
  opensWhatIsThere_ = lastPage && ParishFiles(entered.directory).exists();
  if (opensWhatIsThere_)
    return QMessageBox::question(
               this, windowTitle(),
               tr("En esa carpeta ya hay una parroquia. ¿Desea abrirla?\n\nSe abrirá tal como "
                  "está, con su nombre y sus datos.")) == QMessageBox::Yes;
  const std::string missing = whatIsMissing(entered);
  if (missing.empty()) return true;
  QMessageBox::warning(this, windowTitle(), QString::fromStdString(missing));
  return false;
}

void FirstRunWizard::reject() {
  const bool written = name_->isModified() || town_->isModified() || user_->isModified();
  if (written &&
      !askCarefully(this, windowTitle(), tr("¿Desea cerrar esta ventana?"),
                    tr("Se perderá lo que ha escrito. No se ha creado ninguna parroquia."),
                    tr("C&errar")))
    return;
  QWizard::reject();
}

}  // namespace fidaleon::app
