// The engine: pages, order, marks, files, and templates that are missing or broken.

#include <QPainter>
#include <QPrinter>

#include "paper/PdfText.h"
#include "paper/Report.h"
#include "paper/Rows.h"
#include "text/Utf8.h"

namespace fidaleon::paper::test::ReportTest {

const std::string kSmall =
    "<template table='Documentos_Bautismo'><body><p>[{{NombreHijo}}]</p></body></template>";

class Engine : public ::testing::Test {
 protected:
  Report small(const std::string& content, ReportOptions options = {}) {
    folder_.write("prueba.xml", content);
    return Report(*reports_, folder_.path(), "prueba", "Prueba", std::move(options));
  }

  std::string messageOf(const std::string& content, ErrorKind kind, ReportOptions options = {}) {
    return messageOf(kind, [&] { small(content, std::move(options)); });
  }
  template <class Act>
  static std::string messageOf(ErrorKind kind, Act act) {
    try {
      act();
    } catch (const Error& e) {
      EXPECT_EQ(e.kind(), kind) << e.what();
      return e.what();
    }
    ADD_FAILURE() << "no error";
    return {};
  }

  void child(const std::string& name, const std::string& date = "", const std::string& folio = "",
             const std::string& number = "") {
    insert(
        *reports_,
        {{"NombreHijo", name}, {"FechaBautismoCorta", date}, {"Folio", folio}, {"Numero", number}});
  }

  TemporaryFolder folder_;
  std::unique_ptr<store::Connection> reports_ = store::memoryDatabase(store::reportsSchema());
};

TEST_F(Engine, sideTables_giveEachRowItsOwn_byKeyAndByKind) {
  const std::string link =
      "key='CodDocumentos_Matrimonio' of='IDDocumentos_Matrimonio' table='Documentos_Matrimonio_";
  for (const char* place : {"A", "B", "C"})
    insert(*reports_, {{"ParroquiaResidenciaNovio", place}}, "Documentos_Matrimonio");
  for (const char* key : {"2", "1"})
    insert(*reports_,
           {{"CodDocumentos_Matrimonio", key},
            {"NombreNovio", std::string("Luis") + key},
            {"ParroquiaResidenciaNovio", std::string("San Gil") + key}},
           "Documentos_Matrimonio_Novios");
  for (const char* who : {"1", "2"})
    insert(*reports_,
           {{"CodDocumentos_Matrimonio", "2"},
            {"Cod_Tipo_Persona", who},
            {"5", std::string("sí") + who}},
           "Documentos_Matrimonio_Cursos");
  const std::string text = pdfText(
      small("<template table='Documentos_Matrimonio' flow='continuous'><side name='novio' " + link +
            "Novios'/><side name='curso' where='Cod_Tipo_Persona' is='2' " + link +
            "Cursos'/><body><p>[{{ParroquiaResidenciaNovio}} {{NombreNovio|else=-}} "
            "{{novio.ParroquiaResidenciaNovio|else=-}} {{curso.5|else=-}}]</p></body>"
            "</template>"));
  EXPECT_THAT(text, HasSubstr("[A Luis1 San Gil1 -] [B Luis2 San Gil2 sí2] [C - - -]"));
  messageOf(
      "<template table='Documentos_Bautismo'><side name='x' table='y'/>"
      "<body><p>a</p></body></template>",
      ErrorKind::BrokenTemplate);
}

TEST_F(Engine, emptyTable_hasNoPages) {
  EXPECT_EQ(small(kSmall).pageCount(), 0);
}

TEST_F(Engine, valuesAreText_neverMarkup) {
  child("<b>A & B</b> \"c\" {{Libro}} ñ Ç\x01");
  const Report r = small(kSmall);
  EXPECT_THAT(pdfText(r), HasSubstr("[<b>A & B</b> \"c\" {{Libro}} ñ Ç]"));
  EXPECT_TRUE(r.notices().isEmpty());
}

TEST_F(Engine, signsWithoutALetter_arePlainQuestionMarks_andTheirFieldIsNamed) {
  child("Ana 👩‍👩‍👧🎉 \uE000", "", "3", "12");
  child("𝐄𝐯𝐚 ﬁn Łódź", "", "3", "13");
  child("李 فاطمة Ω", "", "3", "14");
  const Report r = small(kSmall);
  const std::string text = pdfText(r);
  EXPECT_THAT(text, HasSubstr("[Ana ? ?]"));
  EXPECT_THAT(text, HasSubstr("[Eva fin Łódź]"));
  ASSERT_EQ(r.notices().size(), 1);
  EXPECT_THAT(r.notices().front().toStdString(),
              HasSubstr("nombre del niño o niña (folio 3, número 12)"));
  EXPECT_THAT(r.notices().front().toStdString(), Not(HasSubstr("número 13")));
}

struct Told {
  const char* words;
  const char* printed;
};

TEST_F(Engine, wordsOfATemplate_followTheRow) {
  insert(*reports_, {{"NombreHijo", "D. Eva"},
                     {"Sexo", "Mujer"},
                     {"PoblacionNac", "el Carpio"},
                     {"ProvinciaNac", "---"},
                     {"Ministro", "// . . ."},
                     {"Padrino", "d''Ors . . ."},
                     {"Letra", "Á"},
                     {"FechaNacCorta", "01/12/2026"}});
  for (const Told& t : std::initializer_list<Told>{
           {"{{#28010}} hoy", "el día hoy"},
           {"a<clause>, en {{ProvinciaNac}}</clause><clause>, de {{PoblacionNac}}</clause>.",
            "a, del Carpio."},
           {"<clause>x {{ProvinciaNac}} "
            "<clause>{{Ministro}}</clause></clause>{{Ministro|else=nadie}}",
            "nadie"},
           {"{{ProvinciaNac}}, {{PoblacionNac}} {{ProvinciaNac}}, fin", "el Carpio, fin"},
           {"hij<m>o</m><f>a</f> de D. {{NombreHijo}}", "hija de D. Eva"},
           {"<if column='@Lugar'>{{@Lugar|upper}}</if>", "EN EL CARPIO"},
           {"{{Letra|letter}} {{FechaNacCorta|weekday|capital}}", "A Martes"},
           {"{{Padrino|apostrophes|unfilled}}<if option='curia'>, a curia</if>", "d'Ors, a curia"},
       }) {
    ReportOptions chosen;
    chosen.choices << QStringLiteral("curia");
    const Report r = small(
        "<template table='Documentos_Bautismo'><gender column='Sexo' feminine='^Mujer$'/>"
        "<formula name='Lugar'><clause>en {{PoblacionNac}}</clause></formula>"
        "<join before='\\bde\\s' value='(?-i:el)\\s' cut='yes' put='del '/>"
        "<join before='D\\.\\s' value='D\\.\\s' cut='yes'/>"
        "<body><p>" +
            std::string(t.words) + "</p></body></template>",
        chosen);
    EXPECT_EQ(text::trim(pdfText(r)), t.printed) << t.words;
  }
}

TEST_F(Engine, wordWiderThanTheLine_isBrokenNotCut) {
  child(std::string(400, 'x') + "FIN");
  const std::string text = pdfText(small(kSmall));
  EXPECT_EQ(std::count(text.begin(), text.end(), 'x'), 400);
}

TEST_F(Engine, pdf_isWhatArchivesTake_withTitleAuthorLanguageAndFonts) {
  child("Añón");
  ReportOptions options;
  options.author = QStringLiteral("San Millán & Compañía");
  options.stamp = QStringLiteral("MUESTRA");
  options.mark = [](const Row&) { return QStringLiteral("ANULADA"); };
  const std::string file = folder_.path() / "a.pdf";
  small(
      "<template table='Documentos_Bautismo'><body><p><b>[{{NombreHijo}}]</b> <i>y</i></p>"
      "<cross/></body></template>",
      options)
      .savePdf(file);
  const std::string info = outputOf("pdfinfo '" + file + "'");
  for (const char* said : {"Prueba", "San Millán & Compañía", "A4"})
    EXPECT_THAT(info, HasSubstr(said));
  EXPECT_THAT(outputOf("grep -ac '/Lang (es)' '" + file + "'"), StartsWith("1"));
  EXPECT_THAT(outputOf("pdffonts '" + file + "' | tail -n +3"), HasSubstr("Libertine"));
  EXPECT_EQ(outputOf(FIDALEON_CHECK_PDF " '" + file + "' 2>&1"), "");
  outputOf("sed -i 's/pdfaid:part=.1/pdfaid:part=\"2/' '" + file + "'");
  EXPECT_THAT(outputOf(FIDALEON_CHECK_PDF " '" + file + "' 2>&1"), HasSubstr("not a valid PDF/A"));
}

TEST_F(Engine, mark_isPaintedOnTheRowsAskedFor) {
  child("Ana");
  child("Eva");
  ReportOptions options;
  options.mark = [](const Row& row) {
    return row.value("NombreHijo") == "Eva" ? QStringLiteral("ANULADA") : QString();
  };
  const Report marked = small(kSmall, options);
  const Report plain = small(kSmall);
  ASSERT_EQ(marked.pageCount(), 2);
  EXPECT_EQ(marked.pageImage(0, 50), plain.pageImage(0, 50));
  EXPECT_NE(marked.pageImage(1, 50), plain.pageImage(1, 50));
  EXPECT_EQ(pdfText(marked), pdfText(plain)) << "what lies under the mark is copied undisturbed";
}

TEST_F(Engine, mark_endsAboveWhatIsToBeKeptClear) {
  child("Ana");
  const auto darkest = [this](const std::string& signature) {
    ReportOptions options;
    options.mark = [](const Row&) { return QStringLiteral("ANULADA"); };
    const QImage page = small(
                            "<template table='Documentos_Bautismo'><body><p>a</p>"
                            "<space height='90'/>" +
                                signature + "</body></template>",
                            options)
                            .pageImage(0, 30);
    int marked = 0;
    for (int y = page.height() * 2 / 3; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x) marked += page.pixelColor(x, y) != QColor(Qt::white);
    return marked;
  };
  EXPECT_GT(darkest("<group><space height='150'/></group>"), 0);
  EXPECT_EQ(darkest("<group clear='yes'><space height='150'/></group>"), 0);
}

TEST_F(Engine, stamp_isOnEveryPage_withTheRowsOwnMark) {
  child("Ana");
  child("Eva");
  ReportOptions options;
  options.stamp = "MUESTRA";
  const Report stamped = small(kSmall, options);
  const Report plain = small(kSmall);
  for (int page : {0, 1}) EXPECT_NE(stamped.pageImage(page, 50), plain.pageImage(page, 50));
  EXPECT_EQ(text::trim(pdfText(stamped)), "MUESTRA [Ana] MUESTRA [Eva]");
  options.mark = [](const Row&) { return QStringLiteral("ANULADA"); };
  EXPECT_NE(small(kSmall, options).pageImage(0, 50), stamped.pageImage(0, 50));
}

const std::string kSorted =
    "<template table='Documentos_Bautismo' flow='continuous'>"
    "<formula name='Nombre'>{{NombreHijo}}</formula><body><p>{{NombreHijo}}</p></body></template>";

TEST_F(Engine, orderStringThatNamesNoFormula_isRefused) {
  child("Ana");
  ReportOptions options;
  options.order = "+{@FechaCreacion}";
  EXPECT_THAT(messageOf(kSorted, ErrorKind::BadOrder, options), HasSubstr("FechaCreacion"));
  options.order = "FechaBautismo";
  EXPECT_THAT(messageOf(kSorted, ErrorKind::BadOrder, options), HasSubstr("orden"));
}

TEST_F(Engine, bodies_beginAPageEach_whereTheirConditionHolds) {
  for (const char* name : {"Ana", "Eva"}) child(name);
  folder_.write("pieza.xml", "<x><p>$(de) {{$(de)|upper}}</p></x>");
  const std::string text = pdfText(
      small("<template table='Documentos_Bautismo'><footer><p>{{@Pagina}} de {{@Paginas}}</p>"
            "</footer><body if='@Fila' matches='1'><p>uno</p></body><body if='Libro'><p>dos</p>"
            "</body><body><include file='pieza.xml' de='NombreHijo'/></body>"
            "<body own-pages='yes' unless='@Fila' matches='2'><p>aparte</p></body></template>"));
  EXPECT_EQ(text::trim(text),
            "1 de 2 uno 2 de 2 NombreHijo ANA 1 de 1 aparte 1 de 1 NombreHijo EVA");
}

TEST_F(Engine, cancelledWhileWriting_leavesNoFile) {
  child("Ana");
  child("Eva");
  bool laidOut = false;
  ReportOptions options;
  options.progress = [&](std::size_t, std::size_t) { return !laidOut; };
  const Report r = small(kSmall, options);
  laidOut = true;
  const TemporaryFolder target;
  EXPECT_THROW(r.savePdf(target.path() / "a.pdf"), Error);
  EXPECT_TRUE(std::filesystem::is_empty(target.path()));
}

TEST_F(Engine, folderThatDoesNotExist_isSaidAndNothingIsLeft) {
  child("Ana");
  const Report r = small(kSmall);
  EXPECT_THAT(
      messageOf(ErrorKind::CannotWrite, [&] { r.savePdf(folder_.path() / "no existe" / "a.pdf"); }),
      HasSubstr("No se puede guardar el documento en"));
}

TEST_F(Engine, diskThatFillsUp_leavesTheOldFile) {
  child("Ana");
  const Report r = small(kSmall);
  const TemporaryFolder target;
  target.write("a.pdf", "antes");
  {
    const tests::FullDisk limit(1024);
    EXPECT_THROW(r.savePdf(target.path() / "a.pdf"), Error);
  }
  EXPECT_EQ(outputOf("ls '" + target.path().string() + "'"), "a.pdf\n");
  EXPECT_EQ(outputOf("cat '" + (target.path() / "a.pdf").string() + "'"), "antes");
}

TEST_F(Engine, nameOfAFolder_isRefusedAndTheFolderStays) {
  child("Ana");
  EXPECT_THROW(small(kSmall).savePdf(folder_.path()), Error);
  EXPECT_TRUE(std::filesystem::is_directory(folder_.path()));
}

TEST_F(Engine, printer_printsTheRangeAskedFor) {
  for (const char* name : {"uno", "dos", "tres", "cuatro"}) child(name);
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  const auto file = folder_.path() / "p.pdf";
  printer.setOutputFileName(QString::fromStdString(file.string()));
  printer.setFromTo(2, 3);
  small(kSmall).print(printer);
  const std::string text = outputOf("pdftotext '" + file.string() + "' -");
  EXPECT_THAT(text, HasSubstr("dos"));
  EXPECT_THAT(text, HasSubstr("tres"));
  EXPECT_THAT(text, Not(HasSubstr("uno")));
  EXPECT_THAT(text, Not(HasSubstr("cuatro")));
}

TEST_F(Engine, printerThatCannotStart_isSaid) {
  child("Ana");
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(QStringLiteral("/no/existe/p.pdf"));
  messageOf(ErrorKind::NoPrinter, [&] { small(kSmall).print(printer); });
}

TEST_F(Engine, missingTemplate_isSaid) {
  EXPECT_THAT(messageOf(ErrorKind::MissingTemplate,
                        [&] { Report(*reports_, folder_.path(), "no_existe", "x"); }),
              HasSubstr("no_existe.xml"));
}

struct Broken {
  const char* body;
  const char* says;
};

TEST_F(Engine, brokenTemplates_areNamedWithFileAndReason) {
  const auto wrap = [](const std::string& body) {
    return "<template table='Documentos_Bautismo'>\n<body>" + body + "</body></template>";
  };
  for (const Broken& b :
       std::initializer_list<Broken>{{"<p>{{NombreHijo}</p>", "llaves"},
                                     {"<p>{{NombreHijo|grande}}</p>", "no se entiende"},
                                     {"<p colour='red'>a</p>", "colour"},
                                     {"<p style='nada'>a</p>", "ningún estilo «nada»"},
                                     {"<table/>", "no se conoce el elemento «table»"},
                                     {"<p><if>a</if></p>", "falta el atributo «column»"},
                                     {"<p><f>a</f></p>", "falta antes el elemento «gender»"},
                                     {"<p>{{#27999}}</p>", "no hay ningún texto «#27999»"},
                                     {"<p if='Libro' matches='('>a</p>", "matches"},
                                     {"<p size='grande'>a</p>", "no es una medida"},
                                     {"suelto", "texto fuera"},
                                     {"<include file='../x.xml'/>", "include"},
                                     {"<p>$(quien)</p>", "$(quien)"},
                                     {"<p>sin cerrar", "línea"},
                                     {"", "falta el elemento «body»"}}) {
    const std::string message = messageOf(wrap(b.body), ErrorKind::BrokenTemplate);
    EXPECT_THAT(message, HasSubstr(b.says));
    EXPECT_THAT(message, HasSubstr("«prueba.xml»"));
  }
  messageOf("", ErrorKind::BrokenTemplate);
  messageOf(wrap("<include file='prueba.xml'/>"), ErrorKind::BrokenTemplate);
}

TEST_F(Engine, columnThatTheTableLacks_isNamed) {
  const std::string message =
      messageOf("<template table='Documentos_Bautismo'><body><p>{{Nombres}}</p></body></template>",
                ErrorKind::MissingColumn);
  EXPECT_THAT(message, HasSubstr("«Nombres»"));
  EXPECT_THAT(message, HasSubstr("Documentos_Bautismo"));
}

TEST_F(Engine, tableThatDoesNotExist_isAStoreError) {
  folder_.write("prueba.xml", "<template table='Nada'><body><p>a</p></body></template>");
  EXPECT_THROW(Report(*reports_, folder_.path(), "prueba", "x"), store::Error);
}

}  // namespace fidaleon::paper::test::ReportTest
