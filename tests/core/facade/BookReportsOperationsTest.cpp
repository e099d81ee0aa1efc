// Books, indexes and duplicates as the main program asks for them.

#include "core/facade/FacadeWorld.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Operacion = void (cNucleo::*)(FDAPI::Conexion&, FDAPI::Conexion&, std::int32_t);

struct Caso {
  const char* nombre;
  Operacion operacion;
  const char* nacida;  // empty in an index
};

const Caso CASOS[] = {
    {"InformeLibroBautismo", &cNucleo::InformeLibroBautismo, "nacida"},
    {"InformeLibroBautismoMenorca", &cNucleo::InformeLibroBautismoMenorca, "nada"},
    {"InformeIndiceLibroBautismo", &cNucleo::InformeIndiceLibroBautismo, ""},
    {"InformeIndiceLibroBautismoMenorca", &cNucleo::InformeIndiceLibroBautismoMenorca, ""},
};

TEST(FacadeBookReports, Each_LocksTheBookForItsLengthAndWritesItsRow) {
  for (const Caso& caso : CASOS) {
    SpyWorld w;
    (w.nucleo.*caso.operacion)(w.con(), w.conInformes(), 1);
    EXPECT_THAT(w.bloqueos(),
                ElementsAre("Libro_Bautismo [1] existe [SELECT IDLibroBautismo FROM Libro_Bautismo "
                            "WHERE IDLibroBautismo=1]",
                            "efectuar", "liberar"))
        << caso.nombre;
    const bool indice = *caso.nacida == '\0';
    EXPECT_EQ(w.columna("Nacido/Nacida"), caso.nacida) << caso.nombre;
    EXPECT_EQ(w.columna("Letra"), indice ? "G" : "") << caso.nombre;
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FacadeBookReports, BookHeldElsewhereOrGone_GivesNoRow) {
  for (const Caso& caso : CASOS) {
    FacadeWorld w;
    w.user.answerAnything(forms::Answer::Ok);
    {
      const auto otra = w.ocupar("Libro_Bautismo", "1");
      (w.nucleo.*caso.operacion)(w.con(), w.conInformes(), 1);
    }
    (w.nucleo.*caso.operacion)(w.con(), w.conInformes(), 99);
    EXPECT_EQ(w.filas(), 0) << caso.nombre;
    EXPECT_THAT(w.user.progressLog, IsEmpty());
    w.esperarLibre();
  }
}

TEST(FacadeDuplicates, UsualRoad_HandsBackTheOrderWithoutLocks) {
  for (const char* nodo : {"Duplicadas de bautismo", "PartidasBautismo"}) {
    SpyWorld w;
    std::string orden = "de antes";
    w.user.expectForm("frmInfDuplicadas", [](FormDriver& u) {
      u.type("adtpAno", "2003");
      u.choose("cboOrden", "Apellidos del bautizado");
      u.click("cmdBoton(0)");
    });
    w.nucleo.ImprimirDuplicadas(w.con(), w.conInformes(), nodo, orden);
    EXPECT_EQ(orden, "+{@Nombre}");
    EXPECT_EQ(w.filas(), 1);
    EXPECT_THAT(w.spy.log, IsEmpty());
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FacadeDuplicates, CancelledOrUnknownNode_GivesAnEmptyOrder) {
  FacadeWorld w;
  std::string orden = "de antes";
  w.user.expectForm("frmInfDuplicadas", [](FormDriver& u) { u.click("cmdBoton(1)"); });
  w.nucleo.ImprimirDuplicadas(w.con(), w.conInformes(), "PartidasBautismo", orden);
  EXPECT_EQ(orden, "");
  for (const char* nodo : {"", "LibrosBautismo", "Duplicadas"}) {
    orden = "de antes";
    w.nucleo.ImprimirDuplicadas(w.con(), w.conInformes(), nodo, orden);
    EXPECT_EQ(orden, "") << nodo;
  }
  EXPECT_EQ(w.filas(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
