
#include "printing/DocumentReport.h"
#include "printing/ReportProgress.h"
#include "support/Fields.h"
#include "window/OpenWindow.h"

namespace fidaleon::app::CensusWindowTest {

class CensusWindow : public OpenWindow<> {
 protected:
  void SetUp() override {}
  std::int32_t someoneWith(int rolesHeld) {
    return static_cast<std::int32_t>(
        count("SELECT CodPadron FROM Padron_TipoPersona GROUP BY CodPadron HAVING COUNT(*)=" +
              std::to_string(rolesHeld)));
  }
};

// Somebody of the census becomes a collaborator through the dialog for new ones; meanwhile another
// workstation adds rows too.
TEST_F(CensusWindow, ArrivalsAreChosenAfterANewOneOnly) {
  open("Colaboradores");
  window->table().selectRow(shown() - 1);
  const std::int32_t kept = window->choice().id;
  std::int32_t gained = 0;
  const auto giveRole = [&](FormDriver& d) {
    gained = someoneWith(1);
    tests::insert(desk->parish(), "Padron_TipoPersona",
                  "CodTipoPersona=3; CodPadron=" + std::to_string(gained));
    d.escape();
  };
  user.expectForm("frmColaborador", giveRole);
  give("propiedades-colaborador");
  EXPECT_EQ(window->choice().id, kept);
  user.expectForm("frmColaborador", giveRole);
  give("nuevo-colaborador");
  EXPECT_EQ(window->choice().id, gained);
  EXPECT_LT(gained, count("SELECT MAX(IDPadron) FROM Padron"));
}

TEST_F(CensusWindow, ACollaboratorDeleted_LeavesTheListAndNotTheCensus) {
  open("Colaboradores");
  const std::int32_t person = someoneWith(2);
  ASSERT_TRUE(window->chooseRow(person));
  const int before = shown();
  user.answerAnything(Answer::Yes);
  give("eliminar-colaborador");
  EXPECT_EQ(shown(), before - 1);
  EXPECT_NE(window->choice().id, person);
  EXPECT_NE(window->choice().id, 0);
  window->showNode("Padrón");
  EXPECT_TRUE(window->chooseRow(person));
}

TEST_F(CensusWindow, ACollaboratorTakenFromTheCensus_IsAskedForWhatOthersLose) {
  open("Padrón");
  const auto communions = [this] {
    return rowsOf("SELECT * FROM Padron_Comunion WHERE AñoComunion<>\"\"");
  };
  const auto before = communions();
  ASSERT_GT(before, 0);
  ASSERT_TRUE(window->chooseRow(someoneWith(1)));
  user.answerAnything(Answer::No);
  give("eliminar-empadronado");
  EXPECT_THAT(user.messages().back().text, StartsWith("ADVERTENCIA"));
  ASSERT_TRUE(window->chooseRow(someoneWith(2)));
  give("eliminar-empadronado");
  EXPECT_THAT(user.messages().back().text, HasSubstr("TODAS"));
  EXPECT_EQ(communions(), before);
  user.answerAnything(Answer::Yes);
  give("eliminar-empadronado");
  EXPECT_EQ(communions(), 0);
}

TEST_F(CensusWindow, WhatIsDeletedIsNamed_AndEnterLeavesIt) {
  open("PartidasBautismo");
  user.answerAnything(Answer::No);
  const std::pair<const char*, const char*> commands[] = {
      {"PartidasBautismo", "eliminar-partida"},
      {"SolicitudesBautismo", "eliminar-solicitud"},
      {"LibrosBautismo", "eliminar-libro"},
      {"LibrosBautismo", "cerrar-libro"},
      {"Padrón", "eliminar-empadronado"},
      {"Colaboradores", "eliminar-colaborador"},
      {"Actividades", "eliminar-actividad"},
      {"Cargos", "eliminar-cargo"},
      {"Instituciones", "eliminar"},
      {"Provincias", "eliminar"},
      {"Municipios", "eliminar"},
      {"Tareas", "eliminar"}};
  for (const auto& [node, command] : commands) {
    window->showNode(node);
    window->table().selectRow(window->table().model()->rowCount() - 1);
    const Choice before = window->choice();
    give(command);
    ASSERT_FALSE(user.messages().empty()) << command;
    const forms::Message& asked = user.messages().back();
    const bool refused = asked.buttons == forms::MsgButtons::Ok;
    EXPECT_EQ(asked.byEnter, refused ? Answer::None : Answer::No) << asked.text;
    EXPECT_EQ(asked.icon, forms::MsgIcon::Exclamation) << asked.text;
    std::string row;
    for (int column = 0; column < window->table().model()->columnCount(); ++column)
      row +=
          window->table().currentIndex().siblingAtColumn(column).data().toString().toStdString() +
          "\n";
    const std::string named = asked.below.substr(0, asked.below.find_first_of(" ,:\n"));
    EXPECT_FALSE(named.empty()) << asked.text;
    EXPECT_TRUE(refused || row.find(named) != std::string::npos) << asked.below << "\n" << row;
    EXPECT_EQ(window->choice().id, before.id) << command;
  }
}

TEST_F(CensusWindow, EntireReports_HoldWhatThereIs) {
  open("Padrón");
  for (const ListReport& report : listReports()) {
    const auto made = makeListReport(*desk, report, Extent::Entire);
    ASSERT_TRUE(made) << report.templateName;
    EXPECT_GT(made->rowCount(), 3u) << report.templateName;
  }
  const auto made = makeListReport(*desk, listReports()[0], Extent::Entire);
  EXPECT_EQ(made->rowCount(), static_cast<std::size_t>(count(
                                  "SELECT COUNT(*) FROM Grupo WHERE IDGrupo IN (SELECT CodGrupo "
                                  "FROM Padron_Actividad)")));
}

TEST(ReportProgress, EachStretchIsShownAndTheLastOneIsClosed) {
  forms::ScriptedUser user;
  {
    ReportProgress progress(user);
    progress.setValue(1);
    EXPECT_FALSE(progress.began());
    progress.Cargar(2, "Uno", 1, 0);
    progress.setValue(2);
    progress.Cargar(5, "Dos", 1, 0);
    EXPECT_TRUE(progress.began());
  }
  EXPECT_THAT(user.progressLog, ElementsAre("open 2 Uno", "2", "close", "open 5 Dos", "close"));
}

TEST_F(CensusWindow, ReportStopped_LeavesNothingAndTheNextIsWhole) {
  create();
  user.stopAt = 1;
  user.expectMessage("Operación cancelada. No queda nada de ella.");
  EXPECT_FALSE(makeListReport(*desk, listReports()[1], Extent::Entire));
  EXPECT_EQ(user.progressLog.back(), "close");
  user.stopAt = -1;
  EXPECT_TRUE(makeListReport(*desk, listReports()[1], Extent::Entire));
}

TEST_F(CensusWindow, EntireReportWithoutRows_IsToldOnce) {
  open("InformesActividades", Content::Empty);
  user.expectMessage("¡No se ha encontrado ningún registro!");
  give("informe-entero");
}

TEST_F(CensusWindow, MenuWithNothingToOffer_IsOff) {
  open("Cargos");
  const auto documents = [&] {
    for (const QAction* title : window->menuBar()->actions())
      if (title->text() == "&Documentos") return title->isEnabled();
    return false;
  };
  EXPECT_FALSE(documents());
  window->showNode("Colaboradores");
  EXPECT_TRUE(documents());
}

TEST_F(CensusWindow, TasksOpenAtTheNextOneTodayIncluded) {
  open("Tareas");
  const auto dayChosen = [&] {
    window->action("actualizar")->trigger();
    window->showNode("Cargos");
    window->showNode("Tareas");
    return count("SELECT Fecha FROM Tareas WHERE IDTarea=" + std::to_string(window->choice().id));
  };
  desk->parish().Execute("DELETE * FROM Tareas WHERE Fecha=\"20260520\"");
  EXPECT_EQ(dayChosen(), count("SELECT MIN(Fecha) FROM Tareas WHERE Fecha>\"20260520\""));
  tests::insert(desk->parish(), "Tareas",
                "Fecha=20260520; HoraInicio=1000; HoraFin=1100; Nombre=De hoy");
  EXPECT_EQ(dayChosen(), 20260520) << "one of today is still to come";
  desk->parish().Execute("DELETE * FROM Tareas WHERE Fecha>=\"20260520\"");
  dayChosen();
  EXPECT_EQ(window->table().currentIndex().row(), 0);
}

}  // namespace fidaleon::app::CensusWindowTest
