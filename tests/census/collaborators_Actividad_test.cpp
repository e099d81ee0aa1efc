#include "collaborators_MembresiasWorld.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;
using C = frmColaborador;

TEST(FrmColaboradorActividad, Accept_AsksForActivityGroupAndOfficeInThatOrder) {
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
  MembresiasWorld w;
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
