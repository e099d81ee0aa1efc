// Every document of entries and books against its golden row, and what all members do beside the
// row.

#include <array>

#include "GoldenRows.h"
#include "documents/Miembros.h"
#include "documents/MiembrosMatrimonio.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

namespace {

std::vector<Golden> todos() {
  std::vector<Golden> all;
  for (const auto& suyos : {bautismos(), confirmaciones(), matrimonios(), defunciones()})
    all.insert(all.end(), suyos.begin(), suyos.end());
  return all;
}

class Documents : public ::testing::TestWithParam<Golden> {
 protected:
  Documents() {
    if (GetParam().solicitud)
      for (const char* sql : GetParam().sacramento->solicitud) w.run(sql);
  }
  void imprimir() { GetParam().ejecutar(w); }
  std::int64_t filas() { return w.filas(GetParam().sacramento->tabla); }

  PartidasWorld w;
};

TEST_P(Documents, Entry_FillsItsColumnsAndNoOther) {
  imprimir();
  const std::vector<Row> escritas = w.todas(GetParam().sacramento->tabla);
  EXPECT_THAT(escritas, ::testing::SizeIs(GetParam().filas));
  EXPECT_THAT(escritas, Each(GetParam().fila));
  for (const auto& [tabla, fila] : GetParam().companeras) {
    EXPECT_THAT(w.todas(tabla), ::testing::SizeIs(GetParam().filas)) << tabla;
    EXPECT_THAT(w.todas(tabla), Each(fila)) << tabla;
  }
}

TEST_P(Documents, DependentRowMissing_NoRowAndNoMessage) {
  const Sacramental& s = *GetParam().sacramento;
  // An index reads no more than it prints.
  if (std::string(GetParam().miembro).starts_with("ImprimirIndice")) return;
  for (const char* tabla : s.dependientes) {
    if (GetParam().solicitud && std::string(tabla).starts_with("Libro_")) continue;
    PartidasWorld otra;
    if (GetParam().solicitud)
      for (const char* sql : s.solicitud) otra.run(sql);
    otra.run(std::string("DELETE * FROM ") + tabla);
    GetParam().ejecutar(otra, false);
    EXPECT_EQ(otra.filas(s.tabla), 0) << tabla;
    EXPECT_FALSE(otra.conInformes().inTransaction());
  }
}

TEST_P(Documents, QuotesAndScriptsOfAnyKind_ArriveAsTheyAreStored) {
  const Sacramental& s = *GetParam().sacramento;
  w.run(std::string("UPDATE ") + s.conNotas +
        " SET Parroquia='Łucja \"Luz\" 李 d''Ors', NotasMarginales='Por \"Luz\" O''Hara'");
  imprimir();
  const Row fila = w.todas(s.tabla).at(0);
  if (fila.contains(s.parroquia)) {
    EXPECT_EQ(fila.at(s.parroquia), "Łucja \"Luz\" 李 d'Ors");
  }
  if (fila.contains("NotasMarginales")) {
    EXPECT_THAT(fila.at("NotasMarginales"), StartsWith("Por \"Luz\" O'Hara"));
  }
}

TEST_P(Documents, AStepOnTheReportsFails_RollsBackAndNamesTheMember) {
  const std::string insercion = std::string("INSERT INTO ") + GetParam().sacramento->tabla;
  for (const std::string& paso : {std::string("BEGIN"), insercion, std::string("COMMIT")}) {
    PartidasWorld otra;
    if (GetParam().solicitud)
      for (const char* sql : GetParam().sacramento->solicitud) otra.run(sql);
    store::FailingEngine::wrap(otra.conInformes())->failOn(paso, store::ErrorKind::DiskFull);
    otra.user.answerAnything(Answer::Ok);
    GetParam().ejecutar(otra, paso != "BEGIN");
    EXPECT_EQ(otra.filas(GetParam().sacramento->tabla), 0) << paso;
    EXPECT_FALSE(otra.conInformes().inTransaction()) << paso;
    ASSERT_FALSE(otra.user.messages().empty()) << paso;
    EXPECT_THAT(
        otra.user.messages().back().text,
        HasSubstr(GetParam().sacramento->porCargador
                      ? "  - "
                      : std::string("FidaleonNucleo / cInformes / ") + GetParam().miembro + ")"));
  }
}

INSTANTIATE_TEST_SUITE_P(Entries, Documents, ::testing::ValuesIn(todos()),
                         [](const auto& caso) { return std::string(caso.param.miembro); });

TEST(DocumentsTable, EveryMember_HasAGoldenRow) {
  std::vector<std::string> probados;
  for (const Golden& golden : todos()) probados.emplace_back(golden.miembro);
  std::vector<std::string> escritos;
  for (const documents::Miembro& miembro : documents::miembros())
    escritos.emplace_back(miembro.kind.member);
  for (const documents::MiembroMatrimonio& miembro : documents::miembrosMatrimonio())
    escritos.emplace_back(miembro.nombre);
  EXPECT_THAT(probados, ::testing::UnorderedElementsAreArray(escritos));
}

}  // namespace

void Golden::ejecutar(PartidasWorld& w, bool hayQueImprimir) const {
  esperarDialogos(w.user, miembro, hayQueImprimir);
  std::array<bool, 3> via{};
  if (const auto* firmado = std::get_if<Firmado>(&imprimir))
    (w.informes.**firmado)(w.con(), w.conInformes(), 1, FIRMA, "20261103");
  else if (const auto* config = std::get_if<ConConfig>(&imprimir))
    (w.informes.**config)(w.con(), w.conInformes(), 1, w.config);
  else if (const auto* vias = std::get_if<ConVias>(&imprimir))
    (w.informes.**vias)(w.con(), w.conInformes(), 1, via[0], via[1], via[2]);
  else
    (w.informes.*std::get<SinFirma>(imprimir))(w.con(), w.conInformes(), 1);
}

}  // namespace fidaleon::tests
