#include "qt/FormDialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScopedValueRollback>
#include <QScreen>
#include <algorithm>

#include "qt/Appearance.h"
#include "qt/LayoutBuilder.h"
#include "qt/PageScroll.h"
#include "qt/Text.h"
#include "qt/views/PlainViews.h"
#include "qt/views/TabsView.h"
#include "qt/views/makeView.h"

namespace fidaleon::qt {

using forms::Change;
using forms::Control;

namespace {

constexpr double SHARE_OF_SCREEN = 0.95;
constexpr int BESIDE_THE_KEYS_MS = 25;
constexpr int NOTHING_TO_DO_MS = 1000;

/// Counts a block in which the focus moves by our own doing.
class Settling {
 public:
  explicit Settling(int& depth) : depth_(depth) { ++depth_; }
  ~Settling() { --depth_; }

 private:
  int& depth_;
};

QSize screenFor(const QWidget* parent) {
  const QScreen* screen = parent ? parent->screen() : QGuiApplication::primaryScreen();
  return screen ? screen->availableSize() : QSize(1366, 768);
}

/// What a form asks for beyond what its parts need at least: a caption to be read whole, the
/// columns of its grids, and the fields that wish for a certain length.
int wishedWidth(const forms::Form& form, const QWidget& window, int atLeast) {
  int width = std::max(atLeast + atLeast / 8, charsWidth(window, 52));
  width = std::max(
      width, window.fontMetrics().horizontalAdvance(toQt(form.caption())) + charsWidth(window, 14));
  for (const forms::Control* control : form.controls()) {
    if (!control->visible()) continue;
    int own = 0;
    if (const auto* grid = dynamic_cast<const forms::Grid*>(control))
      for (int column = 0; column < grid->columns(); ++column)
        own += qRound(grid->columnWidth(column) * pixelsPerTwip(window));
    if (control->widthChars() > 0) own = charsWidth(window, control->widthChars());
    if (const forms::Label* label = own > 0 ? control->label() : nullptr)
      own += window.fontMetrics().horizontalAdvance(toQt(label->caption()));
    width = std::max(width, own + charsWidth(window, 8));
  }
  return width;
}

/// Captions and texts have come in since the layouts asked for sizes.
void askSizesAnew(QWidget& window) {
  for (QWidget* inner : window.findChildren<QWidget*>()) inner->updateGeometry();
  for (QLayout* inner : window.findChildren<QLayout*>()) inner->invalidate();
  window.layout()->activate();
}

bool growsWithItsText(const forms::Control* control) {
  const auto* text = dynamic_cast<const forms::TextBox*>(control);
  return text && text->grows();
}

/// Lists of rows open with room for a good part of them.
int wishedHeight(const forms::Form& form, const QWidget& window, int atLeast) {
  const auto& controls = form.controls();
  const bool rows = std::any_of(controls.begin(), controls.end(), [](const auto* control) {
    return control->visible() && dynamic_cast<const forms::Grid*>(control);
  });
  return rows ? atLeast + window.fontMetrics().height() * 12 : atLeast;
}

}  // namespace

FormDialog::FormDialog(forms::Form& form, QWidget* parent, Use use, QSize room)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint),
      form_(form),
      use_(use),
      room_(room.isEmpty() ? screenFor(parent) : room) {
  const Settling building(settling_);
  setObjectName(toQt(form.name()));
  setModal(true);
  applyPalette();
  buildViews();
  connectLabels();
  chainTabOrder();
  setWindowTitle(plainCaption(form_.caption()));
  for (auto& [control, view] : views_) view->refreshAll();
  fitScreen();
  if (use_ == Use::Picture) return;
  form_.setObserver(this);
  connect(&beside_, &QTimer::timeout, this, [this] {
    if (form_.isUnloaded()) return beside_.stop();
    beside_.setInterval(form_.workBeside() ? BESIDE_THE_KEYS_MS : NOTHING_TO_DO_MS);
  });
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { userWent(now); });
}

FormDialog::~FormDialog() {
  ++settling_;
  disconnect(qApp, nullptr, this, nullptr);
  if (use_ == Use::Window) form_.setObserver(nullptr);
}

void FormDialog::buildViews() {
  LayoutBuilder builder(
      [this](Control& c, QWidget* parent) -> ControlView& { return makeViewOf(c, parent); }, room_);
  builder.build(form_.layout(), this);
}

ControlView& FormDialog::makeViewOf(Control& control, QWidget* parent) {
  auto& view = views_[&control];
  view = makeView(control, parent);
  view->widget()->setObjectName(toQt(control.name()));
  byWidget_[view->widget()] = view.get();
  byWidget_[view->focusWidget()] = view.get();
  return *view;
}

void FormDialog::connectLabels() {
  for (auto& [control, view] : views_) {
    if (!control->canTakeFocus()) continue;
    view->nameForAccessibility();
    if (auto* label = static_cast<LabelView*>(viewOf(control->label())))
      label->setBuddy(*control, view->focusWidget());
  }
}

void FormDialog::chainTabOrder() {
  QWidget* before = nullptr;
  for (const Control* control : form_.tabOrder()) {
    QWidget* field = fieldOf(*control);
    if (before && field) setTabOrder(before, field);
    if (field) before = field;
  }
}

void FormDialog::applyPalette() {
  const QPalette wanted = legible(QApplication::palette());
  if (palette() != wanted) setPalette(wanted);
}

void FormDialog::fitScreen() {
  askSizesAnew(*this);
  const QSize most = room_ * SHARE_OF_SCREEN;
  const QSize hint = sizeHint();
  const QSize wish(wishedWidth(form_, *this, hint.width()),
                   wishedHeight(form_, *this, hint.height()));
  setMinimumSize(minimumSizeHint().boundedTo(most));
  layout()->setSizeConstraint(QLayout::SetNoConstraint);
  resize(wish.boundedTo(most));
}

ControlView* FormDialog::viewOf(const Control* control) const {
  const auto found = views_.find(control);
  return found == views_.end() ? nullptr : found->second.get();
}

ControlView* FormDialog::viewAt(QWidget* widget) const {
  for (; widget && widget != this; widget = widget->parentWidget()) {
    const auto found = byWidget_.find(widget);
    if (found != byWidget_.end()) return found->second;
    if (qobject_cast<QDialog*>(widget)) return nullptr;
  }
  return nullptr;
}

QWidget* FormDialog::widgetOf(const Control& control) const {
  ControlView* view = viewOf(&control);
  return view ? view->widget() : nullptr;
}

QWidget* FormDialog::fieldOf(const Control& control) const {
  ControlView* view = viewOf(&control);
  return view ? view->focusWidget() : nullptr;
}

void FormDialog::flush() {
  for (auto& [control, view] : views_) view->flush();
}

void FormDialog::userWent(QWidget* now) {
  if (settling_ || !now || form_.isUnloaded()) return;
  ControlView* view = viewAt(now);
  if (!view || !view->control().canTakeFocus()) return;
  if (&view->control() == form_.activeControl()) return reveal(*now);
  {
    const Settling asking(settling_);
    form_.moveFocus(view->control());
  }
  pushFocus();
}

void FormDialog::pushFocus() {
  ControlView* view = viewOf(form_.activeControl());
  if (!view || form_.isUnloaded()) return;
  const Settling pushing(settling_);
  if (focusWidget() != view->focusWidget() || !view->focusWidget()->hasFocus())
    view->focusWidget()->setFocus(reason_);
  // A question stands above its field.
  if (const ControlView* label = viewOf(view->control().label())) reveal(*label->widget());
  reveal(*view->focusWidget());
}

bool FormDialog::focusNextPrevChild(bool next) {
  // While widgets hide or shut under the focus, the toolkit looks for another place; only a key
  // of the user is the form's business.
  if (settling_) return QDialog::focusNextPrevChild(next);
  const QScopedValueRollback byTab(reason_, next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  form_.focusNext(!next);
  pushFocus();
  return true;
}

void FormDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // Only now do they know their width, and so how many lines they take.
  if (!event->spontaneous() && std::ranges::any_of(form_.controls(), growsWithItsText)) {
    askSizesAnew(*this);
    const int most = static_cast<int>(room_.height() * SHARE_OF_SCREEN);
    resize(width(), std::max(height(), std::min(sizeHint().height(), most)));
  }
  if (use_ == Use::Picture || event->spontaneous()) return;
  if (!form_.activeControl()) form_.begin();
  pushFocus();
  beside_.start(BESIDE_THE_KEYS_MS);
}

void FormDialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) applyPalette();
  if (event->type() != QEvent::PaletteChange || settling_) return;
  const Settling repainting(settling_);
  for (auto& [control, view] : views_) view->refresh(Change::Locked);
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
  const bool ctrl = event->modifiers().testFlag(Qt::ControlModifier);
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // One held too long must not run through the fields and file what is there.
      if (!event->isAutoRepeat()) ctrl ? form_.pressDefault() : form_.pressEnter();
      return pushFocus();
    case Qt::Key_F4:
      if (Control* at = form_.activeControl()) form_.takeFormer(*at, shift);
      return pushFocus();
    case Qt::Key_Escape:
      return form_.requestClose();
    case Qt::Key_PageUp:
    case Qt::Key_Backtab:
      return ctrl ? switchTab(true) : event->ignore();
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
      return ctrl ? switchTab(false) : event->ignore();
    default:
      return QDialog::keyPressEvent(event);
  }
}

/// The innermost tabs around the focus; at their end those around them, which go round.
void FormDialog::switchTab(bool backwards) {
  const Control* at = form_.activeControl();
  const auto* strip = dynamic_cast<const forms::TabStrip*>(at);
  if (at && !strip) strip = at->strip();
  for (const Control* control : form_.controls())
    if (!strip && control->reachable()) strip = dynamic_cast<const forms::TabStrip*>(control);
  for (; strip; strip = strip->strip()) {
    int tab = strip->next(strip->tab(), backwards);
    if (tab < 0 && !strip->strip())
      tab = strip->next(backwards ? strip->tabCount() : -1, backwards);
    if (tab >= 0) return static_cast<TabsView*>(viewOf(strip))->choose(tab);
  }
}

void FormDialog::reject() {
  form_.requestClose();
}

void FormDialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!form_.isUnloaded()) form_.requestClose();
}

void FormDialog::controlChanged(Control& control, Change what) {
  if (ControlView* view = viewOf(&control)) {
    const Settling refreshing(settling_);
    view->refresh(what);
  }
  // A letter may now belong to another control, and stand in the label in front of it.
  if (what == Change::Caption)
    for (auto& [other, view] : views_)
      if (other != &control) view->showCaption();
}

void FormDialog::focusChanged(Control*) {
  pushFocus();
}

void FormDialog::captionChanged() {
  setWindowTitle(plainCaption(form_.caption()));
}

void FormDialog::unloaded() {
  done(QDialog::Accepted);
}

}  // namespace fidaleon::qt
