// Offices: edited one by one, and chosen from all.

#include "ActividadesWorld.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(Cargo, New_IsStoredUnlessItHasNoNameOrOneThatIsTaken) {
  ActividadesWorld w;
  auto* engine = store::FailingEngine::wrap(w.con());
  w.user.expectForm("frmCargo", [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Agregar cargo");
    EXPECT_FALSE(d.visible("cboCargo"));
    EXPECT_FALSE(w.libre("Cargo"));
    w.user.expectMessage("¡Debe introducir el nombre del cargo!");
    d.type("txtCargo(0)", " ");
    d.click("cmdCargo(0)");
    w.user.expectMessage("¡Ya existe un cargo con este nombre!");
    d.type("txtCargo(0)", "monitor");
    d.click("cmdCargo(0)");
    EXPECT_EQ(d.focused(), "txtCargo(0)");
    d.type("txtCargo(0)", " Director ");
    d.type("txtCargo(1)", "Lleva el \"coro\"");
    d.click("cmdCargo(0)");
    EXPECT_TRUE(d.closed());
  });
  censo::NuevoCargo(w.contexto, w.con());
  EXPECT_EQ(engine->executed().back(), "INSERT INTO Cargo (Nombre,Descripcion) VALUES (?,?);");
  EXPECT_EQ(w.count("Cargo WHERE Nombre='Director' AND Descripcion=\"Lleva el ''coro''\""), 1);
  EXPECT_EQ(w.user.beeps(), 2);
  EXPECT_TRUE(w.libre("Cargo"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Cargo, Edited_KeepsItsNameFreeForItself) {
  ActividadesWorld w;
  w.user.expectForm("frmCargo", [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Propiedades del cargo Monitor");
    w.user.expectMessage("¡Ya existe un cargo con este nombre!");
    d.type("txtCargo(0)", "CATEQUISTA");
    d.click("cmdCargo(0)");
    d.type("txtCargo(0)", "MONITOR");
    d.type("txtCargo(1)", "De tiempo libre");
    d.click("cmdCargo(0)");
  });
  censo::EditaCargo(w.contexto, w.con(), w.monitor);
  EXPECT_EQ(w.value("SELECT Nombre FROM Cargo WHERE Descripcion='De tiempo libre'"), "MONITOR");
  EXPECT_EQ(w.count("Cargo"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Cargo, Failures_AreReportedAndTheDialogStays) {
  ActividadesWorld w;
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  w.user.expectForm("frmCargo", [&](FormDriver& d) {
    d.type("txtCargo(0)", "Director");
    faults->failOn("INSERT INTO Cargo", store::ErrorKind::DiskFull);
    d.click("cmdCargo(0)");
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("frmCargo / cmdCargo_Click"));
    EXPECT_EQ(d.text("txtCargo(0)"), "Director");
    d.click("cmdCargo(0)");
  });
  censo::NuevoCargo(w.contexto, w.con());
  EXPECT_EQ(w.count("Cargo WHERE Nombre='Director'"), 1);
  faults->failOn("SELECT * FROM Cargo");
  censo::EditaCargo(w.contexto, w.con(), w.monitor);
  EXPECT_THAT(w.user.messages().back().text, HasSubstr("Form_Load"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Cargo, InUseElsewhere_OpensToReadOnly) {
  ActividadesWorld w;
  const auto otro = w.otroUsaRegistro("Cargo", w.monitor);
  w.user.answerAnything(Answer::Ok);
  w.user.expectForm("frmCargo", [](FormDriver& d) {
    EXPECT_EQ(d.text("txtCargo(0)"), "Monitor");
    EXPECT_TRUE(d.locked("txtCargo(0)"));
    EXPECT_FALSE(d.enabled("cmdCargo(0)"));
    d.escape();
  });
  censo::EditaCargo(w.contexto, w.con(), w.monitor);
  EXPECT_SCRIPT_DONE(w.user);
}

struct Eleccion : ActividadesWorld {
  /// The office chosen, and its name behind it.
  std::string elegir(forms::ScriptedUser::Act act) {
    user.expectForm("frmCargo", std::move(act));
    frmCargo dialogo(contexto);
    dialogo.conBaseDatos = &con();
    dialogo.Origen = FDAPI::cCOrigen::ACTIVIDAD;
    dialogo.Show();
    return std::to_string(dialogo.lngCargo) + dialogo.strCargo;
  }
};

TEST(Cargo, Chosen_IsTheOneOfTheListOrNone) {
  Eleccion w;
  EXPECT_EQ(w.elegir([&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Asignar cargo");
    EXPECT_EQ(d.get<forms::ComboBox>("cboCargo").label()->caption(),
              "Seleccione un cargo para el/los colaboradores:");
    EXPECT_FALSE(d.visible("txtCargo(0)"));
    EXPECT_THAT(w.lineas(d, "cboCargo"), ElementsAre("Catequista", "Monitor"));
    d.choose("cboCargo", "Monitor");
    d.click("cmdCargo(0)");
  }),
            "2Monitor");
  EXPECT_EQ(w.elegir([](FormDriver& d) { d.click("cmdCargo(0)"); }), "0");
  EXPECT_EQ(w.elegir([](FormDriver& d) {
    d.choose("cboCargo", "Monitor");
    d.click("cmdCargo(1)");
  }),
            "0");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Cargo, AddedWhileChoosing_IsTheOneChosen) {
  Eleccion w;
  EXPECT_EQ(w.elegir([&](FormDriver& d) {
    d.choose("cboCargo", "Monitor");
    w.user.expectForm("frmCargo", [](FormDriver& nuevo) { nuevo.escape(); });
    d.click("cmdCargo(2)");
    EXPECT_EQ(d.text("cboCargo"), "Monitor") << "nothing added, nothing changed";
    w.user.expectForm("frmCargo", [](FormDriver& nuevo) {
      EXPECT_EQ(nuevo.caption(), "Agregar cargo");
      nuevo.type("txtCargo(0)", "Ayudante");
      nuevo.enter();
    });
    d.click("cmdCargo(2)");
    d.click("cmdCargo(0)");
  }),
            "3Ayudante");
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
