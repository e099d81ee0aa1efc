// Every dialog that a command opens, in a window of the smallest screen.

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>
#include <set>
#include <sstream>

#include "catalogue/Catalogue.h"
#include "printing/Templates.h"
#include "qt/Accessibility.h"
#include "qt/FormSweep.h"
#include "showroom/Pictures.h"
#include "window/OpenWindow.h"
#include "window/help/HelpTopics.h"

namespace fidaleon::app::EveryFormTest {

/// Looks each form through instead of working with it.
class Inspector : public forms::ScriptedUser {
 public:
  void showModal(forms::Form& form) override {
    if (forms_.insert(form.name()).second) {
      for (const std::string& problem : qt::sweep(form)) found.push_back(problem);
      if (const auto place = helpPlace(form.name()); !place || !manual_.find(*place))
        found.push_back(form.name() + " has no place in the manual");
    }
    form.Abandon();
  }
  std::size_t seen() const { return forms_.size(); }
  std::vector<std::string> found;

 private:
  std::set<std::string> forms_;
  Manual manual_{manualDirectory()};
};

TEST_F(ParishTest, EveryFormACommandOpens_PassesTheSweep) {
  create();
  Inspector inspector;
  inspector.answerAnything(Answer::No);
  Desk looked(files(), "Secretaría", inspector, settings, clock);
  MainWindow window(looked);
  for (const NodeView& node : nodeViews()) {
    window.showNode(node.node.Nombre);
    for (const Command& command : commands())
      if (command.kinds != 0 && command.menu != Menu::Documents && command.id != "familia" &&
          applies(command, window.choice()))
        window.action(command.id)->trigger();
  }
  EXPECT_THAT(inspector.found, IsEmpty());
  EXPECT_GE(inspector.seen(), 17u);
}

/// What Alt and a letter reach on a widget.
QStringList marked(const QWidget& widget) {
  QStringList texts;
  if (auto* label = qobject_cast<const QLabel*>(&widget); label && label->buddy())
    texts << label->text();
  if (auto* button = qobject_cast<const QAbstractButton*>(&widget)) texts << button->text();
  if (auto* group = qobject_cast<const QGroupBox*>(&widget)) texts << group->title();
  if (auto* bar = qobject_cast<const QTabBar*>(&widget))
    for (int tab = 0; tab < bar->count(); ++tab) texts << bar->tabText(tab);
  if (auto* menu = qobject_cast<const QMenuBar*>(&widget))
    for (const QAction* action : menu->actions()) texts << action->text();
  return texts;
}

TEST(Windows, EveryControlThatTakesTheFocus_HasANameAndALetterOfItsOwn) {
  std::ostringstream out;
  std::vector<std::string> found;
  EXPECT_TRUE(lookAtWindows(
      [&](const std::string& picture, QWidget& window) {
        for (const std::string& control : qt::namelessControls(window))
          found.push_back(picture + ": " + control);
        std::map<QKeySequence, QString> letters;
        for (const QWidget* widget : window.findChildren<QWidget*>())
          for (const QString& text : widget->isVisible() ? marked(*widget) : QStringList())
            if (const QKeySequence letter = QKeySequence::mnemonic(text);
                !letter.isEmpty() && !letters.emplace(letter, text).second)
              found.push_back(picture + ": " + (letters[letter] + " / " + text).toStdString());
      },
      out))
      << out.str();
  EXPECT_THAT(found, IsEmpty());
}

}  // namespace fidaleon::app::EveryFormTest
