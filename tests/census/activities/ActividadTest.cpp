// The cards of an activity and of one of its groups.

#include "census/Manos.h"
#include "census/activities/frmActividad.h"
#include "census/activities/frmActividadGrupos.h"

namespace fidaleon::tests::ActividadTest {

constexpr const char *ACEPTAR = "cmdActividad(0)", *AGREGAR = "cmdActividad(2)",
                     *MODIFICAR = "cmdActividad(3)", *QUITAR = "cmdActividad(4)",
                     *NOMBRE = "txtActividad(0)", *REJILLA = "msgGrupos",
                     *NOMBRE_GRUPO = "txtGrupo(0)", *ACEPTAR_GRUPO = "cmdGrupo(0)",
                     *CANCELAR_GRUPO = "cmdGrupo(1)", *DISPONIBLES = "lstColaboradores(0)",
                     *SELECCIONADAS = "lstColaboradores(1)", *GRUPO = "frmActividadGrupos";

struct Actividades : En<GruposWorld> {
  void editar(Act act, bool blnOcultar = false, cCOrigen origen = cCOrigen::PRINCIPAL) {
    espera("frmActividad", std::move(act));
    censo::EditaActividad(contexto, con(), catequesis, blnOcultar, origen);
  }
  /// A group of the activity from its grid (0: a new one).
  void grupoDe(FormDriver& d, int fila, Act act) {
    verPagina(d, REJILLA);
    espera(GRUPO, std::move(act));
    if (fila > 0) d.row(REJILLA, fila);
    d.click(fila == 0 ? AGREGAR : MODIFICAR);
  }
  void editarGrupo(int fila, Act act) {
    editar([&](FormDriver& d) {
      grupoDe(d, fila, std::move(act));
      d.click(ACEPTAR);
    });
  }
  void grupoNuevo(FormDriver& d, const char* nombre) {
    grupoDe(d, 0, pone(ACEPTAR_GRUPO, NOMBRE_GRUPO, nombre));
  }
  void quitarFila(FormDriver& d, int fila) {
    d.row(REJILLA, fila);
    d.click(QUITAR);
  }
  /// Moves marked lines to the selected ones with this office, or back without one.
  void mover(FormDriver& g, std::vector<int> marcadas, const char* cargo) {
    const char* lista = cargo ? DISPONIBLES : SELECCIONADAS;
    verPagina(g, lista);
    auto& box = g.get<forms::ListBox>(lista);
    for (int i = 0; i < box.listCount(); ++i) box.setSelected(i, false);
    for (const int fila : marcadas) box.setSelected(fila, true);
    if (cargo) contesta("frmCargo", "cmdCargo(0)", "cboCargo", cargo);
    g.click(cargo ? "cmdMover(0)" : "cmdMover(2)");
  }
};

TEST_F(Actividades, New_StoresGroupsAndMembersInOneTransaction) {
  institucion("San Blas");
  escrito();
  espera("frmActividad", [&](FormDriver& d) {
    user.expectMessage("¡Debe seleccionar una Institución!");
    d.tab("mstActividad", 1);
    EXPECT_EQ(d.get<forms::TabStrip>("mstActividad").tab(), 0);
    poner(d, NOMBRE, "  Teatro ", "cboInstitucion", "San Ginés", "txtActividad(1)",
          "Los \"lunes\"");
    grupoDe(d, 0, [&](FormDriver& g) {
      EXPECT_EQ(g.caption(), "Agregar grupo");
      poner(g, NOMBRE_GRUPO, "Adultos", "txtGrupo(1)", "2027", "txtGrupo(2)", "Jueves",
            "txtGrupo(3)", "20:00", "txtGrupo(4)", "Salón", "txtGrupo(5)", "Voces");
      mover(g, {0, 2}, "Monitor");
      g.click(ACEPTAR_GRUPO);
    });
    grupoNuevo(d, "Sobrante");
    grupoNuevo(d, "Niños");
    quitarFila(d, 2);
    EXPECT_EQ(columna(d, REJILLA), "Adultos|Niños");
    EXPECT_EQ(celdas(d, REJILLA, 1), "Adultos|2027|Jueves|20:00|Salón");
    EXPECT_EQ(count("Grupo"), 2) << "nothing is stored before";
    d.click(ACEPTAR);
  });
  censo::NuevaActividad(contexto, con());
  EXPECT_EQ(escrito(), "BEGIN +Actividad +Grupo +Padron_Actividad +Padron_Actividad +Grupo COMMIT");
  EXPECT_EQ(filas("SELECT * FROM Actividad WHERE IDActividad=3"), "3|Teatro|Los ''lunes''|1");
  EXPECT_EQ(filas("SELECT * FROM Grupo WHERE CodActividad=3"),
            "3|3|Adultos|2027|Jueves|20:00|Salón|Voces/4|3|Niños|||||");
  EXPECT_EQ(membresias(" AND IDGrupo>2"), "Adultos|Ana|Monitor/Adultos|Carmen|Monitor");
}

TEST_F(Actividades, NameThatIsTaken_IsRefusedInItsInstitutionAndForOthersOnly) {
  actividad("Teatro", institucion("Santa Ana"));
  for (const char* suyo : {"Teatro", "CATEQUESIS"})
    editar([&](FormDriver& d) {
      poner(d, NOMBRE, "co ro ");
      d.tab("mstActividad", 1);
      rehusa(d, ACEPTAR, "¡Ya existe una actividad en la Institución con este nombre!", NOMBRE);
      poner(d, NOMBRE, suyo);
      d.click(ACEPTAR);
    });
  EXPECT_EQ(filas("SELECT Nombre FROM Actividad"), "CATEQUESIS/Coro/Teatro");
}

TEST_F(Actividades, Edited_WritesWhatTheGroupsAreMarkedForAndNoMore) {
  miembro(carmen, grupo(catequesis, "Tercero"), monitor);
  escrito();
  editar([&](FormDriver& d) {
    comprobar(d, "cboInstitucion", "San Ginés");
    grupoDe(d, 1, [&](FormDriver& g) {
      EXPECT_EQ(g.caption(), "Propiedades del grupo Primero");
      comprobar(g, NOMBRE_GRUPO, "Primero", "txtGrupo(1)", "2026", "txtGrupo(2)", "Lunes",
                "txtGrupo(3)", "18:00", "txtGrupo(4)", "Aula 1");
      poner(g, "txtGrupo(4)", "Cripta");
      mover(g, {0}, nullptr);    // Ana
      mover(g, {1}, "Monitor");  // Carmen
      g.click(ACEPTAR_GRUPO);
    });
    quitarFila(d, 3);
    grupoNuevo(d, "Cuarto");
    EXPECT_EQ(d.get<forms::Grid>(REJILLA).row(), 3);
    grupoDe(d, 3, pone(ACEPTAR_GRUPO, "txtGrupo(2)", "Martes"));
    EXPECT_EQ(columna(d, REJILLA), "Primero|Segundo|Cuarto");
    poner(d, "txtActividad(1)", "Los niños");
    d.click(ACEPTAR);
  });
  EXPECT_EQ(escrito(),
            "BEGIN ~Actividad ~Grupo -Padron_Actividad +Padron_Actividad -Padron_Actividad -Grupo "
            "+Grupo COMMIT");
  EXPECT_EQ(membresias(), "Primero|Blas|Catequista/Primero|Carmen|Monitor");
  EXPECT_EQ(filas("SELECT Nombre,Dia,Sala FROM Grupo"),
            "Primero|Lunes|Cripta/Segundo|Lunes|Aula 2/Cuarto|Martes|");
  EXPECT_EQ(filas("SELECT Descripcion FROM Actividad"), "Los niños/");
}

TEST_F(Actividades, MembersChangedElsewhereMeanwhile_StayAsTheyWereLeft) {
  editar([&](FormDriver& d) {
    grupoDe(d, 1, [&](FormDriver& g) {
      mover(g, {0}, "Monitor");  // Carmen
      g.click(ACEPTAR_GRUPO);
    });
    miembro(colaborador("Eva", "Moya"), primero, monitor);
    miembro(carmen, primero, catequista);
    quitar("Padron_Actividad WHERE CodPadron=" + texto(blas));
    d.click(ACEPTAR);
  });
  EXPECT_EQ(membresias(), "Primero|Ana|Catequista/Primero|Eva|Monitor/Primero|Carmen|Catequista");
}

TEST_F(Actividades, GroupOrActivityGoneMeanwhile_IsToldAndNothingIsHungOnIt) {
  user.answerAnything(Answer::Ok);
  for (const char* tabla : {"Grupo WHERE IDGrupo=2", "Actividad"})
    editar([&](FormDriver& d) {
      poner(d, "txtActividad(1)", "Los niños");
      grupoDe(d, tabla[0] == 'G' ? 2 : 1, [&](FormDriver& g) {
        mover(g, {0}, "Monitor");
        g.click(ACEPTAR_GRUPO);
      });
      quitar(tabla);
      d.click(ACEPTAR);
      EXPECT_THAT(user.messages().back().text, HasSubstr("ya no existe"));
      EXPECT_EQ(count("Padron_Actividad"), 2) << tabla;
      EXPECT_EQ(count("Actividad WHERE Descripcion='Los niños'"), 0) << tabla;
      d.click("cmdActividad(1)");
    });
}

TEST_F(Actividades, NewMemberOrOfficeGoneMeanwhile_HangsNowhere) {
  user.answerAnything(Answer::Ok);
  editar([&](FormDriver& d) {
    grupoDe(d, 2, [&](FormDriver& g) {
      mover(g, {0, 1}, "Monitor");  // Ana and Blas
      g.click(ACEPTAR_GRUPO);
    });
    quitar("Padron WHERE IDPadron=" + texto(blas));
    quitar("Cargo WHERE IDCargo=" + texto(monitor));
    d.click(ACEPTAR);
    EXPECT_THAT(user.messages().back().text, HasSubstr("«Segundo» ya no existe. Elija otro."));
    grupoDe(d, 2, [&](FormDriver& g) {
      EXPECT_EQ(lineas(g, SELECCIONADAS), "Ana García Ruiz");
      mover(g, {0}, nullptr);
      mover(g, {0}, "Catequista");
      g.click(ACEPTAR_GRUPO);
    });
    d.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT CodPadron,CodCargo FROM Padron_Actividad WHERE CodGrupo=2"), "1|1");
}

TEST_F(Actividades, GroupsOfACardOpenedFromAGroup_CanBeOnlyLookedAt) {
  editar(
      [&](FormDriver& d) {
        d.tab("mstActividad", 1);
        EXPECT_EQ(celdas(d, REJILLA, 0), "Nombre|Año|Día|Hora|Sala");
        for (const char* boton : {AGREGAR, MODIFICAR, QUITAR}) EXPECT_FALSE(d.visible(boton));
        d.doubleClick(REJILLA, 1);
        d.click(ACEPTAR);
      },
      true);
}

TEST_F(Actividades, GroupsAddedOrToGo_HoldTheTableUntilTheLastIsGivenBack) {
  editar([&](FormDriver& d) {
    const auto mirar = [&](int fila) {
      grupoDe(d, fila, [&](FormDriver& g) {
        EXPECT_TRUE(fila > 0 || !isFree("Grupo"));
        g.click(CANCELAR_GRUPO);
      });
      return isFree("Grupo");
    };
    EXPECT_TRUE(mirar(0));
    grupoNuevo(d, "Tercero");
    EXPECT_FALSE(mirar(0)) << "one still waits";
    grupoNuevo(d, "Cuarto");
    quitarFila(d, 4);
    EXPECT_FALSE(isFree("Grupo"));
    quitarFila(d, 3);
    EXPECT_TRUE(isFree("Grupo"));
    quitarFila(d, 2);
    EXPECT_FALSE(mirar(0)) << "a stored one is to go";
    grupoNuevo(d, "Tercero");
    // The key of this group is the number under which the table was taken.
    EXPECT_FALSE(mirar(1));
    EXPECT_FALSE(isFree("Grupo", 9)) << "the table is still taken whole";
    d.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT Nombre FROM Grupo"), "Primero/Tercero");
}

TEST_F(Actividades, NameOfAGroup_IsWantedAndUniqueInTheActivityWithoutRegardToCase) {
  const char* const TOMADO = "¡Ya existe un grupo con ese nombre!";
  editar([&](FormDriver& d) {
    grupoDe(d, 0, [&](FormDriver& g) {
      poner(g, NOMBRE_GRUPO, "  ");
      g.tab("mstGrupo", 1);
      rehusa(g, ACEPTAR_GRUPO, "¡Debe introducir un nombre para el grupo!", NOMBRE_GRUPO);
      poner(g, NOMBRE_GRUPO, " SEGUNDO ");
      rehusa(g, ACEPTAR_GRUPO, TOMADO, NOMBRE_GRUPO);
      poner(g, NOMBRE_GRUPO, " Tercero ");
      g.click(ACEPTAR_GRUPO);
    });
    grupoDe(d, 3, [&](FormDriver& g) {
      poner(g, NOMBRE_GRUPO, "segundo");
      rehusa(g, ACEPTAR_GRUPO, TOMADO, NOMBRE_GRUPO);
      poner(g, NOMBRE_GRUPO, "TERCERO");
      g.click(ACEPTAR_GRUPO);
      EXPECT_TRUE(g.closed()) << "its own name is not another's";
    });
    quitarFila(d, 2);
    grupoNuevo(d, "segundo");  // the name of one that is to go is free
    EXPECT_EQ(columna(d, REJILLA), "Primero|TERCERO|segundo");
    d.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT Nombre FROM Grupo ORDER BY Nombre"), "Primero/segundo/TERCERO");
}

TEST_F(Actividades, Members_AreCollaboratorsEachInOneListWithTheirOffice) {
  editar([&](FormDriver& d) {
    grupoDe(d, 1, [&](FormDriver& g) {
      g.tab("mstGrupo", 1);
      EXPECT_EQ(lineas(g, DISPONIBLES), "Carmen Sanz Ruiz");
      contesta("frmCargo", "cmdCargo(0)", "cboCargo", "Monitor");
      g.choose(DISPONIBLES, "Carmen Sanz Ruiz");
      g.get<forms::ListBox>(DISPONIBLES).onDblClick();
      EXPECT_EQ(lineas(g, SELECCIONADAS),
                "Ana García Ruiz (Catequista)|Blas Pérez Ruiz (Catequista)|Carmen Sanz Ruiz "
                "(Monitor)");
      user.expectMessage("¡No existen colaboradores para agregar!");
      g.click("cmdMover(1)");
      g.click("cmdMover(3)");
      EXPECT_EQ(lineas(g, DISPONIBLES), "Ana García Ruiz|Blas Pérez Ruiz|Carmen Sanz Ruiz");
      user.expectMessage("¡No existen colaboradores para quitar!");
      g.click("cmdMover(2)");
      // One comes back as it was, one with another office, one not at all.
      mover(g, {0}, "Catequista");
      mover(g, {0}, "Monitor");
      cierra("frmCargo");
      g.click("cmdMover(1)");
      g.click(ACEPTAR_GRUPO);
    });
    // And is shown so once more before anything is stored.
    grupoDe(d, 1, [&](FormDriver& g) {
      EXPECT_EQ(lineas(g, SELECCIONADAS), "Ana García Ruiz (Catequista)|Blas Pérez Ruiz (Monitor)");
      g.click(ACEPTAR_GRUPO);
    });
    d.click(ACEPTAR);
  });
  EXPECT_EQ(membresias(), "Primero|Ana|Catequista/Primero|Blas|Monitor");
  EXPECT_EQ(filas("SELECT MIN(IDActividadesPadron) FROM Padron_Actividad"), "1")
      << "the row of one who stays is not written anew";
}

TEST_F(Actividades, MembersThatAreOddInTheStore_AreShownOnceAndKept) {
  miembro(ana, primero, monitor);  // twice in the group
  miembro(zoilo, primero, 77);     // no collaborator, an office that is gone
  miembro(99, primero, monitor);   // nobody
  miembro(carmen, primero, monitor);
  insert(con(), "Padron_TipoPersona", "CodTipoPersona=3; CodPadron=" + texto(carmen));  // twice
  editar([&](FormDriver& d) {
    // Another desk takes her out while the card is open.
    quitar("Padron_Actividad WHERE CodPadron=" + texto(carmen));
    grupoDe(d, 1, [&](FormDriver& g) {
      EXPECT_EQ(lineas(g, SELECCIONADAS),
                "Ana García Ruiz (Catequista)|Blas Pérez Ruiz (Catequista)|Zoilo Vecino Sinrol");
      EXPECT_EQ(lineas(g, DISPONIBLES), "Carmen Sanz Ruiz");
      mover(g, {1}, nullptr);
      g.click(ACEPTAR_GRUPO);
    });
    d.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT CodPadron,CodCargo FROM Padron_Actividad"), "1|1/1|2/4|77")
      << "only the row of nobody has gone with Blas";
}

TEST_F(Actividades, CollaboratorAdded_IsMarkedAmongTheAvailableAndTheSelectedStay) {
  miembro(zoilo, segundo, monitor);
  editarGrupo(2, [&](FormDriver& g) {
    mover(g, {1}, "Monitor");
    espera("frmColaborador", [&](FormDriver& c) {
      EXPECT_FALSE(c.visible("cmdActividad(0)"));
      colaborador("Amalia", "Vega");
      c.escape();
    });
    g.click("cmdGrupo(2)");
    EXPECT_EQ(lineas(g, DISPONIBLES), "Amalia Vega Ruiz|Ana García Ruiz|Carmen Sanz Ruiz");
    EXPECT_TRUE(g.get<forms::ListBox>(DISPONIBLES).selected(0));
    EXPECT_EQ(lineas(g, SELECCIONADAS), "Zoilo Vecino Sinrol (Monitor)|Blas Pérez Ruiz (Monitor)");
    g.click(CANCELAR_GRUPO);
  });
  const auto desdeColaborador = [&](FormDriver& d) {
    grupoDe(d, 0, [&](FormDriver& g) {
      EXPECT_FALSE(g.visible("cmdGrupo(2)"));
      g.escape();
    });
    d.click("cmdActividad(1)");
  };
  editar(desdeColaborador, false, cCOrigen::COLABORADOR);
}

}  // namespace fidaleon::tests::ActividadTest
