// The operations as the main program calls them, with real locks.

#include "core/facade/FacadeWorld.h"

namespace fidaleon::tests::OperationsTest {

constexpr const char* NODO = "PartidasBautismo";

TEST(FacadeDialogs, Clipboard_IsKept) {
  for (const std::string texto : {"", "calle del Pez, 3"}) {
    FacadeWorld w;
    w.user.setClipboardText(texto);
    const auto acto = [&](FormDriver& u) {
      EXPECT_EQ(w.user.clipboardText(), texto);
      cancelar(u);
    };
    w.user.expectForm("frmPartidaBautismo", acto);
    w.nucleo.NuevaPartida(w.con(), w.config, NODO);
    w.user.expectForm("frmPartidaBautismo", acto);
    w.nucleo.PropiedadesPartida(w.con(), 1, w.config, NODO);
    EXPECT_EQ(w.user.clipboardText(), texto);
  }
}

TEST(FacadeKeeper, Chosen_IsRememberedForNextTime) {
  FacadeWorld w;
  w.run("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (" +
        std::to_string(w.parroquia) + ", \"Rosa O'Hara\")");
  std::string fecha;
  std::string encargado;
  w.user.expectForm("frmEncargado", [](FormDriver& u) {
    u.choose("cboEncargado", "Rosa O'Hara");
    u.type("adtpFecha", "03/11/2026");
    u.click("cmdBoton(0)");
  });
  w.nucleo.SelecEncargado(w.con(), "Bautismo", 1, fecha, encargado);
  EXPECT_EQ(encargado, "Rosa O'Hara");
  EXPECT_EQ(fecha, "20261103");
  EXPECT_EQ(w.value("SELECT Encargado FROM Ultimos"), "Rosa O'Hara");
  w.user.expectForm("frmEncargado", [](FormDriver& u) {
    EXPECT_EQ(u.text("cboEncargado"), "Rosa O'Hara");
    u.click("cmdBoton(1)");
  });
  w.nucleo.SelecEncargado(w.con(), "Bautismo", 1, fecha, encargado);
  EXPECT_EQ(encargado, "");
  EXPECT_EQ(fecha, "20261122");
  EXPECT_EQ(w.value("SELECT Encargado FROM Ultimos"), "Rosa O'Hara")
      << "cancelling forgets nothing";
  w.esperarLibre();
}

TEST(FacadeSetup, Result_SaysWhetherTheDataAreThere) {
  FacadeWorld w;
  bool completo = false;
  w.nucleo.DatosSetup(w.con(), completo);
  EXPECT_TRUE(completo);
  w.run("UPDATE Institucion SET Parroco='',Diocesis='',Vicaria=''");
  w.user.answerAnything(Answer::Yes);
  w.user.expectForm("frmDatosSetup", [](FormDriver& u) { u.click("cmdBoton(1)"); });
  w.nucleo.DatosSetup(w.con(), completo);
  EXPECT_FALSE(completo);
}

}  // namespace fidaleon::tests::OperationsTest
