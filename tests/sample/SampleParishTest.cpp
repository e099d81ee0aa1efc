#include "core/statements/Sentencia.h"
#include "parish/Parish.h"
#include "registers/common/FormaPartida.h"
#include "registers/repair/PartidasIncompletas.h"
#include "sample/SampleNames.h"
#include "sample/SamplePopulation.h"
#include "support/Identidad.h"

namespace fidaleon::app::SampleParishTest {

class SampleParish : public ParishTest {
 protected:
  void SetUp() override { create(); }
};

TEST_F(SampleParish, EveryEntryIsWholeForTheReaders) {
  EXPECT_EQ(cuentaPartidasIncompletas(desk->parish()), 0);
  EXPECT_EQ(rowsOf("SELECT CodBautismo FROM Bautismo_Hijo WHERE CodMunicipioNac NOT IN (SELECT "
                   "IDMunicipio FROM Municipio)"),
            0);
}

TEST_F(SampleParish, PositionsAreWhatTheBooksWouldHaveGiven) {
  for (const FormaPartida& f : formasPartida()) {
    auto rows = desk->parish().Execute(
        sentencia(f.sacramento,
                  "SELECT Nuevo, CodLibro, Folio, Numero FROM {Partidas}, {Libros} WHERE "
                  "{IDLibro}=CodLibro ORDER BY CodLibro, Folio, Val(Numero)"));
    EXPECT_GE(rows.RecordCount(), 40) << f.registro;
    std::int64_t book = 0;
    std::int64_t expected = 0;
    for (; !rows.EOF_(); rows.MoveNext()) {
      if (rows.integer("CodLibro") != book) expected = 0;
      book = rows.integer("CodLibro");
      ++expected;
      EXPECT_EQ(rows.integer("Numero"), expected) << f.registro;
      EXPECT_EQ(rows.integer("Folio"), rows.flag("Nuevo") ? expected : (expected - 1) / 4 + 1);
    }
  }
}

TEST_F(SampleParish, TheBaptismsOfTheConfirmedAreInTheBooks) {
  const auto told = rowsOf("SELECT * FROM Confirmacion_Bautismo WHERE LibroBaut<>\"---\"");
  EXPECT_GE(told, 20);
  EXPECT_EQ(rowsOf("SELECT * FROM Confirmacion, Confirmacion_Bautismo, Bautismo, Bautismo_Hijo, "
                   "Libro_Bautismo WHERE CodConfirmacion=IDConfirmacion AND CodBautismo=IDBautismo "
                   "AND IDLibroBautismo=Bautismo.CodLibro AND Libro_Bautismo.Nombre=LibroBaut AND "
                   "Bautismo.Folio=FolioBaut AND Bautismo.Numero=NumeroBaut AND "
                   "Bautismo_Hijo.Nombre=Confirmacion.Nombre AND "
                   "Bautismo_Hijo.PrimerApellido=Confirmacion.PrimerApellido"),
            told);
}

TEST_F(SampleParish, EveryPersonOfTheCensusIsWhole) {
  const auto all = count("SELECT COUNT(IDPadron) FROM Padron");
  EXPECT_GE(all, 100);
  for (const char* table : {"Padron_Nacimiento", "Padron_Bautismo", "Padron_Comunion",
                            "Padron_Confirmacion", "Padron_Matrimonio", "Padron_Defuncion"})
    EXPECT_EQ(
        rowsOf("SELECT IDPadron FROM Padron, " + std::string(table) + " WHERE CodPadron=IDPadron"),
        all)
        << table;
  EXPECT_EQ(rowsOf("SELECT DISTINCT DNI FROM Padron WHERE DNI<>\"\""),
            rowsOf("SELECT DNI FROM Padron WHERE DNI<>\"\""));
  for (auto rows = desk->parish().Execute("SELECT DNI FROM Padron WHERE DNI<>\"\""); !rows.EOF_();
       rows.MoveNext())
    EXPECT_TRUE(support::nifValido(rows.text("DNI"))) << rows.text("DNI");
}

TEST_F(SampleParish, CollaboratorsAreInAGroupOnce_AndTheYearHasItsTasks) {
  EXPECT_GE(rowsOf("SELECT * FROM Padron_TipoPersona WHERE CodTipoPersona=3"), 25);
  EXPECT_EQ(rowsOf("SELECT DISTINCT CodPadron, CodGrupo FROM Padron_Actividad"),
            rowsOf("SELECT * FROM Padron_Actividad"));
  EXPECT_EQ(rowsOf("SELECT * FROM Padron_Actividad, Grupo, Actividad, Cargo WHERE "
                   "CodGrupo=IDGrupo AND CodActividad=IDActividad AND CodCargo=IDCargo"),
            rowsOf("SELECT * FROM Padron_Actividad"));
  EXPECT_GE(rowsOf("SELECT * FROM Tareas"), 120);
  EXPECT_EQ(rowsOf("SELECT * FROM Tareas WHERE HoraFin<HoraInicio"), 0);
}

TEST(SamplePopulation, LivesFitTogether) {
  const text::Date last{2026, 5, 20};
  const auto people = sample::makePopulation(1924, 1, "San Blas", last);
  text::Date before{};
  for (const sample::Baptism& b : people.baptisms) {
    const sample::Couple& parents = people.couples[static_cast<std::size_t>(b.couple)];
    EXPECT_TRUE(text::isValid(b.birth) && text::isValid(b.day));
    EXPECT_LT(parents.wedding, b.birth);
    EXPECT_LT(b.birth, b.day);
    EXPECT_LE(b.day, last);
    EXPECT_LE(before, b.day);
    before = b.day;
  }
}

}  // namespace fidaleon::app::SampleParishTest
