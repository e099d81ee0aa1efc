#include "qt/SampleForm.h"

namespace fidaleon::qt::FormDialogTest {

using namespace forms;

class FormDialogTest : public testing::Test {
 protected:
  FormDialogTest() {
    form.Load();
    dialog = std::make_unique<FormDialog>(form);
    dialog->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    form.log.clear();
  }
  ~FormDialogTest() override { EXPECT_THAT(user.problems(), IsEmpty()); }

  template <class W>
  W& field(const Control& control) {
    return dynamic_cast<W&>(*dialog->fieldOf(control));
  }
  QLineEdit& line(const Control& control) { return field<QLineEdit>(control); }
  void go(Control& control) {
    form.setFocus(control);
    ASSERT_TRUE(dialog->fieldOf(control)->hasFocus()) << control.name();
    form.log.clear();
  }
  void clickOn(const Control& control) {
    QTest::mouseClick(dialog->fieldOf(control), Qt::LeftButton, {}, {10, 8});
  }
  void clickTab(int tab) {
    auto& bar = field<QTabBar>(form.strip);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
  }
  void paste(QWidget& widget, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
  }
  void focusIs(const Control& control) {
    EXPECT_EQ(form.activeControl(), &control) << form.activeControl()->name();
    EXPECT_EQ(QApplication::focusWidget(), dialog->fieldOf(control));
  }

  ScriptedUser user;
  SampleForm form{user};
  std::unique_ptr<FormDialog> dialog;
};

// What the form does reaches the widgets, what the user does reaches the form.

TEST_F(FormDialogTest, FormChanges_WidgetsFollow) {
  form.name.setText("Íñigo");
  form.name.setSelection(1, 2);
  EXPECT_EQ(line(form.name).text(), "Íñigo");
  EXPECT_EQ(line(form.name).selectedText(), "ñi");
  form.surname1.setLocked(true);
  EXPECT_TRUE(line(form.surname1).isReadOnly());
  form.surname1.setEnabled(false);
  EXPECT_FALSE(line(form.surname1).isEnabled());
  form.legitimate.setValue(true);
  EXPECT_TRUE(field<QCheckBox>(form.legitimate).isChecked());
  form.oldBook.setValue(true);
  EXPECT_FALSE(field<QRadioButton>(form.newBook).isChecked());
  form.province.selectText("Zamora");
  EXPECT_EQ(field<QComboBox>(form.province).currentText(), "Zamora");
  form.province.setListIndex(-1);
  EXPECT_EQ(field<QComboBox>(form.province).currentText(), "");
  form.notes.setText("una\r\ndos");
  EXPECT_EQ(field<QPlainTextEdit>(form.notes).toPlainText(), "una\ndos");
  form.annulled.setCaption("VIGENTE");
  EXPECT_EQ(dynamic_cast<QLabel*>(dialog->widgetOf(form.annulled))->text(), "VIGENTE");
  form.accept.setCaption("GUARDAR");
  EXPECT_EQ(field<QPushButton>(form.accept).text().remove('&'), "GUARDAR");
  form.setCaption("Modificar partida");
  EXPECT_EQ(dialog->windowTitle(), "Modificar partida");
  form.surname2.setVisible(false);
  EXPECT_FALSE(line(form.surname2).isVisible());
  EXPECT_FALSE(dialog->widgetOf(*form.surname2.label())->isVisible());
  form.strip.setTabVisible(2, false);
  EXPECT_FALSE(field<QTabBar>(form.strip).isTabVisible(2));
}

TEST_F(FormDialogTest, ListFilledByFormLineByLine_ComboShowsAllAfterwards) {
  form.province.onClick = [this] {
    form.town.clear();
    for (int i = 0; i < 8000; ++i) form.town.addItem("Municipio " + std::to_string(i), i);
    form.town.setListIndex(7);
  };
  go(form.province);
  QTest::keyClicks(&field<QComboBox>(form.province), "z");
  dialog->flush();
  EXPECT_EQ(field<QComboBox>(form.town).count(), 8000);
  EXPECT_EQ(field<QComboBox>(form.town).currentText(), "Municipio 7");
}

// Keys.

TEST_F(FormDialogTest, QuoteTyped_TwoApostrophesAndUndoTakesThemBack) {
  go(form.name);
  QTest::keyClicks(&line(form.name), "La \"Chata");
  EXPECT_EQ(form.name.text(), "La ''Chata");
  for (int i = 0; i < 10 && !line(form.name).text().isEmpty(); ++i)
    QTest::keyClick(&line(form.name), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form.name.text(), "");
  QTest::keyClick(&line(form.name), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_NE(form.name.text(), "");
}

TEST_F(FormDialogTest, DeadKeyAndComposedText_PassTheSameFilter) {
  form.name.onKeyPress = [](KeyPress& key) {
    if (key.character == U'ü') key.replaceWith("u");
    if (key.character == U'x') key.swallow();
  };
  go(form.name);
  QTest::keyClicks(&line(form.name), "x");
  for (const char* text : {"é", "ü", "\""}) {
    QInputMethodEvent preview(QStringLiteral("´"), {});
    QApplication::sendEvent(&line(form.name), &preview);
    QInputMethodEvent event;
    event.setCommitString(QString::fromUtf8(text));
    QApplication::sendEvent(&line(form.name), &event);
  }
  EXPECT_EQ(form.name.text(), "éu''");
  EXPECT_EQ(line(form.name).text(), "éu''");
}

TEST_F(FormDialogTest, PasteOfForeignText_OneCleanLineWithinItsLength) {
  go(form.name);
  paste(line(form.name), QString::fromUtf8("Ana\r\nMaría\t\x01\x07 😀 \"La\" 名前"));
  EXPECT_EQ(form.name.text(), "Ana María  😀 \"La\" 名前");
  EXPECT_EQ(line(form.name).text().toStdString(), form.name.text());
  QTest::keyClick(dialog.get(), Qt::Key_Tab);
  EXPECT_EQ(line(form.name).text(), QString::fromUtf8("Ana María  😀 ''La'' 名前"));
  go(form.surname1);
  form.surname1.setMaxLength(3);
  paste(line(form.surname1), QString::fromUtf8("😀😀😀😀"));
  EXPECT_EQ(form.surname1.text(), "😀😀😀");
  EXPECT_EQ(line(form.surname1).text().toStdString(), form.surname1.text());
  QTest::keyClick(&line(form.surname1), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form.surname1.text(), line(form.surname1).text().toStdString());
}

TEST_F(FormDialogTest, LinesOfNotes_KeepTheirBreaksAsPairs) {
  form.strip.setTab(2);
  go(form.notes);
  auto& memo = field<QPlainTextEdit>(form.notes);
  QTest::keyClicks(&memo, "uno");
  QTest::keyClick(&memo, Qt::Key_Return);
  QTest::keyClicks(&memo, "\"dos");
  EXPECT_EQ(form.notes.text(), "uno\r\n''dos");
  EXPECT_EQ(form.notes.selStart(), 10);
  paste(memo, "\ntres");
  EXPECT_EQ(form.notes.text(), "uno\r\n''dos\r\ntres");
  QTest::keyClick(&memo, Qt::Key_Tab);
  focusIs(form.entries);
}

TEST_F(FormDialogTest, LockedField_TakesNoTextByAnyWay) {
  const std::string before = form.locked.text();
  go(form.locked);
  QTest::keyClicks(&line(form.locked), "a\"");
  paste(line(form.locked), "b");
  QInputMethodEvent event;
  event.setCommitString("c");
  QApplication::sendEvent(&line(form.locked), &event);
  EXPECT_EQ(form.locked.text(), before);
  EXPECT_EQ(line(form.locked).text().toStdString(), before);
}

// Focus.

TEST_F(FormDialogTest, TabKey_FollowsTheOrderOfTheForm) {
  go(form.name);
  std::vector<std::string> visited;
  for (int i = 0; i < 4; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    visited.push_back(form.activeControl()->name());
    EXPECT_EQ(QApplication::focusWidget(), dialog->fieldOf(*form.activeControl()));
  }
  EXPECT_THAT(visited, ElementsAre("txtApellido1", "txtApellido2", "cboSexo", "adtpNacimiento"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
  focusIs(form.sex);
}

TEST_F(FormDialogTest, FieldRefusesToBeLeft_WhatWasClickedDoesNotHappen) {
  go(form.name);
  form.refuses["txtNombre"] = true;
  clickOn(form.surname1);
  focusIs(form.name);
  clickOn(form.accept);
  clickOn(form.legitimate);
  clickOn(form.oldBook);
  clickTab(1);
  clickOn(form.province);
  QTest::keyClick(&line(form.name), Qt::Key_Return);
  QTest::keyClick(&line(form.name), Qt::Key_Tab);
  focusIs(form.name);
  EXPECT_EQ(form.strip.tab(), 0);
  EXPECT_FALSE(form.legitimate.value());
  EXPECT_FALSE(field<QCheckBox>(form.legitimate).isChecked());
  EXPECT_TRUE(form.newBook.value());
  EXPECT_TRUE(field<QRadioButton>(form.newBook).isChecked());
  EXPECT_FALSE(QApplication::activePopupWidget());
  EXPECT_THAT(form.log, Not(Contains(HasSubstr("click"))));
  clickOn(form.cancel);
  EXPECT_TRUE(form.isUnloaded());
}

TEST_F(FormDialogTest, HandlerSendsFocusElsewhereOrFieldIsShut_WidgetFollows) {
  form.name.onLostFocus = [this](Control*) { form.setFocus(form.born); };
  go(form.name);
  clickOn(form.surname2);
  focusIs(form.born);
  form.born.setEnabled(false);
  focusIs(form.hour);
}

// Enter, Escape, buttons, letters.

TEST_F(FormDialogTest, EnterInField_LeavesItThenPressesTheDefault) {
  go(form.name);
  QTest::keyClick(&line(form.name), Qt::Key_Return);
  EXPECT_THAT(form.log, ElementsAre("left txtNombre", "click cmdAceptar"));
}

TEST_F(FormDialogTest, CompleteDate_GoesOnByItself_AndTheEnterOfHabitLeavesNothingOut) {
  form.setEntersFields(true);
  for (const char* typed : {"31121998", "3/5/1998", "03-05-1998"}) {
    form.setFocus(form.born);
    QTest::keyClicks(&line(form.born), QString(typed).chopped(1));
    focusIs(form.born);
    QTest::keyClick(&line(form.born), typed[strlen(typed) - 1]);
    focusIs(form.hour);
    QTest::keyClick(&line(form.hour), Qt::Key_Return);
    focusIs(form.hour);
  }
  EXPECT_EQ(form.born.text(), "03/05/1998");
  QTest::keyClick(&line(form.hour), Qt::Key_Return);
  focusIs(form.province);
  go(form.born);
  QTest::keyClicks(&line(form.born), "31021998");
  focusIs(form.born);
  form.born.setText("");
  go(form.hour);
  QTest::keyClicks(&line(form.hour), "0930");
  QTest::keyClick(dialog->fieldOf(form.province), Qt::Key_Tab);
  focusIs(form.province);
}

TEST_F(FormDialogTest, EnterOnButton_PressesThatOne) {
  go(form.addInstitution);
  QTest::keyClick(dialog->fieldOf(form.addInstitution), Qt::Key_Enter);
  EXPECT_THAT(form.log, ElementsAre("click cmdAgregarInstitucion"));
}

TEST_F(FormDialogTest, EscapeOrCloseOfTheWindow_PressesCancelWhichMayRefuse) {
  const auto cancelled = std::exchange(form.cancel.onClick, [] {});
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  dialog->close();
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(form.isUnloaded());
  form.cancel.onClick = cancelled;
  dialog->close();
  EXPECT_TRUE(form.isUnloaded());
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "unload"), 1);
}

TEST_F(FormDialogTest, MnemonicOfLabel_ReachesItsField) {
  go(form.name);
  const char32_t letter = form.mnemonic(form.institution);
  ASSERT_EQ(letter, U'I');
  QTest::keyClick(dialog.get(), Qt::Key_I, Qt::AltModifier);
  focusIs(form.institution);
}

// Tabs.

TEST_F(FormDialogTest, TabClicked_FormAskedFirstAndMaySayNo) {
  form.forbiddenTab = 2;
  clickTab(1);
  EXPECT_EQ(form.strip.tab(), 1);
  clickTab(2);
  EXPECT_EQ(form.strip.tab(), 1);
  EXPECT_EQ(field<QTabBar>(form.strip).currentIndex(), 1);
  EXPECT_THAT(form.log, Contains("tab 1"));
  QTest::keyClick(dialog.get(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(form.strip.tab(), 0);
  QTest::keyClick(&field<QTabBar>(form.strip), Qt::Key_Right);
  EXPECT_EQ(field<QTabBar>(form.strip).currentIndex(), 1);
  form.strip.setTab(0);
  form.province.setListIndex(3);
  go(form.province);
  QTest::keyClick(&field<QComboBox>(form.province), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(form.strip.tab(), 1);
  EXPECT_EQ(form.province.listIndex(), 3);
  form.strip.setTab(0);
  go(form.province);
  QTest::keyClicks(&field<QComboBox>(form.province), "al");
  QTest::keyClick(&field<QComboBox>(form.province), Qt::Key_P, Qt::AltModifier);
  EXPECT_EQ(form.strip.tab(), 1);
}

TEST_F(FormDialogTest, ControlTabInAnyControl_SwitchesTheTab) {
  std::vector<Control*> fields = form.tabOrder();
  for (Control* field : fields) {
    form.setFocus(form.institution);
    form.strip.setTab(std::max(0, field->page()));
    if (!field->reachable()) continue;
    const int tab = form.strip.tab();
    const int pages = form.strip.tabCount();
    go(*field);
    QTest::keyClick(dialog->fieldOf(*field), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(form.strip.tab(), (tab + 1) % pages) << field->name();
    EXPECT_TRUE(form.activeControl()->page() == form.strip.tab() || form.strip.tab() == 3);
    form.strip.setTab(tab);
    go(*field);
    QTest::keyClick(dialog->fieldOf(*field), Qt::Key_Backtab,
                    Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(form.strip.tab(), (tab + pages - 1) % pages) << field->name();
  }
}

// Lists.

TEST_F(FormDialogTest, FullFieldReachedInAnyWay_TakesWhatIsTyped) {
  const auto typed = [&](const TextBox& box) {
    QTest::keyClicks(QApplication::focusWidget(), "01021998");
    const std::string text = box.text();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    return text;
  };
  form.born.setText("22/11/2026");
  go(form.surname1);
  clickOn(form.born);
  focusIs(form.born);
  EXPECT_EQ(typed(form.born), "01021998");
  go(form.sex);
  QTest::keyClick(dialog->fieldOf(form.sex), Qt::Key_Tab);
  focusIs(form.born);
  EXPECT_EQ(typed(form.born), "01021998");
  form.name.setMaxLength(8);
  form.name.setText("Eleonora");
  form.strip.setTab(3);
  go(form.folio);
  QTest::keyClick(&line(form.folio), Qt::Key_Tab, Qt::ControlModifier);
  focusIs(form.name);
  EXPECT_EQ(typed(form.name), "01021998");
  // A second click puts the caret among the letters.
  clickOn(form.name);
  EXPECT_EQ(line(form.name).selectedText(), "");
}

TEST_F(FormDialogTest, LettersInCombo_FindWithoutAccentsAndWalkOnRepeat) {
  auto& combo = field<QComboBox>(form.province);
  go(form.province);
  QTest::keyClicks(&combo, "av");
  EXPECT_EQ(form.province.text(), "Ávila");
  QTest::keyClicks(&combo, "i");
  EXPECT_EQ(combo.currentText().toStdString(), "Ávila");
  go(form.sex);
  QTest::keyClicks(&field<QComboBox>(form.sex), "m");
  EXPECT_EQ(form.sex.text(), "Mujer");
  EXPECT_THAT(form.log, Contains("click cboSexo"));
  QTest::keyClick(&field<QComboBox>(form.sex), Qt::Key_Up);
  EXPECT_EQ(form.sex.text(), "Hombre");
}

TEST_F(FormDialogTest, LockedComboAndWheel_ChangeNothing) {
  go(form.lockedList);
  auto& combo = field<QComboBox>(form.lockedList);
  QTest::keyClick(&combo, Qt::Key_Space);
  QTest::mouseClick(&combo, Qt::LeftButton);
  EXPECT_FALSE(QApplication::activePopupWidget());
  QTest::keyClick(&combo, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), combo.currentText());
  EXPECT_FALSE(combo.currentText().isEmpty());
  go(form.institution);
  QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&field<QComboBox>(form.institution), &wheel);
  EXPECT_EQ(form.institution.listIndex(), 0);
}

TEST_F(FormDialogTest, ListBoxes_TellOneClickEachAndKeepSelections) {
  form.strip.setTab(1);
  QApplication::processEvents();
  const auto press = [this](const ListBox& list, int row) {
    auto& view = field<QListView>(list);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(view.model()->index(row, 0)).center());
  };
  press(form.witnesses, 1);
  EXPECT_EQ(form.witnesses.text(), "Luis Gato");
  press(form.witnesses, 1);
  EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "click lstTestigos"), 2);
  press(form.several, 0);
  press(form.several, 2);
  EXPECT_EQ(form.several.selCount(), 2);
  form.several.setSelected(0, false);
  auto& view = field<QListView>(form.several);
  EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(FormDialogTest, ListOfManySelections_KeysFindAndMarkItsLinesAndItStaysWhereItIs) {
  form.several.clear();
  for (int i = 0; i < 60; ++i)
    form.several.addItem("Persona " + std::string(i == 30 ? 200 : 2, 'x') + std::to_string(i));
  form.several.addItem("Zoilo");
  form.strip.setTab(1);
  dialog->flush();
  auto& view = field<QListView>(form.several);
  const auto seen = [&view](int row) {
    return view.viewport()->rect().intersects(view.visualRect(view.model()->index(row, 0)));
  };
  go(form.several);
  EXPECT_GT(view.horizontalScrollBar()->maximum(), 0) << "the long line can be read to its end";
  QTest::keyClicks(&view, "zo");
  EXPECT_TRUE(seen(60));
  EXPECT_EQ(view.currentIndex().row(), 60);
  EXPECT_EQ(form.several.selCount(), 0);
  QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(form.several.selCount(), 61);
  form.several.removeItem(40);
  form.several.setListIndex(40);
  dialog->flush();
  EXPECT_TRUE(seen(40));
  EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 60);
  form.several.setSelected(3, false);
  form.several.setLocked(true);
  QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(form.several.selCount(), 59);
  EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 59);
}

TEST_F(FormDialogTest, ArrowsInOptions_ChooseTheNeighbour) {
  go(form.newBook);
  QTest::keyClick(dialog->fieldOf(form.newBook), Qt::Key_Right);
  focusIs(form.oldBook);
  EXPECT_TRUE(form.oldBook.value());
  QTest::keyClick(dialog->fieldOf(form.oldBook), Qt::Key_Up);
  EXPECT_TRUE(form.newBook.value());
}

}  // namespace fidaleon::qt::FormDialogTest
