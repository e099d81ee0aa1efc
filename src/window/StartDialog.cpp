#include "window/StartDialog.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace fidaleon::app {

StartDialog::StartDialog(ParishDoor& door, QWidget* parent)
    : QDialog(parent), door_(door), known_(door.recent()) {
  setWindowTitle("Fidaleon");
  setMinimumWidth(520);
  auto* column = new QVBoxLayout(this);
  auto* title = new QLabel(tr("<b>¿Con qué parroquia quiere trabajar?</b>"), this);
  column->addWidget(title);
  list_ = new QListWidget(this);
  list_->setAccessibleName(tr("Parroquias recientes"));
  for (const KnownParish& parish : known_)
    list_->addItem(QString::fromStdString(parish.name) + "\n" +
                   QString::fromStdString(parish.directory.string()));
  list_->setCurrentRow(0);
  list_->setVisible(!known_.empty());
  column->addWidget(list_);
  const auto button = [&](const QString& text, const QString& what, auto action) {
    auto* made = new QPushButton(text, this);
    made->setToolTip(what);
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, action);
    column->addWidget(made);
    return made;
  };
  QPushButton* marked = button(tr("Abrir la &elegida"), tr("Abre la parroquia elegida en la lista"),
                               [this] { openMarked(); });
  marked->setVisible(!known_.empty());
  QPushButton* make =
      button(tr("&Crear una parroquia nueva…"), tr("Vacía, o de ejemplo para aprender"),
             [this] { open(door_.create(this, ParishDoor::freeDirectory())); });
  button(tr("&Abrir una parroquia que ya existe…"),
         tr("La de otro equipo en una carpeta compartida, o la de otra carpeta de este"),
         [this] { open(door_.choose(this)); });
  button(tr("Conectar con un ser&vidor…"),
         tr("La parroquia que está, o va a estar, en un servidor PostgreSQL"),
         [this] { open(door_.connectToServer(this)); });
  button(tr("&Salir"), tr("Cierra el programa"), [this] { reject(); });
  (known_.empty() ? make : marked)->setDefault(true);
  (known_.empty() ? static_cast<QWidget*>(make) : list_)->setFocus();
  connect(list_, &QListWidget::itemActivated, this, [this] { openMarked(); });
}

void StartDialog::openMarked() {
  const int row = list_->currentRow();
  if (row >= 0) open(known_.at(static_cast<std::size_t>(row)).directory);
}

void StartDialog::open(const std::optional<std::filesystem::path>& directory) {
  if (!directory) return;
  chosen_ = *directory;
  accept();
}

}  // namespace fidaleon::app
