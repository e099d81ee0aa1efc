// The dialogs that ask what the reports of people, groups and tasks are to show.

#include "CensoInformes.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* INFORME = "frmInfActividad";
constexpr const char* AGENDA = "frmInfAgenda";
constexpr const char* NINGUNO = "¡No se ha encontrado ningún registro!";
constexpr const char* ACEPTAR = "cmdBoton(0)";
constexpr const char* CANCELAR = "cmdBoton(1)";
constexpr const char* DISPONIBLES = "lstListas(0)";
constexpr const char* SELECCIONADAS = "lstListas(1)";
constexpr const char* AGREGAR = "cmdMover(0)";
constexpr const char* AGREGAR_TODAS = "cmdMover(1)";
constexpr const char* SIN_ACTIVIDAD = "chkSinActividad";

std::vector<std::string> textos(FormDriver& u, const char* lista) {
  std::vector<std::string> todos;
  const auto& list = u.get<forms::ListControl>(lista);
  for (int i = 0; i < list.listCount(); ++i) todos.push_back(list.list(i));
  return todos;
}

void agregar(FormDriver& u, const std::string& texto) {
  auto& list = u.get<forms::ListBox>(DISPONIBLES);
  for (int i = 0; i < list.listCount(); ++i) list.setSelected(i, list.list(i) == texto);
  u.click(AGREGAR);
}

/// Two groups of the choir of San Ginés and one of the charity of Ajena.
struct DialogWorld : CensoInformes {
  DialogWorld() {
    ajena = institucion("Ajena");
    const std::int32_t coro = actividad("Coro");
    colaborador("Ana", "Aguda", grupo(coro, "Voces agudas"));
    colaborador("Eva", "Grave", grupo(coro, "Voces graves"));
    colaborador("Luz", "Caridad", grupo(actividad("Cáritas", ajena), "Acogida"));
    colaborador("Pío", "Suelto");
  }
  void actividades(forms::ScriptedUser::Act act) {
    user.expectForm(INFORME, std::move(act));
    informes.SelInfActividad(con(), conInformes());
  }
  void colaboradores(forms::ScriptedUser::Act act) {
    user.expectForm(INFORME, std::move(act));
    informes.SelInfColaborador(con(), conInformes());
  }
  std::int32_t ajena = 0;
};

TEST(ActivityDialog, Opened_OffersAllInstitutionsAndNothingElse) {
  DialogWorld w;
  w.actividades([](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de actividades");
    EXPECT_THAT(textos(u, DISPONIBLES), ElementsAre("Ajena", "San Ginés"));
    EXPECT_THAT(textos(u, SELECCIONADAS), IsEmpty());
    for (const char* ajeno : {"cboInstitucion", "cboActividad", SIN_ACTIVIDAD})
      EXPECT_FALSE(u.visible(ajeno)) << ajeno;
    u.escape();
  });
  EXPECT_THAT(w.filas(), IsEmpty());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityDialog, ChosenInstitutions_AreTheBoundary) {
  DialogWorld w;
  w.actividades([](FormDriver& u) {
    agregar(u, "San Ginés");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_THAT(w.lineas({"NombreActividad", "NombreGrupo", "Colaboradores"}),
              ElementsAre("Coro Voces agudas 1", "Coro Voces graves 1"));
  w.actividades([](FormDriver& u) {
    u.click(AGREGAR_TODAS);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.filas().size(), 5u) << "three more beside those of the first run";
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityDialog, NoInstitution_IsRefused) {
  DialogWorld w;
  const auto* motor = store::FailingEngine::wrap(w.conInformes());
  w.actividades([&](FormDriver& u) {
    w.user.expectMessage("¡Debe seleccionar una institución de la lista!");
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    u.click(CANCELAR);
  });
  EXPECT_THAT(motor->executed(), IsEmpty());
  EXPECT_EQ(w.user.beeps(), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityDialog, MovingNothing_IsToldInTheListsOwnWords) {
  DialogWorld w;
  w.actividades([&](FormDriver& u) {
    w.user.expectMessage("¡Debe seleccionar algun elemento de la lista!");
    u.click(AGREGAR);
    w.user.expectMessage("¡No existen elementos para quitar!");
    u.click("cmdMover(3)");
    u.click(AGREGAR_TODAS);
    w.user.expectMessage("¡No existen elementos para agregar!");
    u.click(AGREGAR_TODAS);
    u.escape();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityDialog, EmptyTable_KeepsTheDialog_ButOldRowsPassForNew) {
  DialogWorld w;
  const std::int32_t vacia = w.institucion("Vacía");
  ASSERT_NE(vacia, 0);
  w.actividades([&](FormDriver& u) {
    agregar(u, "Vacía");
    w.user.expectMessage(NINGUNO);
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    EXPECT_EQ(u.get<forms::ListBox>(SELECCIONADAS).selCount(), 0) << "marks are the user's";
    w.conInformes().Execute("INSERT INTO Informe_Colaboradores (NombreGrupo) VALUES (\"Viejo\")");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Information);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityDialog, InstitutionsOfAWholeDiocese_CanAllBeChosen) {
  DialogWorld w;
  w.con().BeginTrans();
  for (int i = 0; i < 1500; ++i) w.institucion("Parroquia " + std::to_string(i));
  w.con().CommitTrans();
  w.actividades([](FormDriver& u) {
    u.click(AGREGAR_TODAS);
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(w.filas().size(), 3u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityDialog, ARowFails_TakesBackAllAndKeepsTheDialogToTryAgain) {
  DialogWorld w;
  store::FailingEngine::wrap(w.conInformes())
      ->failOn("INSERT INTO Informe_Colaboradores", store::ErrorKind::Other, 2);
  w.user.answerAnything(forms::Answer::Ok);
  w.actividades([&](FormDriver& u) {
    u.click(AGREGAR_TODAS);
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    EXPECT_THAT(w.filas(), IsEmpty());
    EXPECT_EQ(u.get<forms::Progress>("abpProgreso").value(), 0);
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(w.filas().size(), 3u);
  ASSERT_EQ(w.user.messages().size(), 1u) << "a failure is not an empty report";
  EXPECT_THAT(w.user.messages()[0].text, HasSubstr("cInformes / RellenarInformeActividad)"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(CollaboratorDialog, Titles_TellTheModes) {
  DialogWorld w;
  w.colaboradores([](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de colaboradores");
    EXPECT_TRUE(u.visible(SIN_ACTIVIDAD));
    u.escape();
  });
  w.user.expectForm(INFORME, [](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de colaboradores (extendido)");
    EXPECT_TRUE(u.visible("cboActividad"));
    u.close();
  });
  w.informes.SelInfColaboradorExt(w.con(), w.conInformes());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(CollaboratorDialog, InstitutionAndActivity_LeadToTheGroups) {
  DialogWorld w;
  w.colaboradores([](FormDriver& u) {
    EXPECT_THAT(textos(u, DISPONIBLES), IsEmpty());
    u.choose("cboInstitucion", "San Ginés");
    EXPECT_THAT(textos(u, "cboActividad"), ElementsAre("Coro"));
    u.choose("cboActividad", "Coro");
    EXPECT_THAT(textos(u, DISPONIBLES), ElementsAre("Voces agudas", "Voces graves"));
    agregar(u, "Voces graves");
    u.choose("cboInstitucion", "Ajena");
    EXPECT_THAT(textos(u, "cboActividad"), ElementsAre("Cáritas"));
    EXPECT_THAT(textos(u, DISPONIBLES), IsEmpty());
    EXPECT_THAT(textos(u, SELECCIONADAS), IsEmpty());
    u.escape();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(CollaboratorDialog, WhatIsChosen_IsTheBoundary) {
  const struct {
    const char* grupo;
    bool sinActividad;
    std::vector<std::string> apellidos;
  } casos[] = {{nullptr, false, {"Aguda", "Grave"}},
               {"Voces graves", false, {"Grave"}},
               {"Voces graves", true, {"Grave", "Caridad", "Suelto"}}};
  for (const auto& caso : casos) {
    DialogWorld w;
    w.colaboradores([&](FormDriver& u) {
      u.choose("cboInstitucion", "San Ginés");
      u.choose("cboActividad", "Coro");
      if (caso.grupo) agregar(u, caso.grupo);
      if (caso.sinActividad) u.click(SIN_ACTIVIDAD);
      u.click(ACEPTAR);
      EXPECT_TRUE(u.closed());
    });
    EXPECT_EQ(w.lineas({"Apellido1"}), caso.apellidos);
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(CollaboratorDialog, NoInstitutionOrNoActivity_IsRefusedAlike) {
  DialogWorld w;
  w.colaboradores([&](FormDriver& u) {
    const std::string falta = "¡Debe seleccionar una actividad de la lista!";
    w.user.expectMessage(falta);
    u.click(ACEPTAR);
    EXPECT_EQ(u.focused(), "cboInstitucion");
    u.choose("cboInstitucion", "Ajena");
    w.user.expectMessage(falta);
    u.click(ACEPTAR);
    EXPECT_EQ(u.focused(), "cboActividad");
    u.click(CANCELAR);
  });
  EXPECT_THAT(w.filas(), IsEmpty());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(CollaboratorDialog, StoreFails_IsToldUnderTheProcedureAndTheDialogCanBeLeft) {
  const struct {
    const char* parte;
    const char* procedimiento;
  } casos[] = {{"FROM Actividad WHERE", "frmInfActividad / cboInstitucion_Click())"},
               {"FROM Grupo WHERE", "frmInfActividad / cboActividad_Click())"},
               {"WHERE IDInstitucion =", "frmInfActividad / cmdBoton_Click())"},
               {"FROM Padron", "cInformes / RellenarInformeColaborador)"}};
  for (const auto& caso : casos) {
    DialogWorld w;
    store::FailingEngine::wrap(w.con())->failOn(caso.parte);
    w.user.answerAnything(forms::Answer::Ok);
    w.colaboradores([&](FormDriver& u) {
      u.choose("cboInstitucion", "San Ginés");
      u.get<forms::ComboBox>("cboActividad").selectText("Coro");
      u.click(ACEPTAR);
      u.escape();
    });
    EXPECT_THAT(w.user.messages().at(0).text, HasSubstr(caso.procedimiento));
    EXPECT_THAT(w.filas(), IsEmpty());
    EXPECT_FALSE(w.conInformes().inTransaction());
  }
}

struct AgendaWorld : CensoInformes {
  AgendaWorld() {
    for (const char* dia : {"20261121", "20261122", "20261130"}) tarea(dia, "1800", dia);
  }
  void agenda(forms::ScriptedUser::Act act) {
    user.expectForm(AGENDA, std::move(act));
    informes.SelInfTareasAgenda(con(), conInformes());
  }
  std::vector<std::string> dias() { return lineas({"Fecha"}, "Tareas_Agenda"); }
};

TEST(AgendaDialog, Accepted_WritesTheTasksOfToday) {
  AgendaWorld w;
  w.agenda([](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Informe de tareas");
    EXPECT_EQ(u.text("adtpFecha(0)"), "22/11/2026");
    EXPECT_EQ(u.text("adtpFecha(1)"), "22/11/2026");
    u.enter();
  });
  EXPECT_THAT(w.dias(), ElementsAre("22/11/2026"));
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(AgendaDialog, BothDays_AreIncluded_EachRowInATransactionOfItsOwn) {
  AgendaWorld w;
  const auto* motor = store::FailingEngine::wrap(w.conInformes());
  w.agenda([](FormDriver& u) {
    u.type("adtpFecha(0)", "21/11/2026");
    u.type("adtpFecha(1)", "30/11/2026");
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.dias(), ElementsAre("21/11/2026", "22/11/2026", "30/11/2026"));
  EXPECT_EQ(std::count(motor->executed().begin(), motor->executed().end(), "COMMIT"), 3);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(AgendaDialog, FirstDayBehindTheSecond_IsToldAndSetsTheSecond) {
  const char* const mensaje = "¡La segunda fecha debe de ser igual o mayor a la primera!";
  AgendaWorld w;
  w.agenda([&](FormDriver& u) {
    w.user.expectMessage(mensaje);
    u.type("adtpFecha(0)", "30/11/2026");
    u.focus("adtpFecha(1)");
    EXPECT_EQ(u.text("adtpFecha(1)"), "30/11/2026");
    w.user.expectMessage(mensaje);
    u.type("adtpFecha(1)", "29/11/2026");
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed()) << "what was changed is seen first";
    EXPECT_EQ(u.text("adtpFecha(1)"), "30/11/2026");
    EXPECT_EQ(u.focused(), "adtpFecha(1)");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_THAT(w.dias(), ElementsAre("30/11/2026"));
  EXPECT_EQ(w.user.beeps(), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(AgendaDialog, CancelledWithDaysOutOfOrder_IsNotHeldBack) {
  AgendaWorld w;
  w.agenda([](FormDriver& u) {
    u.type("adtpFecha(0)", "30/11/2026");
    u.click(CANCELAR);
  });
  EXPECT_THAT(w.dias(), IsEmpty());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(AgendaDialog, NoDay_IsRefused) {
  AgendaWorld w;
  w.agenda([&](FormDriver& u) {
    u.type("adtpFecha(1)", "");
    w.user.expectMessage("Falta rellenar el campo «Hasta».");
    u.click(ACEPTAR);
    EXPECT_EQ(u.focused(), "adtpFecha(1)");
    u.escape();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(AgendaDialog, NoTasks_KeepsTheDialog_ButOldRowsPassForNew) {
  AgendaWorld w;
  w.agenda([&](FormDriver& u) {
    u.type("adtpFecha(1)", "01/01/2027");
    u.type("adtpFecha(0)", "01/01/2027");
    w.user.expectMessage(NINGUNO);
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    w.conInformes().Execute("INSERT INTO Tareas_Agenda (Nombre) VALUES (\"Vieja\")");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(AgendaDialog, ARowFails_LeavesThoseBeforeItAndTheDialog) {
  AgendaWorld w;
  store::FailingEngine::wrap(w.conInformes())
      ->failOn("INSERT INTO Tareas_Agenda", store::ErrorKind::Other, 2);
  w.user.answerAnything(forms::Answer::Ok);
  w.agenda([&](FormDriver& u) {
    u.type("adtpFecha(0)", "21/11/2026");
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    u.escape();
  });
  EXPECT_THAT(w.dias(), ElementsAre("21/11/2026"));
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_THAT(w.user.messages().at(0).text, HasSubstr("frmInfAgenda / cmdBoton_Click())"));
  EXPECT_EQ(w.user.hourglassDepth(), 0);
}

}  // namespace
}  // namespace fidaleon::tests
