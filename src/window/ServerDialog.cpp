#include "window/ServerDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "parish/ParishFiles.h"
#include "parish/server/ServerParish.h"
#include "qt/Appearance.h"
#include "store/Open.h"
#include "window/Beside.h"
#include "window/ServerFields.h"

namespace fidaleon::app {

ServerDialog::ServerDialog(const std::filesystem::path& folder, QWidget* parent)
    : QDialog(parent), fields_(new ServerFields({}, folder, this)) {
  setWindowTitle(tr("Conectar con un servidor"));
  setPalette(qt::legible(palette()));
  auto* column = new QVBoxLayout(this);
  auto* what = new QLabel(tr("Los datos de la parroquia están en un servidor. Quien lo lleva le "
                             "habrá dado estas señas."),
                          this);
  what->setWordWrap(true);
  column->addWidget(what);
  column->addWidget(fields_);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(tr("&Conectar"), QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton(tr("Cance&lar"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(qt::charsWidth(*this, 84), sizeHint().height());
  fields_->setFocus();
}

store::ServerAddress ServerDialog::address() const {
  return fields_->address();
}

std::filesystem::path ServerDialog::folder() const {
  return fields_->folder();
}

void ServerDialog::accept() {
  const auto found = fields_->look();
  if (!found) return;
  makesNew_ = found->canBeFilled();
  try {
    if (makesNew_ ? !wantsANewOne() : !found->canBeJoined()) {
      fields_->tell(QString::fromStdString(spoken(*found, address())), makesNew_);
      return;
    }
    fields_->usePassword();
    if (!makesNew_) join();
    QDialog::accept();
  } catch (const std::exception& e) {
    fields_->tell(QString::fromUtf8(e.what()));
  }
}

void ServerDialog::join() {
  runBeside(this, tr("Preparando este puesto…"), MayCancel::No,
            [folder = folder(), address = address()](const store::Progress&) {
              connectParish(folder, address);
            });
}

bool ServerDialog::wantsANewOne() {
  if (ParishFiles(folder()).exists()) throw store::NameTaken(ParishFiles(folder()).parish());
  QMessageBox box(QMessageBox::Question, windowTitle(),
                  tr("<b>En %1 no hay todavía ninguna parroquia.</b>")
                      .arg(QString::fromStdString(address().shown()).toHtmlEscaped()),
                  QMessageBox::NoButton, this);
  box.setInformativeText(
      tr("Puede crear una parroquia nueva en esa base de datos.\n\nSi lo que quiere es llevar a "
         "ella una que ya tiene, ábrala y elija «Archivo > Trasladar la parroquia»."));
  const QPushButton* make = box.addButton(tr("C&rear una nueva…"), QMessageBox::AcceptRole);
  box.setEscapeButton(box.addButton(tr("&Cancelar"), QMessageBox::RejectRole));
  box.exec();
  return box.clickedButton() == make;
}

}  // namespace fidaleon::app
