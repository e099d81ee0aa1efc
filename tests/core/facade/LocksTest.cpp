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
