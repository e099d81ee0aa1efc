#include "window/PasswordField.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/Appearance.h"
#include "store/Error.h"
#include "store/postgres/PasswordKeeper.h"

namespace fidaleon::app {

PasswordField::PasswordField(QWidget* parent)
    : QWidget(parent),
      password_(new QLineEdit(this)),
      remember_(new QCheckBox(tr("&Recordar la contraseña en este equipo"), this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  password_->setEchoMode(QLineEdit::Password);
  password_->setAccessibleName(tr("Contraseña"));
  remember_->setChecked(true);
  remember_->setToolTip(
      tr("Con las demás contraseñas de su sesión, o en un archivo que solo puede leer su cuenta. "
         "Si no, se pide cada vez que se abre el programa."));
  column->addWidget(password_);
  column->addWidget(remember_);
  setFocusProxy(password_);
}

std::string PasswordField::password() const {
  return password_->text().toStdString();
}

void PasswordField::use(const store::ServerAddress& address) {
  if (password().empty()) return;
  try {
    store::usePassword(address, password(),
                       remember_->isChecked() ? store::Remember::Yes : store::Remember::No);
  } catch (const store::Error& e) {
    QMessageBox::warning(this, tr("Contraseña del servidor"),
                         QString::fromUtf8(e.what()) +
                             tr("\n\nSe usará mientras el programa esté abierto, y la próxima vez "
                                "habrá que escribirla de nuevo."));
  }
}

namespace {

class PasswordDialog : public QDialog {
 public:
  PasswordDialog(const store::ServerAddress& address, const QString& why, QWidget* over)
      : QDialog(over), field_(new PasswordField(this)) {
    setObjectName("PasswordDialog");
    setWindowTitle(QObject::tr("Contraseña del servidor"));
    auto* column = new QVBoxLayout(this);
    auto* question = new QLabel(QObject::tr("<b>Contraseña de «%1» para entrar en %2</b>")
                                    .arg(QString::fromStdString(address.user).toHtmlEscaped(),
                                         QString::fromStdString(address.shown()).toHtmlEscaped()),
                                this);
    column->addWidget(question);
    auto* reason = new QLabel(why, this);
    reason->setWordWrap(true);
    column->addWidget(reason);
    column->addWidget(field_);
    auto* buttons = new QDialogButtonBox(this);
    auto* enter = buttons->addButton(QObject::tr("&Entrar"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QObject::tr("&Cancelar"), QDialogButtonBox::RejectRole);
    enter->setDefault(true);
    enter->setEnabled(false);
    connect(&field_->field(), &QLineEdit::textChanged, enter,
            [enter](const QString& text) { enter->setEnabled(!text.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    setMinimumWidth(qt::charsWidth(*this, 64));
    field_->setFocus();
  }
  PasswordField& field() { return *field_; }

 private:
  PasswordField* field_;
};

}  // namespace

bool askForPassword(QWidget* over, const store::ServerAddress& address, const QString& why) {
  PasswordDialog dialog(address, why, over);
  if (dialog.exec() != QDialog::Accepted) return false;
  dialog.field().use(address);
  return true;
}

}  // namespace fidaleon::app
