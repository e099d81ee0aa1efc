// The rows of a printed book and of its index: columns, order, what belongs to it.

#include "LibroWorld.h"
#include "PartidaImpresa.h"

namespace fidaleon::tests {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

TEST(BookRows, Book_HasTheEntryAndTheGrandparentsProvincesAndNoMore) {
  LibroWorld w;
  w.imprimirLibro();
  EXPECT_EQ(w.fila(), PARTIDA + genero("a la niña", "nacida"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BookRows, BookMenorca_IsInCatalan) {
  LibroWorld w;
  w.informes.ImprimirLibroBautismoMenorca(w.con(), w.conInformes(), 1);
  EXPECT_EQ(w.fila(), PARTIDA + FECHAS_CATALANAS + genero("la filleta", "nada"));
}

TEST(BookRows, BoyAndUnknownSex_TheUnknownTakesTheGirlsWords) {
  for (const bool menorca : {false, true}) {
    LibroWorld w;
    w.run("UPDATE Bautismo_Hijo SET Sexo=\"---\"");
    w.agregar({.folio = "13"});
    if (menorca)
      w.informes.ImprimirLibroBautismoMenorca(w.con(), w.conInformes(), 1);
    else
      w.imprimirLibro();
    EXPECT_THAT(w.columnas("Al niño/A la niña"), menorca ? ElementsAre("la filleta", "al fillet")
                                                         : ElementsAre("a la niña", "al niño"));
    EXPECT_THAT(w.columnas("Nacido/Nacida"),
                menorca ? ElementsAre("nada", "nat") : ElementsAre("nacida", "nacido"));
  }
}

TEST(BookRows, EmptyHour_StaysEmptyInTheBook) {
  LibroWorld w;
  w.run("UPDATE Bautismo_Hijo SET HoraNac=\"\"");
  w.imprimirLibro();
  EXPECT_EQ(w.columna("HoraNac"), "");
}

TEST(BookRows, Order_IsByValueOfFolioAndNumber) {
  LibroWorld w;
  w.vaciarLibro();
  for (const char* numero : {"10", "12a", "2", "1"}) w.agregar({.folio = "2", .numero = numero});
  w.agregar({.folio = "10", .numero = "1"});
  w.agregar({.folio = "1", .numero = "99"});
  w.imprimirLibro();
  EXPECT_THAT(w.columnas("Folio"), ElementsAre("1", "2", "2", "2", "2", "10"));
  EXPECT_THAT(w.columnas("Numero"), ElementsAre("99", "1", "2", "10", "12a", "1"));
}

TEST(BookRows, AnnulledEntries_AreThere_RequestsAndOtherBooksAreNot) {
  LibroWorld w;
  w.run("UPDATE Bautismo SET Anulada = True");
  w.agregar({.libro = w.libro("Otro", "20000101")});
  w.agregar({.numero = "---", .libro = 0});
  w.imprimirLibro();
  EXPECT_THAT(w.columnas("NombreHijo"), ElementsAre("Lucía"));
  w.imprimirIndice();
  EXPECT_THAT(w.columnas("NombreHijo"), ElementsAre("Lucía", "Lucía"));
}

TEST(BookRows, Index_TakesItsColumnsAsStored) {
  LibroWorld w;
  w.run("UPDATE Institucion SET InstitucionTipo=\"\"");
  w.run("UPDATE Libro_Bautismo SET FechaCreacion=\"19980301\"");
  w.imprimirIndice();
  EXPECT_EQ(w.fila(), (Row{{"InstitucionNombre", "San Ginés Mártir"},
                           {"InstitucionTipo", ""},
                           {"Libro", "2003/01"},
                           {"Folio", "12"},
                           {"Numero", "23a"},
                           {"PrimerApellidoHijo", "García"},
                           {"SegundoApellidoHijo", "Pérez"},
                           {"NombreHijo", "Lucía"},
                           {"Año", "1998"},
                           {"Letra", "G"}}));
}

TEST(BookRows, IndexLetters_AreThoseOfTheTrimmedSurname_OrderIsTheStores) {
  LibroWorld w;
  w.vaciarLibro();
  for (const char* apellido : {"ñíguez", "Núñez", "Oliva", "  zapata", "Álvarez", "alba", "", "李"})
    w.agregar({.apellido = apellido});
  w.imprimirIndice();
  EXPECT_THAT(w.columnas("PrimerApellidoHijo"),
              ElementsAre("", "  zapata", "alba", "Álvarez", "Núñez", "ñíguez", "Oliva", "李"));
  EXPECT_THAT(w.columnas("Letra"), ElementsAre("", "Z", "A", "Á", "N", "Ñ", "O", "李"));
  EXPECT_THAT(w.columnas("Año"), Each("2003"));
}

TEST(BookRows, IndexOfNamesakes_GoesBySecondSurnameThenName) {
  LibroWorld w;
  w.vaciarLibro();
  w.agregar({.nombre = "Zoe", .numero = "1"});
  const std::string berta = w.agregar({.nombre = "Berta", .numero = "2"});
  w.agregar({.nombre = "Ana", .numero = "10"});
  w.run("UPDATE Bautismo_Hijo SET SegundoApellido=\"Abad\" WHERE CodBautismo=" + berta);
  w.imprimirIndice();
  EXPECT_THAT(w.columnas("NombreHijo"), ElementsAre("Berta", "Ana", "Zoe"));
}

TEST(BookRows, DependentRowMissing_HidesTheEntryFromTheBook) {
  LibroWorld w;
  const std::string id = w.agregar({.nombre = "Sin madre", .folio = "30"});
  w.run("UPDATE Bautismo SET CodMadres = 99 WHERE IDBautismo=" + id);
  w.imprimirLibro();
  EXPECT_THAT(w.columnas("NombreHijo"), ElementsAre("Lucía"));
  // The index does not read the parents.
  w.conInformes().Execute("DELETE * FROM Documentos_Bautismo");
  w.imprimirIndice();
  EXPECT_THAT(w.columnas("NombreHijo"), UnorderedElementsAre("Lucía", "Sin madre"));
}

}  // namespace
}  // namespace fidaleon::tests
