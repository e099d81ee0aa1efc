#include "qt/views/LineView.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>

#include "qt/Appearance.h"
#include "qt/Text.h"

namespace fidaleon::qt {

LineView::LineView(forms::TextBox& box, QWidget* parent)
    : TextView(box), edit_(new QLineEdit(parent)) {
  edit_->setAcceptDrops(false);
  edit_->setMinimumWidth(charsWidth(*edit_, 11));
  if (box.password()) edit_->setEchoMode(QLineEdit::Password);
  connect(edit_, &QLineEdit::textEdited, this, [this] { userEdited(); });
  connect(edit_, &QLineEdit::cursorPositionChanged, this, [this] { selectionMoved(); });
  connect(edit_, &QLineEdit::selectionChanged, this, [this] { selectionMoved(); });
  watch();
  offerSuggestions();
}

void LineView::refresh(forms::Change what) {
  if (what == forms::Change::Items) offerSuggestions();
  TextView::refresh(what);
}

void LineView::offerSuggestions() {
  if (box().suggestions().empty()) return edit_->setCompleter(nullptr);
  QStringList texts;
  for (const std::string& text : box().suggestions()) texts << toQt(text);
  auto* completer = new QCompleter(texts, edit_);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
          [this](const QString& text) { box().enterText(fromQt(text)); });
  edit_->setCompleter(completer);
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
  QPalette palette;
  if (box().locked())
    palette.setColor(QPalette::Base, lockedColour(edit_->parentWidget()->palette()));
  edit_->setPalette(palette);
}

}  // namespace fidaleon::qt
