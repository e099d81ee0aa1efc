// The groups that a collaborator works in: their tab, and the dialog of one of them.

#include "census/Manos.h"
#include "census/collaborators/frmColaborador.h"

namespace fidaleon::tests::MembresiasTest {

constexpr const char *ACTIVIDAD = "cboColaboraAct(0)", *GRUPO = "cboColaboraAct(1)",
                     *CARGO = "cboColaboraAct(2)", *ALTA_ACTIVIDAD = "cmdAgregar(0)",
                     *ALTA_GRUPO = "cmdAgregar(1)", *ALTA_CARGO = "cmdAgregar(2)",
                     *SI = "cmdColaboraAct(0)", *NO = "cmdColaboraAct(1)",
                     *ACEPTAR = "cmdColaborador(0)", *AGREGAR = "cmdActividad(0)",
                     *MODIFICAR = "cmdActividad(1)", *QUITAR = "cmdActividad(2)",
                     *REJILLA = "msgActividades", *TABLA = "Padron_Actividad";

struct Membresias : En<GruposWorld> {
  void elegir(FormDriver& u, const char* boton, const char* suyo, const char* cargo) {
    contesta("frmColaboradorActividad", SI, ACTIVIDAD, "Catequesis", GRUPO, suyo, CARGO, cargo);
    u.click(boton);
  }
  void conDialogo(FormDriver& u, const char* boton, Act act) {
    espera("frmColaboradorActividad", std::move(act));
    u.click(boton);
  }
  /// The tab of groups of a collaborator; the user leaves the dialog closed.
  void abrir(std::int32_t id, Act act, cCOrigen origen = cCOrigen::PRINCIPAL) {
    const auto enPestaña = [act = std::move(act)](FormDriver& u) {
      u.tab("mstColaborador", frmColaborador::TAB_ACTIVIDADES);
      act(u);
    };
    editaColaborador(id, enPestaña, origen);
  }
  /// The dialog of a new membership of Carmen, who ends without it.
  void abrirNueva(Act act, cCOrigen origen = cCOrigen::PRINCIPAL) {
    const auto sinElla = [&](FormDriver& u) {
      conDialogo(u, AGREGAR, [&](FormDriver& a) {
        act(a);
        a.click(NO);
      });
      EXPECT_EQ(columna(u, REJILLA), "");
      EXPECT_TRUE(isFree(TABLA));
      u.close();
    };
    abrir(carmen, sinElla, origen);
  }
  void quitarFila(FormDriver& u, int fila) {
    u.row(REJILLA, fila);
    u.click(QUITAR);
  }
  std::string de(std::int32_t id) { return membresias(" AND IDPadron=" + texto(id)); }
};

TEST_F(Membresias, Opened_ShowsGroupOfficeActivityAndTimetable) {
  abrir(ana, [&](FormDriver& u) {
    EXPECT_EQ(celdas(u, REJILLA, 0), "Grupo|Cargo|Actividad|Sala|Día|Hora");
    EXPECT_EQ(celdas(u, REJILLA, 1), "Primero|Catequista|Catequesis|Aula 1|Lunes|18:00");
    EXPECT_EQ(u.get<forms::Grid>(REJILLA).rowKey(1), deAna);
    u.close();
  });
}

TEST_F(Membresias, Added_ShowsAtOnceAndHoldsTheTableUntilTheLastIsGone) {
  abrir(carmen, [&](FormDriver& u) {
    conDialogo(u, AGREGAR, [&](FormDriver& a) {
      EXPECT_EQ(a.caption(), "Agregar colaborador - actividad");
      EXPECT_FALSE(isFree(TABLA));
      a.click(NO);
    });
    EXPECT_TRUE(isFree(TABLA));
    elegir(u, AGREGAR, "Segundo", "Monitor");
    EXPECT_EQ(celdas(u, REJILLA, 1), "Segundo|Monitor|Catequesis|Aula 2|Lunes|18:00");
    elegir(u, AGREGAR, "Primero", "Monitor");
    EXPECT_EQ(u.get<forms::Grid>(REJILLA).row(), 2);
    quitarFila(u, 1);
    EXPECT_EQ(columna(u, REJILLA), "Primero");
    EXPECT_EQ(u.get<forms::Grid>(REJILLA).row(), 1) << "the next one is chosen";
    EXPECT_FALSE(isFree(TABLA));
    u.click(QUITAR);
    EXPECT_TRUE(isFree(TABLA));
    u.click(QUITAR);
    u.click(MODIFICAR);
    EXPECT_EQ(user.beeps(), 2) << "no row is chosen";
    u.click(ACEPTAR);
  });
  EXPECT_EQ(count(TABLA), 2);
}

TEST_F(Membresias, SameGroupTwice_IsRefusedUnlessTheOtherIsToGo) {
  abrir(ana, [&](FormDriver& u) {
    conDialogo(u, AGREGAR, [&](FormDriver& a) {
      poner(a, ACTIVIDAD, "Catequesis", GRUPO, "Primero", CARGO, "Monitor");
      user.expectMessage("¡El colaborador ya existe en este grupo!");
      a.click(SI);
      EXPECT_FALSE(a.closed());
      a.click("cmdColaboraAct(1)");
    });
    quitarFila(u, 1);
    elegir(u, AGREGAR, "Primero", "Monitor");
    contesta("frmColaboradorActividad", SI);
    u.click(MODIFICAR);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(de(ana), "Primero|Ana|Monitor");
}

TEST_F(Membresias, ChangedElsewhereMeanwhile_AreNeitherStoredTwiceNorLost) {
  abrir(carmen, [&](FormDriver& u) {
    elegir(u, AGREGAR, "Primero", "Monitor");
    miembro(carmen, primero, catequista);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(de(carmen), "Primero|Carmen|Catequista");
  abrir(ana, [&](FormDriver& u) {
    u.row(REJILLA, 1);
    elegir(u, MODIFICAR, "Primero", "Monitor");
    quitar(TABLA);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(de(ana), "Primero|Ana|Monitor");
}

TEST_F(Membresias, TableOrRowInUseElsewhere_StopsTheAction) {
  const auto otro = otherHolds(TABLA, deAna);
  user.answerAnything(Answer::Ok);
  abrir(ana, [&](FormDriver& u) {
    u.row(REJILLA, 1);
    for (const char* boton : {AGREGAR, MODIFICAR, QUITAR}) u.click(boton);
    EXPECT_EQ(user.messages().size(), 3u);
    EXPECT_EQ(columna(u, REJILLA), "Primero");
    u.click(ACEPTAR);
  });
  EXPECT_EQ(count(TABLA), 2);
}

TEST_F(Membresias, TakenAwayElsewhere_LeavesTheOpenCard) {
  user.answerAnything(Answer::Ok);
  std::vector<std::int32_t> suyas;
  for (int i = 0; i < 4; ++i) suyas.push_back(miembro(carmen, primero, monitor));
  abrir(carmen, [&](FormDriver& u) {
    const auto fuera = [&](std::size_t cual) {
      quitar("Padron_Actividad WHERE IDActividadesPadron=" + texto(suyas[cual]));
    };
    u.tab("mstColaborador", frmColaborador::TAB_DATOS);
    fuera(0);
    u.tab("mstColaborador", frmColaborador::TAB_ACTIVIDADES);
    const auto& rejilla = u.get<forms::Grid>(REJILLA);
    EXPECT_EQ(rejilla.rowCount(), 3);
    for (const char* boton : {MODIFICAR, QUITAR}) {
      fuera(boton == QUITAR ? 2 : 1);
      u.row(REJILLA, 1);
      u.click(boton);
      EXPECT_EQ(rejilla.rowCount(), boton == QUITAR ? 1 : 2);
    }
    u.click(ACEPTAR);
  });
  EXPECT_EQ(user.messages().size(), 2u);
  EXPECT_EQ(de(carmen), "Primero|Carmen|Monitor");
}

TEST_F(Membresias, GroupGone_LeavesARowThatCanOnlyBeTakenAwayOrGivenAnother) {
  quitar("Grupo WHERE IDGrupo=" + texto(primero));
  abrir(ana, [&](FormDriver& u) {
    EXPECT_EQ(celdas(u, REJILLA, 1), "---|Catequista||||");
    quitarFila(u, 1);
    elegir(u, AGREGAR, "Segundo", "Monitor");
    quitar("Grupo");
    u.tab("mstColaborador", frmColaborador::TAB_DATOS);
    rehusa(u, ACEPTAR, "¡El grupo de esta actividad ya no existe! Elija otro o quite la actividad.",
           REJILLA);
    EXPECT_EQ(columna(u, REJILLA), "---");
    EXPECT_EQ(u.get<forms::Grid>(REJILLA).row(), 1);
    grupo(catequesis, "Tercero");
    elegir(u, MODIFICAR, "Tercero", "Monitor");
    u.click(ACEPTAR);
  });
  EXPECT_EQ(de(ana), "Tercero|Ana|Monitor");
}

TEST_F(Membresias, Accept_AsksForActivityGroupAndOfficeInThatOrder) {
  abrirNueva([&](FormDriver& a) {
    EXPECT_FALSE(a.enabled(ALTA_GRUPO));
    rehusa(a, SI, "¡Debe seleccionar una actividad para el colaborador!", ACTIVIDAD);
    poner(a, ACTIVIDAD, "Catequesis");
    EXPECT_TRUE(a.enabled(ALTA_GRUPO));
    rehusa(a, SI, "¡Debe seleccionar un grupo para el colaborador!", GRUPO);
    poner(a, GRUPO, "Primero");
    rehusa(a, SI, "¡Debe seleccionar un cargo para el colaborador!", CARGO);
    poner(a, ACTIVIDAD, "Coro");
    EXPECT_EQ(lineas(a, GRUPO), "");
    EXPECT_TRUE(a.enabled(ALTA_GRUPO));
    rehusa(a, SI, "¡Debe seleccionar un grupo para el colaborador!", GRUPO);
  });
}

TEST_F(Membresias, SameNameInTwoInstitutions_SaysWhoseItIs) {
  grupo(actividad("Catequesis", institucion("San Juan")), "Sábado");
  abrir(carmen, [&](FormDriver& u) {
    contesta("frmColaboradorActividad", SI, ACTIVIDAD, "Catequesis (San Juan)", GRUPO, "Sábado",
             CARGO, "Monitor");
    u.click(AGREGAR);
    EXPECT_EQ(columna(u, REJILLA, 2), "Catequesis");
    conDialogo(u, MODIFICAR, [&](FormDriver& a) {
      EXPECT_EQ(a.caption(), "Propiedades colaborador - actividad");
      EXPECT_EQ(lineas(a, ACTIVIDAD), "Catequesis (San Ginés)|Catequesis (San Juan)|Coro");
      comprobar(a, ACTIVIDAD, "Catequesis (San Juan)", GRUPO, "Sábado", CARGO, "Monitor");
      a.click("cmdColaboraAct(1)");
    });
    u.click(ACEPTAR);
  });
  EXPECT_EQ(de(carmen), "Sábado|Carmen|Monitor");
}

TEST_F(Membresias, FromAnActivity_NeitherActivitiesNorOfficesCanBeAdded) {
  abrirNueva(
      [&](FormDriver& a) {
        for (const char* boton : {ALTA_ACTIVIDAD, ALTA_GRUPO, ALTA_CARGO})
          EXPECT_EQ(a.visible(boton), boton == ALTA_GRUPO);
      },
      cCOrigen::ACTIVIDAD);
}

TEST_F(Membresias, AddedFromHere_IsChosenAndTheRestStays) {
  abrirNueva([&](FormDriver& a) {
    poner(a, ACTIVIDAD, "Catequesis", GRUPO, "Segundo");
    contesta("frmCargo", "cmdCargo(0)", "txtCargo(0)", "Director");
    a.click(ALTA_CARGO);
    comprobar(a, GRUPO, "Segundo", CARGO, "Director");
    cierra("frmCargo");
    a.click(ALTA_CARGO);
    EXPECT_EQ(a.text(CARGO), "Director");
    espera("frmActividad", [&](FormDriver& e) {
      EXPECT_EQ(e.text("txtActividad(0)"), "Catequesis");
      grupo(catequesis, "Domingo");
      e.close();
    });
    a.click(ALTA_GRUPO);
    EXPECT_EQ(a.text(GRUPO), "Domingo");
    contesta("frmActividad", "cmdActividad(0)", "txtActividad(0)", "Teatro", "cboInstitucion",
             "San Ginés");
    a.click(ALTA_ACTIVIDAD);
    comprobar(a, ACTIVIDAD, "Teatro", GRUPO, "", CARGO, "Director");
  });
}

TEST_F(Membresias, ChosenRowsVanishMeanwhile_AreToldAndLeaveTheLists) {
  abrirNueva([&](FormDriver& a) {
    poner(a, ACTIVIDAD, "Catequesis", GRUPO, "Primero", CARGO, "Monitor");
    quitar("Grupo WHERE IDGrupo=" + texto(primero));
    user.expectMessage("¡El grupo elegido ya no existe!");
    a.click(SI);
    EXPECT_EQ(a.text(GRUPO), "");
    EXPECT_EQ(lineas(a, GRUPO), "Segundo");
    quitar("Actividad WHERE IDActividad=" + texto(catequesis));
    cierra("frmCargo");
    a.click(ALTA_CARGO);
    EXPECT_EQ(a.text(ACTIVIDAD), "");
    EXPECT_EQ(lineas(a, GRUPO), "");
    EXPECT_FALSE(a.enabled(ALTA_GRUPO));
  });
}

}  // namespace fidaleon::tests::MembresiasTest
