// The dialogs that ask what the reports of people, groups and tasks are to show.

#include "CensoInformes.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::CensusDialogsTest {

constexpr const char *NINGUNO = "¡No se ha encontrado ningún registro!", *ACEPTAR = "cmdBoton(0)",
                     *CANCELAR = "cmdBoton(1)", *AGREGAR = "cmdMover(0)", *TODAS = "cmdMover(1)",
                     *SIN_ACTIVIDAD = "chkSinActividad", *DESDE = "adtpFecha(0)",
                     *HASTA = "adtpFecha(1)";

struct Dialogo : ::testing::Test, CensoInformes {
  /// The button tells this, and the dialog stays.
  void rehusa(FormDriver& u, const char* boton, const char* mensaje) {
    user.expectMessage(mensaje);
    u.click(boton);
    EXPECT_FALSE(u.closed()) << mensaje;
  }
  static void acepta(FormDriver& u) {
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  }
  static std::string disponibles(FormDriver& u) { return ManosWorld::lineas(u, "lstListas(0)"); }
  static std::string elegidas(FormDriver& u) { return ManosWorld::lineas(u, "lstListas(1)"); }
  static void agrega(FormDriver& u, const std::string& texto) {
    auto& list = u.get<forms::ListBox>("lstListas(0)");
    for (int i = 0; i < list.listCount(); ++i) list.setSelected(i, list.list(i) == texto);
    u.click(AGREGAR);
  }
};

/// Two groups of the choir of San Ginés and one of the charity of Ajena.
struct GroupsDialog : Dialogo {
  GroupsDialog() {
    ajena = institucion("Ajena");
    const std::int32_t coro = actividad("Coro");
    colaborador("Ana", "Aguda", grupo(coro, "Voces agudas"));
    colaborador("Eva", "Grave", grupo(coro, "Voces graves"));
    colaborador("Luz", "Caridad", grupo(actividad("Cáritas", ajena), "Acogida"));
    colaborador("Pío", "Suelto");
  }
  void actividades(Act act) {
    user.expectForm("frmInfActividad", std::move(act));
    informes.SelInfActividad(con(), conInformes());
  }
  void colaboradores(Act act) {
    user.expectForm("frmInfActividad", std::move(act));
    informes.SelInfColaborador(con(), conInformes());
  }
  std::int32_t ajena = 0;
};

TEST_F(GroupsDialog, OfActivities_OffersAllInstitutionsAndTheChosenOnesAreTheBoundary) {
  actividades([&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de actividades");
    EXPECT_EQ(disponibles(u) + "/" + elegidas(u), "Ajena|San Ginés/");
    for (const char* ajeno : {"cboInstitucion", "cboActividad", SIN_ACTIVIDAD})
      EXPECT_FALSE(u.visible(ajeno)) << ajeno;
    rehusa(u, ACEPTAR, "¡Debe seleccionar una institución de la lista!");
    rehusa(u, AGREGAR, "¡Debe seleccionar algun elemento de la lista!");
    rehusa(u, "cmdMover(3)", "¡No existen elementos para quitar!");
    agrega(u, "San Ginés");
    acepta(u);
  });
  EXPECT_THAT(lineas({"NombreActividad", "NombreGrupo", "Colaboradores"}),
              ElementsAre("Coro Voces agudas 1", "Coro Voces graves 1"));
  EXPECT_EQ(user.beeps(), 3);
  con().BeginTrans();
  for (int i = 0; i < 1500; ++i) institucion("Parroquia " + std::to_string(i));
  con().CommitTrans();
  actividades([&](FormDriver& u) {
    u.click(TODAS);
    rehusa(u, TODAS, "¡No existen elementos para agregar!");
    acepta(u);
  });
  EXPECT_EQ(filas().size(), 5u) << "three more beside those of the first run";
  EXPECT_EQ(user.hourglassDepth(), 0);
}

TEST_F(GroupsDialog, EmptyTable_KeepsTheDialog_ButOldRowsPassForNew) {
  institucion("Vacía");
  actividades([&](FormDriver& u) {
    agrega(u, "Vacía");
    rehusa(u, ACEPTAR, NINGUNO);
    EXPECT_EQ(u.get<forms::ListBox>("lstListas(1)").selCount(), 0) << "marks are the user's";
    insert(conInformes(), "Informe_Colaboradores", "NombreGrupo=Viejo");
    acepta(u);
  });
  EXPECT_EQ(user.messages()[0].icon, forms::MsgIcon::Information);
}

TEST_F(GroupsDialog, ARowFails_TakesBackAllAndKeepsTheDialogToTryAgain) {
  fallanInformes("INSERT INTO Informe_Colaboradores", 2);
  actividades([&](FormDriver& u) {
    u.click(TODAS);
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    EXPECT_THAT(filas(), IsEmpty());
    EXPECT_EQ(u.get<forms::Progress>("abpProgreso").value(), 0);
    acepta(u);
  });
  EXPECT_EQ(filas().size(), 3u);
  ASSERT_EQ(user.messages().size(), 1u) << "a failure is not an empty report";
  EXPECT_THAT(user.messages()[0].text, HasSubstr("cInformes / RellenarInformeActividad)"));
}

TEST_F(GroupsDialog, OfCollaborators_LeadsFromInstitutionAndActivityToTheGroups) {
  colaboradores([&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de colaboradores");
    EXPECT_TRUE(u.visible(SIN_ACTIVIDAD));
    EXPECT_EQ(disponibles(u), "");
    const char* falta = "¡Debe seleccionar una actividad de la lista!";
    rehusa(u, ACEPTAR, falta);
    EXPECT_EQ(u.focused(), "cboInstitucion");
    u.choose("cboInstitucion", "San Ginés");
    rehusa(u, ACEPTAR, falta);
    EXPECT_EQ(u.focused(), "cboActividad");
    EXPECT_EQ(ManosWorld::lineas(u, "cboActividad"), "Coro");
    u.choose("cboActividad", "Coro");
    EXPECT_EQ(disponibles(u), "Voces agudas|Voces graves");
    agrega(u, "Voces graves");
    u.choose("cboInstitucion", "Ajena");
    EXPECT_EQ(ManosWorld::lineas(u, "cboActividad"), "Cáritas");
    EXPECT_EQ(disponibles(u) + elegidas(u), "");
    u.click(CANCELAR);
  });
  EXPECT_THAT(filas(), IsEmpty());
  user.expectForm("frmInfActividad", [](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de colaboradores (extendido)");
    EXPECT_TRUE(u.visible("cboActividad"));
    u.close();
  });
  informes.SelInfColaboradorExt(con(), conInformes());
}

TEST_F(GroupsDialog, WhatIsChosen_IsTheBoundary) {
  const struct {
    const char* grupo;
    bool sinActividad;
    std::vector<std::string> apellidos;
  } casos[] = {{"", false, {"Aguda", "Grave"}},
               {"Voces graves", false, {"Grave"}},
               {"Voces graves", true, {"Grave", "Caridad", "Suelto"}}};
  for (const auto& caso : casos) {
    conInformes().Execute("DELETE * FROM Informe_Colaboradores");
    colaboradores([&](FormDriver& u) {
      u.choose("cboInstitucion", "San Ginés");
      u.choose("cboActividad", "Coro");
      if (*caso.grupo) agrega(u, caso.grupo);
      if (caso.sinActividad) u.click(SIN_ACTIVIDAD);
      acepta(u);
    });
    EXPECT_EQ(lineas({"Apellido1"}), caso.apellidos);
  }
}

TEST_F(GroupsDialog, StoreFails_IsToldUnderTheProcedureAndTheDialogCanBeLeft) {
  const std::pair<const char*, const char*> casos[] = {
      {"FROM Actividad WHERE", "frmInfActividad / cboInstitucion_Click())"},
      {"FROM Grupo WHERE", "frmInfActividad / cboActividad_Click())"},
      {"WHERE IDInstitucion =", "frmInfActividad / cmdBoton_Click())"},
      {"FROM Padron", "cInformes / RellenarInformeColaborador)"}};
  user.answerAnything(Answer::Ok);
  for (const auto& [parte, procedimiento] : casos) {
    const std::size_t antes = user.messages().size();
    fallos().failOn(parte);
    colaboradores([&](FormDriver& u) {
      u.choose("cboInstitucion", "San Ginés");
      u.get<forms::ComboBox>("cboActividad").selectText("Coro");
      u.click(ACEPTAR);
      u.escape();
    });
    EXPECT_THAT(user.messages().at(antes).text, HasSubstr(procedimiento));
    EXPECT_THAT(filas(), IsEmpty());
    EXPECT_FALSE(conInformes().inTransaction());
  }
}

struct AgendaDialog : Dialogo {
  AgendaDialog() {
    for (const char* dia : {"20261121", "20261122", "20261130"}) tarea(dia, "1800", dia);
  }
  void agenda(Act act) {
    user.expectForm("frmInfAgenda", std::move(act));
    informes.SelInfTareasAgenda(con(), conInformes());
  }
  std::vector<std::string> dias() { return lineas({"Fecha"}, "Tareas_Agenda"); }
};

TEST_F(AgendaDialog, DaysOfTodayOrTyped_AreIncludedEachInATransactionOfItsOwn) {
  agenda([](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de tareas");
    EXPECT_EQ(u.text(DESDE) + u.text(HASTA), "22/11/202622/11/2026");
    u.enter();
  });
  EXPECT_THAT(dias(), ElementsAre("22/11/2026"));
  const auto* motor = store::FailingEngine::wrap(conInformes());
  agenda([](FormDriver& u) {
    u.type(DESDE, "21/11/2026");
    u.type(HASTA, "30/11/2026");
    acepta(u);
  });
  EXPECT_THAT(dias(), ElementsAre("22/11/2026", "21/11/2026", "22/11/2026", "30/11/2026"));
  EXPECT_EQ(std::count(motor->executed().begin(), motor->executed().end(), "COMMIT"), 3);
}

TEST_F(AgendaDialog, FirstDayBehindTheSecond_IsToldAndSetsTheSecondButDoesNotHoldOneWhoCancels) {
  const char* const mensaje = "¡La segunda fecha debe de ser igual o mayor a la primera!";
  agenda([](FormDriver& u) {
    u.type(DESDE, "30/11/2026");
    u.click(CANCELAR);
  });
  EXPECT_THAT(dias(), IsEmpty());
  agenda([&](FormDriver& u) {
    user.expectMessage(mensaje);
    u.type(DESDE, "30/11/2026");
    u.focus(HASTA);
    EXPECT_EQ(u.text(HASTA), "30/11/2026");
    u.type(HASTA, "29/11/2026");
    rehusa(u, ACEPTAR, mensaje);  // what was changed is seen first
    EXPECT_EQ(u.text(HASTA), "30/11/2026");
    EXPECT_EQ(u.focused(), HASTA);
    acepta(u);
  });
  EXPECT_THAT(dias(), ElementsAre("30/11/2026"));
  EXPECT_EQ(user.beeps(), 2);
}

TEST_F(AgendaDialog, NoDayOrNoTasks_KeepTheDialog_ButOldRowsPassForNew) {
  agenda([&](FormDriver& u) {
    u.type(HASTA, "");
    rehusa(u, ACEPTAR, "Falta rellenar el campo «Hasta».");
    EXPECT_EQ(u.focused(), HASTA);
    u.type(HASTA, "01/01/2027");
    u.type(DESDE, "01/01/2027");
    rehusa(u, ACEPTAR, NINGUNO);
    insert(conInformes(), "Tareas_Agenda", "Nombre=Vieja");
    acepta(u);
  });
}

TEST_F(AgendaDialog, ARowFails_LeavesThoseBeforeItAndTheDialog) {
  fallanInformes("INSERT INTO Tareas_Agenda", 2);
  agenda([&](FormDriver& u) {
    u.type(DESDE, "21/11/2026");
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    u.escape();
  });
  EXPECT_THAT(dias(), ElementsAre("21/11/2026"));
  EXPECT_FALSE(conInformes().inTransaction());
  EXPECT_THAT(user.messages().at(0).text, HasSubstr("frmInfAgenda / cmdBoton_Click())"));
  EXPECT_EQ(user.hourglassDepth(), 0);
}

}  // namespace fidaleon::tests::CensusDialogsTest
