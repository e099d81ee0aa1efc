// Removing activities and offices.

#include "ActividadesWorld.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* PREGUNTA_ACTIVIDAD =
    "ADVERTENCIA:\nSe propone eliminar una Actividad. Si lo hace, perderá todos los  \n"
    "datos que esta tenga relacionados.\n\n"
    "¿Está seguro de querer eliminar la Actividad junto con todos sus \ndatos relacionados?";
constexpr const char* PREGUNTA_CARGO =
    "ADVERTENCIA:\nSe propone eliminar un Cargo. Si lo hace, perderá todos los  \n"
    "datos que este tenga relacionados.\n\n"
    "¿Está seguro de querer eliminar el Cargo junto con todos sus \ndatos relacionados?";

std::vector<std::string> borrados(const store::FailingEngine& engine) {
  std::vector<std::string> todos;
  for (const std::string& s : engine.executed())
    if (s.starts_with("DELETE")) todos.push_back(s);
  return todos;
}

TEST(EliminaActividad, Confirmed_TakesGroupsAndMembershipsOfThatActivityAlone) {
  ActividadesWorld w;
  const std::int32_t coro = w.actividad("Coro");
  w.miembro(w.ana, w.grupo(coro, "Adultos"), w.monitor);
  auto* engine = store::FailingEngine::wrap(w.con());
  w.user.expectMessage(PREGUNTA_ACTIVIDAD, Answer::Yes);
  censo::EliminaActividad(w.contexto, w.con(), w.catequesis);
  EXPECT_THAT(borrados(*engine), ElementsAre("DELETE * FROM Actividad WHERE IDActividad=?",
                                             "DELETE * FROM Padron_Actividad WHERE CodGrupo= ?",
                                             "DELETE * FROM Grupo WHERE CodActividad= ?"))
      << "a group without members has none to take";
  EXPECT_THAT(w.user.progressLog,
              ElementsAre("open 5 Eliminando actividad ...", "1", "2", "3", "4", "5", "close"));
  EXPECT_THAT(w.membresias(), ElementsAre("Adultos: Ana Monitor"));
  EXPECT_EQ(w.count("Actividad"), 1);
  EXPECT_EQ(w.count("Grupo"), 1);
  EXPECT_EQ(w.count("Padron"), 4);
  EXPECT_EQ(w.user.beeps(), 1);
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_TRUE(w.libre("Actividad"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(EliminaActividad, WithoutGroups_GoesWithThreeSteps) {
  ActividadesWorld w;
  const std::int32_t coro = w.actividad("Coro");
  w.user.expectMessage(PREGUNTA_ACTIVIDAD, Answer::Yes);
  censo::EliminaActividad(w.contexto, w.con(), coro);
  EXPECT_THAT(w.user.progressLog,
              ElementsAre("open 3 Eliminando actividad ...", "1", "2", "3", "close"));
  EXPECT_EQ(w.count("Actividad"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(EliminaActividad, RefusedInUseOrFailing_TakesNothing) {
  ActividadesWorld w;
  const auto intacta = [&] {
    return w.count("Actividad") == 1 && w.count("Grupo") == 2 && w.count("Padron_Actividad") == 2;
  };
  w.user.expectMessage(PREGUNTA_ACTIVIDAD, Answer::No);
  censo::EliminaActividad(w.contexto, w.con(), w.catequesis);
  EXPECT_TRUE(intacta());
  w.user.answerAnything(Answer::Yes);
  {
    const auto otro = w.otroUsaRegistro("Actividad", w.catequesis);
    censo::EliminaActividad(w.contexto, w.con(), w.catequesis);
    EXPECT_TRUE(intacta());
  }
  EXPECT_THAT(w.user.progressLog, IsEmpty());
  store::FailingEngine::wrap(w.con())->failOn("DELETE * FROM Grupo");
  EXPECT_THROW(censo::EliminaActividad(w.contexto, w.con(), w.catequesis), store::Error);
  EXPECT_TRUE(intacta());
  EXPECT_EQ(w.user.progressLog.back(), "close");
  EXPECT_TRUE(w.libre("Actividad"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(EliminaCargo, Confirmed_TakesItsMembershipsButNoPersonAndNoGroup) {
  ActividadesWorld w;
  w.miembro(w.carmen, w.segundo, w.monitor);
  w.user.expectMessage(PREGUNTA_CARGO, Answer::No);
  censo::EliminaCargo(w.contexto, w.con(), w.catequista);
  EXPECT_EQ(w.count("Cargo"), 2);
  auto* engine = store::FailingEngine::wrap(w.con());
  w.user.expectMessage(PREGUNTA_CARGO, Answer::Yes);
  censo::EliminaCargo(w.contexto, w.con(), w.catequista);
  EXPECT_THAT(borrados(*engine), ElementsAre("DELETE * FROM Cargo WHERE IDCargo=?",
                                             "DELETE * FROM Padron_Actividad WHERE CodCargo=?"));
  EXPECT_THAT(w.user.progressLog, ElementsAre("open 2 Eliminando cargo ...", "1", "2", "close"));
  EXPECT_THAT(w.membresias(), ElementsAre("Segundo: Carmen Monitor"));
  EXPECT_EQ(w.count("Cargo"), 1);
  EXPECT_EQ(w.count("Grupo"), 2);
  EXPECT_EQ(w.count("Padron"), 4);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(EliminaCargo, InUseElsewhere_Stays) {
  ActividadesWorld w;
  const auto otro = w.otroUsaRegistro("Cargo", w.monitor);
  w.user.answerAnything(Answer::Yes);
  censo::EliminaCargo(w.contexto, w.con(), w.monitor);
  EXPECT_EQ(w.count("Cargo"), 2);
  EXPECT_THAT(w.user.progressLog, IsEmpty());
}

}  // namespace
}  // namespace fidaleon::tests
