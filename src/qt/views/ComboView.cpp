#include "qt/views/ComboView.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QListView>
#include <QProxyStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>

#include "qt/Appearance.h"
#include "qt/Text.h"

namespace fidaleon::qt {

namespace {

/// Long lists open as a list with a scroll bar, not as a menu over the whole screen.
class ListPopups : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_Popup) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

/// One that is locked looks like a field that is: no arrow, no raised button.
class LockableCombo : public QComboBox {
 public:
  LockableCombo(const forms::ComboBox& list, QWidget* parent) : QComboBox(parent), list_(list) {}
  /// Shown in the place of the chosen line while it is looked for.
  void setTyped(const QString& typed) {
    typed_ = typed;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (!list_.locked() && typed_.isEmpty()) return QComboBox::paintEvent(event);
    if (!list_.locked()) return paintTyped();
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.state |= QStyle::State_Sunken | QStyle::State_ReadOnly;
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    QStylePainter painter(this);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, frame);
    const int margin = frame.lineWidth + 2;
    const QRect inside = rect().adjusted(margin, 0, -margin, 0);
    const QString text = fontMetrics().elidedText(currentText(), Qt::ElideRight, inside.width());
    painter.drawItemText(inside, Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(), text,
                         QPalette::Text);
  }

 private:
  void paintTyped() {
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = typed_ + QStringLiteral("\u2502");
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
  }

  const forms::ComboBox& list_;
  QString typed_;
};

}  // namespace

ComboView::ComboView(forms::ComboBox& list, QWidget* parent)
    : ListView(list), combo_(new LockableCombo(list, parent)) {
  auto* style = new ListPopups;
  style->setParent(combo_);
  combo_->setStyle(style);
  combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo_->setMinimumContentsLength(10);
  combo_->setMaxVisibleItems(15);
  if (auto* lines = qobject_cast<QListView*>(combo_->view())) lines->setUniformItemSizes(true);
  combo_->setModel(&model());
  connect(combo_, &QComboBox::activated, this, [this](int index) { choose(index); });
  offers_ = std::make_unique<OfferList>(*combo_);
  offers_->onClick = [this](const forms::Offer& offer) { take(offer); };
  watch();
}

ComboView::~ComboView() = default;

QWidget* ComboView::widget() const {
  return combo_;
}

void ComboView::fixWidth(int letters) {
  combo_->setMinimumContentsLength(letters);
  combo_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

bool ComboView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == combo_ && event->type() == QEvent::FocusOut)
    left(static_cast<QFocusEvent&>(*event));
  if (watched == combo_ && event->type() == QEvent::Wheel) {
    // Scrolling a page must not change a choice under the pointer.
    event->ignore();
    return true;
  }
  const bool press =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
  if (ListView::eventFilter(watched, event)) return true;
  return press && locked();
}

void ComboView::look(const QString& typed) {
  typed_ = typed;
  static_cast<LockableCombo*>(combo_)->setTyped(typed);
  if (typed.isEmpty()) return offers_->hide();
  std::vector<forms::Offer> offers = list().offers(fromQt(typed));
  if (offers.empty())
    offers_->say(QStringLiteral("No hay ninguna. Esc lo deja como estaba."));
  else
    offers_->show(std::move(offers), true);
}

void ComboView::take(const forms::Offer& offer) {
  const forms::Offer taken = offer;
  look({});
  list().take(taken);
  flush();
}

/// Who goes on to another field has found the one in front.
void ComboView::left(const QFocusEvent& event) {
  if (typed_.isEmpty() || event.reason() == Qt::ActiveWindowFocusReason ||
      event.reason() == Qt::PopupFocusReason)
    return;
  const forms::Offer* chosen = offers_->chosen();
  chosen ? take(*chosen) : look({});
}

/// Letters look for an offer, and Enter or Tab takes the one in front.
bool ComboView::looksFor(QKeyEvent& event) {
  const bool plain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  const QString letters = event.text();
  if (plain && !letters.isEmpty() && letters.front().isPrint() &&
      (letters != QStringLiteral(" ") || !typed_.isEmpty())) {
    look(typed_ + letters);
    return true;
  }
  if (typed_.isEmpty()) return false;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (enter || event.key() == Qt::Key_Tab) {
    const forms::Offer* chosen = offers_->chosen();
    if (!chosen) list().form().ui().beep();
    if (chosen) take(*chosen);
    return !chosen || (enter && !list().form().entersFields());
  }
  if (event.key() == Qt::Key_Backspace) look(typed_.chopped(1));
  if (event.key() == Qt::Key_Escape) look({});
  return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Escape || offers_->moves(event);
}

bool ComboView::keyPressed(QKeyEvent& event) {
  if (list().offers && !locked() && looksFor(event)) return true;
  if (event.matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(combo_->currentText());
    return true;
  }
  if (ListView::keyPressed(event)) return true;
  return locked() && event.key() == Qt::Key_Space;
}

void ComboView::showSelection() {
  combo_->setCurrentIndex(list().listIndex());
}

void ComboView::showLocked() {
  QPalette palette;
  if (list().locked())
    palette.setColor(QPalette::Base, lockedColour(combo_->parentWidget()->palette()));
  combo_->setPalette(palette);
}

}  // namespace fidaleon::qt
