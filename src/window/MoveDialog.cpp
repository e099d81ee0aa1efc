#include "window/MoveDialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/Appearance.h"
#include "window/ServerFields.h"

namespace fidaleon::app {
namespace {

std::optional<MoveNote> unfinishedMove(const ParishFiles& files) {
  auto note = readMoveNote(files);
  return note && !note->done ? note : std::nullopt;
}

store::ServerAddress addressKept(const std::optional<MoveNote>& begun) {
  try {
    if (begun) return store::serverAt(begun->to).value_or(store::ServerAddress{});
  } catch (const store::Error&) {
    // Is typed once more.
  }
  return {};
}

}  // namespace

MoveDialog::MoveDialog(Desk& desk, const std::filesystem::path& folder, QWidget* parent)
    : QDialog(parent), desk_(desk), begun_(unfinishedMove(desk.files())) {
  setWindowTitle(tr("Trasladar la parroquia"));
  setPalette(qt::legible(palette()));
  const bool fromServer = desk.files().isOnServer();
  auto* column = new QVBoxLayout(this);
  auto* what = new QLabel(
      tr("<b>De %1 a %2.</b> Se copian todas las filas y se comparan una por una. La parroquia de "
         "ahora no cambia, y antes se guarda una copia de ella. Nadie más puede trabajar mientras "
         "dura; se puede dejar a medias y seguir otro día.")
          .arg(fromServer ? tr("un servidor") : tr("un fichero"),
               fromServer ? tr("un fichero de este equipo") : tr("un servidor")),
      this);
  what->setWordWrap(true);
  column->addWidget(what);
  if (begun_) {
    auto* rest = new QLabel(tr("Hay un traslado a medias, del %1. Con las mismas señas se sigue "
                               "donde se quedó.")
                                .arg(QString::fromStdString(begun_->since)),
                            this);
    rest->setWordWrap(true);
    column->addWidget(rest);
  }
  const auto to = begun_ ? begun_->to : folder;
  column->addWidget(fromServer ? toFile(to) : toServer(to));
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(tr("&Trasladar…"), QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton(tr("Cance&lar"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  resize(qt::charsWidth(*this, 84), sizeHint().height());
}

QWidget* MoveDialog::toServer(const std::filesystem::path& folder) {
  server_ = new ServerFields(addressKept(begun_), folder, this);
  server_->setFocus();
  return server_;
}

QWidget* MoveDialog::toFile(const std::filesystem::path& folder) {
  auto* page = new QWidget(this);
  auto* form = new QFormLayout(page);
  form->setContentsMargins(0, 0, 0, 0);
  folder_ = new QLineEdit(QString::fromStdString(folder.string()), page);
  auto* browse = new QToolButton(page);
  browse->setText(tr("E&xaminar…"));
  connect(browse, &QToolButton::clicked, this, [this] {
    const QString chosen = QFileDialog::getExistingDirectory(
        this, tr("Carpeta de la parroquia trasladada"), folder_->text());
    if (!chosen.isEmpty()) folder_->setText(chosen);
  });
  auto* row = new QHBoxLayout;
  row->addWidget(folder_);
  row->addWidget(browse);
  auto* label = new QLabel(tr("A la &carpeta:"), page);
  label->setBuddy(folder_);
  form->addRow(label, row);
  answer_ = new QLabel(page);
  answer_->setWordWrap(true);
  answer_->setMinimumHeight(2 * answer_->fontMetrics().lineSpacing());
  form->addRow(answer_);
  folder_->setFocus();
  return page;
}

MoveOrder MoveDialog::order() const {
  const std::filesystem::path from = desk_.files().directory;
  if (server_) return {from, server_->folder(), server_->address()};
  return {from, folder_->text().trimmed().toStdString(), std::nullopt};
}

void MoveDialog::tell(const QString& sentence) {
  if (server_) return server_->tell(sentence);
  answer_->setText(sentence);
}

std::string MoveDialog::obstacle() {
  const MoveOrder wanted = order();
  if (!wanted.to.is_absolute()) return "Elija la carpeta a la que se traslada.";
  if (!isReadable(wanted.to)) return UNREADABLE_NAME;
  if (ParishFiles(wanted.to).exists() &&
      (!wanted.address || store::serverAt(wanted.to) != wanted.address))
    return "En esa carpeta ya hay una parroquia. Elija otra.";
  const auto there = desk_.presence().others();
  if (there.empty()) return {};
  std::string who = "Antes tienen que cerrar el programa los demás:";
  for (const locks::Holder& holder : there) who += "\n  • " + spoken(holder);
  return who;
}

void MoveDialog::accept() {
  if (server_) {
    const auto found = server_->look();
    if (!found) return;
    if (!found->canBeFilled() && !found->canGoOn())
      return tell(QString::fromStdString(
          found->canBeJoined() ? "En esa base de datos ya hay una parroquia. Para el traslado hace "
                                 "falta una vacía."
                               : spoken(*found, server_->address())));
  }
  try {
    const std::string why = obstacle();
    if (!why.empty()) return tell(QString::fromStdString(why));
  } catch (const std::exception& e) {
    return tell(QString::fromUtf8(e.what()));
  }
  if (server_) server_->usePassword();
  QDialog::accept();
}

}  // namespace fidaleon::app
