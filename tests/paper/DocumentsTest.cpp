// Every document of the catalogue over rows as their members write them.

#include <algorithm>
#include <filesystem>
#include <regex>

#include "paper/PdfText.h"
#include "paper/Report.h"
#include "paper/Rows.h"
#include "paper/ScratchTables.h"
#include "paper/TemplateReader.h"
#include "store/schema/Schema.h"
#include "text/Utf8.h"

namespace fidaleon::paper::test::DocumentsTest {

class Documents : public ::testing::TestWithParam<const Documento*> {
 protected:
  bool isBook() const { return std::string_view(document.orden) == "libro"; }
  std::size_t sheets() const {
    return readTemplate(FIDALEON_TEMPLATES, document.plantilla).bodies.size();
  }
  /// A book has a title page; a document of several sheets leaves out those that are not wanted.
  bool isShortest(int pages) const {
    return sheets() > 1 ? pages > 0 : pages == (isBook() ? 2 : 1);
  }
  /// Printed on the document that leaves no fact of its row out.
  bool isFact(const std::string& column) const {
    return std::string_view(document.plantilla) == "expediente_matrimonio_madrid" &&
           !std::regex_match(column, std::regex(".*Corta|Letra|Año|CodDoc.*|Institucion[ET].+|"
                                                "Novi[oa]Nacionalidad"));
  }
  bool hasNotes() const {
    return readTemplate(FIDALEON_TEMPLATES, document.plantilla)
        .columns.contains(QStringLiteral("NotasMarginales"));
  }
  Report report() const {
    return Report(*reports_, FIDALEON_TEMPLATES, document.plantilla, document.titulo);
  }
  const Documento& document = *GetParam();
  std::unique_ptr<store::Connection> reports_ = store::memoryDatabase(store::reportsSchema());
};

TEST_P(Documents, fullRow_printsOnItsPage_withItsValues) {
  const Values row = fullRow(document.operacion);
  insert(*reports_, document.operacion, row);
  const Report r = report();
  EXPECT_TRUE(isShortest(r.pageCount())) << r.pageCount();
  const std::string text = text::replaceAll(pdfText(r), "- ", "-");  // broken at a hyphen
  const PersonaDocumento& person = filasDocumento(*document.sacramento)->persona;
  const std::vector<std::string> expected{person.nombre, person.primerApellido,
                                          person.segundoApellido, "NombrePadre", "NombreMadre"};
  for (const auto& [column, value] : row) {
    if (!isFact(column) && std::count(expected.begin(), expected.end(), column) == 0) continue;
    EXPECT_THAT(text, HasSubstr(value)) << column;
  }
  EXPECT_THAT(text, Not(HasSubstr("---")));
}

TEST_P(Documents, blankRow_printsOnItsPage_withoutDashesOrLooseEnds) {
  insert(*reports_, document.operacion, blankRow(document.operacion));
  const Report r = report();
  EXPECT_TRUE(isShortest(r.pageCount())) << r.pageCount();
  for (const char* unread : {"{{", "---", ", ,", " ,", "D. .", "Dª. ."})
    EXPECT_THAT(pdfText(r), Not(HasSubstr(unread)));
}

TEST_P(Documents, longNotes_goOnOverleaf_withoutLosingAWord) {
  if (!hasNotes()) return;
  std::string notes;
  for (int i = 0; i < 1500; ++i) notes += "nota" + std::to_string(i) + " ";
  insert(*reports_, document.operacion,
         with(fullRow(document.operacion), {{"NotasMarginales", notes + "FIN"}}));
  const Report r = report();
  EXPECT_GE(r.pageCount(), 2);
  const std::string text = pdfText(r);
  for (const int i : {0, 1, 700, 1499})
    EXPECT_THAT(text, HasSubstr("nota" + std::to_string(i))) << i;
  int missing = 0;
  for (int i = 0; i < 1500; ++i)
    if (text.find("nota" + std::to_string(i)) == std::string::npos) ++missing;
  EXPECT_EQ(missing, 0);
  EXPECT_THAT(text, HasSubstr("FIN"));
}

TEST_P(Documents, columnsOfTheTemplate_areFilledByItsMember) {
  // The notice of Santiago is an operation of all editions, over rows of its own there.
  const std::string own = "InformeComunicacionMatrimonioSantiago";
  const bool ofSantiago =
      std::string_view(document.plantilla) == "notificacion_matrimonio_santiago";
  const std::vector<std::string> filled = columnsOf(ofSantiago ? own : document.operacion);
  for (const QString& column : readTemplate(FIDALEON_TEMPLATES, document.plantilla).columns) {
    if (column.startsWith('@') || column.startsWith(QLatin1String("examen"))) continue;
    const std::string name = column.section('.', -1).toStdString();
    const bool found = std::any_of(filled.begin(), filled.end(), [&](const std::string& f) {
      return text::equalsNoCase(f, name) || text::equalsNoCase(f, "[" + name + "]");
    });
    EXPECT_TRUE(found) << name;
  }
}

std::vector<const Documento*> catalogue() {
  std::vector<const Documento*> all;
  for (const Documento& d : documentos()) all.push_back(&d);
  return all;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Documents, ::testing::ValuesIn(catalogue()),
                         [](const auto& tested) {
                           return std::string(tested.param->plantilla) + tested.param->edicion;
                         });

std::string printed(const std::string& operation, const Values& row) {
  const auto reports = store::memoryDatabase(store::reportsSchema());
  insert(*reports, operation, row);
  const Documento* d = documento(operation);
  return pdfText(Report(*reports, FIDALEON_TEMPLATES, d->plantilla, d->titulo));
}

const Values kBoy{{"[Al niño/A la niña]", "al niño"}, {"[Nacido/Nacida]", "nacido"}};

TEST(Wording, entryOfABoy_isTheWholeText) {
  const std::string op = "InformePartidaBautismo";
  const std::string text = text::replaceAll(printed(op, with(fullRow(op), kBoy)), "- ", "-");
  EXPECT_THAT(text, HasSubstr("Libro: Libro XXIII de Bautismos Folio: 137 Número: 12a Nombre y "
                              "apellidos: María"));
  EXPECT_THAT(text, HasSubstr("Fecha: 12/10/1987 NOTAS MARGINALES"));
  const QString whole = QString::fromUtf8(R"(
    En la Parroquia de Nuestra Señora de la Asunción, de Alcalá de Henares, provincia de Madrid, de
    la diócesis de Madrid-Alcalá, el día 12 de octubre de 1987, el Presbítero D. José Ignacio
    Gutiérrez Peñalver bautizó solemnemente al niño María del Carmen Inmaculada Fernández de
    Córdoba Ruiz-Castañeda, nacido el 3 de septiembre de 1987, a las 14:35 horas, en Hospital
    Universitario Príncipe de Asturias, siendo natural de Alcalá de Henares, provincia de Madrid.
    Es hijo de D. Francisco Javier Fernández de Córdoba Muñoz, natural de Priego de Córdoba,
    provincia de Córdoba, y de Dª. Ana María Ruiz-Castañeda Gómez, natural de Sigüenza, provincia
    de Guadalajara, residentes en calle Mayor, 24, 3.º izquierda, de Alcalá de Henares, provincia
    de Madrid. Contrajeron matrimonio en la Parroquia de Santa María la Mayor, de Alcalá de
    Henares, provincia de Madrid, el 8 de junio de 1985. Son sus abuelos paternos D. Antonio
    Fernández de Córdoba Lara, natural de Priego de Córdoba (Córdoba), y Dª. Dolores Muñoz Serrano,
    natural de Cabra (Córdoba). Son sus abuelos maternos D. Manuel Ruiz-Castañeda Ortega, natural
    de Sigüenza (Guadalajara), y Dª. Pilar Gómez Íñiguez, natural de Atienza (Guadalajara). Fueron
    padrinos D. Luis Alfonso Ruiz-Castañeda Gómez y Dª. Mercedes Fernández de Córdoba Muñoz, a los
    que se advirtió el parentesco espiritual con el bautizado y las demás obligaciones. Y para que
    conste lo firmo, fecha ut supra)");
  EXPECT_THAT(text, HasSubstr(whole.simplified().toStdString()));
}

struct Said {
  const char* operation;
  Values row;  // changes to a girl's full row
  std::vector<const char*> says;
  std::vector<const char*> doesNotSay;
};

class WordingOf : public ::testing::TestWithParam<Said> {};

TEST_P(WordingOf, row) {
  const Said& said = GetParam();
  const std::string text = printed(said.operation, with(fullRow(said.operation), said.row));
  for (const char* piece : said.says) EXPECT_THAT(text, HasSubstr(piece));
  for (const char* piece : said.doesNotSay) EXPECT_THAT(text, Not(HasSubstr(piece)));
}

const Values kNoFather{{"NombrePadre", "---"},    {"PrimerApellidoPadre", "---"},
                       {"PoblacionPadre", "---"}, {"SegundoApellidoPadre", "---"},
                       {"ProvinciaPadre", "---"}, {"AbueloPaterno", "---"},
                       {"Padrino", "---"},        {"HoraNac", "---"}};
const char* const kCertificate = "InformeCertificadoPartidaBautismo";
const char* const kLiteral = "InformeCertificadoLiteralPartidaBautismo";
const char* const kEntry = "InformePartidaBautismo";
const char* const kEntryMenorca = "InformePartidaBautismoMenorca";

INSTANTIATE_TEST_SUITE_P(
    Documents, WordingOf,
    ::testing::Values(
        Said{kEntry,
             {},
             {"bautizó solemnemente a la niña María", "nacida el 3", "Es hija de D.",
              "con la bautizada", "de la diócesis de Madrid-Alcalá"},
             {"Arzobispado", "hijo", "bautizado"}},
        Said{kLiteral,
             with(kNoFather, {{"AbueloMaterno", "---"},
                              {"PoblacionAbueloMaterno", "---"},
                              {"ProvinciaAbueloMaterno", "---"}}),
             {"Es hija de ——— y de Dª.", "1987, en Hospital", "con domicilio en calle",
              "Son sus abuelos paternos D. ———, natural de Priego de Córdoba (Córdoba), y Dª. "
              "Dolores",
              "Es su abuela materna Dª. Pilar", "Fue madrina Dª."},
             {"horas", "padrino", "residentes"}},
        Said{"ImprimirDuplicadasBautismo",
             {{"AbueloPaterno", "---"}, {"AbuelaMaterna", "---"}, {"DireccionNac", "---"}},
             {"horas, en Alcalá", "D. ———, natural de Priego de Córdoba, y Dª. Dolores",
              "natural de Sigüenza, y Dª. ———, natural de Atienza"},
             {}},
        Said{kEntry,
             {{"Ministro", "Rvdo. D. Julián"},
              {"NombrePadre", "Don Josep"},
              {"Diocesis", "Archidiócesis de Toledo"},
              {"PoblacionPadre", "el Carpio"},
              {"ParroquiaBaut", "Ermita de San Gil"}},
             {"el Rvdo. D. Julián bautizó", "hija de D. Josep", "de la Archidiócesis de Toledo",
              "natural del Carpio", "En la Ermita de San Gil"},
             {}},
        Said{kEntry,
             {{"Ministro", "D. Julián"}, {"Padrino", "Dª. Eva"}, {"Madrina", "Dña. Luz"}},
             {"el Presbítero D. Julián", "Fueron padrinos Dª. Eva y Dª. Luz"},
             {"D. D"}},
        Said{kEntry, {{"NotasMarginales", "--- . . . . ."}}, {"No constan."}, {". . ."}},
        Said{kEntryMenorca,
             {{"PoblacionNac", "Alaior"},
              {"PoblacionMadre", "es Castell"},
              {"PoblacionPadre", "Es Mercadal"},
              {"ProvinciaNac", "Illes Balears"},
              {"Ministro", "Mn. Antoni"},
              {"Padrino", "Mn. Joan"},
              {"Madrina", "Sor Aina"},
              {"NombrePadre", "D. Josep"}},
             {"natural d’Alaior, província de les Illes Balears", "natural des Castell",
              "natural des Mercadal", "el prevere Mn. Antoni va", "baptisme Mn. Joan i Sor Aina",
              "filla del Sr. Josep", "amb la batejada"},
             {"del Josep", "de Alaior"}},
        Said{kCertificate,
             {{"Sexo", "D./Dª"}},
             {"Residencia de los padres calle Mayor, 24", "Diócesis de Madrid-Alcalá"},
             {"D./Dª"}},
        Said{kCertificate,
             {{"InstitucionDiocesis", "Archidiócesis de Madrid"}, {"AbuelaPaterna", "Inés Gil"}},
             {"(Córdoba) e Inés Gil"},
             {"Diócesis de Archi"}},
        Said{"InformeVolanteBautismo",
             with(kNoFather, {{"NombreMadre", "---"},
                              {"PrimerApellidoMadre", "---"},
                              {"SegundoApellidoMadre", "---"}}),
             {"Castañeda nació"},
             {}},
        Said{"InformeVolanteBautismoMenorca", {}, {"filla del Sr."}, {}},
        Said{
            "InformeVolanteBautismoMenorca", {{"[Nacido/Nacida]", "hijo"}}, {", fill del Sr."}, {}},
        Said{"InformeCertificadoPartidaConfirmacion",
             {{"Edad", "1"}, {"CargoMinistro", "---"}},
             {"Edad 1 año el día", "Cargo del ministro No consta"},
             {}},
        // A folio 0 is one that nobody knows; a father who is not known keeps his stroke.
        Said{"InformeCertificadoLiteralPartidaConfirmacion",
             {{"FolioBaut", "0"},
              {"NombrePadre", "---"},
              {"Ministro", "Mons. Juan Soto"},
              {"LibroBaut", "Libro XII"}},
             {"2001, Mons. Juan Soto, Obispo", "Padres: ——— y Dª.", "en el libro XII, folio que no",
              "administró el sacramento"},
             {"folio 0", "D. Mons"}},
        Said{"InformePartidaConfirmacionMenorca",
             {{"Ministro", "Mons. Joan"}, {"PoblacionBaut", "Alaior"}, {"NotasMarginales", "---"}},
             {", Mons. Joan, ", "d’Alaior", "va administrar el sagrament", "No en consten."},
             {"el Mons"}},
        Said{"InformeNotificacionConfirmacion",
             {{"Edad", "23"}, {"FolioBaut", "0"}},
             {"Sr. Cura Párroco", "FOLIO no consta", "ACUSE DE RECIBO", "Devuélvase a:"},
             {"23"}},
        Said{"ImprimirPartidaSinLibro",
             {{"FechaConfirmacionLarga", "lunes, 15 de marzo de 2004"}},
             {"Confirmación lunes, 15 de marzo de 2004", "ACUSE DE RECIBO"},
             {"el día", "Padres"}},
        Said{"InformeSolicitudConfirmacion", {}, {"Recibida por el párroco"}, {"FOLIO"}},
        // The cause is for the copy of the entry alone; the book proposes a priest in any case.
        Said{"InformeCertificadoPartidaDefuncion",
             {{"Sacramentos", "---"}, {"Causa", "infarto"}, {"Edad", "3 meses"}},
             {"Sacramentos recibidos No constan", "Edad 3 meses", "Lugar de la defunción Hospital"},
             {"infarto", "Sacerdote", "meses años", "calle de Santiago"}},
        Said{"InformePartidaDefuncion",
             {{"Cementerio", "Cementerio municipal"}, {"NombrePadre", "--- García ---"}},
             {"con domicilio en calle", "en el Cementerio municipal",
              "Padres: ——— García ——— y Dª."},
             {"falleció en", "de Cementerio", "---"}},
        Said{"InformeCertificadoLiteralPartidaDefuncion",
             {{"HoraDefuncion", "---"}},
             {"a causa de", ", en Hospital", "con domicilio en calle"},
             {"horas"}},
        Said{"InformePartidaDefuncionMenorca",
             {{"Cementerio", "Cementiri vell"}, {"Edad", "1"}},
             {"al Cementiri vell", "d’1 any d’edat", "estat civil: "},
             {"anys"}},
        // The boxes of the parish and of the diocese come in the columns of each other.
        Said{"InformeExhortoMatrimonio",
             {{"DiocesisResidenciaNovio", "l''Alcúdia"}, {"ParroquiaResidenciaNovio", "Toledo"}},
             {"Parroquia l'Alcúdia", "Diócesis Toledo"},
             {"Parroquia Toledo"}},
        Said{"InformeIndiceLibroBautismoMenorca",
             {},
             {"ÍNDEX ALFABÈTIC", "Partides: 1"},
             {"Índice"}}));

TEST(ScratchTables, emptied_leaveNoRowInAnyTableOfTheReports) {
  const auto reports = store::memoryDatabase(store::reportsSchema());
  const auto rowsIn = [&](const store::Table& table) {
    return reports->Execute("SELECT * FROM " + table.name()).RecordCount();
  };
  for (const store::Table& table : store::reportsSchema().tables()) {
    reports->Execute("INSERT INTO " + table.name() + " ([" + table.columns().back().name +
                     "]) VALUES ('1')");
    EXPECT_EQ(rowsIn(table), 1);
  }
  emptyScratchTables(*reports);
  for (const store::Table& table : store::reportsSchema().tables()) EXPECT_EQ(rowsIn(table), 0);
  EXPECT_FALSE(reports->inTransaction());
}

}  // namespace fidaleon::paper::test::DocumentsTest
