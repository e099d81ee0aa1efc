// The dialog of a group: its name and its members.

#include "ActividadesWorld.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(Grupo, Name_IsWantedAndUniqueInTheActivityWithoutRegardToCase) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    w.abrirGrupo(d, 0, [&](FormDriver& g) {
      w.user.expectMessage("¡Debe introducir un nombre para el grupo!");
      g.type(w.NOMBRE_GRUPO, "  ");
      g.tab("mstGrupo", 1);
      g.click(w.ACEPTAR_GRUPO);
      EXPECT_EQ(g.focused(), w.NOMBRE_GRUPO);
      w.user.expectMessage("¡Ya existe un grupo con ese nombre!");
      g.type(w.NOMBRE_GRUPO, " SEGUNDO ");
      g.click(w.ACEPTAR_GRUPO);
      g.type(w.NOMBRE_GRUPO, "Tercero");
      g.click(w.ACEPTAR_GRUPO);
    });
    w.abrirGrupo(d, 3, [&](FormDriver& g) {
      w.user.expectMessage("¡Ya existe un grupo con ese nombre!");
      g.type(w.NOMBRE_GRUPO, "segundo");
      g.click(w.ACEPTAR_GRUPO);
      g.type(w.NOMBRE_GRUPO, "TERCERO");
      g.click(w.ACEPTAR_GRUPO);
      EXPECT_TRUE(g.closed()) << "its own name is not another's";
    });
    d.row("msgGrupos", 2);
    d.click(w.QUITAR);
    w.grupoNuevo(d, "segundo");  // the name of one that is to go is free
    EXPECT_THAT(w.nombres(d), ElementsAre("Primero", "TERCERO", "segundo"));
    d.click(w.ACEPTAR);
  });
  EXPECT_EQ(w.count("Grupo WHERE Nombre='TERCERO'"), 1) << "changed before it was stored";
  EXPECT_EQ(w.count("Grupo"), 3);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Grupo, Members_AreCollaboratorsEachInOneListWithTheirOffice) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    w.abrirGrupo(d, 1, [&](FormDriver& g) {
      g.tab("mstGrupo", 1);
      EXPECT_THAT(w.lineas(g, w.DISPONIBLES), ElementsAre("Carmen Sanz Ruiz"));
      EXPECT_THAT(w.lineas(g, w.SELECCIONADAS),
                  ElementsAre("Ana García Ruiz (Catequista)", "Blas Pérez Ruiz (Catequista)"));
      w.elegir(g, {0}, "");
      EXPECT_THAT(w.lineas(g, w.DISPONIBLES), ElementsAre("Carmen Sanz Ruiz")) << "cancelled";
      w.elegir(g, {0}, "Monitor");
      EXPECT_THAT(w.lineas(g, w.SELECCIONADAS),
                  ElementsAre("Ana García Ruiz (Catequista)", "Blas Pérez Ruiz (Catequista)",
                              "Carmen Sanz Ruiz (Monitor)"));
      w.user.expectMessage("¡No existen colaboradores para agregar!");
      g.click("cmdMover(1)");
      g.click("cmdMover(3)");
      EXPECT_THAT(w.lineas(g, w.DISPONIBLES),
                  ElementsAre("Ana García Ruiz", "Blas Pérez Ruiz", "Carmen Sanz Ruiz"));
      w.user.expectMessage("¡No existen colaboradores para quitar!");
      g.click("cmdMover(2)");
      w.marcar(g, w.DISPONIBLES, {});
      w.user.expectMessage("¡Debe seleccionar algun elemento de la lista!");
      g.click("cmdMover(0)");
      // One comes back as it was, one with another office, one not at all.
      w.elegir(g, {0}, "Catequista");
      w.elegir(g, {0}, "Monitor");
      g.click(w.ACEPTAR_GRUPO);
    });
    // And the last is changed once more before anything is stored.
    w.abrirGrupo(d, 1, [&](FormDriver& g) {
      EXPECT_THAT(w.lineas(g, w.SELECCIONADAS),
                  ElementsAre("Ana García Ruiz (Catequista)", "Blas Pérez Ruiz (Monitor)"));
      g.click(w.ACEPTAR_GRUPO);
    });
    d.click(w.ACEPTAR);
  });
  EXPECT_THAT(w.membresias(), ElementsAre("Primero: Ana Catequista", "Primero: Blas Monitor"));
  EXPECT_EQ(w.value("SELECT MIN(IDActividadesPadron) FROM Padron_Actividad"), "1")
      << "the row of one who stays is not written anew";
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Grupo, DoubleClick_MovesOneAndAsksForItsOffice) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    w.abrirGrupo(d, 2, [&](FormDriver& g) {
      g.tab("mstGrupo", 1);
      g.choose(w.DISPONIBLES, "Blas Pérez Ruiz");
      w.user.expectForm("frmCargo", [](FormDriver& c) {
        c.choose("cboCargo", "Monitor");
        c.enter();
      });
      g.get<forms::ListBox>(w.DISPONIBLES).onDblClick();
      g.choose(w.DISPONIBLES, "Carmen Sanz Ruiz");
      w.user.expectForm("frmCargo", [](FormDriver& c) { c.escape(); });
      g.get<forms::ListBox>(w.DISPONIBLES).onDblClick();
      g.click(w.ACEPTAR_GRUPO);
    });
    d.click(w.ACEPTAR);
  });
  EXPECT_THAT(w.membresias(), ElementsAre("Primero: Ana Catequista", "Primero: Blas Catequista",
                                          "Segundo: Blas Monitor"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Grupo, MembersThatAreOddInTheStore_AreShownOnceAndKept) {
  ActividadesWorld w;
  w.miembro(w.ana, w.primero, w.monitor);  // twice in the group
  const std::int32_t eva = w.persona("Eva", "Moya", "Gil");
  w.miembro(eva, w.primero, 77);        // no collaborator, an office that is gone
  w.miembro(99, w.primero, w.monitor);  // nobody
  w.miembro(w.carmen, w.primero, w.monitor);
  w.editar([&](FormDriver& d) {
    // Another desk takes her out while the card is open.
    w.con().Execute("DELETE * FROM Padron_Actividad WHERE CodPadron=" + std::to_string(w.carmen));
    w.abrirGrupo(d, 1, [&](FormDriver& g) {
      EXPECT_THAT(w.lineas(g, w.SELECCIONADAS),
                  ElementsAre("Ana García Ruiz (Catequista)", "Blas Pérez Ruiz (Catequista)",
                              "Eva Moya Gil"));
      w.quitar(g, {1});
      g.click(w.ACEPTAR_GRUPO);
    });
    d.click(w.ACEPTAR);
  });
  EXPECT_THAT(w.membresias(), ElementsAre("Primero: Ana Catequista", "Primero: Ana Monitor"));
  EXPECT_EQ(w.count("Padron_Actividad WHERE CodPadron=" + std::to_string(eva)), 1);
  EXPECT_EQ(w.count("Padron_Actividad"), 3) << "only the row of nobody has gone with Blas";
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Grupo, CollaboratorAdded_IsMarkedAmongTheAvailableAndTheSelectedStay) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    w.abrirGrupo(d, 2, [&](FormDriver& g) {
      w.elegir(g, {1}, "Monitor");
      w.user.expectForm("frmColaborador", [&](FormDriver& c) {
        const std::int32_t amalia = w.colaborador("Amalia", "Vega");
        EXPECT_GT(amalia, 0);
        c.escape();
      });
      g.click("cmdGrupo(2)");
      EXPECT_THAT(w.lineas(g, w.DISPONIBLES),
                  ElementsAre("Amalia Vega Ruiz", "Ana García Ruiz", "Carmen Sanz Ruiz"));
      EXPECT_TRUE(g.get<forms::ListBox>(w.DISPONIBLES).selected(0));
      EXPECT_THAT(w.lineas(g, w.SELECCIONADAS), ElementsAre("Blas Pérez Ruiz (Monitor)"));
      g.click(w.ACEPTAR_GRUPO);
    });
    d.escape();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Grupo, ReachedFromACollaborator_NoOtherCanBeAdded) {
  ActividadesWorld w;
  w.editar(
      [&](FormDriver& d) {
        w.abrirGrupo(d, 0, [&](FormDriver& g) {
          g.tab("mstGrupo", 1);
          EXPECT_FALSE(g.visible("cmdGrupo(2)"));
          g.escape();
        });
        d.escape();
      },
      false, FDAPI::cCOrigen::COLABORADOR);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Grupo, MembersOrOfficesNotRead_AreReportedAndNothingIsLost) {
  ActividadesWorld w;
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  w.editar([&](FormDriver& d) {
    d.tab("mstActividad", 1);
    faults->failOn("SELECT Nombre,IDPadron", store::ErrorKind::Busy, 2);
    d.row("msgGrupos", 1);
    d.click(w.MODIFICAR);
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("CargarDatosGrupoColaborador"));
    faults->failOn("Padron,Padron_TipoPersona");
    d.click(w.AGREGAR);
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("frmActividadGrupos"));
    EXPECT_TRUE(w.libre("Grupo")) << "the group that did not open is not counted";
    w.abrirGrupo(d, 2, [&](FormDriver& g) {
      faults->failOn("FROM Cargo");
      g.tab("mstGrupo", 1);
      g.click("cmdMover(1)");
      EXPECT_THAT(w.user.messages().back().text, HasSubstr("frmCargo"));
      EXPECT_THAT(w.lineas(g, w.SELECCIONADAS), IsEmpty());
      g.escape();
    });
    d.click(w.ACEPTAR);
  });
  EXPECT_EQ(w.count("Padron_Actividad"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
