#include "qt/views/MemoView.h"

#include <QAbstractTextDocumentLayout>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QtMath>
#include <functional>

#include "qt/Appearance.h"
#include "qt/PageScroll.h"
#include "qt/Text.h"
#include "text/Utf8.h"

namespace fidaleon::qt {

namespace {

// The control breaks lines with two characters, the widget with one.
QString withCrLf(QString text) {
  return text.replace(u'\n', QStringLiteral("\r\n"));
}

QString withoutCr(QString text) {
  return text.remove(u'\r');
}

/// A line or two are enough: it has no room to keep for scroll bars.
class Memo : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;
  QSize minimumSizeHint() const override { return minimumSize(); }
  std::function<void()> resized;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QPlainTextEdit::resizeEvent(event);
    if (resized) resized();
  }
};

}  // namespace

MemoView::MemoView(forms::TextBox& box, QWidget* parent) : TextView(box), edit_(new Memo(parent)) {
  edit_->setTabChangesFocus(true);
  edit_->setAcceptDrops(false);
  edit_->setMinimumHeight(heightOf(box.lines()));
  if (box.lines() <= MEMO_FIXED_UP_TO) edit_->setMaximumHeight(edit_->minimumHeight());
  edit_->setMinimumWidth(charsWidth(*edit_, 16));
  connect(edit_, &QPlainTextEdit::textChanged, this, [this] { userEdited(); });
  connect(edit_, &QPlainTextEdit::cursorPositionChanged, this, [this] { selectionMoved(); });
  connect(edit_, &QPlainTextEdit::selectionChanged, this, [this] { selectionMoved(); });
  if (box.grows()) {
    edit_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    static_cast<Memo*>(edit_)->resized = [this] { grow(); };
    connect(edit_, &QPlainTextEdit::textChanged, this, [this] { grow(); });
    connect(edit_, &QPlainTextEdit::cursorPositionChanged, this, [this] {
      if (edit_->hasFocus()) reveal(*edit_);
    });
    grow();
  }
  watch();
}

int MemoView::heightOf(int lines) const {
  const double frame = 2 * (edit_->frameWidth() + edit_->document()->documentMargin());
  return static_cast<int>(edit_->fontMetrics().lineSpacing() * lines + frame) + 1;
}

// Lines are only broken when somebody asks for their room.
void MemoView::grow() {
  const auto* layout = edit_->document()->documentLayout();
  double height = heightOf(0);
  for (QTextBlock block = edit_->document()->begin(); block.isValid(); block = block.next())
    height += layout->blockBoundingRect(block).height();
  edit_->setFixedHeight(std::max(heightOf(box().lines()), qCeil(height)));
}

QWidget* MemoView::widget() const {
  return edit_;
}

std::string MemoView::shownText() const {
  return fromQt(withCrLf(edit_->toPlainText()));
}

void MemoView::showText(const std::string& text, bool undoable) {
  if (!undoable) return edit_->setPlainText(withoutCr(toQt(text)));
  QTextCursor cursor(edit_->document());
  const int caret = edit_->textCursor().position();
  cursor.joinPreviousEditBlock();
  cursor.select(QTextCursor::Document);
  cursor.insertText(withoutCr(toQt(text)));
  cursor.endEditBlock();
  cursor.setPosition(std::min(caret, edit_->document()->characterCount() - 1));
  edit_->setTextCursor(cursor);
}

bool MemoView::keyPressed(QKeyEvent& event) {
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (!enter || box().breaksLines()) return TextView::keyPressed(event);
  event.ignore();  // the form goes on with it
  return true;
}

void MemoView::insertText(const QString& text) {
  edit_->insertPlainText(withoutCr(text));
}

std::pair<int, int> MemoView::shownSelection() const {
  const QString text = edit_->toPlainText();
  const auto position = [&](int at) {
    const QString before = withCrLf(text.left(at));
    return codePoints(before, before.size());
  };
  const int from = position(edit_->textCursor().selectionStart());
  return {from, position(edit_->textCursor().selectionEnd()) - from};
}

void MemoView::showSelection(int start, int length) {
  if (shownSelection() == std::pair(start, length)) return;
  const QString text = withCrLf(edit_->toPlainText());
  const auto position = [&](int at) {
    return static_cast<int>(withoutCr(text.left(utf16Position(text, at))).size());
  };
  QTextCursor cursor(edit_->document());
  cursor.setPosition(position(start));
  cursor.setPosition(position(start + length), QTextCursor::KeepAnchor);
  edit_->setTextCursor(cursor);
}

void MemoView::showLocked() {
  edit_->setReadOnly(box().locked());
  if (box().locked())  // readable with the keyboard too
    edit_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  edit_->setPalette(tone());
}

}  // namespace fidaleon::qt
