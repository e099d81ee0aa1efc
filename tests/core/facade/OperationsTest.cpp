// The operations as the main program calls them, with real locks.

#include "core/contract/Sacramento.h"
#include "core/facade/FacadeWorld.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using forms::FormDriver;

constexpr const char* NODO = "PartidasBautismo";
constexpr const char* BORRAR = "¿Está seguro que desea eliminar la partida?";
constexpr const char* NO_SE_PUEDE = "¡Esta partida no se puede eliminar!";

/// A further entry of the book of the first one; each has its own child and no parents.
std::int32_t partida(FacadeWorld& w, int folio, const std::string& numero) {
  w.run("INSERT INTO Bautismo (CodLibro, Folio, Numero) VALUES (1, " + std::to_string(folio) +
        ", \"" + numero + "\")");
  return std::stoi(w.value("SELECT MAX(IDBautismo) AS ID FROM Bautismo"));
}

TEST(FacadeDialogs, Modes_ShowInTheCaption) {
  FacadeWorld w;
  const auto titulo = [&](const char* comienzo) {
    w.user.expectForm("frmPartidaBautismo", [&w, comienzo](FormDriver& u) {
      EXPECT_THAT(u.caption(), ::testing::StartsWith(comienzo));
      cancelar(u);
    });
  };
  titulo("Agregar partida de bautismo nueva");
  w.nucleo.NuevaPartida(w.con(), w.config, NODO);
  titulo("Agregar partida de bautismo antigua");
  w.nucleo.AntiguaPartida(w.con(), w.config, NODO);
  titulo("Propiedades de partida de bautismo nueva");
  w.nucleo.PropiedadesPartida(w.con(), 1, w.config, NODO);
  titulo("Agregar solicitud de bautismo");
  w.nucleo.NuevaSolicitud(w.con(), w.config, "SolicitudesBautismo");
  w.hacerSolicitud();
  titulo("Propiedades de solicitud de bautismo");
  w.nucleo.PropiedadesSolicitudes(w.con(), 1, w.config, "SolicitudesBautismo");
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
}

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
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FacadeDialogs, EntryOpenElsewhere_ReadOnlyAndNoLockLeft) {
  FacadeWorld w;
  {
    const auto otra = w.ocupar("Bautismo", "1");
    w.user.answerAnything(Answer::Ok);
    w.user.expectForm("frmPartidaBautismo", [&](FormDriver& u) {
      ASSERT_EQ(w.user.messages().size(), 1u) << "the lock service has told who holds it";
      EXPECT_THAT(w.user.messages()[0].text,
                  ::testing::StartsWith("Solo se puede consultar: la partida de bautismo la tiene "
                                        "luis, en el equipo SACRISTIA"));
      EXPECT_FALSE(u.enabled("cmdBautismo(0)"));
      cancelar(u);
    });
    w.nucleo.PropiedadesPartida(w.con(), 1, w.config, NODO);
  }
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeDialogs, EntryGone_OpensNothing) {
  FacadeWorld w;
  w.user.answerAnything(Answer::Ok);
  w.nucleo.PropiedadesPartida(w.con(), 99, w.config, NODO);
  EXPECT_EQ(w.user.messages().size(), 1u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeDialogs, OperationFails_IsReportedUnderItsNameWithoutLocks) {
  FacadeWorld w;
  store::FailingEngine::wrap(w.con())->failOn("FROM Libro_Bautismo WHERE  Nuevo");
  w.user.answerAnything(Answer::Ok);
  w.nucleo.NuevaPartida(w.con(), w.config, NODO);
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text,
              ::testing::HasSubstr("FidaleonNucleo / cNucleo / NuevaPartida"));
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeAnnul, Twice_EndsAsItBegan) {
  FacadeWorld w;
  w.nucleo.AnularPartidas(w.con(), 1, w.config, NODO);
  EXPECT_EQ(w.count("Bautismo WHERE Anulada = true"), 1);
  w.nucleo.AnularPartidas(w.con(), 1, w.config, NODO);
  EXPECT_EQ(w.count("Bautismo WHERE Anulada = true"), 0);
  w.esperarLibre();
}

TEST(FacadeAnnul, ChangedByAnotherDesk_IsAskedByTheTableAndLeftAlone) {
  FacadeWorld w;
  const auto preguntar = [&](bool vista, bool otroPuesto) {
    return [&w, vista, otroPuesto](bool anulada) {
      EXPECT_EQ(anulada, vista);
      if (otroPuesto) w.run(std::string("UPDATE Bautismo SET Anulada=") + (anulada ? "0" : "1"));
      return true;
    };
  };
  w.nucleo.AnularPartidas(w.con(), 1, w.config, NODO, preguntar(false, false));
  EXPECT_EQ(w.count("Bautismo WHERE Anulada = true"), 1);
  w.nucleo.AnularPartidas(w.con(), 1, w.config, NODO, preguntar(true, false));
  for (const char* hecho : {"anulado", "validado"}) {
    w.user.expectMessage(std::string("Otro puesto ya ha ") + hecho +
                         " esta partida: no se ha cambiado nada.");
    const bool valida = std::string(hecho) == "anulado";
    w.nucleo.AnularPartidas(w.con(), 1, w.config, NODO, preguntar(!valida, true));
    EXPECT_EQ(w.count("Bautismo WHERE Anulada = true"), valida ? 1 : 0);
  }
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeDelete, OpenNewBook_OnlyTheLastByValueOfNumber) {
  FacadeWorld w;
  w.run("UPDATE Bautismo SET Folio = 1, Numero = \"1\"");
  const std::int32_t diez = partida(w, 1, "10");
  const std::int32_t dos = partida(w, 1, "2");
  for (const std::int32_t id : {1, dos}) {
    w.user.expectMessage(NO_SE_PUEDE);
    w.nucleo.EliminarPartida(w.con(), id, w.config, NODO);
  }
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Exclamation);
  w.user.expectMessage(BORRAR, Answer::Yes);
  w.nucleo.EliminarPartida(w.con(), diez, w.config, NODO);
  w.user.expectMessage(BORRAR, Answer::Yes);
  w.nucleo.EliminarPartida(w.con(), dos, w.config, NODO);
  EXPECT_EQ(w.count("Bautismo"), 1);
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeDelete, ClosedBook_Refused) {
  FacadeWorld w;
  w.run("UPDATE Libro_Bautismo SET Cerrado = true");
  w.user.expectMessage(NO_SE_PUEDE);
  w.nucleo.EliminarPartida(w.con(), 1, w.config, NODO);
  EXPECT_EQ(w.count("Bautismo"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeDelete, BookChangedWhileTheQuestionStood_Refused) {
  using Otro = std::function<void(FacadeWorld&)>;
  const Otro inscribe = [](FacadeWorld& w) { partida(w, 90, "90"); };
  const Otro cierra = [](FacadeWorld& w) { w.run("UPDATE Libro_Bautismo SET Cerrado = true"); };
  for (const Otro& otro : {inscribe, cierra}) {
    FacadeWorld w;
    w.user.expectMessage(BORRAR, Answer::Yes, [&] { otro(w); });
    w.user.expectMessage(NO_SE_PUEDE);
    w.nucleo.EliminarPartida(w.con(), 1, w.config, NODO);
    EXPECT_EQ(w.count("Bautismo WHERE IDBautismo = 1"), 1);
    w.esperarLibre();
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FacadeDelete, OldBook_AnyEntryWithAllItsRowsAndCountersBackToOne) {
  FacadeWorld w;
  w.run(
      "UPDATE Libro_Bautismo SET Nuevo = 0, Cerrado = 1, FolioSiguiente = 9, "
      "NumeroSiguiente = \"40\"");
  partida(w, 90, "1");
  w.user.expectMessage(BORRAR, Answer::No);
  w.nucleo.EliminarPartida(w.con(), 1, w.config, NODO);
  EXPECT_EQ(w.count("Bautismo"), 2);
  w.user.expectMessage(BORRAR, Answer::Yes);
  w.nucleo.EliminarPartida(w.con(), 1, w.config, NODO);
  EXPECT_EQ(w.count("Bautismo"), 1);
  for (const char* tabla :
       {"Bautismo_Hijo", "Bautismo_Padres", "Bautismo_Madres", "Bautismo_Matrimonio"})
    EXPECT_EQ(w.count(tabla), 0) << tabla;
  EXPECT_EQ(w.value("SELECT FolioSiguiente FROM Libro_Bautismo"), "1");
  EXPECT_EQ(w.value("SELECT NumeroSiguiente FROM Libro_Bautismo"), "1");
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeDelete, EntryOpenElsewhere_IsNotEvenAskedFor) {
  FacadeWorld w;
  const auto otra = w.ocupar("Bautismo", "1");
  w.user.answerAnything(Answer::Yes);
  w.nucleo.EliminarPartida(w.con(), 1, w.config, NODO);
  w.nucleo.EliminarSolicitud(w.con(), 1, w.config, "SolicitudesBautismo");
  EXPECT_EQ(w.user.messages().size(), 2u) << "one refusal each";
  EXPECT_EQ(w.count("Bautismo"), 1);
}

TEST(FacadeDelete, Request_WithoutAskingAndWithoutTouchingABook) {
  FacadeWorld w;
  w.hacerSolicitud();
  w.run("UPDATE Libro_Bautismo SET FolioSiguiente = 9");
  w.nucleo.EliminarSolicitud(w.con(), 1, w.config, "SolicitudesBautismo");
  for (const char* tabla :
       {"Bautismo", "Bautismo_Hijo", "Bautismo_Padres", "Bautismo_Madres", "Bautismo_Matrimonio"})
    EXPECT_EQ(w.count(tabla), 0) << tabla;
  EXPECT_EQ(w.value("SELECT FolioSiguiente FROM Libro_Bautismo"), "9");
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FacadeDelete, RequestMovedIntoABookMeanwhile_IsNoRequestAnyMore) {
  FacadeWorld w;  // its entry is in the book by now
  const std::string ya =
      "Esta solicitud ya no está: otro puesto la ha pasado a un libro o la ha eliminado. Actualice "
      "la lista.";
  w.user.expectMessage(ya);
  w.nucleo.EliminarSolicitud(w.con(), 1, w.config, "SolicitudesBautismo");
  w.user.expectMessage(ya);
  w.nucleo.PropiedadesSolicitudes(w.con(), 1, w.config, "SolicitudesBautismo");
  EXPECT_EQ(w.count("Bautismo WHERE CodLibro = 1"), 1);
  w.esperarLibre();
  EXPECT_SCRIPT_DONE(w.user);
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
  EXPECT_SCRIPT_DONE(w.user);
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
  EXPECT_SCRIPT_DONE(w.user);
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
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
