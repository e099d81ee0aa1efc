// More tabs than a row can show, tabs within them, and questions whose fields grow.

#include <gmock/gmock.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <set>

#include "forms/ScriptedUser.h"
#include "qt/FormDialog.h"

namespace fidaleon::qt {
namespace {

using namespace forms;

struct Dossier : Form {
  explicit Dossier(UserInterface& ui) : Form(ui, "frmExpediente") {
    Nodes pages;
    for (int i = 0; i < 9; ++i) pages.push_back(page({item(boxes.add(i, "Nombre"))}));
    std::string question;
    while (question.size() < 300) question += "¿ Cuándo ? ";
    for (int i = 9; i < 11; ++i) boxes.add(i, question).setGrows(true);
    pages.push_back(page({tabs(inner, {page({item(boxes[9])}), page({item(boxes[10])})})}));
    strip.setTabVisible(2, false);
    setLayout(column({tabs(strip, std::move(pages))}));
  }
  TabStrip strip{*this,
                 "mst",
                 {"GENERAL", "NOVIO (D. Personales)", "OCULTA", "NOVIO (Otros)", "NOVIA",
                  "NOVIA (Otros)", "EXPEDIENTES", "COMPROMISO", "N.MARGINALES", "EXAMENES"}};
  TabStrip inner{*this, "mstExamenes", {"NOVIO", "NOVIA"}};
  ControlArray<TextBox> boxes{*this, "txt"};
};

TEST(ManyTabs, Keyboard_ReachesEachOfThemAndTheTabsWithin) {
  ScriptedUser user;
  Dossier form(user);
  form.Load();
  FormDialog dialog(form);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  const auto key = [](Qt::Key pressed, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(QApplication::focusWidget(), pressed, with);
  };
  auto& list = dynamic_cast<QListWidget&>(*dialog.fieldOf(form.strip));
  form.strip.setNote(1, "Luis García");
  EXPECT_EQ(list.item(1)->data(Qt::AccessibleTextRole), "NOVIO (D. Personales), Luis García");
  form.setFocus(form.strip);
  for (const int tab : {1, 3, 4}) {
    key(Qt::Key_Down);
    EXPECT_EQ(form.strip.tab(), tab);
    EXPECT_TRUE(list.hasFocus());
  }
  std::set<char32_t> letters;
  for (int tab = 0; tab < 10; ++tab) {
    letters.insert(form.mnemonic(form.strip, tab));
    key(Qt::Key(form.mnemonic(form.strip, tab)), Qt::AltModifier);
    if (tab != 2) {
      EXPECT_EQ(form.activeControl(), &form.boxes[tab]);
    }
  }
  EXPECT_EQ(letters.size(), 10u);
  key(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(form.activeControl(), &form.boxes[10]);
  QWidget& answer = *dialog.fieldOf(form.boxes[10]);
  const int height = answer.height();
  for (int line = 0; line < 8; ++line) key(Qt::Key_Return);
  EXPECT_GT(answer.height(), 3 * height);
  key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(form.activeControl(), &form.boxes[0]);
}

}  // namespace
}  // namespace fidaleon::qt
