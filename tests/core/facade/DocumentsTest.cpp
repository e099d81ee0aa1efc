// Every line of the catalogue of documents, as the main program asks for it.

#include <array>

#include "core/facade/Documentos.h"
#include "core/facade/FacadeWorld.h"
#include "core/statements/Sentencia.h"
#include "documents/DialogosDocumento.h"
#include "documents/PartidasWorld.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::DocumentsTest {

constexpr const char* FECHA = "20261103";

class FacadeDocuments : public ::testing::TestWithParam<const Documento*> {
 protected:
  const Documento& d = *GetParam();
  const char* tabla = filasDocumento(*d.sacramento)->tabla;

  template <class World>
  void preparar(World& w) const {
    if (d.clase == ClaseDocumento::Solicitud)
      w.run(sentencia(*d.sacramento,
                      "UPDATE {Partidas} SET CodLibro = 0, Folio = 0, Numero = \"---\", "
                      "InstitucionSolicitud = 1"));
  }
  template <class World>
  void imprimir(World& w, std::int32_t id, bool hayQueImprimir = true) const {
    esperarDialogos(w.user, d.operacion, hayQueImprimir);
    std::array<bool, 3> via{};
    if (const auto* simple = std::get_if<PasoSimple>(&d.paso))
      (w.nucleo.*simple->operacion)(w.con(), w.conInformes(), id);
    else if (const auto* config = std::get_if<PasoConConfig>(&d.paso))
      (w.nucleo.*config->operacion)(w.con(), w.conInformes(), id, w.config);
    else if (const auto* vias = std::get_if<PasoConVias>(&d.paso))
      (w.nucleo.*vias->operacion)(w.con(), w.conInformes(), id, via[0], via[1], via[2]);
    else
      (w.nucleo.*std::get<PasoFirmado>(d.paso).operacion)(w.con(), w.conInformes(), id, "Ana",
                                                          FECHA);
  }
  template <class World>
  std::int64_t filas(World& w) const {
    return w.conInformes().Execute(std::string("SELECT * FROM ") + tabla).RecordCount();
  }
};

TEST_P(FacadeDocuments, LocksWhatItIsOf_AndWritesItsRow) {
  WithSpy<PartidasWorld> w;
  preparar(w);
  imprimir(w, 1);
  const std::string palabra = d.sacramento->palabra;
  const std::string deLibro = "Libro_" + palabra + " [1] existe [SELECT IDLibro" + palabra +
                              " FROM Libro_" + palabra + " WHERE IDLibro" + palabra + "=1]";
  const std::string clave = "Id" + (palabra == "Defuncion" ? "Difunto" : palabra);
  const std::string dePartida =
      palabra + " [1] existe [SELECT " + clave + " FROM " + palabra + " WHERE " + clave + "=1]";
  if (d.bloquea) {
    // The dialog of the keeper takes locks of its own in between.
    const auto bloqueos = w.bloqueos();
    ASSERT_GE(bloqueos.size(), 3u);
    EXPECT_EQ(bloqueos[0], d.clase == ClaseDocumento::Libro ? deLibro : dePartida);
    EXPECT_EQ(bloqueos[1], "efectuar");
    EXPECT_EQ(bloqueos.back(), "liberar");
  } else {
    EXPECT_THAT(w.spy.log, IsEmpty());
  }
  EXPECT_GE(filas(w), 1);
}

TEST_P(FacadeDocuments, HeldElsewhereOrGone_GivesNoRow) {
  WithFacade<PartidasWorld> w;
  w.mayBreakOff = true;  // nobody signs what is not made
  preparar(w);
  w.user.answerAnything(Answer::Ok);
  if (d.bloquea) {
    const bool libro = d.clase == ClaseDocumento::Libro;
    const auto otra =
        w.ocupar(libro ? d.sacramento->tablaLibros : d.sacramento->tablaPartidas, "1");
    imprimir(w, 1, false);
  }
  imprimir(w, 99, false);
  EXPECT_EQ(filas(w), 0);
  EXPECT_THAT(w.user.progressLog, IsEmpty());
  w.esperarLibre();
}

TEST(FacadeExhorto, HeldElsewhere_IsNotStoredButHandedBack) {
  WithFacade<PartidasWorld> w;
  const auto otra = w.ocupar("Matrimonio", "1");
  w.user.answerAnything(forms::Answer::Yes);
  w.user.expectForm("frmInfExhorto", [](FormDriver& u) {
    u.type("txtDato(0)", "Otra");
    u.click("cmdBoton(0)");
  });
  DatosExhorto datos;
  bool cancelado = true;
  w.nucleo.CargaDatosExhorto(datos, cancelado, w.con(), 1);
  EXPECT_FALSE(cancelado);
  EXPECT_THAT(datos,
              ::testing::ElementsAre("Otra", "Pinto", "Getafe", "San Blas", "Osuna", "Sevilla"));
  EXPECT_EQ(w.value("SELECT ParroquiaExhorto FROM Matrimonio_Novios"), "San José");
  EXPECT_EQ(w.user.messages().back().text, "Se ha producido un error y no se guardaran los datos");
}

std::vector<const Documento*> conOperacion() {
  std::vector<const Documento*> lineas;
  for (const Documento& d : documentos())
    if (d.paso.index() != 0) lineas.push_back(&d);
  return lineas;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, FacadeDocuments, ::testing::ValuesIn(conOperacion()),
                         [](const auto& line) {
                           return std::string(line.param->plantilla) + line.param->edicion;
                         });

TEST(FacadeDuplicates, HandBackTheOrderWithoutLocks_EmptyWhenCancelledOrOfAnUnknownNode) {
  const std::tuple<const char*, const char*, const char*> casos[] = {
      {"Duplicadas de bautismo", "cmdBoton(0)", "+{@Nombre}"},
      {"PartidasBautismo", "cmdBoton(0)", "+{@Nombre}"},
      {"PartidasBautismo", "cmdBoton(1)", ""},
      {"LibrosBautismo", nullptr, ""},
      {"", nullptr, ""}};
  for (const auto& [nodo, boton, esperado] : casos) {
    SpyWorld w;
    std::string orden = "de antes";
    if (boton)
      w.user.expectForm("frmInfDuplicadas", [b = boton](FormDriver& u) {
        u.type("adtpAno", "2003");
        u.choose("cboOrden", "Apellidos del bautizado");
        u.click(b);
      });
    w.nucleo.ImprimirDuplicadas(w.con(), w.conInformes(), nodo, orden);
    EXPECT_EQ(orden, esperado) << nodo;
    EXPECT_EQ(w.filas(), orden.empty() ? 0 : 1) << nodo;
    EXPECT_THAT(w.spy.log, IsEmpty());
  }
}

}  // namespace fidaleon::tests::DocumentsTest
