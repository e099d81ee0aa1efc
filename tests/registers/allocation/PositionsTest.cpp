// The counters of a book and the climb to its first free position, in every register.

#include <sstream>

#include "registers/Rows.h"
#include "registers/allocation/ActualizacionFormato.h"
#include "registers/allocation/PosicionLibre.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::PositionsTest {

class ConLibro : public ::testing::TestWithParam<const Sacramento*> {
 protected:
  std::string sql(const PlantillaSql& texto) const { return sentencia(s, texto); }
  void crear(int formato) { libro = insertBook(mundo, s, sanJuan, {"El libro", false, formato}); }
  /// "1/1 1/2" become entries.
  void partidas(const std::string& texto) {
    std::istringstream in(texto);
    for (std::string p; in >> p;)
      insertRow(mundo, s.tablaPartidas,
                {{"codlibro", std::to_string(libro)},
                 {"folio", p.substr(0, p.find('/'))},
                 {"numero", quoted(p.substr(p.find('/') + 1))}});
  }
  void contadores(const std::string& p) {
    mundo.con().Execute(sql("UPDATE {Libros} SET FolioSiguiente=") + p.substr(0, p.find('/')) +
                        ", NumeroSiguiente=" + quoted(p.substr(p.find('/') + 1)));
  }
  std::string contadores() {
    const store::Recordset fila =
        mundo.con().Execute(sql("SELECT * FROM {Libros} ORDER BY {IDLibro} DESC"));
    return fila.text("FolioSiguiente") + "/" + fila.text("NumeroSiguiente");
  }
  std::string libre(std::optional<double> limite = {}) {
    const auto p = primeraPosicionLibre(mundo.con(), s, sanJuan, "El libro", limite);
    return p ? std::to_string(p->posicion.folio) + "/" + p->posicion.numero : "ninguna";
  }

  const Sacramento& s = *GetParam();
  TestWorld mundo;
  std::int32_t sanJuan = mundo.institucion("San Juan");
  std::int32_t libro = 0;
};

std::string palabra(const ::testing::TestParamInfo<const Sacramento*>& p) {
  return p.param->palabra;
}
const auto CADA_UNO = ::testing::Values(&BAUTISMO, &CONFIRMACION, &MATRIMONIO, &DEFUNCION);

class Contadores : public ConLibro {};
INSTANTIATE_TEST_SUITE_P(Sacramentos, Contadores, CADA_UNO, palabra);

TEST_P(Contadores, siguenALasPartidas) {
  const struct {
    const char* que;
    int formato;
    const char* partidas;
    const char* antes;
    const char* despues;
    bool salto;
  } casos[] = {
      {"a folio begun: its number follows those taken", 1, "1/1", "1/1", "1/2", false},
      {"the folio that was being filled is full", 1, "1/1 1/2 1/3 1/4", "1/2", "2/5", false},
      {"an empty folio in between", 1, "1/1 1/2 1/3 1/4 3/9 3/10 3/11 3/12", "1/1", "2/5", false},
      {"two to a folio: the number even when it is taken", 2, "1/1 1/2 2/3", "1/1", "2/3", false},
      {"the first folio is empty", 4, "2/7 2/8", "1/1", "1/1", false},
      {"one to a folio: behind the first run", 3, "3/1 4/2 7/5", "5/3", "5/3", false},
      {"one to a folio: the counters stood on 5", 3, "3/1 4/2 5/3 6/4 7/5", "5/3", "8/6", true},
      {"where the counters led", 2, "1/1 1/2 2/3 2/4", "2/4", "3/5", false},
      {"where they did not", 2, "1/1 1/2 2/3 2/4", "7/1", "3/5", true},
      {"no entries", 2, "", "6/8", "6/8", false},
      {"an unknown format", 9, "1/1", "6/8", "6/8", false},
  };
  for (const auto& caso : casos) {
    crear(caso.formato);
    partidas(caso.partidas);
    contadores(caso.antes);
    bool salto = false;
    actualizacionFormato(mundo.con(), s, libro, salto);
    EXPECT_EQ(contadores(), caso.despues) << caso.que;
    EXPECT_EQ(salto, caso.salto) << caso.que;
  }
}

TEST_P(Contadores, deMuchasSeguidas_sonLosDeCadaUna) {
  std::uint32_t azar = 7;
  const auto hasta = [&](std::uint32_t n) {
    azar = azar * 1664525 + 1013904223;
    return static_cast<std::int32_t>((azar >> 16) % n);
  };
  for (const int formato : {1, 2, 3}) {
    crear(formato);
    ActualizacionFormato seguidas(mundo.con(), s, libro);
    for (int i = 0; i < 60; ++i) {
      const Posicion p{i == 50 ? 0 : 1 + hasta(11),
                       std::to_string(hasta(30)) + (hasta(5) ? "" : "a")};
      const std::string antes = contadores();
      bool saltoDeUna = false, salto = false;
      partidas(std::to_string(p.folio) + "/" + p.numero);
      actualizacionFormato(mundo.con(), s, libro, saltoDeUna);
      const std::string deUna = contadores();
      contadores(antes);
      seguidas.sumar(p);
      seguidas.actualizar(salto);
      ASSERT_EQ(contadores(), deUna) << formato << " " << i;
      ASSERT_EQ(salto, saltoDeUna) << formato << " " << i;
    }
  }
}

class Subida : public ConLibro {};
INSTANTIATE_TEST_SUITE_P(Sacramentos, Subida, CADA_UNO, palabra);

TEST_P(Subida, afterADeletion_climbsToTheFirstFreePosition) {
  crear(1);
  partidas("1/1 1/2 1/3 1/4 2/5 2/6 2/6a 2/7 3/8");
  EXPECT_EQ(libre(), "3/9");
  EXPECT_EQ(contadores(), "3/9");
  partidas("3/9 3/12bis");
  EXPECT_EQ(libre(), "3/13");
}

TEST_P(Subida, tooManySteps_giveUpAndKeepWhatWasClimbed) {
  crear(3);
  std::string todas;
  for (int i = 1; i <= 20; ++i) todas += std::to_string(i) + "/" + std::to_string(i) + " ";
  partidas(todas);
  EXPECT_EQ(libre(2), "ninguna");
  EXPECT_EQ(contadores(), "10/10") << "twice four steps and the one that exceeded them";
  EXPECT_EQ(libre(2), "ninguna");
  EXPECT_EQ(libre(2), "21/21") << "the counters go on from where they stood";
}

TEST_P(Subida, capacityThatIsNotHandled_givesUpAtOnce) {
  crear(2);
  mundo.con().Execute("UPDATE Libros_Formato SET Partidas_Folio=3 WHERE IDFormato=2");
  partidas("1/1");
  EXPECT_EQ(libre(), "ninguna");
}

TEST_P(Subida, storeThatFailsHalfWay_leavesTheCountersAsLastWritten) {
  crear(3);
  partidas("1/1 2/2 3/3 4/4");
  auto* fallos = store::FailingEngine::wrap(mundo.con());
  fallos->failOn("update libro", store::ErrorKind::Busy, 3);
  EXPECT_THROW(libre(), store::Error);
  EXPECT_EQ(contadores(), "3/3");
  EXPECT_FALSE(mundo.con().inTransaction());
}

}  // namespace fidaleon::tests::PositionsTest
