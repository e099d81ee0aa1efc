#include "support/Mantenimiento.h"
#include "support/TestWorld.h"
#include "support/frmTarea.h"

namespace fidaleon::support::TaskDialogTest {

using forms::FormDriver;

class Tasks : public ::testing::Test {
 protected:
  std::string row() {
    std::string all;
    for (const char* field : {"Fecha", "HoraInicio", "HoraFin", "Nombre", "Descripcion"})
      all += w.value(std::string("SELECT ") + field + " FROM Tareas") + "|";
    return all;
  }
  static void fill(FormDriver& u, const char* from, const char* to) {
    u.type("txtFecha", "24/12/2026");
    u.type("txtHoraInicio", from);
    u.type("txtHoraFin", to);
    u.type("txtNombre", "Misa \"del Gallo\"");
  }
  tests::TestWorld w;
  Mantenimiento commands{w.contexto, w.con()};
};

TEST_F(Tasks, New_IsStoredWithItsTimesAsFourDigitsAndShownAgain) {
  w.user.expectForm("frmTarea", [](FormDriver& u) {
    EXPECT_EQ(u.text("txtFecha"), "22/11/2026");
    u.type("txtFecha", "6-1-27");
    u.focus("txtNombre");
    EXPECT_EQ(u.text("txtFecha"), "06/01/2027");
    fill(u, "9:05", "1030");
    u.type("txtDescripcion", "Con el coro");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(commands.agregar(Catalogo::Tarea));
  EXPECT_EQ(row(), "20261224|0905|1030|Misa ''del Gallo''|Con el coro|");
  w.user.expectForm("frmTarea", [](FormDriver& u) {
    EXPECT_EQ(u.text("txtFecha") + u.text("txtHoraInicio") + u.text("txtHoraFin"),
              "24/12/202609:0510:30");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(commands.propiedades(Catalogo::Tarea, 1));
  EXPECT_EQ(row(), "20261224|0905|1030|Misa ''del Gallo''|Con el coro|");
}

TEST_F(Tasks, BeginningTyped_ProposesTheEndUnlessThereIsOne) {
  w.user.expectForm("frmTarea", [](FormDriver& u) {
    u.type("txtHoraInicio", "18:00");
    u.focus("txtNombre");
    EXPECT_EQ(u.text("txtHoraFin"), "18:00");
    u.type("txtHoraFin", "19:30");
    u.type("txtHoraInicio", "17:00");
    u.focus("txtNombre");
    EXPECT_EQ(u.text("txtHoraFin"), "19:30");
    u.click("cmdBoton(1)");
  });
  EXPECT_FALSE(commands.agregar(Catalogo::Tarea));
  EXPECT_EQ(w.count("Tareas"), 0);
}

TEST_F(Tasks, WhatIsMissingOrWrong_IsToldAtItsFieldAndNothingIsStored) {
  w.user.expectForm("frmTarea", [this](FormDriver& u) {
    const auto refused = [&](const char* field, const char* value, const std::string& message,
                             const char* mended) {
      u.type(field, value);
      w.user.expectMessage(message);
      u.click("cmdBoton(0)");
      EXPECT_EQ(u.focused(), field);
      EXPECT_EQ(w.count("Tareas"), 0);
      u.type(field, mended);
    };
    fill(u, "18:00", "19:00");
    refused("txtFecha", "", "Falta rellenar el campo «FECHA».", "24/12/2026");
    refused("txtHoraFin", "", "Falta rellenar el campo «HORA DE FIN».", "19:00");
    refused("txtHoraFin", "17:59", "¡La hora de fin no puede ser anterior a la de inicio!",
            "18:00");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(commands.agregar(Catalogo::Tarea));
  EXPECT_EQ(row(), "20261224|1800|1800|Misa ''del Gallo''||");
}

TEST_F(Tasks, Deleting_AsksAndIsRefusedWhileAnotherIsAtIt) {
  w.con().Execute("INSERT INTO Tareas (Fecha, Nombre) VALUES (\"20260301\", \"Coro\")");
  auto other = w.otherHolds("Tareas", 1);
  w.user.answerAnything(forms::Answer::Ok);
  EXPECT_FALSE(commands.eliminar(Catalogo::Tarea, 1));
  EXPECT_EQ(w.user.messages().size(), 1u);
  other->LiberarBloqueos();
  for (const bool yes : {false, true}) {
    w.user.expectMessage("¿Seguro que quiere eliminar la tarea?",
                         yes ? forms::Answer::Yes : forms::Answer::No);
    EXPECT_EQ(commands.eliminar(Catalogo::Tarea, 1), yes);
    EXPECT_EQ(w.count("Tareas"), yes ? 0 : 1);
  }
}

}  // namespace fidaleon::support::TaskDialogTest
