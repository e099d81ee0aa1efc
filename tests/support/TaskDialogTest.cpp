#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/Mantenimiento.h"
#include "support/TestWorld.h"
#include "support/frmTarea.h"

namespace fidaleon::support {
namespace {

using forms::FormDriver;

class Tasks : public ::testing::Test {
 protected:
  void TearDown() override { EXPECT_SCRIPT_DONE(w.user); }
  std::int32_t task(const std::string& day, const std::string& from, const std::string& to) {
    w.con().Execute(
        "INSERT INTO Tareas (Fecha, HoraInicio, HoraFin, Nombre, Descripcion) VALUES (\"" + day +
        "\", \"" + from + "\", \"" + to + "\", \"Coro\", \"\")");
    return static_cast<std::int32_t>(std::stoi(w.value("SELECT MAX(IDTarea) AS ID FROM Tareas")));
  }
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

TEST_F(Tasks, New_IsStoredWithItsTimesAsFourDigits) {
  w.user.expectForm("frmTarea", [](FormDriver& u) {
    EXPECT_EQ(u.text("txtFecha"), "22/11/2026");
    fill(u, "9:05", "1030");
    u.type("txtDescripcion", "Con el coro");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(commands.agregar(Catalogo::Tarea));
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

TEST_F(Tasks, Properties_ShowWhatIsStoredAndChangeThatTaskAlone) {
  const auto id = task("20260301", "0700", "2359");
  task("20260302", "1000", "1100");
  w.user.expectForm("frmTarea", [](FormDriver& u) {
    EXPECT_EQ(u.text("txtFecha"), "01/03/2026");
    EXPECT_EQ(u.text("txtHoraInicio"), "07:00");
    EXPECT_EQ(u.text("txtHoraFin"), "23:59");
    u.type("txtNombre", "Ensayo");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(commands.propiedades(Catalogo::Tarea, id));
  EXPECT_EQ(w.count("Tareas WHERE Nombre=\"Ensayo\""), 1);
  EXPECT_EQ(w.value("SELECT Nombre FROM Tareas WHERE IDTarea=" + std::to_string(id)), "Ensayo");
}

TEST_F(Tasks, Deleting_AsksAndIsRefusedWhileAnotherIsAtIt) {
  const auto id = task("20260301", "0700", "0800");
  auto other = w.otherSession();
  FDAPI::DefinicionBloqueo lock;
  lock.strTabla = "Tareas";
  lock.strRegistro = std::to_string(id);
  other->DefinirBloqueo(lock);
  ASSERT_EQ(other->lngEfectuarBloqueos(), 0);
  w.user.answerAnything(forms::Answer::Ok);
  EXPECT_FALSE(commands.eliminar(Catalogo::Tarea, id));
  EXPECT_FALSE(commands.propiedades(Catalogo::Tarea, id));
  EXPECT_EQ(w.user.messages().size(), 2u);
  other->LiberarBloqueos();
  w.user.expectMessage("¿Seguro que quiere eliminar la tarea?", forms::Answer::No);
  EXPECT_FALSE(commands.eliminar(Catalogo::Tarea, id));
  EXPECT_EQ(w.count("Tareas"), 1);
  w.user.expectMessage("¿Seguro que quiere eliminar la tarea?", forms::Answer::Yes);
  EXPECT_TRUE(commands.eliminar(Catalogo::Tarea, id));
  EXPECT_EQ(w.count("Tareas"), 0);
}

}  // namespace
}  // namespace fidaleon::support
