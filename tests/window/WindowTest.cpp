#include <sstream>

#include "showroom/Demo.h"
#include "store/FailingEngine.h"
#include "window/FirstRunWizard.h"
#include "window/OpenWindow.h"

namespace fidaleon::app::WindowTest {

class Window : public OpenWindow<> {
 protected:
  bool enabled(const char* command) const { return window->action(command)->isEnabled(); }
  bool visible(const char* command) const { return window->action(command)->isVisible(); }
};

TEST_F(Window, OpensOnTheEntriesWithARowChosen) {
  EXPECT_EQ(window->choice().node->node.Nombre, "PartidasBautismo");
  EXPECT_NE(window->choice().id, 0);
  EXPECT_TRUE(enabled("propiedades-partida"));
  EXPECT_FALSE(visible("nuevo-libro"));
}

TEST_F(Window, AnotherNode_BringsItsRowsAndCommands) {
  window->showNode("LibrosBautismo");
  EXPECT_EQ(shown(), 3);
  EXPECT_TRUE(enabled("cerrar-libro"));
  EXPECT_FALSE(visible("nueva-partida"));
  window->showNode("LibrosMatrimonio");
  window->filter().setText("zzzz");
  EXPECT_EQ(shown(), 0);
  EXPECT_TRUE(enabled("nuevo-libro"));
  EXPECT_FALSE(enabled("cerrar-libro"));
  window->showNode("Partidas");
  EXPECT_FALSE(visible("nueva-partida"));
}

TEST_F(Window, AListThatCannotBeRead_GivesNoRowToAnyCommand) {
  auto* faults = store::FailingEngine::wrap(desk->parish());
  faults->failOn("Confirmacion.Nombre", store::ErrorKind::Busy);
  user.answerAnything(Answer::Ok);
  window->showNode("PartidasConfirmacion");
  EXPECT_EQ(shown(), 0) << "a row of the list before would be taken for one of this";
  EXPECT_FALSE(enabled("propiedades-partida"));
  EXPECT_EQ(user.messages().size(), 1U);
  window->action("actualizar")->trigger();
  EXPECT_GT(shown(), 0);
}

TEST_F(Window, Annulling_AsksAndOneKeyLeadsThereAndBack) {
  const auto id = static_cast<std::int32_t>(
      count("SELECT MAX(IDBautismo) FROM Bautismo WHERE CodLibro<>0 AND Anulada=false"));
  ASSERT_TRUE(window->chooseRow(id));
  user.expectMessage(
      "La partida quedará anulada: conservará su folio y su número. ¿Desea anularla?", Answer::Yes);
  const auto key = [&] {
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window->windowHandle(), Qt::Key_U, Qt::ControlModifier);
  };
  key();
  EXPECT_EQ(window->choice().id, id);
  EXPECT_TRUE(window->choice().annulled);
  EXPECT_FALSE(visible("anular"));
  EXPECT_TRUE(visible("validar") && enabled("validar"));
  key();
  EXPECT_FALSE(window->choice().annulled);
  EXPECT_TRUE(visible("anular") && !visible("validar"));
}

TEST_F(Window, AnnulledElsewhere_IsToldInsteadOfAskedAndNotValidated) {
  const std::int32_t id = window->choice().id;
  ASSERT_FALSE(window->choice().annulled);
  desk->parish().Execute("UPDATE Bautismo SET Anulada=1 WHERE IDBautismo=" + std::to_string(id));
  user.expectMessage("Otro puesto ya ha anulado esta partida: no se ha cambiado nada.");
  give("anular");
  EXPECT_EQ(window->choice().id, id);
  EXPECT_TRUE(window->choice().annulled);
}

TEST_F(Window, InsertKey_AddsFromTheListAndFromTheTree) {
  window->showNode("Municipios");
  const std::vector<QWidget*> views{&window->table(), window->findChild<QTreeView*>()};
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  for (QWidget* view : views) {
    view->setFocus();
    user.expectForm("frmMunicipio", [](FormDriver& d) { d.click("cmdBoton(1)"); });
    QTest::keyClick(window->windowHandle(), Qt::Key_Insert);
  }
}

TEST_F(Window, ChangedByAnotherDesk_TheListFollowsAndStaysWhereItWas) {
  window->showNode("Provincias");
  window->resize(900, 400);
  const auto top = [&] { return window->table().indexAt({0, 0}).data(RowsModel::KeyRole).toInt(); };
  const int before = shown();
  const auto last = window->table().model()->index(before - 1, 0);
  ASSERT_TRUE(window->chooseRow(last.data(RowsModel::KeyRole).toInt()));
  const std::int32_t chosen = window->choice().id;
  const std::int32_t highest = top();
  ASSERT_NE(highest, window->table().model()->index(0, 0).data(RowsModel::KeyRole).toInt());
  const auto write = [](Desk& at, const char* name) {
    at.parish().Execute(std::string("INSERT INTO Provincia (Nombre) VALUES (\"") + name + "\")");
  };
  write(*desk, "Aaa");
  window->renewIfChanged();
  EXPECT_EQ(shown(), before) << "what is written here is shown when the command ends";
  forms::ScriptedUser colleague;
  Desk other(files(), "Archivo", colleague, settings, clock);
  write(other, "Aab");
  window->renewIfChanged();
  EXPECT_EQ(shown(), before + 2);
  EXPECT_EQ(window->choice().id, chosen);
  EXPECT_EQ(top(), highest);
}

TEST_F(Window, EntriesOfABook_AreItsOwnUntilTheLimitIsTakenAway) {
  const int all = shown();
  window->showNode("LibrosBautismo");
  ASSERT_TRUE(window->chooseRow(2));
  give("ver-partidas");
  EXPECT_EQ(window->choice().node->node.Nombre, "PartidasBautismo");
  EXPECT_EQ(shown(), count("SELECT COUNT(IDBautismo) FROM Bautismo WHERE CodLibro=2"));
  EXPECT_LT(shown(), all);
  window->filter().setText("zzzz");
  EXPECT_EQ(shown(), 0);
  window->filter().clear();
  give("actualizar");
  EXPECT_LT(shown(), all);
  auto* scope = window->findChild<QToolButton*>("scope");
  ASSERT_TRUE(scope);
  EXPECT_EQ(scope->text(), "Libro: 2014/01");
  scope->click();
  EXPECT_EQ(shown(), all);
  EXPECT_FALSE(scope->isVisible());
}

TEST_F(Window, WidthsAndPlaceComeBack) {
  window->table().setColumnWidth(3, 321);
  window->resize(1000, 555);
  window->close();
  window = std::make_unique<MainWindow>(*desk);
  EXPECT_EQ(window->table().columnWidth(3), 321);
  EXPECT_EQ(window->height(), 555);
}

TEST_F(Window, LeavingOrClosingTheParish_ClosesTheWindowOnceTheCommandHasEnded) {
  give("salir");
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->isVisible());
  window->show();
  give("cerrar-parroquia");
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(window->departure().to, Departure::To::Start);
}

TEST_F(Window, RecentParishes_AreInTheMenuWithoutTheOpenOne) {
  ParishDoor door(settings, clock);
  for (int i = 0; i < 10; ++i)
    door.remember({"Parroquia " + std::to_string(i), directory() / std::to_string(i)});
  door.remember({"San Blas", directory()});
  door.remember({"Parroquia 5 y 6", directory() / "5"});
  EXPECT_EQ(door.recent().size(), ParishDoor::MOST);
  QMenu* file = window->menuBar()->actions().at(0)->menu();
  emit file->aboutToShow();
  QList<QAction*> recent;
  for (QAction* line : file->actions())
    if (line->text() == "Parroquias &recientes") recent = line->menu()->actions();
  ASSERT_EQ(recent.size(), 7);
  EXPECT_TRUE(recent[0]->text().contains("Parroquia 5 y 6")) << recent[0]->text().toStdString();
  recent[1]->trigger();
  EXPECT_EQ(window->departure().directory, directory() / "9");
}

TEST_F(ParishTest, Wizard_GivesBackWhatItWasOfferedAndOpensAParishThatIsThere) {
  createParish(described(Content::Empty), clock.today());
  FirstRunWizard wizard(described());
  wizard.restart();
  wizard.next();
  ASSERT_EQ(wizard.nextId(), -1);
  EXPECT_EQ(wizard.parish().name, "San Blas");
  EXPECT_EQ(wizard.parish().province, 28);
  EXPECT_EQ(wizard.parish().edition, described().edition);
  EXPECT_EQ(wizard.parish().directory, directory());
  QTimer::singleShot(0, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->text().contains("¿Desea abrirla?"));
    box->button(QMessageBox::Yes)->click();
  });
  EXPECT_TRUE(wizard.validateCurrentPage());
  EXPECT_TRUE(wizard.opensWhatIsThere());
}

TEST_F(ParishTest, Demo_WalksTheWholeRoad) {
  std::ostringstream out;
  EXPECT_TRUE(runDemo(directory() / "demo", out)) << out.str();
  for (const char* file : {"demo.log", "certificado-bautismo.pdf", "libro-confirmacion.pdf",
                           "notificacion-sin-libro.pdf", "duplicado-defuncion.pdf"})
    EXPECT_TRUE(std::filesystem::exists(directory() / "demo" / file)) << file;
  EXPECT_TRUE(runDemo(directory() / "demo", out)) << "a second time: " << out.str();
}

TEST_F(ParishTest, Demo_LeavesAnotherParishAlone) {
  create(Content::Empty);
  std::ostringstream out;
  EXPECT_FALSE(runDemo(directory(), out));
  EXPECT_EQ(desk->parishName(), "San Blas");
}

}  // namespace fidaleon::app::WindowTest
