#include "qt/QtUserInterface.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/Appearance.h"
#include "qt/FormDialog.h"
#include "qt/ProgressDialog.h"
#include "qt/Text.h"

namespace fidaleon::qt {

using forms::Answer;
using forms::MsgButtons;
using forms::MsgIcon;

namespace {

/// An arrow again while the user is asked something in the middle of long work.
class HourglassPause {
 public:
  explicit HourglassPause(int depth) : depth_(depth) {
    for (int i = 0; i < depth_; ++i) QGuiApplication::restoreOverrideCursor();
  }
  ~HourglassPause() {
    for (int i = 0; i < depth_; ++i) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  }

 private:
  int depth_;
};

QString titleOr(const std::string& title) {
  return title.empty() ? QGuiApplication::applicationDisplayName() : toQt(title);
}

struct Choice {
  const char* caption;
  Answer answer;
};

std::vector<Choice> choices(MsgButtons buttons) {
  const Choice ok{"&Aceptar", Answer::Ok}, cancel{"&Cancelar", Answer::Cancel};
  const Choice yes{"&Sí", Answer::Yes}, no{"&No", Answer::No};
  switch (buttons) {
    case MsgButtons::OkCancel:
      return {ok, cancel};
    case MsgButtons::YesNo:
      return {yes, no};
    case MsgButtons::YesNoCancel:
      return {yes, no, cancel};
    default:
      return {ok};
  }
}

QMessageBox::Icon iconOf(MsgIcon icon) {
  switch (icon) {
    case MsgIcon::Information:
      return QMessageBox::Information;
    case MsgIcon::Exclamation:
      return QMessageBox::Warning;
    case MsgIcon::Question:
      return QMessageBox::Question;
    case MsgIcon::Critical:
      return QMessageBox::Critical;
    default:
      return QMessageBox::NoIcon;
  }
}

QString printableFamily(const std::string& wanted) {
  const QString family = toQt(wanted);
  if (QFontDatabase::hasFamily(family)) return family;
  for (const char* const other : {"Liberation Sans", "DejaVu Sans"})
    if (QFontDatabase::hasFamily(QString::fromLatin1(other))) return QString::fromLatin1(other);
  return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

}  // namespace

QtUserInterface::QtUserInterface(QWidget* mainWindow) : mainWindow_(mainWindow) {}

QtUserInterface::~QtUserInterface() = default;

QWidget* QtUserInterface::windowAtWork() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  return mainWindow_;
}

void QtUserInterface::showModal(forms::Form& form) {
  const HourglassPause pause(hourglass_);
  FormDialog dialog(form, windowAtWork());
  if (!form.isUnloaded()) dialog.exec();
  form.Abandon();  // when the program ends with the dialog open
}

Answer QtUserInterface::showMessage(const forms::Message& message) {
  const HourglassPause pause(hourglass_);
  QMessageBox box(windowAtWork());
  box.setIcon(iconOf(message.icon));
  box.setWindowTitle(titleOr(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(toQt(message.text));
  // Its label would take a name with "<" in it for markup.
  if (!message.below.empty())
    box.setInformativeText("<span>" + toQt(message.below).toHtmlEscaped().replace("\n", "<br>") +
                           "</span>");
  std::vector<std::pair<QAbstractButton*, Answer>> made;
  for (const Choice& choice : choices(message.buttons)) {
    // One role for all keeps them in the order in which they are always given.
    auto* button = box.addButton(QString::fromUtf8(choice.caption), QMessageBox::ActionRole);
    made.push_back({button, choice.answer});
    if (made.size() == 1 || choice.answer == message.byEnter) box.setDefaultButton(button);
  }
  box.setEscapeButton(made.back().first);
  box.exec();
  for (const auto& [button, answer] : made)
    if (button == box.clickedButton()) return answer;
  return made.back().second;
}

std::optional<std::string> QtUserInterface::inputBox(const std::string& prompt,
                                                     const std::string& title,
                                                     const std::string& initial) {
  const HourglassPause pause(hourglass_);
  QDialog dialog(windowAtWork());
  dialog.setWindowTitle(titleOr(title));
  auto* column = new QVBoxLayout(&dialog);
  auto* text = new QLabel(toQt(prompt), &dialog);
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  auto* edit = new QLineEdit(toQt(initial), &dialog);
  edit->setAccessibleName(toQt(prompt));
  edit->setMinimumWidth(charsWidth(*edit, 36));
  edit->selectAll();
  auto* buttons = new QDialogButtonBox(&dialog);
  buttons->addButton(QStringLiteral("&Aceptar"), QDialogButtonBox::AcceptRole);
  buttons->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  column->addWidget(text);
  column->addWidget(edit);
  column->addWidget(buttons);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return fromQt(edit->text());
}

void QtUserInterface::beep() {
  QApplication::beep();
}

void QtUserInterface::setHourglass(bool on) {
  if (!on && hourglass_ == 0) return;
  hourglass_ += on ? 1 : -1;
  if (on)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

std::string QtUserInterface::clipboardText() const {
  return fromQt(QGuiApplication::clipboard()->text());
}

void QtUserInterface::setClipboardText(const std::string& text) {
  QGuiApplication::clipboard()->setText(toQt(text));
}

bool QtUserInterface::hasPrinter() const {
  return !QPrinterInfo::availablePrinterNames().isEmpty();
}

double QtUserInterface::printerTextWidth(const std::string& text, const std::string& font) const {
  // Kept: asking the print system anew for every text takes too long.
  if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  constexpr double POINTS = 8, TWIPS_PER_INCH = 1440;
  QFont named(printableFamily(font));
  named.setPointSizeF(POINTS);
  const double dots = QFontMetricsF(named, printer_.get()).horizontalAdvance(toQt(text));
  return dots * TWIPS_PER_INCH / printer_->logicalDpiX();
}

void QtUserInterface::progressOpen(std::int64_t count, const std::string& message) {
  progress_.push_back(std::make_unique<ProgressDialog>(count, toQt(message), windowAtWork()));
}

void QtUserInterface::progressMove(std::int64_t position) {
  if (progress_.empty()) return;
  progress_.back()->moveTo(position);
  if (progress_.back()->cancelled()) throw forms::Cancelled();
}

void QtUserInterface::progressClose() {
  if (!progress_.empty()) progress_.pop_back();
}

}  // namespace fidaleon::qt
