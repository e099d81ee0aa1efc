#include "collaborators_World.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using forms::FormDriver;
using store::FailingEngine;

constexpr const char* PREGUNTA =
    "ADVERTENCIA:\nSe propone eliminar un Colaborador. Si lo hace, perderá todos los  \n"
    "datos que este tenga relacionados.\n\n¿Está seguro de querer eliminar el Colaborador junto "
    "con todos sus \ndatos relacionados?";

constexpr const char* DE_LA_PERSONA[] = {
    "Padron_TipoPersona", "Padron_Nacimiento",   "Padron_Bautismo", "Padron_Comunion",
    "Padron_Matrimonio",  "Padron_Confirmacion", "Padron_Defuncion"};

TEST(OperacionesColaborador, New_HoldsTheCensusWhileOpenAndGivesItBack) {
  ColaboradorWorld w;
  w.nuevo([&](FormDriver& u) {
    EXPECT_FALSE(w.libre("Padron"));
    EXPECT_FALSE(w.libre("Provincia"));
    EXPECT_FALSE(w.libre("Municipio"));
    u.close();
  });
  EXPECT_TRUE(w.libre("Padron"));
  EXPECT_TRUE(w.libre("Municipio"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, NewWhileTheCensusIsInUse_DoesNotOpen) {
  ColaboradorWorld w;
  const auto otro = w.otroUsaRegistro("Padron", w.colaborador());
  w.user.answerAnything(Answer::Ok);
  censo::NuevoColaborador(w.contexto, w.con());
  EXPECT_EQ(w.user.messages().size(), 1u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, EditOfOneInUse_OpensToBeReadOnly) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  const auto otro = w.otroUsaRegistro("Padron", id);
  w.user.answerAnything(Answer::Ok);
  w.edita(id, [](FormDriver& u) {
    EXPECT_EQ(u.text(texto(frmColaborador::Nombre)), "Ana");
    EXPECT_TRUE(u.locked(texto(frmColaborador::Nombre)));
    EXPECT_TRUE(u.locked("cboColaborador(0)"));
    for (const char* boton : {ACEPTAR, IMPORTAR, AGREGAR, MODIFICAR, QUITAR,
                              "cmdAgregarProvincia(0)", "cmdAgregarMunicipio(1)"})
      EXPECT_FALSE(u.enabled(boton)) << boton;
    u.enter();
    EXPECT_FALSE(u.closed());
    u.click(CANCELAR);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, EditOfOneWhoIsGone_DoesNotOpen) {
  ColaboradorWorld w;
  w.user.answerAnything(Answer::Ok);
  censo::EditaColaborador(w.contexto, w.con(), 77);
  EXPECT_EQ(w.user.messages().size(), 1u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, NothingCanBeLocked_OpensToBeReadOnlyAndTellsOfOneWhoIsGone) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  std::filesystem::remove_all(w.directory.path());
  w.user.answerAnything(Answer::Ok);
  w.edita(id, [](FormDriver& u) {
    EXPECT_FALSE(u.enabled(ACEPTAR));
    u.tab("mstColaborador", frmColaborador::TAB_ACTIVIDADES);
    u.doubleClick("msgActividades", 1);
    u.click(CANCELAR);
  });
  censo::EditaColaborador(w.contexto, w.con(), 77);
  EXPECT_EQ(w.user.messages().back().text, "Esta persona ya no está en el padrón.");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, DeleteOfACollaborator_TakesEveryRowButTheNotes) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  const std::int32_t otra = w.colaborador("Eva");
  w.nota(id, "Alergia");
  w.miembro(id, w.lunes, w.catequista);
  w.miembro(otra, w.lunes, w.catequista);
  FailingEngine* motor = FailingEngine::wrap(w.con());
  w.user.expectMessage(PREGUNTA, Answer::Yes);
  censo::EliminaColaborador(w.contexto, w.con(), id);
  for (const char* tabla : DE_LA_PERSONA) {
    EXPECT_EQ(w.count(w.de(tabla, id)), 0) << tabla;
    EXPECT_EQ(w.count(w.de(tabla, otra)), 1) << tabla;
  }
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.count(w.de("Padron_Actividad", id)), 0);
  EXPECT_EQ(w.count(w.de("Padron_Actividad", otra)), 1);
  EXPECT_EQ(w.count("Padron_NotasPersonales"), 1);
  std::vector<std::string> borradas;
  for (const std::string& sentencia : motor->executed())
    if (sentencia.starts_with("DELETE"))
      borradas.push_back(sentencia.substr(14, sentencia.find(" WHERE") - 14));
  EXPECT_THAT(borradas, ::testing::ElementsAre("Padron_TipoPersona", "Padron_Nacimiento",
                                               "Padron_Bautismo", "Padron", "Padron_Comunion",
                                               "Padron_Matrimonio", "Padron_Confirmacion",
                                               "Padron_Defuncion", "Padron_Actividad"));
  EXPECT_THAT(w.user.progressLog,
              ::testing::Contains(::testing::HasSubstr("Eliminando colaborador ...")));
  EXPECT_EQ(w.user.beeps(), 1);
  EXPECT_TRUE(w.libre("Padron"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, DeleteOfOneWhoIsAlsoInTheCensus_TakesTheRoleAndTheGroupsOnly) {
  ColaboradorWorld w;
  const std::int32_t id = w.persona("Ana", "Gil", "Sanz", "", {EMPADRONADO, COLABORADOR});
  w.nota(id, "Alergia");
  w.miembro(id, w.lunes, w.catequista);
  w.user.expectMessage(PREGUNTA, Answer::Yes);
  censo::EliminaColaborador(w.contexto, w.con(), id);
  for (const char* tabla : DE_LA_PERSONA) EXPECT_EQ(w.count(w.de(tabla, id)), 1) << tabla;
  EXPECT_EQ(w.columna("Padron_TipoPersona", "CodTipoPersona", id), "2");
  EXPECT_EQ(w.columna("Padron_Comunion", "AñoComunion", id), "1979");
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.count("Padron_NotasPersonales"), 1);
  EXPECT_EQ(w.count("Padron_Actividad"), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, NewOneOpenedInTheCensus_KeepsBothRolesAndTheBirthday) {
  ColaboradorWorld w;
  w.nuevo([](FormDriver& u) {
    ponerNombre(u);
    u.tab("mstColaborador", frmColaborador::TAB_NACIMIENTO);
    u.type(texto(frmColaborador::Cumpleaños), "0305");
    u.type(texto(frmColaborador::AñoNacimiento), "1971");
    u.click(ACEPTAR);
  });
  w.user.expectForm("frmPadron", [](FormDriver& u) {
    EXPECT_EQ(u.text("adtpPadron(0)"), "03/05/1971");
    u.choose("cboPadron(12)", "San Ginés");
    u.click("cmdPadron(0)");
    EXPECT_TRUE(u.closed());
  });
  censo::EditaEmpadronado(w.contexto, w.con(), 1);
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", 1)), 2);
  EXPECT_EQ(w.count("Padron_Defuncion"), 1);
  EXPECT_EQ(w.columna("Padron", "Cumpleaños", 1), "03/05");
  w.user.expectMessage(PREGUNTA, Answer::Yes);
  censo::EliminaColaborador(w.contexto, w.con(), 1);
  EXPECT_EQ(w.columna("Padron_TipoPersona", "CodTipoPersona", 1), "2");
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, DeleteNotConfirmedOrInUse_LeavesEverything) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  for (const Answer respuesta : {Answer::No, Answer::Cancel}) {
    w.user.expectMessage(PREGUNTA, respuesta);
    censo::EliminaColaborador(w.contexto, w.con(), id);
  }
  const auto otro = w.otroUsaRegistro("Padron", id);
  w.user.expectMessage(PREGUNTA, Answer::Yes);
  w.user.answerAnything(Answer::Ok);
  censo::EliminaColaborador(w.contexto, w.con(), id);
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.count("Padron_Actividad"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(OperacionesColaborador, DeleteFailsInTheMiddle_LeavesEverything) {
  for (const char* sentencia :
       {"DELETE * FROM Padron_Bautismo", "DELETE * FROM Padron WHERE", "Padron_Actividad"}) {
    ColaboradorWorld w;
    const std::int32_t id = w.colaborador();
    w.miembro(id, w.lunes, w.catequista);
    FailingEngine::wrap(w.con())->failOn(sentencia);
    w.user.expectMessage(PREGUNTA, Answer::Yes);
    EXPECT_THROW(censo::EliminaColaborador(w.contexto, w.con(), id), store::Error) << sentencia;
    for (const char* tabla : DE_LA_PERSONA) EXPECT_EQ(w.count(w.de(tabla, id)), 1) << sentencia;
    EXPECT_EQ(w.count("Padron_Actividad"), 1) << sentencia;
    EXPECT_TRUE(w.libre("Padron"));
    EXPECT_SCRIPT_DONE(w.user);
  }
}

}  // namespace
}  // namespace fidaleon::tests
