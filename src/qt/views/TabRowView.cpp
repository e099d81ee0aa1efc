#include "qt/views/TabRowView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcutEvent>

#include "qt/Text.h"

namespace fidaleon::qt {

bool AskingTabBar::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut) return QTabBar::event(event);
  const QKeySequence key = static_cast<QShortcutEvent*>(event)->key();
  for (int tab = 0; tab < count(); ++tab)
    if (isTabVisible(tab) && QKeySequence::mnemonic(tabText(tab)) == key) ask(tab);
  return true;
}

void AskingTabBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && tabAt(event->pos()) >= 0) ask(tabAt(event->pos()));
}

void AskingTabBar::keyPressEvent(QKeyEvent* event) {
  const bool back = event->key() == Qt::Key_Left;
  if (!back && event->key() != Qt::Key_Right) return event->ignore();
  for (int tab = currentIndex() + (back ? -1 : 1); tab >= 0 && tab < count(); tab += back ? -1 : 1)
    if (isTabVisible(tab)) return step(tab);
}

void AskingTabBar::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

class TabRowView::Pages : public QTabWidget {
 public:
  Pages(QWidget* parent, QTabBar* bar) : QTabWidget(parent) { setTabBar(bar); }

 protected:
  // Its own keys would switch without asking.
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

TabRowView::TabRowView(forms::TabStrip& strip, QWidget* parent)
    : TabsView(strip), bar_(new AskingTabBar), pages_(new Pages(parent, bar_)) {
  pages_->setAccessibleName(QStringLiteral("Apartados"));
  bar_->setAccessibleName(pages_->accessibleName());
  bar_->setFocusPolicy(Qt::TabFocus);
  bar_->setElideMode(Qt::ElideNone);
  bar_->setUsesScrollButtons(true);
  bar_->step = [&strip](int tab) { strip.userSelect(tab); };
  bar_->ask = [this](int tab) { choose(tab); };
  watch();
}

QWidget* TabRowView::widget() const {
  return pages_;
}

QWidget* TabRowView::focusWidget() const {
  return bar_;
}

void TabRowView::addPage(QWidget* page) {
  const int tab = pages_->count();
  pages_->addTab(page, tab < strip().tabCount() ? toQt(strip().caption(tab)) : QString());
}

void TabRowView::refresh(forms::Change what) {
  ControlView::refresh(what);
  if (what != forms::Change::Tab) return;
  for (int tab = 0; tab < pages_->count() && tab < strip().tabCount(); ++tab) {
    if (pages_->tabText(tab) != toQt(strip().caption(tab)))
      pages_->setTabText(tab, toQt(strip().caption(tab)));
    pages_->setTabToolTip(tab, toQt(strip().note(tab)));
    if (pages_->isTabVisible(tab) != strip().tabVisible(tab))
      pages_->setTabVisible(tab, strip().tabVisible(tab));
  }
  pages_->setCurrentIndex(strip().tab());
}

}  // namespace fidaleon::qt
