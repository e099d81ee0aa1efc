// Every document of the catalogue over rows as their members write them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "paper/PdfText.h"
#include "paper/Report.h"
#include "paper/Rows.h"
#include "paper/ScratchTables.h"
#include "paper/TemplateReader.h"
#include "store/schema/Schema.h"
#include "text/Utf8.h"

namespace fidaleon::paper::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class Documents : public ::testing::TestWithParam<Document> {
 protected:
  bool isBook() const { return GetParam().operation.rfind("InformeLibro", 0) == 0; }
  int shortest() const { return isBook() ? 2 : 1; }  // a book has a title page
  bool hasNotes() const {
    const std::vector<std::string> filled = columnsOf(GetParam().operation);
    return std::count(filled.begin(), filled.end(), "NotasMarginales") > 0;
  }
  Report report() const {
    return Report(*reports_, FIDALEON_TEMPLATES, GetParam().templateName, GetParam().title);
  }
  std::unique_ptr<store::Connection> reports_ = store::memoryDatabase(store::reportsSchema());
};

TEST_P(Documents, fullRow_printsOnItsPage_withItsValues) {
  const Values row = fullRow(GetParam().operation);
  insert(*reports_, row);
  const Report r = report();
  EXPECT_EQ(r.pageCount(), shortest());
  const std::string text = text::replaceAll(pdfText(r), "- ", "-");  // broken at a hyphen
  const std::vector<std::string> expected{"NombreHijo", "PrimerApellidoHijo", "SegundoApellidoHijo",
                                          "NombrePadre", "NombreMadre"};
  for (const auto& [column, value] : row) {
    if (std::count(expected.begin(), expected.end(), column) == 0) continue;
    EXPECT_THAT(text, HasSubstr(value)) << column;
  }
  EXPECT_THAT(text, Not(HasSubstr("---")));
}

TEST_P(Documents, blankRow_printsOnItsPage) {
  insert(*reports_, blankRow(GetParam().operation));
  const Report r = report();
  EXPECT_EQ(r.pageCount(), shortest());
  EXPECT_THAT(pdfText(r), Not(HasSubstr("{{")));
}

TEST_P(Documents, nullRow_printsOnItsPage) {
  insert(*reports_, {{"Libro", ""}});
  EXPECT_EQ(report().pageCount(), shortest());
}

TEST_P(Documents, longNotes_goOnOverleaf_withoutLosingAWord) {
  if (!hasNotes()) return;
  std::string notes;
  for (int i = 0; i < 1500; ++i) notes += "nota" + std::to_string(i) + " ";
  insert(*reports_, with(fullRow(GetParam().operation), "NotasMarginales", notes + "FIN"));
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
  const std::vector<std::string> filled = columnsOf(GetParam().operation);
  for (const QString& column : readTemplate(FIDALEON_TEMPLATES, GetParam().templateName).columns) {
    if (column.startsWith('@')) continue;
    const std::string name = column.toStdString();
    const bool found = std::any_of(filled.begin(), filled.end(), [&](const std::string& f) {
      return text::equalsNoCase(f, name) || text::equalsNoCase(f, "[" + name + "]");
    });
    EXPECT_TRUE(found) << name;
  }
}

/// Those of the registers. What the reports of the parish's people print has rows of another kind.
std::vector<Document> documentsOfEntries() {
  std::vector<Document> entries;
  for (const Document& d : documentCatalogue())
    if (readTemplate(FIDALEON_TEMPLATES, d.templateName).table.startsWith("Documentos_"))
      entries.push_back(d);
  return entries;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Documents, ::testing::ValuesIn(documentsOfEntries()),
                         [](const auto& tested) { return tested.param.operation; });

std::string printed(const std::string& operation, const Values& row) {
  const auto reports = store::memoryDatabase(store::reportsSchema());
  insert(*reports, row);
  const Document* d = documentOf(operation);
  return pdfText(Report(*reports, FIDALEON_TEMPLATES, d->templateName, d->title));
}

TEST(Wording, entryOfAGirl_standsInItsOrder) {
  const std::string op = "InformePartidaBautismo";
  const std::string text = printed(op, fullRow(op));
  std::size_t from = 0;
  for (const char* piece :
       {"En la Parroquia de Nuestra Señora",
        "provincia de Madrid",
        "del Arzobispado Obispado de Madrid-Alcalá",
        "el día 12 de octubre de 1987",
        "el Presbítero D.",
        "bautizó solemnemente a la niña",
        "nacida el 3 de septiembre",
        "a las 14:35 horas, en Hospital",
        "siendo natural de Alcalá",
        "Es hijo de D.",
        "natural de Priego",
        "y de Dª.",
        "residentes en calle Mayor",
        "Contrajeron matrimonio en la Parroquia de Santa María",
        "Son sus abuelos paternos D.",
        "y Dª.",
        "Son sus abuelos maternos D.",
        "Fueron padrinos D.",
        "a los que se advirtió el parentesco espiritual con el bautizado y las demás "
        "obligaciones.",
        "Y para que conste lo firmo, fecha ut supra"}) {
    const std::size_t at = text.find(piece, from);
    ASSERT_NE(at, std::string::npos) << piece << "\n" << text;
    from = at;
  }
}

TEST(Wording, entryOfABoy_usesTheWordsOfTheRow) {
  const std::string op = "InformePartidaBautismo";
  const std::string text = printed(
      op, with(with(fullRow(op), "[Al niño/A la niña]", "al niño"), "[Nacido/Nacida]", "nacido"));
  EXPECT_THAT(text, HasSubstr("bautizó solemnemente al niño"));
  EXPECT_THAT(text, HasSubstr("nacido el"));
}

TEST(Wording, literalCopyWithoutATime_printsDashes) {
  const std::string op = "InformeCertificadoLiteralPartidaBautismo";
  EXPECT_THAT(printed(op, with(fullRow(op), "HoraNac", "")), HasSubstr("a las --- horas"));
}

TEST(Wording, menorcaSlip_putsTheSpanishWordIntoCatalan) {
  const std::string op = "InformeVolanteBautismoMenorca";
  EXPECT_THAT(printed(op, fullRow(op)), HasSubstr("filla del Sr."));
  EXPECT_THAT(printed(op, with(fullRow(op), "[Nacido/Nacida]", "hijo")), HasSubstr("fill del Sr."));
}

TEST(Wording, dioceseNamedInFull_isNotNamedTwice) {
  const std::string op = "InformeCertificadoPartidaBautismo";
  EXPECT_THAT(printed(op, fullRow(op)), HasSubstr("Diócesis de Madrid-Alcalá"));
  EXPECT_THAT(printed(op, with(fullRow(op), "InstitucionDiocesis", "Archidiócesis de Madrid")),
              Not(HasSubstr("Diócesis de Archi")));
}

TEST(Catalogue, unknownOperation_hasNoDocument) {
  EXPECT_EQ(documentOf("InformeQueNoExiste"), nullptr);
  EXPECT_TRUE(documentOf("InformeCertificadoPartidaBautismo")->signedByKeeper);
}

TEST(ScratchTables, areAllTablesOfTheReportsDatabase) {
  std::vector<std::string> names;
  for (const store::Table& table : store::reportsSchema().tables()) names.push_back(table.name());
  EXPECT_THAT(scratchTables(), ::testing::UnorderedElementsAreArray(names));
}

TEST(ScratchTables, emptied_leaveNoRowAnywhere) {
  const auto reports = store::memoryDatabase(store::reportsSchema());
  insert(*reports, {{"Libro", "I"}});
  insert(*reports, {{"Nombre", "I"}}, "Tareas_Agenda");
  emptyScratchTables(*reports);
  for (const std::string& table : scratchTables())
    EXPECT_TRUE(reports->Execute("SELECT * FROM " + table).EOF_()) << table;
  EXPECT_FALSE(reports->inTransaction());
}

}  // namespace
}  // namespace fidaleon::paper::test
