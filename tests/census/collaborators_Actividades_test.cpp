#include "census/collaborators/frmColaboradorActividad.h"
#include "collaborators_World.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using forms::FormDriver;
using forms::Grid;
using store::FailingEngine;
using C = frmColaborador;

constexpr const char* ACTIVIDAD = "cboColaboraAct(0)";
constexpr const char* GRUPO = "cboColaboraAct(1)";
constexpr const char* CARGO = "cboColaboraAct(2)";
constexpr const char* ALTA_ACTIVIDAD = "cmdAgregar(0)";
constexpr const char* ALTA_GRUPO = "cmdAgregar(1)";
constexpr const char* ALTA_CARGO = "cmdAgregar(2)";
constexpr const char* SI = "cmdColaboraAct(0)";
constexpr const char* NO = "cmdColaboraAct(1)";
constexpr const char* YA_ESTA = "¡El colaborador ya existe en este grupo!";

struct ActividadesWorld : ColaboradorWorld {
  void esperar(Act act) { user.expectForm("frmColaboradorActividad", std::move(act)); }
  /// The next of the dialogs takes this group and office.
  void esperarEleccion(std::int32_t grupo, std::int32_t cargo) {
    esperar([=, this](FormDriver& a) {
      a.chooseData(ACTIVIDAD, catequesis);
      a.chooseData(GRUPO, grupo);
      a.chooseData(CARGO, cargo);
      a.click(SI);
    });
  }
  /// The tab of groups of a collaborator; the user leaves the dialog closed.
  void enActividades(std::int32_t id, Act act) {
    edita(id, [&](FormDriver& u) {
      u.tab("mstColaborador", C::TAB_ACTIVIDADES);
      act(u);
    });
  }
  static Grid& rejilla(FormDriver& u) { return u.get<Grid>("msgActividades"); }
  static std::vector<std::string> fila(FormDriver& u, int n) {
    std::vector<std::string> celdas;
    for (int c = 0; c < rejilla(u).columns(); ++c) celdas.push_back(rejilla(u).cell(n, c));
    return celdas;
  }
  /// "group/office" of each stored membership.
  std::vector<std::string> guardadas(std::int32_t id) {
    std::vector<std::string> todas;
    for (auto rs =
             con().Execute("SELECT CodGrupo, CodCargo FROM Padron_Actividad WHERE CodPadron=" +
                           std::to_string(id) + " ORDER BY IDActividadesPadron");
         !rs.EOF_(); rs.MoveNext())
      todas.push_back(rs.text("CodGrupo") + "/" + rs.text("CodCargo"));
    return todas;
  }
  static std::string par(std::int32_t grupo, std::int32_t cargo) {
    return std::to_string(grupo) + "/" + std::to_string(cargo);
  }
};

TEST(ActividadesColaborador, Opened_ShowsGroupOfficeActivityAndTimetable) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.martes, w.ayudante);
  w.enActividades(id, [&](FormDriver& u) {
    EXPECT_THAT(w.fila(u, 0),
                ::testing::ElementsAre("Grupo", "Cargo", "Actividad", "Sala", "Día", "Hora"));
    EXPECT_THAT(w.fila(u, 1), ::testing::ElementsAre("Martes", "Ayudante", "Catequesis", "Aula 2",
                                                     "Lunes", "18:00"));
    EXPECT_EQ(w.rejilla(u).columnWidth(0), 2250);
    EXPECT_EQ(w.rejilla(u).rowKey(1), 1);
    w.rejilla(u).setColumnWidth(0, 3000);
    u.close();
  });
  w.enActividades(id, [&](FormDriver& u) {
    EXPECT_EQ(w.rejilla(u).columnWidth(0), 3000);
    u.close();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, Added_ShowsAtOnceAndIsStoredOnAcceptance) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.enActividades(id, [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) {
      EXPECT_EQ(a.caption(), "Agregar colaborador - actividad");
      EXPECT_FALSE(w.libre("Padron_Actividad"));
      a.choose(ACTIVIDAD, "Catequesis");
      a.choose(GRUPO, "Martes");
      a.choose(CARGO, "Ayudante");
      a.click(SI);
    });
    u.click(AGREGAR);
    EXPECT_THAT(w.fila(u, 1), ::testing::ElementsAre("Martes", "Ayudante", "Catequesis", "Aula 2",
                                                     "Lunes", "18:00"));
    EXPECT_EQ(w.count("Padron_Actividad"), 0);
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.martes, w.ayudante)));
  EXPECT_TRUE(w.libre("Padron_Actividad"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, AddedThenRemovedOrCancelled_GivesTheTableBackWithTheLast) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.enActividades(id, [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) { a.click(NO); });
    u.click(AGREGAR);
    EXPECT_TRUE(w.libre("Padron_Actividad"));
    w.esperarEleccion(w.lunes, w.catequista);
    u.click(AGREGAR);
    w.esperarEleccion(w.martes, w.catequista);
    u.click(AGREGAR);
    u.row("msgActividades", 1);
    u.click(QUITAR);
    EXPECT_EQ(w.rejilla(u).rowCount(), 1);
    EXPECT_EQ(w.rejilla(u).cell(1, 0), "Martes");
    EXPECT_FALSE(w.libre("Padron_Actividad"));
    u.click(QUITAR);
    EXPECT_EQ(w.rejilla(u).rowCount(), 0);
    EXPECT_TRUE(w.libre("Padron_Actividad"));
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.count("Padron_Actividad"), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, ChangedAndRemoved_ReachTheStoreOnlyWhenAccepted) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  w.miembro(id, w.martes, w.ayudante);
  const auto cambiar = [&](const char* salida) {
    w.enActividades(id, [&](FormDriver& u) {
      w.esperar([&](FormDriver& a) {
        EXPECT_EQ(a.caption(), "Propiedades colaborador - actividad");
        EXPECT_EQ(a.text(ACTIVIDAD), "Catequesis");
        EXPECT_EQ(a.text(GRUPO), "Lunes");
        EXPECT_EQ(a.text(CARGO), "Catequista");
        a.choose(CARGO, "Ayudante");
        a.click(SI);
      });
      u.doubleClick("msgActividades", 1);
      EXPECT_EQ(w.rejilla(u).cell(1, 1), "Ayudante");
      u.row("msgActividades", 2);
      u.click(QUITAR);
      EXPECT_EQ(w.rejilla(u).rowCount(), 1);
      EXPECT_FALSE(w.libre("Padron_Actividad"));
      EXPECT_EQ(w.count("Padron_Actividad"), 2);
      u.click(salida);
    });
    EXPECT_TRUE(w.libre("Padron_Actividad"));
  };
  cambiar(CANCELAR);
  EXPECT_THAT(w.guardadas(id),
              ::testing::ElementsAre(w.par(w.lunes, w.catequista), w.par(w.martes, w.ayudante)));
  cambiar(ACEPTAR);
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.lunes, w.ayudante)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, SameGroupTwice_IsRefusedUnlessTheOtherIsToGo) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  w.enActividades(id, [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) {
      a.chooseData(ACTIVIDAD, w.catequesis);
      a.chooseData(GRUPO, w.lunes);
      a.chooseData(CARGO, w.ayudante);
      w.user.expectMessage(YA_ESTA);
      a.click(SI);
      EXPECT_FALSE(a.closed());
      a.close();
    });
    u.click(AGREGAR);
    u.row("msgActividades", 1);
    u.click(QUITAR);
    w.esperarEleccion(w.lunes, w.ayudante);
    u.click(AGREGAR);
    EXPECT_EQ(w.rejilla(u).rowCount(), 1);
    w.esperar([&](FormDriver& a) { a.click(SI); });
    u.click(MODIFICAR);
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.lunes, w.ayudante)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, MeanwhileInTheGroup_IsNotStoredTwice) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.enActividades(id, [&](FormDriver& u) {
    w.esperarEleccion(w.lunes, w.ayudante);
    u.click(AGREGAR);
    w.miembro(id, w.lunes, w.catequista);
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.lunes, w.catequista)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, NoRowChosen_BeepsAndChangesNothing) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  w.enActividades(id, [&](FormDriver& u) {
    w.rejilla(u).setRow(0);
    u.click(MODIFICAR);
    u.click(QUITAR);
    EXPECT_EQ(w.user.beeps(), 2);
    EXPECT_EQ(w.rejilla(u).rowCount(), 1);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.count("Padron_Actividad"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, TableOrRowInUseElsewhere_StopsTheAction) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  const auto otro = w.otroUsaRegistro("Padron_Actividad", w.miembro(id, w.lunes, w.catequista));
  w.user.answerAnything(Answer::Ok);
  w.enActividades(id, [&](FormDriver& u) {
    u.row("msgActividades", 1);
    for (const char* boton : {AGREGAR, MODIFICAR, QUITAR}) u.click(boton);
    EXPECT_EQ(w.user.messages().size(), 3u);
    EXPECT_EQ(w.rejilla(u).rowCount(), 1);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.count("Padron_Actividad"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, ButtonsHidden_TheGridCanOnlyBeRead) {
  ActividadesWorld w;
  w.nuevo(
      [](FormDriver& u) {
        u.tab("mstColaborador", C::TAB_ACTIVIDADES);
        for (const char* boton : {AGREGAR, MODIFICAR, QUITAR}) EXPECT_FALSE(u.visible(boton));
        u.close();
      },
      true);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, GroupRemovedElsewhere_LeavesARowThatCanBeTakenAway) {
  ActividadesWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  w.con().Execute("DELETE * FROM Grupo");
  w.enActividades(id, [&](FormDriver& u) {
    EXPECT_EQ(w.rejilla(u).cell(1, 0), "---");
    EXPECT_EQ(w.rejilla(u).cell(1, 1), "Catequista");
    u.row("msgActividades", 1);
    u.click(QUITAR);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.count("Padron_Actividad"), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, StoringThemFails_TakesThePersonBackToo) {
  for (const char* sentencia : {"UPDATE Padron_Actividad", "DELETE * FROM Padron_Actividad",
                                "INSERT INTO Padron_Actividad"}) {
    ActividadesWorld w;
    const std::int32_t id = w.colaborador();
    w.miembro(id, w.lunes, w.catequista);
    w.miembro(id, w.martes, w.catequista);
    const std::int32_t jueves = w.grupo(w.catequesis, "Jueves");
    FailingEngine* fallos = FailingEngine::wrap(w.con());
    w.enActividades(id, [&](FormDriver& u) {
      w.esperar([&](FormDriver& a) {
        a.choose(CARGO, "Ayudante");
        a.click(SI);
      });
      u.doubleClick("msgActividades", 1);
      u.row("msgActividades", 2);
      u.click(QUITAR);
      w.esperarEleccion(jueves, w.ayudante);
      u.click(AGREGAR);
      u.tab("mstColaborador", C::TAB_DATOS);
      u.type(texto(C::Direccion), "Otra, 1");
      fallos->failOn(sentencia);
      w.user.answerAnything(Answer::Ok);
      u.click(ACEPTAR);
      ASSERT_FALSE(u.closed()) << sentencia;
      EXPECT_EQ(w.columna("Padron", "Direccion", id), "Calle Mayor, 3") << sentencia;
      EXPECT_EQ(w.count("Padron_Actividad"), 2) << sentencia;
      u.click(ACEPTAR);
      EXPECT_TRUE(u.closed()) << sentencia;
    });
    EXPECT_THAT(w.guardadas(id),
                ::testing::ElementsAre(w.par(w.lunes, w.ayudante), w.par(jueves, w.ayudante)))
        << sentencia;
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FrmColaboradorActividad, Accept_AsksForActivityGroupAndOfficeInThatOrder) {
  ActividadesWorld w;
  w.enActividades(w.colaborador(), [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) {
      EXPECT_FALSE(a.enabled(ALTA_GRUPO));
      w.user.expectMessage("¡Debe seleccionar una actividad para el colaborador!");
      a.click(SI);
      EXPECT_EQ(a.focused(), ACTIVIDAD);
      a.chooseData(ACTIVIDAD, w.catequesis);
      EXPECT_TRUE(a.enabled(ALTA_GRUPO));
      w.user.expectMessage("¡Debe seleccionar un grupo para el colaborador!");
      a.click(SI);
      EXPECT_EQ(a.focused(), GRUPO);
      a.choose(GRUPO, "Lunes");
      w.user.expectMessage("¡Debe seleccionar un cargo para el colaborador!");
      a.click(SI);
      EXPECT_EQ(a.focused(), CARGO);
      a.chooseData(ACTIVIDAD, w.coro);
      EXPECT_EQ(a.get<forms::ComboBox>(GRUPO).listCount(), 0);
      EXPECT_TRUE(a.enabled(ALTA_GRUPO));
      w.user.expectMessage("¡Debe seleccionar un grupo para el colaborador!");
      a.click(SI);
      a.close();
    });
    u.click(AGREGAR);
    u.close();
  });
  EXPECT_EQ(w.user.beeps(), 4);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaboradorActividad, SameNameInTwoInstitutions_SaysWhoseItIs) {
  ActividadesWorld w;
  const std::int32_t otra = w.institucion("San Juan");
  const std::int32_t suya = w.actividad("Catequesis", otra);
  const std::int32_t grupo = w.grupo(suya, "Sábado", "Salón");
  const std::int32_t id = w.colaborador();
  w.enActividades(id, [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) {
      const auto& lista = a.get<forms::ComboBox>(ACTIVIDAD);
      EXPECT_EQ(lista.list(2), "Coro");
      a.choose(ACTIVIDAD, "Catequesis (San Ginés)");
      a.choose(ACTIVIDAD, "Catequesis (San Juan)");
      a.choose(GRUPO, "Sábado");
      a.choose(CARGO, "Catequista");
      a.click(SI);
    });
    u.click(AGREGAR);
    EXPECT_EQ(w.rejilla(u).cell(1, 2), "Catequesis");
    w.esperar([&](FormDriver& a) {
      EXPECT_EQ(a.text(ACTIVIDAD), "Catequesis (San Juan)");
      a.close();
    });
    u.click(MODIFICAR);
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(grupo, w.catequista)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaboradorActividad, FromAnActivity_NeitherActivitiesNorOfficesCanBeAdded) {
  ActividadesWorld w;
  w.edita(
      w.colaborador(),
      [&](FormDriver& u) {
        u.tab("mstColaborador", C::TAB_ACTIVIDADES);
        w.esperar([&](FormDriver& a) {
          EXPECT_FALSE(a.visible(ALTA_ACTIVIDAD));
          EXPECT_TRUE(a.visible(ALTA_GRUPO));
          EXPECT_FALSE(a.visible(ALTA_CARGO));
          a.close();
        });
        u.click(AGREGAR);
        u.close();
      },
      FDAPI::cCOrigen::ACTIVIDAD);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaboradorActividad, AddedFromHere_IsChosenAndTheRestStays) {
  ActividadesWorld w;
  w.enActividades(w.colaborador(), [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) {
      a.choose(ACTIVIDAD, "Catequesis");
      a.choose(GRUPO, "Martes");
      w.user.expectForm("frmCargo", [](FormDriver& c) {
        c.type("txtCargo(0)", "Director");
        c.click("cmdCargo(0)");
      });
      a.click(ALTA_CARGO);
      EXPECT_EQ(a.text(CARGO), "Director");
      EXPECT_EQ(a.text(GRUPO), "Martes");
      w.user.expectForm("frmCargo", [](FormDriver& c) { c.close(); });
      a.click(ALTA_CARGO);
      EXPECT_EQ(a.text(CARGO), "Director");
      w.user.expectForm("frmActividad", [&](FormDriver& e) {
        EXPECT_EQ(e.text("txtActividad(0)"), "Catequesis");
        w.grupo(w.catequesis, "Domingo");
        e.close();
      });
      a.click(ALTA_GRUPO);
      EXPECT_EQ(a.text(GRUPO), "Domingo");
      w.user.expectForm("frmActividad", [&](FormDriver& e) {
        w.actividad("Teatro");
        e.close();
      });
      a.click(ALTA_ACTIVIDAD);
      EXPECT_EQ(a.text(ACTIVIDAD), "Teatro");
      EXPECT_EQ(a.text(GRUPO), "");
      EXPECT_EQ(a.text(CARGO), "Director");
      a.close();
    });
    u.click(AGREGAR);
    u.close();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaboradorActividad, ChosenRowsVanishMeanwhile_AreToldAndLeaveTheLists) {
  ActividadesWorld w;
  w.enActividades(w.colaborador(), [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) {
      a.chooseData(ACTIVIDAD, w.catequesis);
      a.chooseData(GRUPO, w.lunes);
      a.chooseData(CARGO, w.catequista);
      w.con().Execute("DELETE * FROM Grupo WHERE IDGrupo=" + std::to_string(w.lunes));
      w.user.expectMessage("¡El grupo elegido ya no existe!");
      a.click(SI);
      EXPECT_EQ(a.text(GRUPO), "");
      EXPECT_EQ(a.get<forms::ComboBox>(GRUPO).listCount(), 1);
      w.con().Execute("DELETE * FROM Actividad WHERE IDActividad=" + std::to_string(w.catequesis));
      w.user.expectForm("frmCargo", [](FormDriver& c) { c.close(); });
      a.click(ALTA_CARGO);
      EXPECT_EQ(a.text(ACTIVIDAD), "");
      EXPECT_EQ(a.get<forms::ComboBox>(GRUPO).listCount(), 0);
      EXPECT_FALSE(a.enabled(ALTA_GRUPO));
      a.close();
    });
    u.click(AGREGAR);
    EXPECT_EQ(w.rejilla(u).rowCount(), 0);
    u.close();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
