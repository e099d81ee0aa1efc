
#include "dbase/LegacyTable.h"
#include "window/CopiesFixture.h"
#include "window/ImportDialog.h"
#include "window/OutcomeReport.h"

namespace fidaleon::app {
namespace {

/// Reads the report when it is shown, and closes it.
void readReport(QString& text) {
  QTimer::singleShot(0, [&text] {
    auto* report = qobject_cast<OutcomeReport*>(QApplication::activeModalWidget());
    if (report == nullptr) return readReport(text);
    text = report->findChild<QPlainTextEdit*>()->toPlainText();
    report->accept();
  });
}

class ImportWindow : public Copies {};

TEST_F(ImportWindow, FindsTheTablesShowsThemTriesThemOutAndBringsThem) {
  const fs::path below = directory() / "lapiz" / "BAUTISMO";
  fs::create_directories(below);
  dbase::LegacyTable table;
  table.column("LIBRO_B", 'C', 3).column("NOMBRE", 'C', 20).column("PADRE", 'C', 30);
  table.row({"1",
             "Bego\xA4"
             "a",
             "Gil Ruiz Juan"});
  table.write(below, "baut");

  ImportDialog dialog(*desk);
  QPushButton* bring = nullptr;
  for (auto* button : dialog.findChildren<QPushButton*>())
    if (button->text() == "&Traer…") bring = button;
  dialog.lookInto(directory() / "lapiz");
  EXPECT_EQ(dialog.order().registers[0].folder, below);
  EXPECT_TRUE(dialog.order().registers[3].folder.empty());
  QStringList shown;
  for (auto* list : dialog.findChildren<QTableWidget*>())
    for (int c = 0; c < list->columnCount(); ++c) shown << list->item(0, c)->text();
  EXPECT_TRUE(shown.contains("Begoña"));
  EXPECT_TRUE(shown.contains("Juan · Gil · Ruiz"));

  QString text;
  EXPECT_FALSE(bring->isEnabled());
  readReport(text);
  dialog.run(true);
  EXPECT_TRUE(text.contains("Partidas que se escribirán: 1")) << text.toStdString();
  EXPECT_EQ(rowsOf("SELECT * FROM Bautismo"), 0);
  EXPECT_TRUE(bring->isEnabled());
  answerNext("&Traer los datos");
  QTimer::singleShot(0, [&text] { readReport(text); });
  bring->click();
  EXPECT_TRUE(text.contains("Partidas escritas enteras: 1")) << text.toStdString();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(rowsOf("SELECT * FROM Bautismo_Hijo WHERE Nombre=\"Begoña\""), 1);
  EXPECT_EQ(copies.list().size(), 1u);
}

}  // namespace
}  // namespace fidaleon::app
