#include <gtest/gtest.h>

#include "core/statements/Sentencia.h"

namespace fidaleon::ContractSentenciaTest {

static_assert(PlantillaSql::valida("SELECT {IDPartida} FROM {Partidas} WHERE a=1"));
static_assert(!PlantillaSql::valida("SELECT {IDBautismo} FROM {Partidas}"));
static_assert(!PlantillaSql::valida("SELECT {IdPartida} FROM {Partidas}"));
static_assert(!PlantillaSql::valida("SELECT {IDPartida FROM {Partidas}"));
static_assert(!PlantillaSql::valida("SELECT IDPartida} FROM Bautismo"));

TEST(Sentencia, placesOfEachSacrament_areItsTablesAndKeys) {
  const auto leida = [](const Sacramento& s) {
    return sentencia(s,
                     "SELECT {IDPartida}, {idlibro} FROM {Partidas}, {libros}, {Libros}_{Palabra}");
  };
  EXPECT_EQ(leida(BAUTISMO),
            "SELECT IDBautismo, idlibrobautismo FROM Bautismo, libro_bautismo, "
            "Libro_Bautismo_Bautismo");
  EXPECT_EQ(leida(DEFUNCION),
            "SELECT IDDifunto, idlibrodefuncion FROM Defuncion, libro_defuncion, "
            "Libro_Defuncion_Defuncion");
}

}  // namespace fidaleon::ContractSentenciaTest
