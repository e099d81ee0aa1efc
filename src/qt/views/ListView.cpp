#include "qt/views/ListView.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

#include "qt/Text.h"
#include "text/Utf8.h"

namespace fidaleon::qt {

using forms::Change;

namespace {

constexpr int LETTERS_BELONG_TOGETHER_MS = 1200;

}  // namespace

ListView::ListView(forms::ListControl& list) : ControlView(list), list_(list), model_(list) {
  idle_.setSingleShot(true);
  idle_.setInterval(0);
  connect(&idle_, &QTimer::timeout, this, [this] { flush(); });
}

void ListView::refresh(Change what) {
  ControlView::refresh(what);
  if (what == Change::Locked) showLocked();
  if (what == Change::Items) {
    stale_ = true;
    idle_.start();
  }
  if (what != Change::Selection || stale_) return;
  const QScopedValueRollback guard(showing_, true);
  showSelection();
}

void ListView::flush() {
  if (!stale_) return;
  stale_ = false;
  idle_.stop();
  const QScopedValueRollback guard(showing_, true);
  model_.reread();
  showSelection();
}

void ListView::choose(int index) {
  flush();
  list_.userSelect(index);
  flush();
  const QScopedValueRollback guard(showing_, true);
  showSelection();
}

bool ListView::keyPressed(QKeyEvent& event) {
  if (ControlView::keyPressed(event)) return true;
  const bool plain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  const QString letters = event.text();
  const bool types = plain && !letters.isEmpty() && letters.front().isPrint();
  if (types && (letters != QStringLiteral(" ") || !searched_.empty()) && !list_.locked())
    if (find(letters)) return true;
  if (!list_.locked()) return false;
  // A locked list may be read, not changed; leaving and closing stay possible.
  return types || event.key() == Qt::Key_Up || event.key() == Qt::Key_Down ||
         event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown ||
         event.key() == Qt::Key_Home || event.key() == Qt::Key_End || event.key() == Qt::Key_F4;
}

bool ListView::find(const QString& letters) {
  const std::string typed = text::searchKey(fromQt(letters));
  const bool goesOn = sinceLetter_.isValid() && sinceLetter_.elapsed() < LETTERS_BELONG_TOGETHER_MS;
  if (!goesOn) searched_.clear();
  if (searched_.empty() && typed == " ") return false;
  sinceLetter_.start();
  // The same letter again and again walks through the lines that begin with it.
  const bool repeats = searched_ == typed;
  if (!repeats) searched_ += typed;
  const bool onward = repeats || searched_ == typed;
  const int count = list_.listCount();
  const int from = std::max(0, list_.listIndex() + (onward ? 1 : 0));
  for (int step = 0; step < count; ++step) {
    const int line = (from + step) % count;
    if (!text::searchKey(list_.list(line)).starts_with(searched_)) continue;
    choose(line);
    return true;
  }
  return true;
}

}  // namespace fidaleon::qt
