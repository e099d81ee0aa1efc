// Which locks each operation defines, in which order, and how it takes a refusal.

#include "core/facade/FacadeWorld.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::LocksTest {

TEST(FacadeLocks, NuevoLibro_LocksTheTableOfItsKind) {
  for (const char* palabra : {"Bautismo", "Confirmacion", "Matrimonio", "Defuncion"}) {
    SpyWorld w;
    w.user.expectForm(std::string("frmAltaLibro") + palabra,
                      [](FormDriver& u) { u.click("cmdBoton(1)"); });
    w.nucleo.NuevoLibro(w.con(), w.config, std::string("Libros") + palabra);
    EXPECT_THAT(w.bloqueos(), ElementsAre("Institucion compartida", "Libros_Formato compartida",
                                          "Libros_TipoNombre compartida",
                                          std::string("Libro_") + palabra, "efectuar", "liberar"));
    w.spy.answers = {FDAPI::BloqueoTabla};
    w.nucleo.NuevoLibro(w.con(), w.config, std::string("Libros") + palabra);
    EXPECT_EQ(w.spy.log.back(), "efectuar") << "refused, nothing is given back";
  }
}

TEST(FacadeLocks, Books_AreLockedAfterTheQuestionAndGivenBackUnlessRefused) {
  const auto cerrar = [](SpyWorld& w) { w.nucleo.cerrarLiBautismo(w.con(), 1, w.config); };
  const auto eliminar = [](SpyWorld& w) {
    w.run("DELETE * FROM Bautismo");
    w.nucleo.EliminarLibro(w.con(), 1, w.config, "LibrosBautismo");
  };
  const std::string libro =
      "Libro_Bautismo [1] existe [SELECT IDLibroBautismo FROM Libro_Bautismo WHERE "
      "IDLibroBautismo=1]";
  for (const std::function<void(SpyWorld&)>& orden : {std::function(cerrar), {eliminar}}) {
    SpyWorld hecho;
    hecho.user.answerAnything(Answer::Yes);
    orden(hecho);
    EXPECT_THAT(hecho.bloqueos(), ElementsAre(libro, "efectuar", "liberar"));
    SpyWorld sinPermiso;
    sinPermiso.user.answerAnything(Answer::No);
    orden(sinPermiso);
    EXPECT_THAT(sinPermiso.bloqueos(), ElementsAre("liberar"));
    SpyWorld rehusado;
    rehusado.spy.answers = {FDAPI::BloqueoRegistro};
    rehusado.user.answerAnything(Answer::Yes);
    orden(rehusado);
    EXPECT_THAT(rehusado.bloqueos(), ElementsAre(libro, "efectuar"));
    EXPECT_EQ(rehusado.count("Libro_Bautismo WHERE Cerrado = false"), 1);
    SpyWorld roto;
    auto* fallos = store::FailingEngine::wrap(roto.con());
    fallos->failOn("update libro", store::ErrorKind::ReadOnly);
    fallos->failOn("delete * from libro", store::ErrorKind::ReadOnly);
    roto.user.answerAnything(Answer::Yes);
    orden(roto);
    EXPECT_THAT(roto.bloqueos(), ElementsAre(libro, "efectuar", "liberar"));
  }
}

TEST(FacadeLocks, HeldByAnother_CanBeTriedAgainAndOpensAsItIsNow) {
  FacadeWorld w;
  auto otra = w.ocupar("Bautismo", "1");
  w.user.answerAnything(Answer::Ok);
  w.user.expectForm("frmPartidaBautismo", [&](FormDriver& u) {
    EXPECT_EQ(u.text("lblSoloLectura"),
              "Solo se puede consultar: lo tiene luis, en el equipo SACRISTIA, desde el 22/11/2026 "
              "a las 10:30.");
    u.tab("mstBautismo", 1);
    EXPECT_TRUE(u.locked("txtBautismo(7)") && u.enabled("txtBautismo(7)"));
    EXPECT_TRUE(u.locked("cboBautismo(22)"));
    u.click("cmdReintentar");
    EXPECT_FALSE(u.closed());
    w.run("UPDATE bautismo_hijo SET Nombre='Rosario'");
    otra.reset();
    u.click("cmdReintentar");
    EXPECT_TRUE(u.closed());
  });
  w.user.expectForm("frmPartidaBautismo", [&](FormDriver& u) {
    EXPECT_EQ(u.text("txtBautismo(7)"), "Rosario");
    EXPECT_EQ(u.form().find("cmdReintentar"), nullptr);
    u.tab("mstBautismo", 1);
    u.type("txtBautismo(7)", "Rosa");
    u.click("cmdBautismo(0)");
  });
  w.nucleo.PropiedadesPartida(w.con(), 1, w.config, "PartidasBautismo");
  EXPECT_EQ(w.user.messages().size(), 2u) << "once on opening, once on the try in vain";
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_hijo"), "Rosa");
  w.esperarLibre();
}

TEST(FacadeLocks, UnknownNode_NoDialogNoLock) {
  SpyWorld w;
  for (const char* nodo : {"", "Partidas", "PartidasPadron", "LibrosBautismo", "Instituciones",
                           "SolicitudesDefuncion"}) {
    w.nucleo.NuevaPartida(w.con(), w.config, nodo);
    w.nucleo.AntiguaPartida(w.con(), w.config, nodo);
    w.nucleo.PropiedadesPartida(w.con(), 1, w.config, nodo);
    w.nucleo.AnularPartidas(w.con(), 1, w.config, nodo);
    w.nucleo.EliminarPartida(w.con(), 1, w.config, nodo);
    w.nucleo.NuevaSolicitud(w.con(), w.config, nodo);
    w.nucleo.PropiedadesSolicitudes(w.con(), 1, w.config, nodo);
    w.nucleo.EliminarSolicitud(w.con(), 1, w.config, nodo);
  }
  for (const char* nodo : {"", "SolicitudesDefuncion", "PartidasBautismo"})
    w.nucleo.ImportarSolicitudes(w.con(), w.config, nodo);
  for (const char* nodo : {"", "Libros", "LibrosBanco", "LibrosSolicitudes", "PartidasBautismo"}) {
    w.nucleo.PropiedadesLibro(w.con(), 1, w.config, nodo);
    w.nucleo.NuevoLibro(w.con(), w.config, nodo);
    w.nucleo.EliminarLibro(w.con(), 1, w.config, nodo);
  }
  EXPECT_THAT(w.spy.log, IsEmpty());
  EXPECT_EQ(w.count("Bautismo"), 1);
}

}  // namespace fidaleon::tests::LocksTest
