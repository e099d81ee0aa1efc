#include "window/FamilyDialog.h"
#include "window/OpenWindow.h"

namespace fidaleon::app::SearchWindowTest {

class SearchWindow : public OpenWindow<> {
 protected:
  SearchBox& box() { return window->search(); }
  /// Waits for what is found.
  void find(const QString& text) {
    box().setFocus();
    box().clear();
    box().insert(text);
    QTRY_VERIFY_WITH_TIMEOUT(box().isWhole() && box().isAnswered(), 20000);
  }
  std::vector<std::string> names() {
    std::vector<std::string> all;
    for (int row = 0; row < box().found().hits().rowCount(); ++row)
      all.push_back(box().found().hits().hit(row).name);
    return all;
  }
  QString nameOf(const std::string& condition) {
    const auto row =
        desk->parish().Execute("SELECT Nombre, PrimerApellido, SegundoApellido FROM " + condition);
    return QString::fromStdString(row.text(0) + " " + row.text(1) + " " + row.text(2));
  }
};

TEST_F(SearchWindow, WhatIsTyped_IsFoundAndOpenedAndFoundAnewWhenItHasChanged) {
  const std::string of = "Bautismo_Hijo, Bautismo WHERE IDBautismo=CodBautismo AND CodLibro<>0";
  const QString name = nameOf(of);
  find(name.toUpper());
  ASSERT_THAT(names(), Contains(name.toStdString()));
  const search::Hit hit = *box().found().chosen();
  user.expectForm("frmPartidaBautismo", [](forms::FormDriver& form) { form.close(); });
  QTest::keyClick(&box(), Qt::Key_Return);
  QTest::keyClick(&box(), Qt::Key_Escape);
  desk->parish().Execute("UPDATE Bautismo_Hijo SET Nombre='Zósimo' WHERE CodBautismo=" +
                         std::to_string(hit.key));
  window->showNode("PartidasConfirmacion");
  find("zosimo");
  QTRY_VERIFY(!names().empty());
  const std::filesystem::path parish = desk->parish().Properties("DATA SOURCE").Value;
  std::filesystem::remove(search::IndexFile::fileIn(parish.parent_path()));
  find("zosim");
  QTRY_VERIFY(!names().empty());
}

TEST_F(SearchWindow, TheFamilyOfAHit_IsShownAndLeadsBackToItsList) {
  find(nameOf("Matrimonio_Novios"));
  ASSERT_NE(box().found().chosen(), nullptr);
  const std::int32_t key = box().found().chosen()->key;
  bool seen = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    auto* page = qobject_cast<FamilyDialog*>(QApplication::activeModalWidget());
    if (!page || !page->isAnswered()) return;
    look.stop();
    seen = page->lines().topLevelItemCount() > 0;
    QTest::keyClick(page, Qt::Key_Return, Qt::ControlModifier);
  });
  look.start(20);
  QTest::keyClick(&box(), Qt::Key_M, Qt::ControlModifier);
  QTRY_VERIFY(seen);
  EXPECT_EQ(window->choice().id, key);
}

}  // namespace fidaleon::app::SearchWindowTest
