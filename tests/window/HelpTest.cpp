// The manual behind F1, and what is told to whoever helps.

#include "catalogue/Command.h"
#include "printing/Templates.h"
#include "window/OpenWindow.h"
#include "window/help/Help.h"
#include "window/help/HelpPage.h"
#include "window/help/HelpTopics.h"
#include "window/help/HelpWindow.h"
#include "window/help/SupportReport.h"

namespace fidaleon::app::HelpTest {

using HelpAtWork = OpenWindow<>;

TEST(Manual, EveryNodeAndCommandLeadsToAHeading) {
  const Manual manual(manualDirectory());
  const auto stands = [&](const std::string& name) {
    const auto place = helpPlace(name);
    return place && manual.find(*place);
  };
  for (const NodeView& node : nodeViews())
    EXPECT_TRUE(stands(node.node.Nombre)) << node.node.Nombre;
  // Those of a list may leave it to the list.
  for (const Command& command : commands())
    EXPECT_TRUE(stands(command.id) || (!helpPlace(command.id) && command.kinds != 0) ||
                command.id == "manual" || command.id == "salir")
        << command.id;
  std::size_t files = 0;
  for (const auto& file : std::filesystem::directory_iterator(manualDirectory()))
    if (file.path().extension() == ".md") ++files;
  EXPECT_EQ(manual.chapters().size(), files) << "the list of contents names every chapter";
}

TEST(Manual, IsSearchedByAnyOfItsWordsWithOrWithoutAccents) {
  const Manual manual(manualDirectory());
  const auto first = [&](const char* words) {
    const auto hits = manual.search(words);
    return hits.empty() ? std::string() : hits.front().place.heading;
  };
  EXPECT_EQ(first("defuncion nicho"), "La defunción, el nicho y su importe");
  EXPECT_EQ(first("BORRADOR"), "Lo que se estaba escribiendo");
  EXPECT_THAT(manual.search("borrador").front().line, HasSubstr("borrador"));
  EXPECT_EQ(first("xyzzy"), "");
}

TEST_F(HelpAtWork, F1OpensTheManualAtTheDialogThatIsBeingWrittenIn) {
  Help help(manualDirectory());
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window->windowHandle(), Qt::Key_F1);
  ASSERT_TRUE(help.window());
  HelpPage& page = help.window()->page();
  EXPECT_EQ(page.source().fileName(), "03-partidas-bautismo.md");
  QDialog dialog(window.get());
  dialog.setObjectName("frmPadronNotas");
  dialog.setModal(true);
  QLineEdit field(&dialog);
  dialog.show();
  QTest::keyClick(&field, Qt::Key_F1);
  EXPECT_EQ(page.place(), (Place{"06-padron.md", "Las notas personales"}));
  EXPECT_EQ(help.window()->windowHandle()->transientParent(), dialog.windowHandle())
      << "otherwise nobody could scroll in it";
  help.window()->searchBox().setText("bautismo notificacion");
  QTest::keyClick(&help.window()->searchBox(), Qt::Key_Return);
  ASSERT_GT(help.window()->hits().count(), 0);
  EXPECT_THAT(page.toPlainText().toStdString(), HasSubstr("notificación"));
  page.setSource(QUrl("https://example.org/otra.md"));
  EXPECT_TRUE(page.source().isLocalFile());
  dialog.hide();
  QCoreApplication::processEvents();
  EXPECT_EQ(help.window()->windowHandle()->transientParent(), nullptr);
}

TEST_F(ParishTest, SupportReport_TellsSizesAndNoPersonNorPlace) {
  create();
  try {
    throw store::Error(store::ErrorKind::Busy, "Lozano está escribiendo", 5);
  } catch (const store::Error&) {
    desk->errors().note(clock, "propiedades-partida");
  }
  const std::string report = supportReport(*desk);
  EXPECT_THAT(report, HasSubstr("Bautismo: " +
                                std::to_string(count("SELECT COUNT(*) FROM "
                                                     "Bautismo")) +
                                "\n"));
  EXPECT_THAT(report, HasSubstr("propiedades-partida  (almacén ocupado, nº 5)"));
  std::vector<std::string> secrets{"Lozano",
                                   "San Blas",
                                   "Secretaría",
                                   directory().string(),
                                   QDir::homePath().toStdString(),
                                   QSysInfo::machineHostName().toStdString()};
  auto rows = desk->parish().Execute("SELECT Nombre, PrimerApellido FROM Bautismo_Hijo");
  for (; !rows.EOF_(); rows.MoveNext()) secrets.push_back(rows.text("PrimerApellido"));
  for (const std::string& secret : secrets) EXPECT_THAT(report, Not(HasSubstr(secret)));
}

}  // namespace fidaleon::app::HelpTest
