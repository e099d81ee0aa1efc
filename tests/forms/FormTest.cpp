#include <gtest/gtest.h>

#include "forms/ScriptedUser.h"

using namespace fidaleon::forms;

namespace {

/// Two tabs with fields, a list, and the usual two buttons.
struct SampleForm : Form {
  explicit SampleForm(UserInterface& ui) : Form(ui, "frmSample") {
    cmdAccept.setDefault(true);
    cmdCancel.setCancel(true);
    cmdAccept.onClick = [this] {
      ++accepted;
      Unload();
    };
    cmdCancel.onClick = [this] {
      ++cancelled;
      Unload();
    };
    setLayout(column({tabs(mst, {page({fields(2, {item(txtName), item(txtCode), item(txtDate)}),
                                       group(fra, {fields(1, {item(cbo)})})}),
                                 page({fields(1, {item(txtNotes), item(txtTime)})})}),
                      buttons({&cmdAccept, &cmdCancel})}));
  }

  TabStrip mst{*this, "mst", {"Primera", "Segunda"}};
  TextBox txtName{*this, "txtName", "NOMBRE:"};
  TextBox txtCode{*this, "txtCode", "NÚMERO:"};
  DateField txtDate{*this, "txtDate", "FECHA:"};
  Frame fra{*this, "fra", "PADRE:"};
  ComboBox cbo{*this, "cbo", "PROVINCIA:"};
  TextBox txtNotes{*this, "txtNotes", "NOTAS:"};
  TimeField txtTime{*this, "txtTime", "HORA:"};
  Button cmdAccept{*this, "cmd(0)", "ACEPTAR"};
  Button cmdCancel{*this, "cmd(1)", "CANCELAR"};
  int accepted = 0;
  int cancelled = 0;
};

struct FormTest : ::testing::Test {
  FormTest() {
    form.Load();
    form.focusFirst();
  }
  ScriptedUser user;
  SampleForm form{user};
  std::vector<std::string> problems;
  FormDriver driver{form, problems};
};

TEST_F(FormTest, HandlerThatThrows_LeavesTheFocusUsable) {
  form.txtName.onLostFocus = [](Control*) { throw std::runtime_error("fallo"); };
  EXPECT_THROW(form.moveFocus(form.txtCode), std::runtime_error);
  form.txtName.onLostFocus = nullptr;
  EXPECT_TRUE(form.moveFocus(form.txtCode));
}

TEST_F(FormTest, Quotes_TypedOrPasted_FollowTheRuleOfTheField) {
  driver.type("txtName", "Juan \"el Viejo\"");
  EXPECT_EQ(form.txtName.text(), "Juan ''el Viejo''");
  form.txtCode.setQuoteRule(QuoteRule::Remove);
  driver.paste("txtCode", "a\"b");
  driver.focus("txtName");
  EXPECT_EQ(form.txtCode.text(), "ab");
  driver.paste("txtName", "c\"d");
  driver.focus("txtCode");
  EXPECT_EQ(form.txtName.text(), "c''d");
}

TEST_F(FormTest, PastedText_LosesLineBreaksControlCharactersAndExcess) {
  form.txtName.setMaxLength(6);
  driver.paste("txtName",
               "añ\r\n\x01"
               "😀bcdef");
  EXPECT_EQ(form.txtName.text(), "añ 😀bc");
  form.txtName.setSelection(1, 2);
  driver.press("txtName", {Key::Character, U'é'});
  EXPECT_EQ(form.txtName.text(), "aé😀bc");
  EXPECT_EQ(form.txtName.selStart(), 2);
  form.txtCode.setDigitsOnly(true);
  driver.paste("txtCode", "1a2");
  EXPECT_EQ(form.txtCode.text(), "12");
  driver.type("txtCode", "7x8");
  EXPECT_EQ(form.txtCode.text(), "78");
}

TEST_F(FormTest, TextThatDoesNotFit_IsRefusedWithABeepAndCanBeMadeShorter) {
  form.txtCode.fits = [](const std::string& text) {
    return text.find_first_not_of("0123456789") == std::string::npos;
  };
  driver.type("txtCode", "1a2");
  driver.paste("txtCode", "1 2");
  form.txtCode.setMaxLength(2);
  driver.press("txtCode", {Key::Character, U'3'});
  EXPECT_EQ(form.txtCode.text(), "12");
  EXPECT_EQ(user.beeps(), 3);
  form.txtCode.setMaxLength(9);
  form.txtCode.setText("12 b");  // as it was stored
  form.txtCode.setSelection(4, 0);
  driver.press("txtCode", {Key::Character, U'3'});
  EXPECT_EQ(form.txtCode.text(), "12 b");
  driver.press("txtCode", {Key::Backspace});
  driver.press("txtCode", {Key::Backspace});
  EXPECT_EQ(form.txtCode.text(), "12");
}

TEST_F(FormTest, Closing_AsksOnlyWhenSomethingWouldBeLost) {
  const char* const question =
      "Lo que ha escrito en esta ventana no se ha guardado y se perderá.\n"
      "¿Desea cerrarla de todos modos?";
  const auto closes = [&](const std::function<void(FormDriver&)>& work) {
    SampleForm sheet(user);
    sheet.Load();
    sheet.focusFirst();
    FormDriver d(sheet, problems);
    work(d);
    if (sheet.isUnloaded()) return true;
    d.escape();
    return sheet.isUnloaded();
  };
  EXPECT_TRUE(closes([](FormDriver&) {}));
  EXPECT_TRUE(closes([](FormDriver& d) {
    d.type("txtName", "Ana");
    d.type("txtName", "");
  }));
  EXPECT_TRUE(closes([](FormDriver& d) {
    d.type("txtName", "Ana");
    d.form().markSaved();
  }));
  EXPECT_TRUE(closes([](FormDriver& d) {
    d.type("txtName", "Ana");
    d.click("cmd(1)");
  })) << "the button does not ask";
  EXPECT_TRUE(user.problems().empty());
  user.expectMessage(question, Answer::No);
  EXPECT_FALSE(closes([](FormDriver& d) { d.type("txtName", "Ana"); }));
  user.expectMessage(question, Answer::Yes);
  EXPECT_TRUE(closes([](FormDriver& d) { d.type("txtDate", "1/2/1998"); }));
  EXPECT_TRUE(user.problems().empty());
}

TEST_F(FormTest, WhatIsPutBack_RunsTheHandlersAndNamesWhatCouldNotBe) {
  form.cbo.addItem("Álava", 1);
  form.cbo.addItem("Soria", 42);
  form.cbo.onClick = [&] { form.txtNotes.setText("de " + form.cbo.text()); };
  const Contents empty = Contents::of(form);
  form.cbo.selectText("Soria");
  form.txtName.setText("Ana");
  form.txtNotes.setText("propia");
  const std::vector<Field> typed = changes(empty, Contents::of(form));
  EXPECT_EQ(readable(typed), "NOMBRE: Ana\nPROVINCIA: Soria\nNOTAS: propia\n");
  form.cbo.setListIndex(0);
  form.cbo.removeItem(1);
  form.cbo.addItem("Soria, de nombre nuevo", 42);
  form.txtName.setText("");
  form.txtName.setLocked(true);
  EXPECT_EQ(readable(putBack(form, typed)), "NOMBRE: Ana\n");
  EXPECT_EQ(form.cbo.data(), 42);
  EXPECT_EQ(form.txtNotes.text(), "propia");
  form.txtNotes.setText("mía");
  putBack(form, {typed[1]});
  EXPECT_EQ(form.txtNotes.text(), "mía") << "what stands there is not chosen again";
}

TEST_F(FormTest, Enter_GoesThroughWhatIsStillToBeFilled) {
  form.setEntersFields(true);
  form.txtNotes.setLines(3);
  form.txtCode.onLostFocus = [&](Control*) { form.cbo.setListIndex(form.cbo.addItem("Soria", 1)); };
  std::string way;
  for (int enters = 0; !form.isUnloaded(); ++enters, driver.enter()) way += driver.focused() + " ";
  EXPECT_EQ(way, "txtName txtCode txtDate txtNotes txtTime cmd(0) ") << "not the list, now filled";
  EXPECT_EQ(form.accepted, 1);
}

TEST_F(FormTest, Tabs_MouseDownRefuses_StaysAndFiresNothing) {
  int clicks = 0;
  form.mst.onMouseDown = [](int) { return false; };
  form.mst.onClick = [&](int) { ++clicks; };
  driver.tab("mst", 1);
  EXPECT_EQ(form.mst.tab(), 0);
  form.mst.onMouseDown = nullptr;
  form.mst.onClick = [&](int previous) {
    ++clicks;
    form.mst.setTab(previous);
  };
  driver.tab("mst", 1);
  EXPECT_EQ(form.mst.tab(), 0);
  EXPECT_EQ(clicks, 1);
}

TEST_F(FormTest, HiddenFocusedControl_HandsTheFocusOnWithoutLeaving) {
  int left = 0;
  form.txtName.onLostFocus = [&](Control*) { ++left; };
  form.txtName.setVisible(false);
  EXPECT_EQ(form.activeControl(), &form.txtCode);
  EXPECT_EQ(left, 0);
  EXPECT_FALSE(form.txtName.label()->visible());
  form.fra.setEnabled(false);
  EXPECT_FALSE(form.cbo.usable());
}

TEST_F(FormTest, Lists_FireTheirClickFromCode_AndLockedOnesRefuseTheUser) {
  int clicks = 0;
  form.cbo.addItem("Ávila", 5);
  form.cbo.addItem("Burgos", 9);
  form.cbo.onClick = [&] { ++clicks; };
  EXPECT_TRUE(form.cbo.selectData(9));
  EXPECT_EQ(clicks, 1);
  form.cbo.setListIndex(-1);
  EXPECT_EQ(clicks, 1);
  form.cbo.setLocked(true);
  driver.choose("cbo", "Ávila");
  EXPECT_EQ(form.cbo.listIndex(), -1);
  EXPECT_EQ(problems.size(), 1u);
}

TEST_F(FormTest, Driver_NotesWhatNobodyCouldDo) {
  driver.type("txtNotes", "en otra pestaña");
  form.cmdAccept.setEnabled(false);
  driver.click("cmd(0)");
  EXPECT_EQ(problems.size(), 2u);
  EXPECT_EQ(form.accepted, 0);
}

TEST(ScriptedUser, UnexpectedAndMissing_AreNotedAndAnsweredSafely) {
  ScriptedUser user;
  SampleForm form{user};
  user.expectForm("frmOther", [](FormDriver&) {});
  form.Show();
  EXPECT_TRUE(form.isUnloaded());
  EXPECT_EQ(user.msgBox("¿Seguro?", MsgButtons::YesNo, MsgIcon::Question, ""), Answer::No);
  const auto problems = user.problems();
  ASSERT_EQ(problems.size(), 3u);
  EXPECT_NE(problems[2].find("never came"), std::string::npos);
}

}  // namespace
