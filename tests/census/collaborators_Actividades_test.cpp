#include "collaborators_MembresiasWorld.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using forms::FormDriver;
using store::FailingEngine;
using C = frmColaborador;

TEST(ActividadesColaborador, Opened_ShowsGroupOfficeActivityAndTimetable) {
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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

TEST(ActividadesColaborador, TakenAwayElsewhere_LeavesTheOpenCard) {
  MembresiasWorld w;
  const std::int32_t id = w.colaborador();
  std::vector<std::int32_t> todas;
  for (int i = 0; i < 4; ++i) todas.push_back(w.miembro(id, w.lunes, w.catequista));
  const auto quitar = [&](std::int32_t cual) {
    w.con().Execute("DELETE * FROM Padron_Actividad WHERE IDActividadesPadron=" +
                    std::to_string(cual));
  };
  w.enActividades(id, [&](FormDriver& u) {
    u.tab("mstColaborador", C::TAB_DATOS);
    quitar(todas[0]);
    u.tab("mstColaborador", C::TAB_ACTIVIDADES);
    EXPECT_EQ(w.rejilla(u).rowCount(), 3);
    w.user.answerAnything(Answer::Ok);
    int quedan = 3;
    for (const char* boton : {MODIFICAR, QUITAR}) {
      quitar(todas[static_cast<std::size_t>(4 - quedan)]);
      u.row("msgActividades", 1);
      u.click(boton);
      EXPECT_EQ(w.rejilla(u).rowCount(), --quedan) << boton;
    }
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.user.messages().size(), 2u);
  EXPECT_EQ(w.count("Padron_Actividad"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, ButtonsHidden_TheGridCanOnlyBeRead) {
  MembresiasWorld w;
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
  MembresiasWorld w;
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
    MembresiasWorld w;
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

TEST(ActividadesColaborador, GroupRemovedFromHereWhilePending_IsToldAndNothingIsStored) {
  MembresiasWorld w;
  const std::int32_t id = w.colaborador();
  w.enActividades(id, [&](FormDriver& u) {
    w.esperarEleccion(w.lunes, w.ayudante);
    u.click(AGREGAR);
    w.esperar([&](FormDriver& a) {
      a.chooseData(ACTIVIDAD, w.catequesis);
      w.user.expectForm("frmActividad", [](FormDriver& e) {
        e.tab("mstActividad", 1);
        e.row("msgGrupos", 1);
        e.click("cmdActividad(4)");
        e.click("cmdActividad(0)");
      });
      a.click(ALTA_GRUPO);
      a.close();
    });
    u.click(AGREGAR);
    EXPECT_EQ(w.rejilla(u).cell(1, 0), "---");
    u.tab("mstColaborador", C::TAB_DATOS);
    w.user.expectMessage(
        "¡El grupo de esta actividad ya no existe! Elija otro o quite la actividad.");
    u.click(ACEPTAR);
    EXPECT_EQ(u.focused(), "msgActividades");
    EXPECT_EQ(w.rejilla(u).row(), 1);
    EXPECT_EQ(w.count("Padron_Actividad"), 0);
    w.esperarEleccion(w.martes, w.ayudante);
    u.click(MODIFICAR);
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.martes, w.ayudante)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, OfficeRemovedElsewhere_IsToldForThoseToBeStoredOnly) {
  MembresiasWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  w.miembro(id, w.martes, w.catequista);
  w.enActividades(id, [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) { a.click(SI); });
    u.doubleClick("msgActividades", 2);
    u.row("msgActividades", 1);
    w.con().Execute("DELETE * FROM Cargo WHERE IDCargo=" + std::to_string(w.catequista));
    w.user.expectMessage(
        "¡El cargo de esta actividad ya no existe! Elija otro o quite la actividad.");
    u.click(ACEPTAR);
    EXPECT_EQ(w.rejilla(u).row(), 2);
    EXPECT_EQ(w.rejilla(u).cell(2, 1), "");
    u.click(QUITAR);
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.lunes, w.catequista)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, ChangedRowTakenAwayMeanwhile_IsStoredAnew) {
  MembresiasWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  w.enActividades(id, [&](FormDriver& u) {
    w.esperar([&](FormDriver& a) {
      a.choose(CARGO, "Ayudante");
      a.click(SI);
    });
    u.doubleClick("msgActividades", 1);
    w.con().Execute("DELETE * FROM Padron_Actividad");
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.lunes, w.ayudante)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, NamesCannotBeRead_EachRowStaysWithItsMembership) {
  MembresiasWorld w;
  const std::int32_t id = w.colaborador();
  for (const std::int32_t grupo : {w.lunes, w.martes, w.grupo(w.coro, "Voces")})
    w.miembro(id, grupo, w.catequista);
  FailingEngine* fallos = FailingEngine::wrap(w.con());
  w.enActividades(id, [&](FormDriver& u) {
    u.row("msgActividades", 1);
    fallos->failOn("FROM Grupo,Actividad");
    w.user.answerAnything(Answer::Ok);
    u.click(QUITAR);
    EXPECT_EQ(w.user.messages().size(), 1u);
    EXPECT_EQ(w.rejilla(u).rowCount(), 2);
    u.row("msgActividades", 2);
    u.click(QUITAR);
    EXPECT_EQ(w.rejilla(u).cell(1, 0), "Martes");
    u.click(ACEPTAR);
  });
  EXPECT_THAT(w.guardadas(id), ::testing::ElementsAre(w.par(w.martes, w.catequista)));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActividadesColaborador, OwnLocks_NeverStandInTheWay) {
  MembresiasWorld w;
  const std::int32_t id = w.colaborador();
  w.miembro(id, w.lunes, w.catequista);
  w.enActividades(id, [&](FormDriver& u) {
    w.esperarEleccion(w.martes, w.catequista);
    u.click(AGREGAR);
    u.row("msgActividades", 1);
    for (const char* salida : {NO, SI}) {
      w.esperar([salida](FormDriver& a) { a.click(salida); });
      u.click(MODIFICAR);
    }
    u.click(QUITAR);
    EXPECT_EQ(w.rejilla(u).rowCount(), 1);
    u.click(QUITAR);
    EXPECT_FALSE(w.libre("Padron_Actividad")) << "the stored row is still to go";
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.count("Padron_Actividad"), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
