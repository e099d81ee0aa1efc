// The rows of a printed book and of its index: order, and what belongs to it.

#include "LibroWorld.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::BookRowsTest {

class BookRows : public ::testing::TestWithParam<Registro> {
 protected:
  LibroWorld w{GetParam()};
};

TEST_P(BookRows, Order_IsByValueOfFolioAndNumber) {
  w.vaciarLibro();
  for (const char* numero : {"10", "12a", "2", "1"}) w.agregar({.folio = "2", .numero = numero});
  w.agregar({.folio = "10", .numero = "1"});
  w.agregar({.folio = "1", .numero = "99"});
  w.imprimir(w.registro.libro);
  EXPECT_THAT(w.columnas("Folio"), ElementsAre("1", "2", "2", "2", "2", "10"));
  EXPECT_THAT(w.columnas("Numero"), ElementsAre("99", "1", "2", "10", "12a", "1"));
}

TEST_P(BookRows, AnnulledEntries_AreThere_RequestsAndOtherBooksAreNot) {
  w.en("UPDATE {Partidas} SET Anulada = True");
  w.agregar({.libro = w.libro("Otro", "20000101")});
  w.agregar({.numero = "---", .libro = 0});
  w.imprimir(w.registro.libro);
  EXPECT_THAT(w.nombres(), ElementsAre("Lucía"));
  w.imprimir(w.registro.indice);
  EXPECT_THAT(w.nombres(), ElementsAre("Lucía", "Lucía"));
}

TEST_P(BookRows, IndexLetters_AreThoseOfTheTrimmedSurname_OrderIsTheStores) {
  w.vaciarLibro();
  for (const char* apellido : {"ñíguez", "Núñez", "Oliva", "  zapata", "Álvarez", "alba", "", "李"})
    w.agregar({.apellido = apellido});
  w.imprimir(w.registro.indice);
  EXPECT_THAT(w.columnas(w.registro.filas().persona.primerApellido),
              ElementsAre(w.registro.porCargador() ? "---" : "", "  zapata", "alba", "Álvarez",
                          "Núñez", "ñíguez", "Oliva", "李"));
  EXPECT_THAT(w.columnas("Letra"), ElementsAre("", "Z", "A", "Á", "N", "Ñ", "O", "李"));
  EXPECT_THAT(w.columnas("Año"), Each("2003"));
}

TEST_P(BookRows, IndexOfNamesakes_GoesBySecondSurnameThenName) {
  w.vaciarLibro();
  w.agregar({.nombre = "Zoe", .numero = "1"});
  w.agregar({.nombre = "Berta", .numero = "2"});
  w.agregar({.nombre = "Ana", .numero = "10"});
  w.run(std::string("UPDATE ") + w.tablaPersona() +
        " SET SegundoApellido=\"Abad\" WHERE Nombre=\"Berta\"");
  w.imprimir(w.registro.indice);
  EXPECT_THAT(w.nombres(), ElementsAre("Berta", "Ana", "Zoe"));
}

TEST_P(BookRows, EachPlace_IsAskedForOnce) {
  for (int folio = 20; folio < 60; ++folio) w.agregar({.folio = std::to_string(folio)});
  const store::FailingEngine* motor = store::FailingEngine::wrap(w.con());
  w.imprimir(w.registro.libro);
  EXPECT_EQ(w.filas(), 41);
  // Towns and provinces of four places, with what the library asks before each.
  EXPECT_LE(
      std::count_if(motor->executed().begin(), motor->executed().end(),
                    [](const std::string& sql) { return sql.find("IDMunicipio") != sql.npos; }),
      2 * 4);
}

INSTANTIATE_TEST_SUITE_P(Registers, BookRows, ::testing::ValuesIn(REGISTROS), nombreDelRegistro);

}  // namespace fidaleon::tests::BookRowsTest
