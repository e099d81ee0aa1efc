// The operations as the main program calls them, with real locks.

#include "core/contract/Sacramento.h"
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

TEST(FacadeBooks, ClosingAndDeleting_ReachTheirOwnTable) {
  FacadeWorld w;
  using Cerrar = void (cNucleo::*)(FDAPI::Conexion&, std::int32_t, const FDAPI::cConfig&);
  const Cerrar cerrar[] = {&cNucleo::cerrarLiBautismo, &cNucleo::cerrarLiconfirmacion,
                           &cNucleo::cerrarLiMatrimonio, &cNucleo::cerrarLiDefuncion};
  w.run("DELETE * FROM Bautismo");
  for (const auto& s : SACRAMENTOS) {
    const std::string tabla = s.tablaLibros;
    if (&s != &BAUTISMO)
      w.run("INSERT INTO " + tabla +
            " (CodInstitucion, CodFormato, CodTipoNombre, Nombre, Nuevo, Cerrado) VALUES (1, 3, 4, "
            "\"1\", 1, 0)");
    w.user.expectMessage("Si cierra este libro no podrá introducir más partidas. ¿Desea cerrarlo?",
                         Answer::Yes);
    (w.nucleo.*cerrar[s.byte])(w.con(), 1, w.config);
    EXPECT_EQ(w.count(tabla + " WHERE Cerrado = true"), 1) << tabla;
    w.user.expectMessage("¿Seguro que quiere eliminar el libro?", Answer::Yes);
    w.nucleo.EliminarLibro(w.con(), 1, w.config, std::string("Libros") + s.palabra);
    EXPECT_EQ(w.count(tabla), 0) << tabla;
  }
  w.esperarLibre();
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
