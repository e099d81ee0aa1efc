#include "window/ServerFields.h"

#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QToolButton>

#include "parish/ParishFiles.h"
#include "store/postgres/PostgresErrors.h"
#include "window/Beside.h"
#include "window/PasswordField.h"

namespace fidaleon::app {
namespace {

constexpr int LONGEST = 250, LONGEST_NAME = 63;

std::string textOf(const QLineEdit* field) {
  return field->text().trimmed().toStdString();
}

}  // namespace

ServerFields::ServerFields(const store::ServerAddress& proposal,
                           const std::filesystem::path& folder, QWidget* parent)
    : QWidget(parent),
      host_(line(QString::fromStdString(proposal.host), LONGEST)),
      port_(new QSpinBox(this)),
      database_(line(QString::fromStdString(proposal.database), LONGEST_NAME)),
      user_(line(QString::fromStdString(proposal.user), LONGEST_NAME)),
      password_(new PasswordField(this)),
      certificate_(line(QString::fromStdString(proposal.rootCertificate), LONGEST)),
      folder_(line(QString::fromStdString(folder.string()), LONGEST)),
      sign_(new QLabel(this)),
      answer_(new QLabel(this)) {
  host_->setPlaceholderText(tr("Por ejemplo: archivo.diocesis.es"));
  port_->setRange(1, 65535);
  port_->setValue(proposal.port);
  certificate_->setPlaceholderText(tr("Solo si lo ha dado quien lleva el servidor"));
  auto* form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  form->addRow(tr("&Servidor:"), host_);
  form->addRow(tr("P&uerto:"), port_);
  form->addRow(tr("&Base de datos:"), database_);
  form->addRow(tr("Usuar&io:"), user_);
  auto* password = new QLabel(tr("C&ontraseña:"), this);
  password->setBuddy(&password_->field());
  form->addRow(password, password_);
  const auto labelled = [&](const QString& text, QLineEdit* field, const auto& choose) {
    auto* label = new QLabel(text, this);
    label->setBuddy(field);
    form->addRow(label, withButton(field, QString(text).remove('&').remove(':'), choose));
  };
  labelled(tr("Certi&ficado:"), certificate_, [this] { chooseCertificate(); });
  labelled(tr("Carpeta de este &puesto:"), folder_, [this] { chooseFolder(); });
  folder_->setToolTip(
      tr("De este equipo: guarda la dirección del servidor y las copias que se hacen aquí"));
  auto* test = new QPushButton(tr("Prob&ar"), this);
  test->setToolTip(tr("Entra en el servidor y mira qué hay en él. No cambia nada."));
  test->setAutoDefault(false);
  connect(test, &QPushButton::clicked, this, [this] {
    if (const auto found = look())
      tell(QString::fromStdString(spoken(*found, address())),
           found->canBeJoined() || found->canBeFilled() || found->canGoOn());
  });
  form->addRow(QString(), test);
  answer_->setWordWrap(true);
  answer_->setMinimumHeight(3 * answer_->fontMetrics().lineSpacing());
  answer_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  sign_->setAlignment(Qt::AlignTop | Qt::AlignRight);
  form->addRow(sign_, answer_);
  for (QLineEdit* field : {host_, database_, user_, certificate_})
    connect(field, &QLineEdit::textEdited, this, [this] { tell({}); });
  setFocusProxy(host_);
}

QLineEdit* ServerFields::line(const QString& text, int most) {
  auto* field = new QLineEdit(text, this);
  field->setMaxLength(most);
  return field;
}

QWidget* ServerFields::withButton(QLineEdit* field, const QString& name,
                                  const std::function<void()>& choose) {
  auto* both = new QWidget(this);
  auto* row = new QHBoxLayout(both);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(field);
  auto* button = new QToolButton(both);
  button->setText(tr("Examinar…"));
  button->setAccessibleName(tr("Examinar: %1").arg(name));
  button->setFocusPolicy(Qt::StrongFocus);
  connect(button, &QToolButton::clicked, this, choose);
  row->addWidget(button);
  return both;
}

void ServerFields::chooseCertificate() {
  const QString chosen =
      QFileDialog::getOpenFileName(this, tr("Certificado de quien firma el del servidor"), {},
                                   tr("Certificados (*.crt *.pem);;Todos los archivos (*)"));
  if (!chosen.isEmpty()) certificate_->setText(chosen);
}

void ServerFields::chooseFolder() {
  const QString chosen =
      QFileDialog::getExistingDirectory(this, tr("Carpeta de este puesto"), folder_->text());
  if (!chosen.isEmpty()) folder_->setText(chosen);
}

store::ServerAddress ServerFields::address() const {
  return {textOf(host_), port_->value(), textOf(database_), textOf(user_), textOf(certificate_)};
}

std::filesystem::path ServerFields::folder() const {
  return textOf(folder_);
}

bool ServerFields::isComplete() {
  const auto lacks = [this](QLineEdit* field, const QString& what) {
    tell(what);
    field->setFocus(Qt::OtherFocusReason);
    return false;
  };
  if (textOf(host_).empty()) return lacks(host_, tr("Escriba el nombre del servidor."));
  if (textOf(database_).empty())
    return lacks(database_, tr("Escriba el nombre de la base de datos."));
  if (textOf(user_).empty()) return lacks(user_, tr("Escriba el usuario del servidor."));
  if (!folder().is_absolute()) return lacks(folder_, tr("Elija la carpeta de este puesto."));
  if (!isReadable(folder())) return lacks(folder_, tr(UNREADABLE_NAME));
  return true;
}

std::optional<ServerLook> ServerFields::look() {
  tell({});
  if (!isComplete()) return std::nullopt;
  try {
    return askForgettable(this,
                          tr("Entrando en %1…").arg(QString::fromStdString(address().shown())),
                          [address = address(), password = password_->password()] {
                            return lookAt(address, password);
                          });
  } catch (const store::Error& e) {
    const bool given = e.kind() == store::ErrorKind::Cancelled;
    tell(given ? tr("Ha dejado de esperar al servidor.") : QString::fromUtf8(e.what()));
    if (e.number() == store::kWrongPassword) {
      password_->setFocus(Qt::OtherFocusReason);
      password_->field().selectAll();
    }
  }
  return std::nullopt;
}

void ServerFields::tell(const QString& sentence, bool good) {
  answer_->setText(sentence);
  const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
  const auto icon = good ? QStyle::SP_DialogApplyButton : QStyle::SP_MessageBoxWarning;
  sign_->setPixmap(sentence.isEmpty() ? QPixmap() : style()->standardIcon(icon).pixmap(side));
}

void ServerFields::usePassword() {
  password_->use(address());
}

}  // namespace fidaleon::app
