#include "qt/FormSweep.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QTabBar>
#include <algorithm>
#include <map>

#include "qt/Accessibility.h"
#include "qt/FormDialog.h"
#include "qt/Text.h"

namespace fidaleon::qt {

using namespace forms;

namespace {

const QSize SMALLEST_SCREEN(1366, 768);

class Sweep {
 public:
  explicit Sweep(Form& form)
      : form_(form), dialog_(form, nullptr, FormDialog::Use::Window, SMALLEST_SCREEN) {}

  std::vector<std::string> run() {
    dialog_.show();
    settle();
    if (dialog_.width() > SMALLEST_SCREEN.width() || dialog_.height() > SMALLEST_SCREEN.height())
      found("the window is larger than the screen");
    for (Control* control : form_.controls()) examine(*control);
    forEachTab([this] { examineView(); });
    return problems_;
  }

 private:
  void found(const std::string& problem) {
    const std::string line = form_.name() + ": " + problem;
    if (std::find(problems_.begin(), problems_.end(), line) == problems_.end())
      problems_.push_back(line);
  }

  void settle() {
    dialog_.flush();
    QApplication::processEvents();
    QApplication::sendPostedEvents();
  }

  template <class Look>
  void forEachTab(Look look) {
    std::vector<TabStrip*> strips;
    for (Control* control : form_.controls())
      if (auto* strip = dynamic_cast<TabStrip*>(control)) strips.push_back(strip);
    if (strips.empty()) look();
    for (TabStrip* strip : strips) {
      for (int tab = 0; tab < strip->tabCount(); ++tab) {
        if (!strip->tabVisible(tab)) continue;
        if (strip->strip()) strip->strip()->setTab(strip->page());
        strip->setTab(tab);
        settle();
        look();
      }
      strip->setTab(0);
      if (strip->strip()) strip->strip()->setTab(0);
    }
  }

  void examine(const Control& control) {
    QWidget* widget = dialog_.widgetOf(control);
    if (!widget) return found("«" + control.name() + "» has no widget");
    if (!control.canTakeFocus()) return;
    const auto order = form_.tabOrder();
    if (std::count(order.begin(), order.end(), &control) != 1)
      found("«" + control.name() + "» does not stand once in the tab order");
  }

  void examineView() {
    for (const std::string& control : namelessControls(dialog_)) found(control + " has no name");
    std::map<char32_t, std::string> letters;
    std::vector<const Control*> shown;
    for (Control* control : form_.controls()) {
      QWidget* widget = dialog_.widgetOf(*control);
      if (!widget || !widget->isVisible()) continue;
      shown.push_back(control);
      examinePlace(*control, *widget);
      if (!control->canTakeFocus()) continue;
      const char32_t letter = form_.mnemonic(*control);
      if (letter && !letters.emplace(letter, control->name()).second)
        found("«" + control->name() + "» and «" + letters[letter] + "» share a mnemonic");
    }
    for (std::size_t a = 0; a < shown.size(); ++a)
      for (std::size_t b = a + 1; b < shown.size(); ++b) examinePair(*shown[a], *shown[b]);
  }

  void examinePlace(const Control& control, const QWidget& widget) {
    const QSize need = widget.minimumSizeHint();
    // A label wraps: what counts is the height at the width it got.
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool wraps = label && label->wordWrap();
    const int height = wraps ? label->heightForWidth(label->width()) : need.height();
    if ((!wraps && widget.width() < need.width()) || widget.height() < height)
      found("«" + control.name() + "» is cut off");
    if (!widget.parentWidget()->rect().contains(widget.geometry()))
      found("«" + control.name() + "» stands outside its page");
    for (const QWidget* up = widget.parentWidget(); up && up != &dialog_; up = up->parentWidget()) {
      auto* area = qobject_cast<const QScrollArea*>(up->parentWidget()->parentWidget());
      if (area && up == area->widget() && up->width() > area->viewport()->width())
        found("the page of «" + control.name() + "» has to be scrolled sideways");
    }
  }

  void examinePair(const Control& a, const Control& b) {
    const QWidget& first = *dialog_.widgetOf(a);
    const QWidget& second = *dialog_.widgetOf(b);
    if (first.parentWidget() != second.parentWidget()) return;
    if (first.geometry().intersects(second.geometry()))
      found("«" + a.name() + "» and «" + b.name() + "» lie over each other");
  }

  Form& form_;
  FormDialog dialog_;
  std::vector<std::string> problems_;
};

}  // namespace

std::vector<std::string> sweep(Form& form) {
  return Sweep(form).run();
}

}  // namespace fidaleon::qt
