
#include "qt/Appearance.h"
#include "qt/SampleForm.h"

namespace fidaleon::qt::GridAndDateTest {

using namespace forms;

class GridAndDateTest : public testing::Test {
 protected:
  void open() {
    form.Load();
    dialog = std::make_unique<FormDialog>(form);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  QTableView& table() { return dynamic_cast<QTableView&>(*dialog->fieldOf(form.entries)); }
  QCalendarWidget* calendar() {
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup->findChild<QCalendarWidget*>() : nullptr;
  }

  ScriptedUser user;
  SampleForm form{user};
  std::unique_ptr<FormDialog> dialog;
};

TEST_F(GridAndDateTest, RowsChosenByMouseAndKeys_FormKnowsThemAndTheirKeys) {
  open();
  form.strip.setTab(2);
  QApplication::processEvents();
  int changes = 0;
  form.entries.onRowChange = [&] { ++changes; };
  const QPoint third = table().visualRect(table().model()->index(2, 2)).center();
  QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, third);
  EXPECT_EQ(form.entries.row(), 3);
  EXPECT_EQ(changes, 1);
  QTest::keyClick(&table(), Qt::Key_Down);
  EXPECT_EQ(form.entries.row(), 4);
  EXPECT_EQ(form.entries.rowKey(form.entries.row()), 4);
  QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, third);
  QTest::keyClick(&table(), Qt::Key_Return);
  EXPECT_EQ(std::count(form.log.begin(), form.log.end(), "double 3"), 2);
  form.entries.setCell(2, 2, "Anulada\nahora");
  dialog->flush();
  EXPECT_EQ(table().model()->index(1, 2).data().toString(), "Anulada ahora");
  form.entries.setRow(10);
  EXPECT_EQ(table().currentIndex().row(), 9);
  form.entries.removeRow(10);
  dialog->flush();
  EXPECT_EQ(table().model()->rowCount(), 29);
  EXPECT_FALSE(table().currentIndex().isValid());
}

TEST_F(GridAndDateTest, WidthsInTwips_ShownAndTakenBackFromTheHeader) {
  open();
  const double dotsPerTwip = pixelsPerTwip(table());
  EXPECT_EQ(table().columnWidth(0), qRound(900 * dotsPerTwip));
  EXPECT_TRUE(table().isColumnHidden(3));
  table().horizontalHeader()->resizeSection(0, 120);
  dialog->flush();
  EXPECT_NEAR(form.entries.columnWidth(0), 120 / dotsPerTwip, 1);
  EXPECT_EQ(table().columnWidth(0), 120);
  EXPECT_EQ(form.entries.columnWidth(2), 4000);
}

TEST_F(GridAndDateTest, CalendarDayPicked_FieldHoldsIt) {
  open();
  form.born.setStored("19980503");
  form.setFocus(form.born);
  QTest::keyClick(dialog->fieldOf(form.born), Qt::Key_F4);
  ASSERT_TRUE(calendar());
  EXPECT_EQ(calendar()->selectedDate(), QDate(1998, 5, 3));
  EXPECT_EQ(calendar()->firstDayOfWeek(), Qt::Monday);
  emit calendar()->clicked(QDate(1998, 5, 14));
  EXPECT_EQ(form.born.stored(), "19980514");
  EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(GridAndDateTest, CalendarOfLockedDate_DoesNotOpen) {
  open();
  form.born.setLocked(true);
  auto* button = dialog->widgetOf(form.born)->findChild<QToolButton*>();
  EXPECT_FALSE(button->isEnabled());
  form.setFocus(form.born);
  QTest::keyClick(dialog->fieldOf(form.born), Qt::Key_F4);
  EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(GridAndDateTest, WrongDateLeft_MessageAndTheTextStaysForMending) {
  open();
  user.expectMessage("«31/02/1998» no es una fecha. Escríbala como día/mes/año: 03/05/1998.");
  form.setFocus(form.born);
  form.born.onLostFocus = nullptr;
  auto* edit = dialog->fieldOf(form.born);
  QTest::keyClicks(edit, "31/02/1998");
  QTest::mouseClick(dialog->fieldOf(form.surname1), Qt::LeftButton);
  EXPECT_EQ(QApplication::focusWidget(), edit);
  QTest::keyClicks(edit, "01021998");
  QTest::keyClick(edit, Qt::Key_Tab);
  EXPECT_EQ(form.born.text(), "01/02/1998");
  EXPECT_EQ(form.activeControl(), &form.hour);
  EXPECT_THAT(user.problems(), IsEmpty());
}

}  // namespace fidaleon::qt::GridAndDateTest
