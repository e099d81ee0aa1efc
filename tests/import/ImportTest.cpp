#include <algorithm>

#include "core/facade/cNucleo.h"
#include "dbase/LegacyTable.h"
#include "import/NombreCompleto.h"
#include "store/Engine.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::ImportTest {

using dbase::LegacyTable;

/// Columns of a table of the older program, all texts but for those named with a kind:
/// "Fecha_Bau:D".
struct Legacy {
  LegacyTable table;
  std::vector<std::string> names;

  explicit Legacy(const std::vector<std::string>& columns) {
    for (const std::string& column : columns) {
      const std::size_t sign = column.find(':');
      const char letter = sign == std::string::npos ? 'C' : column[sign + 1];
      names.push_back(column.substr(0, sign));
      table.column(names.back(), letter,
                   letter == 'D'   ? 8
                   : letter == 'M' ? 10
                   : letter == 'N' ? 12
                                   : 60);
    }
  }
  using Row = std::vector<std::pair<std::string, std::string>>;
  Legacy& row(const Row& values, char mark = ' ') {
    std::vector<std::string> all(names.size());
    for (const auto& [name, value] : values)
      all[static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin())] =
          value;
    table.row(all, mark);
    return *this;
  }
};

struct Progress : FDAPI::cProgreso {
  std::vector<std::int64_t> values;
  std::int64_t stopAt = -1;
  void Cargar(std::int64_t count, const std::string&, int, int) override {
    values.push_back(count);
  }
  void setValue(std::int64_t value) override {
    values.push_back(value);
    if (value == stopAt) throw forms::Cancelled();
  }
};

struct StageLabel : FDAPI::cEtiqueta {
  bool bold = false;
  int top = 0;
  void setNegrita(bool on) override { bold = on; }
  int Arriba() const override { return top; }
  void setArriba(int to) override { top = to; }
};

class Import : public testing::Test {
 protected:
  Import() {
    for (int i = 0; i < 4; ++i) stages[i].top = 20 * i, labels.push_back(&stages[i]);
  }
  /// `which` has the letter of each register that is brought: B, C, M, D.
  const ResultadoImportacion& run(const std::string& which, bool useParish = true, int order = 0) {
    const std::string folder = w.directory.path().string();
    const auto path = [&](char c) { return which.find(c) == std::string::npos ? "" : folder; };
    nucleo.ImportarInparGP(w.con(), labels, path('B'), path('C'), path('M'), path('D'), 7, "20",
                           progress, useParish, " San Juan ", "Madrid", 5, useParish, "San Juan",
                           "", 5, useParish, "San Juan", "Madrid", 5, useParish, "San Juan",
                           "Madrid", 5, static_cast<std::uint8_t>(order), 1, 2, 3, 4);
    return nucleo.UltimaImportacion();
  }
  void write(const Legacy& legacy, const std::string& name) {
    legacy.table.write(w.directory.path(), name);
  }
  /// The row of a table that was written last.
  std::string last(const std::string& table) {
    auto rows = w.con().Execute("SELECT * FROM " + table);
    std::string all;
    if (rows.EOF_()) return all;
    rows.MoveLast();
    for (int i = 0; i < rows.FieldCount(); ++i)
      if (!rows.Fields(i).Value().isNull())
        all += (all.empty() ? "" : "|") + rows.Fields(i).Value().text();
    return all;
  }
  TestWorld w;
  cNucleo nucleo{w.entorno};
  Progress progress;
  StageLabel stages[4];
  FDAPI::ColEtiqueta labels;
};

Legacy baptisms() {
  return Legacy({"Libro_B",     "Folio_B",   "Numero_B",   "Fecha_Bau:D", "Nombre",  "Apellido1",
                 "Apellido2",   "Padre",     "Pobl_Padre", "Prov_Padre",  "Abo_Pat", "Madre",
                 "Fecha_Nac:D", "Hora_Nac",  "Sexo",       "Padrino",     "Linea1",  "Linea2",
                 "Linea3",      "Observa:M", "Fecha_Mat:D"});
}

TEST_F(Import, Baptism_FillsItsFiveTablesAndItsBook) {
  write(baptisms()
            .row({{"Libro_B", "3"},
                  {"Folio_B", "9"},
                  {"Numero_B", "12a"},
                  {"Fecha_Bau", "20010304"},
                  {"Nombre", "Ana"},
                  {"Apellido1",
                   "Garc\xA1"
                   "a"},
                  {"Padre", "Juan Jos\x82 L\xA2pez Ruiz"},
                  {"Pobl_Padre", "Getafe"},
                  {"Prov_Padre", "Madrid"},
                  {"Abo_Pat", "El \"Rubio\""},
                  {"Madre",
                   "de la Pe\xA4"
                   "a Gil, Mar\xA1"
                   "a"},
                  {"Fecha_Nac", "20000101"},
                  {"Hora_Nac", "10:30"},
                  {"Sexo", "M"},
                  {"Linea1", "Primera"},
                  {"Linea3", "Tercera"},
                  {"Observa", "Una\r\nnota"}})
            .row({{"Libro_B", "3"},
                  {"Folio_B", "10"},
                  {"Numero_B", "1"},
                  {"Nombre", "Luis"},
                  {"Sexo", "X"}})
            .row({{"Libro_B", "3"}, {"Folio_B", "1"}, {"Numero_B", "1"}}, '*'),
        "baut");
  const RegistroImportado& r = run("B").registros.at(0);
  EXPECT_EQ(last("Libro_Bautismo"), "1|7|1|4|INPAR - 3|19010304|0|0|13|10");
  EXPECT_EQ(last("Bautismo"), "2|2|2|2|0|---|---|---|---|San Juan|5|Madrid|---|---|1|10|1|0");
  EXPECT_EQ(last("Bautismo_Hijo"), "2|Luis|Falta 2|Falta 2||---|---|---|0");
  EXPECT_EQ(w.value("SELECT NotasMarginales FROM Bautismo"), "Primera\r\n\r\nTercera\r");
  EXPECT_EQ(w.value("SELECT Observaciones FROM Bautismo"), "Una\r\nnota");
  EXPECT_THAT(last("Bautismo WHERE Folio=9"), HasSubstr("|19010304|"));
  EXPECT_THAT(last("Bautismo WHERE Folio=9"), testing::EndsWith("|1|9|12a|0"));
  EXPECT_EQ(last("Bautismo_Hijo WHERE Nombre=\"Ana\""),
            "1|Ana|García|Falta 1|Mujer|20000101|10:30|---|0");
  EXPECT_EQ(last("Bautismo_Padres WHERE IDPadres=1"),
            "1|Juan José|López|Ruiz|1|El ''Rubio''|0|---|0|0|0|0");
  EXPECT_EQ(last("Bautismo_Madres WHERE IDMadres=1"), "1|María|de la|Peña Gil|0|---|0|---|0|0|0|0");
  EXPECT_EQ(w.value("SELECT Nombre FROM Municipio"), "Getafe");
  EXPECT_EQ(r.libros, 1);
  EXPECT_EQ(r.borradas, 1);
  EXPECT_EQ(r.siglos, 1);
  EXPECT_TRUE(nucleo.UltimaImportacion().completa());
  EXPECT_EQ(progress.values, (std::vector<std::int64_t>{1, 0, 1, 1}));
  EXPECT_TRUE(stages[0].bold);
}

TEST_F(Import, Confirmation_StandsInFolioOneAndTheBookGoesOnInFolioTwo) {
  write(Legacy({"Libro_C:N", "Numero_C:N", "F_Conf:D", "Nombre", "Apellido1", "Apellido2",
                "Direccion", "Poblacion", "Provincia", "F_Nac:D", "Padre", "Madre", "Padrino",
                "Ministro", "F_Bau:D", "Parr_Bau", "Libro_B", "Folio_B", "Numero_B"})
            .row({{"Libro_C", "100000"},
                  {"Numero_C", "7.00"},
                  {"Nombre", "Eva"},
                  {"Apellido1", "Gil"},
                  {"Apellido2", "Falta"},
                  {"Direccion", "Mayor 1"},
                  {"Padre", "Luis"},
                  {"Libro_B", "XII"},
                  {"Folio_B", "33 v"},
                  {"Numero_B", "4"}})
            .row({{"Libro_C", "2"}, {"Numero_C", "1"}, {"F_Conf", "19680505"}, {"Nombre", "Pía"}})
            .row({{"Libro_C", "100000"}, {"Numero_C", "10"}, {"Nombre", "Rosa"}}),
        "Conf");
  run("C", false);
  EXPECT_EQ(w.value("SELECT FechaCreacion FROM Libro_Confirmacion"), "19680505");
  EXPECT_EQ(last("Libro_Confirmacion"), "2|7|2|4|INPAR - 100000|19991231|0|0|11|2");
  EXPECT_EQ(w.value("SELECT PrimerApellido FROM Confirmacion WHERE Nombre=\"Rosa\""), "Falta 3");
  EXPECT_EQ(last("Confirmacion_Datos"), "3|---|---|---|---");
  EXPECT_EQ(last("Confirmacion WHERE Nombre=\"Eva\""),
            "2|0|Eva|Gil|Falta|---|0|Luis|---|Mayor 1|0|---|---|0|---|---|---|2|1|7|0");
  EXPECT_EQ(last("Confirmacion_Bautismo WHERE LibroBaut=\"XII\""), "2|---|---|---|0|XII|33|4");
  EXPECT_THAT(nucleo.UltimaImportacion().texto(),
              HasSubstr("CONF, registro 1: Confirmacion_Bautismo.FolioBaut: solo admite números: "
                        "«33 v»"));
}

TEST_F(Import, Marriage_FillsItsNineTablesAndTakesThePlaceWhereItWas) {
  write(Legacy({"Libro_M",    "Folio_M:N",  "Numero_M",  "Fecha_Boda:D", "Iglesia",
                "Nombre_O",   "Apellido1O", "F_Nac_O:D", "POBL_CON_O",   "Nombre_A",
                "Apellido1A", "F_Nac_A:D",  "Nom_Pa",    "Nom_Mo",       "R_CIVIL_A",
                "Testigo1",   "Test1_DNI",  "Testigo2",  "Sacerdote",    "F_RESAC_O:D"})
            .row({{"Libro_M", "I"},
                  {"Folio_M", "4"},
                  {"Numero_M", "8"},
                  {"Fecha_Boda", "19500601"},
                  {"Iglesia", "Santa Ana"},
                  {"Nombre_O", "Pedro"},
                  {"Apellido1O", "Sanz"},
                  {"F_Nac_O", "19250101"},
                  {"POBL_CON_O", "Parla"},
                  {"Nombre_A", "Luisa"},
                  {"Apellido1A", "Mora"},
                  {"F_Nac_A", "19510101"},
                  {"Nom_Pa", "Blas"},
                  {"Nom_Mo", "In\x82s"},
                  {"R_CIVIL_A", "Toledo"},
                  {"Testigo1", "Sanz Gil Juan"},
                  {"Test1_DNI", "1-A"},
                  {"Sacerdote", "D. Luis"},
                  {"F_RESAC_O", "19900503"}}),
        "MATR");
  run("M", false, 1);
  EXPECT_EQ(last("Libro_Matrimonio"), "1|7|3|4|INPAR - I|19500601|0|0|9|5");
  EXPECT_EQ(last("Matrimonio_Novios"),
            "1|Pedro|Sanz|---|---|25|---|19250101|0|---|0|---|0|---|1|0");
  EXPECT_EQ(last("Matrimonio_Novias"), "1|Luisa|Mora|---|---|0|---|19510101|0|---|0|---|0|---|0|0");
  EXPECT_EQ(w.value("SELECT Nombre FROM Provincia WHERE Codigo_Oficial=0"), "INPAR - OTRAS");
  EXPECT_EQ(last("Matrimonio_Novios_Bautismo"), "1|---|---|---|0|---|0|---");
  EXPECT_EQ(last("Matrimonio_Novios_RegCivil"), "1|---|---|Inés|---|---|---|---");
  EXPECT_EQ(last("Matrimonio_Novias_RegCivil"), "1|---|Blas|---|Toledo|---|---|---");
  EXPECT_EQ(last("Matrimonio"), "1|1|1|0|Santa Ana|0|---|0|---|---|1|4|8|0");
  EXPECT_EQ(last("Matrimonio_Compromiso"), "1|19500601|---|---|---|D. Luis|---|---|0|---|---|---");
  EXPECT_EQ(last("Matrimonio_Expediente"), "1|Juan|Sanz|Gil|1-A|---|0|---|---|---|---|---|0");
}

TEST_F(Import, Death_IsCutToItsLimitsAndNeverOfNegativeAge) {
  const std::string name(25, 'N');
  write(Legacy({"Libro_D", "Folio_D", "Numero_D", "Nombre", "Apellido1", "F_Nac:D", "F_Fallec:D",
                "H_Fallec", "Nom_Cony", "Ap1_Cony", "Ap2_Cony", "Hijos", "Sacra", "E_Civil"})
            .row({{"Libro_D", "1"},
                  {"Folio_D", "2"},
                  {"Numero_D", "3"},
                  {"Nombre", name},
                  {"F_Nac", "20000101"},
                  {"F_Fallec", "19990101"},
                  {"H_Fallec", "a las 7"},
                  {"Nom_Cony", "Ana"},
                  {"Ap2_Cony", "Ruiz"},
                  {"Hijos", "Eva"},
                  {"E_Civil", "Viudo"}}),
        "DEFU");
  const RegistroImportado& r = run("D").registros.at(0);
  EXPECT_EQ(last("Libro_Defuncion"), "1|7|4|4|INPAR - 1|19990101|0|0|4|3");
  EXPECT_EQ(last("Defuncion"),
            "1|0|" + name.substr(0, 20) +
                "|---|---|0|---|0|Viudo|Ana Ruiz|---|Eva|---|---|San Juan|5|Madrid|"
                "---|---|1|2|3|0|---");
  EXPECT_EQ(last("Defuncion_Datos"), "1|---|0|19990101|a las|---|0|---|---|---|---");
  EXPECT_EQ(r.cortados, 2);
  EXPECT_THAT(nucleo.UltimaImportacion().texto(), HasSubstr("«a las 7»"));
  EXPECT_TRUE(stages[3].bold);
  EXPECT_EQ(stages[3].top, 40);
}

TEST_F(Import, EntryThatCannotBeWritten_IsToldAndTheNextFollows) {
  write(baptisms()
            .row({{"Libro_B", "1"}, {"Numero_B", "1"}, {"Nombre", "Ana"}})
            .row({{"Libro_B", "1"}, {"Numero_B", "2"}, {"Nombre", "Ana"}})
            .row({{"Libro_B", "1"}, {"Numero_B", "3"}, {"Nombre", "Ana"}, {"Padre", "Blas"}})
            .row({{"Libro_B", "1"}, {"Numero_B", "4"}, {"Nombre", "Ana"}, {"Padre", "Blas"}})
            .row({{"Numero_B", std::string(40, '9')}, {"Nombre", "Sin libro"}}),
        "BAUT");
  for (const char* when : {"Hijo WHEN NEW.Nombre = 'Ana'", "Padres WHEN NEW.Nombre = 'Blas'"})
    w.con().engine().run(std::string("CREATE TRIGGER t") + when[0] + " BEFORE INSERT ON Bautismo_" +
                         when + " BEGIN SELECT RAISE(ABORT, 'no'); END");
  for (int i = 0; i < 3; ++i)
    w.user.expectMessage("¡Se ha producido un error al introducir datos de bautismo!");
  w.user.expectMessage("¿Seguir sin avisar de cada error?", Answer::Yes);
  const ResultadoImportacion& result = run("B");
  EXPECT_EQ(w.value("SELECT Nombre FROM Libro_Bautismo"), "INPAR - ---");
  EXPECT_EQ(w.value("SELECT NumeroSiguiente FROM Libro_Bautismo"), "1");
  EXPECT_EQ(w.count("Bautismo"), 3);
  EXPECT_EQ(w.count("Bautismo_Madres"), 5);
  EXPECT_EQ(result.registros[0].escritas, 1);
  EXPECT_EQ(result.registros[0].rechazadas, 4);
  EXPECT_FALSE(result.completa());
  EXPECT_THAT(result.texto(), HasSubstr("RECHAZADA: BAUT, registro 1: Bautismo_Hijo: "));
  EXPECT_THAT(result.texto(), HasSubstr("registro 4: Bautismo: depende de lo que falta"));
}

TEST_F(Import, CancelledOrTriedOut_LeavesWholeBooksOrNone) {
  write(baptisms()
            .row({{"Libro_B", "1"},
                  {"Nombre", "Ana"},
                  {"Pobl_Padre", "Yeles"},
                  {"Prov_Padre", "Toledo"}})
            .row({{"Libro_B", "2"}, {"Nombre", "Eva"}}),
        "BAUT");
  nucleo.OpcionesImportacion("", true);
  EXPECT_EQ(run("B").registros[0].libros, 2);
  EXPECT_TRUE(nucleo.UltimaImportacion().completa());
  EXPECT_EQ(w.count("Libro_Bautismo") + w.count("Bautismo"), 0);
  nucleo.OpcionesImportacion("", false);
  EXPECT_EQ(w.count("Municipio WHERE Nombre=\"Yeles\""), 0);
  progress.stopAt = 1;
  EXPECT_TRUE(run("BCMD").cancelada);
  EXPECT_EQ(w.count("Bautismo"), 1);
}

TEST_F(Import, TableThatIsNotThere_IsToldAndTheOthersFollow) {
  write(baptisms().row({{"Libro_B", "1"}}), "BAUT");
  w.user.answerAnything(Answer::Ok);
  const ResultadoImportacion& result = run("BD");
  EXPECT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(result.registros[1].fallo, HasSubstr("«DEFU.DBF»"));
  EXPECT_EQ(w.count("Bautismo"), 1);
}

TEST(FullName, isToldApartByItsCommaOrByItsWords) {
  const struct {
    const char* text;
    int order;
    const char *name, *first, *second;
  } cases[] = {
      {"Ruiz, Juan", 0, "Juan", "Ruiz", ""},
      {"Ruiz Gil,Juan Luis", 1, "Juan Luis", "Ruiz", "Gil"},
      {"de Ruiz Gil, Ana", 0, "Ana", "de Ruiz", "Gil"},
      {"a b c d e, Ana", 0, "Ana", "a b", "e"},
      {"Juan", 0, "Juan", "", ""},
      {"Juan Ruiz", 0, "Juan", "Ruiz", ""},
      {"Ruiz Juan", 1, "Juan", "Ruiz", ""},
      {"a b c d", 1, "c d", "a", "b"},
      {"a b c d e", 0, "a b", "c d", "e"},
      {"a b c d e", 1, "e", "a b", "c d"},
      {"a b c d e f", 1, "f", "a b", "c d"},
      {"Juan (+) Ruiz 2", 0, "Juan", "Ruiz", ""},
  };
  for (const auto& c : cases) {
    const NombreCompleto n = separarNombre(c.text, static_cast<std::uint8_t>(c.order));
    EXPECT_EQ(n.nombre + "/" + n.apellido1 + "/" + n.apellido2,
              std::string(c.name) + "/" + c.first + "/" + c.second)
        << c.text << " " << c.order;
  }
}

}  // namespace fidaleon::tests::ImportTest
