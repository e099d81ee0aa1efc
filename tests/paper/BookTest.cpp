// Long documents: the printed book, its index, the duplicate, and pages made as they are needed.

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "paper/PdfText.h"
#include "paper/Report.h"
#include "paper/Rows.h"
#include "text/Utf8.h"

namespace fidaleon::paper::test::BookTest {

using Composition = ReportOptions::Composition;

class LongDocument : public ::testing::Test {
 protected:
  void add(const std::string& operation, const Values& changes) {
    insert(*reports_, operation, with(fullRow(operation), changes));
  }

  void addEntries(int count, const std::string& operation = "InformeLibroBautismo") {
    reports_->BeginTrans();
    for (int i = 1; i <= count; ++i)
      add(operation, {{"Folio", std::to_string((i + 3) / 4)},
                      {"Numero", std::to_string(i)},
                      {"NombreHijo", "Inicio" + std::to_string(i)},
                      {"Madrina", "Final" + std::to_string(i)}});
    reports_->CommitTrans();
  }

  void addIndexLine(const std::string& letter, const std::string& surname,
                    const std::string& folio) {
    add("InformeIndiceLibroBautismo", {{"Letra", letter},
                                       {"PrimerApellidoHijo", surname},
                                       {"SegundoApellidoHijo", "Gil"},
                                       {"NombreHijo", "Eva"},
                                       {"Folio", folio},
                                       {"Numero", "9" + folio}});
  }

  Report open(const std::string& operation, ReportOptions options = {}) {
    const Documento* d = documento(operation);
    return Report(*reports_, FIDALEON_TEMPLATES, d->plantilla, d->titulo, std::move(options));
  }

  std::unique_ptr<store::Connection> reports_ = store::memoryDatabase(store::reportsSchema());
};

TEST_F(LongDocument, book_namesInstitutionAndBookOnItsTitlePageAndOnEveryHeader) {
  addEntries(5);
  ReportOptions options;
  options.values = {{"Institucion", "Parroquia de San Gil"}, {"Diocesis", "Diócesis de Ávila"}};
  const Report book = open("InformeLibroBautismo", options);
  ASSERT_EQ(book.pageCount(), 4);
  EXPECT_THAT(pageText(book, 0), HasSubstr("Folios 1 a 2 · Partidas: 5"));
  EXPECT_THAT(pageText(book, 0), HasSubstr("Diócesis de Ávila"));
  for (int page = 1; page < 4; ++page) {
    const std::string text = pageText(book, page);
    EXPECT_THAT(text, HasSubstr("Parroquia de San Gil")) << page;
    EXPECT_THAT(text, HasSubstr("Libro XXIII de Bautismos")) << page;
    EXPECT_THAT(text, ::testing::ContainsRegex("\n *" + std::to_string(page + 1) + "\n")) << page;
  }
  EXPECT_THAT(pageText(book, 2), HasSubstr("Folio 1"));
  EXPECT_THAT(pageText(book, 3), HasSubstr("Folio 2"));
}

TEST_F(LongDocument, book_cutsNoEntryInTwo_andKeepsTheOrderOfItsRows) {
  addEntries(23);
  const Report book = open("InformeLibroBautismo");
  int next = 1;
  for (int page = 1; page < book.pageCount(); ++page) {
    const std::string text = pageText(book, page);
    const auto ends = found(text, "Final(\\d+)");
    ASSERT_FALSE(ends.empty()) << page;
    for (const std::string& end : ends) {
      EXPECT_EQ(end, std::to_string(next++));
      EXPECT_THAT(text, HasSubstr("Inicio" + end));
    }
  }
  EXPECT_EQ(next, 24);
}

TEST_F(LongDocument, book_putsANumberWithALetterBehindItsBareNumber) {
  for (const char* number : {"12a", "9", "12"})
    add("InformeLibroBautismo",
        {{"Folio", "3"}, {"Numero", number}, {"Madrina", std::string("Final") + number}});
  const Report book = open("InformeLibroBautismo");
  std::string text;
  for (int page = 1; page < book.pageCount(); ++page) text += pageText(book, page);
  EXPECT_THAT(found(text, "Final(\\w+)"), ElementsAre("9", "12", "12a"));
}

TEST_F(LongDocument, entryTallerThanAPage_goesOnOverleafWithoutLosingAWord) {
  std::string long_;
  for (int i = 0; i < 1500; ++i) long_ += "dato" + std::to_string(i) + "x ";
  addEntries(1);
  add("InformeLibroBautismo", {{"DireccionNac", long_}});
  addEntries(1);
  const Report book = open("InformeLibroBautismo");
  const std::string text = pdfText(book);
  EXPECT_GE(book.pageCount(), 5);
  int missing = 0;
  for (int i = 0; i < 1500; ++i)
    if (text.find("dato" + std::to_string(i) + "x") == std::string::npos) ++missing;
  EXPECT_EQ(missing, 0);
}

TEST_F(LongDocument, annulledEntry_isMarkedInItsMargin_andNoOther) {
  addEntries(4);
  std::vector<std::string> asked;
  ReportOptions options;
  options.mark = [&](const Row& row) {
    asked.push_back(row.value("Numero").toStdString());
    return row.value("Folio") == "1" && row.value("Numero") == "2" ? QStringLiteral("ANULADA")
                                                                   : QString();
  };
  const Report book = open("InformeLibroBautismo", options);
  const std::string text = pdfText(book);
  EXPECT_EQ(found(text, "(ANULADA)").size(), 1U);  // in the margin; across it is a picture
  EXPECT_THAT(asked, ::testing::UnorderedElementsAre("1", "2", "3", "4"));
}

TEST_F(LongDocument, index_groupsByLetter_withRunningLetterAndSurnames) {
  addIndexLine("A", "Abad", "7");
  addIndexLine("A", "Arias", "3");
  addIndexLine("Á", "Ávila", "4");
  addIndexLine("N", "Núñez", "5");
  addIndexLine("Ñ", "Ñíguez", "12");
  const Report index = open("InformeIndiceLibroBautismo");
  const std::string text = pageText(index, 0);
  EXPECT_THAT(text, HasSubstr("A–Ñ"));
  EXPECT_THAT(text, HasSubstr("Abad – Ñíguez"));
  EXPECT_THAT(text, HasSubstr("Parroquia de Nuestra Señora de la Asunción"));
  EXPECT_THAT(found(text, "(?m)(?:^|  ) *([AÁNÑ])(?:  |$)"),
              ::testing::UnorderedElementsAre("A", "N", "Ñ"));
  EXPECT_THAT(found(text, "([^ \\n]+) Gil, Eva +\\d+ +\\d+"),
              ::testing::UnorderedElementsAre("Abad", "Arias", "Ávila", "Núñez", "Ñíguez"));
  EXPECT_THAT(text, ::testing::ContainsRegex("Abad Gil, Eva +7 +97"));
}

struct Word {
  std::string text;
  double x, y;  // points from the upper left corner
};

std::vector<std::vector<Word>> wordsOfPages(const Report& report) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "a.pdf";
  report.savePdf(file);
  const QRegularExpression shape("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>([^<]*)<|<page ");
  std::vector<std::vector<Word>> pages;
  const QString all = QString::fromStdString(outputOf("pdftotext -bbox '" + file.string() + "' -"));
  for (auto it = shape.globalMatch(all); it.hasNext();) {
    const auto match = it.next();
    if (match.captured(0) == "<page ")
      pages.emplace_back();
    else
      pages.back().push_back({match.captured(3).toStdString(), match.captured(1).toDouble(),
                              match.captured(2).toDouble()});
  }
  return pages;
}

TEST_F(LongDocument, index_leavesNoLetterAloneAtTheFootOfAColumn) {
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    for (int i = 0; i < 7; ++i)
      addIndexLine(std::string(1, letter), std::string(3, letter), std::to_string(i + 1));
  const auto pages = wordsOfPages(open("InformeIndiceLibroBautismo"));
  EXPECT_GE(pages.size(), 2U);
  int checked = 0;
  for (const auto& page : pages)
    for (const Word& head : page) {
      if (head.text.size() != 1 || head.text < "A" || head.y < 70) continue;  // the running one
      EXPECT_TRUE(std::any_of(page.begin(), page.end(), [&](const Word& line) {
        return line.text == std::string(3, head.text[0]) && std::abs(line.x - head.x) < 3 &&
               line.y > head.y && line.y < head.y + 40;
      })) << head.text;
      ++checked;
    }
  EXPECT_EQ(checked, 26);
}

TEST_F(LongDocument, indexesLastPage_hasEvenColumns) {
  for (const int lines : {9, 150}) {
    reports_->Execute("DELETE * FROM Documentos_Bautismo");
    for (int i = 1; i <= lines; ++i) addIndexLine("A", "Abad", std::to_string(i));
    double left = 0, right = 0;
    const auto pages = wordsOfPages(open("InformeIndiceLibroBautismo"));
    for (const Word& word : pages.back())
      if (word.text == "Eva") (word.x < 290 ? left : right) = word.y;
    EXPECT_GT(right, 0) << lines;
    EXPECT_NEAR(left, right, 30) << lines;
  }
}

TEST_F(LongDocument, boundPages_mirrorTheirMargins) {
  addEntries(5);
  const auto pages = wordsOfPages(open("InformeLibroBautismo"));
  ASSERT_GE(pages.size(), 3U);
  const auto leftmost = [](const std::vector<Word>& page) {
    return std::min_element(page.begin(), page.end(),
                            [](const Word& a, const Word& b) { return a.x < b.x; })
        ->x;
  };
  EXPECT_NEAR(leftmost(pages[2]) - leftmost(pages[1]), 15 * 72 / 25.4, 1);
}

TEST_F(LongDocument, heading_isNeverTheLastThingOnAPage) {
  insert(*reports_, {{"NombreHijo", "Eva"}, {"Libro", "Uno"}});
  TemporaryFolder folder;
  const auto pagesOf = [&](const std::string& content) {
    folder.write("prueba.xml",
                 "<template table='Documentos_Bautismo' flow='continuous'>"
                 "<page width='100' height='100' top='5' bottom='5' left='5' right='5'/>"
                 "<style name='cabeza' with-next='yes'/>" +
                     content + "</template>");
    std::vector<std::string> texts;
    for (const auto& page : wordsOfPages(Report(*reports_, folder.path(), "prueba", "x"))) {
      texts.emplace_back();
      for (const Word& word : page) texts.back() += word.text;
    }
    return texts;
  };
  EXPECT_THAT(pagesOf("<body><p>a</p><space height='78'/><p style='cabeza'>b</p>"
                      "<space height='1'/><p>c<br/>d</p></body>"),
              ElementsAre("a", "bcd"));
  // Also where what follows is taller than a page.
  std::string lines;
  for (int i = 0; i < 19; ++i) lines += "<br/>&#160;";
  EXPECT_THAT(pagesOf("<group-head column='Libro'><p>b</p></group-head><body><columns keep='yes'>"
                      "<column><p>c" +
                      lines + "d</p></column></columns></body>"),
              ElementsAre("bc", "d"));
}

TEST_F(LongDocument, annulledLineOfTheIndex_saysSoAndIsNotPaintedOver) {
  addIndexLine("A", "Abad", "7");
  ReportOptions options;
  options.mark = [](const Row&) { return QStringLiteral("ANULADA"); };
  const std::string text = pdfText(open("InformeIndiceLibroBautismo", options));
  EXPECT_THAT(text, HasSubstr("Abad Gil, Eva (ANULADA)"));
  EXPECT_EQ(found(text, "(ANULADA)").size(), 1U);
}

TEST_F(LongDocument, duplicate_followsTheOrderAskedFor_inBothDirections) {
  const std::string op = "ImprimirDuplicadasBautismo";
  const auto entry = [&](const char* surname, const char* date, const char* created,
                         const char* folio, const char* number) {
    add(op, {{"PrimerApellidoHijo", surname},
             {"FechaBautismoCorta", date},
             {"FechaCreacionLibro", created},
             {"Folio", folio},
             {"Numero", number},
             {"Madrina", std::string("Orden") + folio + "x" + number}});
  };
  entry("Zamora", "03/02/1987", "01/01/1980", "2", "10");
  entry("Ávila", "03/02/1987", "01/01/1980", "2", "9");
  entry("Núñez", "01/12/1987", "05/06/1975", "1", "1");
  const auto order = [&](const char* asked) {
    ReportOptions options;
    options.order = asked;
    return found(pdfText(open(op, options)), "Orden(\\d+x\\d+)");
  };
  EXPECT_THAT(order("+{@FechaBautismo},+{@Folio},+{@Numero}"), ElementsAre("2x9", "2x10", "1x1"));
  EXPECT_THAT(order("+{@FechaCreacion},+{@Folio},+{@Numero}"), ElementsAre("1x1", "2x9", "2x10"));
  EXPECT_THAT(order("+{@Nombre}"), ElementsAre("2x9", "1x1", "2x10"));
  EXPECT_THAT(order("-{@Nombre}"), ElementsAre("2x10", "1x1", "2x9"));
  EXPECT_THAT(order(""), ElementsAre("2x10", "2x9", "1x1"));
}

TEST_F(LongDocument, duplicate_endsWithTheSignatureOfTheParishPriest) {
  const std::string op = "ImprimirDuplicadasBautismo";
  addEntries(9, op);
  ReportOptions options;
  options.mark = [](const Row& row) {
    return row.value("Numero") == "2" ? QStringLiteral("ANULADA") : QString();
  };
  const Report duplicate = open(op, options);
  const std::string text = pageText(duplicate, duplicate.pageCount() - 1);
  EXPECT_THAT(text, HasSubstr("Andrés Quiñones Bermúdez"));
  EXPECT_THAT(text, HasSubstr("partidas: 9; anuladas: 1."));
  EXPECT_THAT(pageText(duplicate, 0), Not(HasSubstr("Este duplicado")));
}

TEST_F(LongDocument, signature_isNeverAloneOnAPage) {
  for (int entries = 1; entries <= 8; ++entries) {
    addEntries(1, "ImprimirDuplicadasBautismo");
    const Report duplicate = open("ImprimirDuplicadasBautismo");
    EXPECT_THAT(pageText(duplicate, duplicate.pageCount() - 1), HasSubstr("Final1")) << entries;
  }
  std::string notes;
  for (int i = 0; i < 8; ++i) {
    for (int j = 0; j < 60; ++j) notes += "anotado ";
    reports_->Execute("DELETE FROM Documentos_Defuncion");
    add("InformePartidaDefuncion", {{"NotasMarginales", notes}});
    const Report entry = open("InformePartidaDefuncion");
    EXPECT_THAT(pageText(entry, entry.pageCount() - 1), HasSubstr("anotado")) << i;
  }
}

TEST_F(LongDocument, firstPageIsThereBeforeTheRestIsCounted) {
  addEntries(300);
  ReportOptions options;
  options.composition = Composition::AsNeeded;
  Report book = open("InformeLibroBautismo", options);
  EXPECT_EQ(book.composedPages(), 0);
  EXPECT_EQ(book.rowCount(), 300U);
  EXPECT_FALSE(book.composeMore(std::chrono::milliseconds(0)));
  EXPECT_EQ(book.composedPages(), 1);
  EXPECT_FALSE(book.pageImage(0, 20).isNull());
  EXPECT_FALSE(book.composeMore(std::chrono::milliseconds(0)));
  EXPECT_EQ(book.composedRows(), 2U);
  while (!book.composeMore(std::chrono::milliseconds(5))) {
  }
  EXPECT_EQ(book.composedRows(), 300U);
  EXPECT_EQ(book.composedPages(), book.pageCount());
}

TEST_F(LongDocument, bookOf300_holdsAFewPages_andMakesTheOthersAgainAlike) {
  std::string long_;  // cut over several pages
  for (int i = 0; i < 2500; ++i) long_ += "dato" + std::to_string(i) + " ";
  add("InformeLibroBautismo", {{"DireccionNac", long_}});
  addEntries(300);
  const Report book = open("InformeLibroBautismo");
  EXPECT_GE(book.pageCount(), 100);
  EXPECT_LE(book.heldPages(), 40);
  // Whole composition has long let go of the first pages.
  ReportOptions options;
  options.composition = Composition::AsNeeded;
  const Report fresh = open("InformeLibroBautismo", options);
  for (const int page : {3, 2, 4, 1, 0, 60})
    EXPECT_EQ(book.pageImage(page, 40), fresh.pageImage(page, 40));
  EXPECT_LE(book.heldPages(), 40);
}

TEST_F(LongDocument, savedBeforeItIsLaidOut_isTheSameDocument) {
  addEntries(12);
  ReportOptions options;
  options.composition = Composition::AsNeeded;
  EXPECT_EQ(pdfText(open("InformeLibroBautismo", options)), pdfText(open("InformeLibroBautismo")));
}

TEST_F(LongDocument, cancelledInTheMiddle_stopsThere_andCanGoOn) {
  addEntries(40);
  std::size_t stopAt = 10;
  ReportOptions options;
  options.composition = Composition::AsNeeded;
  options.progress = [&](std::size_t done, std::size_t total) {
    EXPECT_EQ(total, 40U);
    return done < stopAt;
  };
  const Report book = open("InformeLibroBautismo", options);
  const TemporaryFolder target;
  EXPECT_THROW(book.savePdf(target.path() / "a.pdf"), Error);
  EXPECT_TRUE(std::filesystem::is_empty(target.path()));
  EXPECT_LT(book.composedRows(), 13U);
  EXPECT_FALSE(book.isComplete());
  stopAt = 1000;
  EXPECT_EQ(book.pageCount(), 21);
}

TEST_F(LongDocument, countOfPagesInAFooter_isKnownOnTheFirstPage) {
  addEntries(10);
  TemporaryFolder folder;
  folder.write("prueba.xml",
               "<template table='Documentos_Bautismo' flow='continuous'>"
               "<page width='100' height='100' top='5' bottom='15' left='5' right='5'/>"
               "<footer><p>{{@Pagina}} de {{@Paginas}}</p></footer>"
               "<body><p>{{NombreHijo}}</p><space height='50'/></body></template>");
  ReportOptions options;
  options.composition = Composition::AsNeeded;
  const Report r(*reports_, folder.path(), "prueba", "x", options);
  EXPECT_THAT(pdfText(r), StartsWith("1 de 10 Inicio1 2 de 10"));
}

TEST_F(LongDocument, flowElementsInADocumentOfSinglePages_areRefused) {
  TemporaryFolder folder;
  for (const char* element : {"<opening><p>a</p></opening>", "<page columns='2'/>",
                              "<group-head column='Libro'><p>a</p></group-head>"}) {
    folder.write("prueba.xml", "<template table='Documentos_Bautismo'>" + std::string(element) +
                                   "<body><p>a</p></body></template>");
    EXPECT_THROW(Report(*reports_, folder.path(), "prueba", "x"), Error) << element;
  }
}

}  // namespace fidaleon::paper::test::BookTest
