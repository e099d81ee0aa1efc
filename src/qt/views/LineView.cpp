#include "qt/views/LineView.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

#include "qt/Appearance.h"
#include "qt/Text.h"

namespace fidaleon::qt {

namespace {

/// Draws a wave under a text that is doubted.
class MarkedEdit : public QLineEdit {
 public:
  MarkedEdit(const forms::TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLineEdit::paintEvent(event);
    if (box_.doubt().empty()) return;
    const QRect inside = rect().adjusted(6, 0, -6, 0);
    const int right =
        inside.left() + std::min(inside.width(), fontMetrics().horizontalAdvance(text()));
    const int below = inside.center().y() + fontMetrics().ascent() / 2 + 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(warningColour(parentWidget()->palette()), 1.2));
    QPainterPath wave(QPointF(inside.left(), below));
    for (int x = inside.left(), up = 1; x < right; x += 3, up = -up)
      wave.quadTo(x + 1.5, below + 2 * up, x + 3, below);
    painter.drawPath(wave);
  }

 private:
  const forms::TextBox& box_;
};

}  // namespace

LineView::LineView(forms::TextBox& box, QWidget* parent)
    : TextView(box), edit_(new MarkedEdit(box, parent)), offers_(*edit_) {
  edit_->setAcceptDrops(false);
  edit_->setMinimumWidth(charsWidth(*edit_, 11));
  if (box.password()) edit_->setEchoMode(QLineEdit::Password);
  connect(edit_, &QLineEdit::textEdited, this, [this] {
    const auto before = this->box().text().size();
    userEdited();
    offer();
    const bool atEnd = edit_->cursorPosition() == edit_->text().size();
    if (atEnd && this->box().text().size() == before + 1) this->box().form().typedInto(this->box());
  });
  connect(edit_, &QLineEdit::cursorPositionChanged, this, [this] { selectionMoved(); });
  connect(edit_, &QLineEdit::selectionChanged, this, [this] { selectionMoved(); });
  offers_.onClick = [this](const forms::Offer& offer) { this->box().take(offer); };
  watch();
}

/// Nothing where the text is all that could be offered.
void LineView::offer() {
  if (!box().offers || box().locked()) return;
  std::vector<forms::Offer> offers = box().offers(box().text());
  if (offers.size() == 1 && offers.front().text == box().text()) offers.clear();
  offers_.show(std::move(offers), false);
}

bool LineView::keyPressed(QKeyEvent& event) {
  if (offers_.moves(event)) return true;
  const bool plain = !(event.modifiers() & ~Qt::KeypadModifier);
  if (plain && event.key() == Qt::Key_Down && box().offers) {
    offer();
    return offers_.isShown();
  }
  if (offers_.isShown()) {
    const bool escape = event.key() == Qt::Key_Escape;
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const forms::Offer* chosen = enter || event.key() == Qt::Key_Tab ? offers_.chosen() : nullptr;
    if (chosen) box().take(forms::Offer(*chosen));
    if (escape || enter || event.key() == Qt::Key_Tab) offers_.hide();
    // Enter goes on where it would go on; it must not accept the form with what was only chosen.
    if (escape || (enter && chosen && !box().form().entersFields())) return true;
  }
  return TextView::keyPressed(event);
}

bool LineView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == edit_ && (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide))
    offers_.hide();
  return TextView::eventFilter(watched, event);
}

void LineView::showDoubt() {
  const std::string& doubt = box().doubt();
  edit_->setToolTip(toQt(doubt.empty() ? box().toolTip() : doubt).toHtmlEscaped());
  edit_->setAccessibleDescription(toQt(doubt));
  edit_->update();
}

QWidget* LineView::widget() const {
  return edit_;
}

QWidget* LineView::focusWidget() const {
  return edit_;
}

void LineView::fixWidth(int letters) {
  // The hint of the widget is 17 letters and what stands around them.
  const int around = edit_->sizeHint().width() - 17 * edit_->fontMetrics().horizontalAdvance(u'x');
  edit_->setFixedWidth(charsWidth(*edit_, letters + 0.5) + around);
}

std::string LineView::shownText() const {
  return fromQt(edit_->text());
}

void LineView::showText(const std::string& text, bool undoable) {
  if (!undoable) return edit_->setText(toQt(text));
  const int caret = edit_->cursorPosition();
  edit_->selectAll();
  edit_->insert(toQt(text));
  edit_->setCursorPosition(std::min<int>(caret, edit_->text().size()));
}

void LineView::insertText(const QString& text) {
  edit_->insert(text);
}

std::pair<int, int> LineView::shownSelection() const {
  const int start = edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
  const int end = edit_->hasSelectedText() ? edit_->selectionEnd() : start;
  const int from = codePoints(edit_->text(), start);
  return {from, codePoints(edit_->text(), end) - from};
}

void LineView::showSelection(int start, int length) {
  if (shownSelection() == std::pair(start, length)) return;
  const int from = utf16Position(edit_->text(), start);
  const int to = utf16Position(edit_->text(), start + length);
  if (from == to)
    edit_->setCursorPosition(from);
  else
    edit_->setSelection(from, to - from);
}

void LineView::showLocked() {
  edit_->setReadOnly(box().locked());
  edit_->setPalette(tone());
}

}  // namespace fidaleon::qt
