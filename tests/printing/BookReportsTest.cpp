// The book, its index and the duplicate as the main program asks for them, and their preview.

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <fstream>

#include "core/contract/CcNodos.h"
#include "core/statements/Sentencia.h"
#include "paper/ScratchTables.h"
#include "parish/Insert.h"
#include "parish/Parish.h"
#include "printing/Annulled.h"
#include "printing/BookHeader.h"
#include "printing/DocumentBatch.h"
#include "printing/DocumentReport.h"
#include "registers/common/FormaPartida.h"
#include "showroom/DemoScripts.h"
#include "store/Engine.h"
#include "support/Fields.h"
#include "window/LongRun.h"
#include "window/PreviewDialog.h"

namespace fidaleon::app::BookReportsTest {

constexpr std::int32_t BOOK = 2;

class BookReports : public ParishTest {
 protected:
  void SetUp() override { create(); }

  std::optional<paper::Report> make(const char* command, paper::ReportOptions options = {}) {
    return makeReport(*desk, *documento(BAUTISMO, command, ""), BOOK, std::move(options));
  }
  static void ask(FormDriver& d, const std::string& year) {
    d.chooseData("cboInstitucion", 1);
    d.type("adtpAno", year);
    d.choose("cboOrden", "Fecha de Bautismo");
    d.click("cmdBoton(0)");
  }
  std::optional<paper::Report> duplicate(const std::string& year) {
    user.expectForm("frmInfDuplicadas", [year](FormDriver& d) { ask(d, year); });
    return make("duplicadas");
  }
  std::int64_t entriesOfBook() {
    return count("SELECT COUNT(IDBautismo) FROM Bautismo WHERE CodLibro=2");
  }
  /// The rows of the scratch table that the marks fall on.
  int marked(const Annulled& annulled, const Sacramento& sacrament = BAUTISMO) {
    const QStringList columns = QStringList{"Libro", "Folio", "Numero"} + annulled.columns();
    paper::Printable printable({});
    const paper::Rows rows(desk->reports(), filasDocumento(sacrament)->tabla, columns, printable);
    int n = 0;
    for (std::size_t i = 0; i < rows.size(); ++i)
      n += annulled.mark(paper::Row(rows, i)).isEmpty() ? 0 : 1;
    return n;
  }
  /// A book "VII" with three entries, two of them annulled; one shares its place with a valid one.
  std::int32_t bookOf(const Sacramento& s) {
    auto& con = desk->parish();
    tests::insert(con, s.tablaLibros,
                  "CodInstitucion=1; CodFormato=1; CodTipoNombre=1; Nombre=VII; "
                  "FechaCreacion=19500101; Nuevo=FALSE");
    const std::string book =
        std::to_string(count(sentencia(s, "SELECT MAX({IDLibro}) FROM {Libros}")));
    for (const char* entry : {"Folio=2; Anulada=TRUE; Nombre=Ana", "Folio=2; Nombre=Bea",
                              "Folio=3; Anulada=TRUE; Nombre=Eva"}) {
      tests::insert(
          con, s.tablaPartidas,
          "CodLibro=" + book + "; Numero=1; PrimerApellido=Gil; SegundoApellido=Sanz; " + entry);
      const std::string id =
          std::to_string(count(sentencia(s, "SELECT MAX({IDPartida}) FROM {Partidas}")));
      for (const FilaDePartida& row : formaPartida(s)->filas)
        if (row.nombre) tests::insert(con, row.tabla, row.clave + ("=" + id));
    }
    return std::stoi(book);
  }
  void annul(const std::string& which) {
    desk->parish().Execute("UPDATE Bautismo SET Anulada=true WHERE " + which);
  }
  void failAtTheSecondRow() {
    desk->reports().engine().run(
        "CREATE TRIGGER falla BEFORE INSERT ON Documentos_Bautismo WHEN (SELECT COUNT(*) FROM "
        "Documentos_Bautismo)>0 BEGIN SELECT RAISE(ABORT, 'no'); END");
  }
  void onlyAnnulled(const std::string& which) {
    desk->parish().Execute("UPDATE Bautismo SET Anulada=false");
    annul(which);
  }
};

TEST_F(BookReports, ofASampleParish_areMarkedOnEveryPage_alsoWhenItIsOpenedAgain) {
  keepEdition(desk->parish(), FDAPI::cCAplicacion::APP_FIDALEON_MADRID);
  open();
  EXPECT_EQ(desk->parishTitle(), "San Blas (MUESTRA)");
  const auto marked = make("libro");
  desk->parish().Execute("UPDATE Instalacion SET Muestra=false");
  EXPECT_EQ(desk->parishTitle(), "San Blas");
  const auto plain = make("libro");
  ASSERT_TRUE(marked && plain);
  for (const int page : {0, 1}) EXPECT_NE(marked->pageImage(page, 40), plain->pageImage(page, 40));
}

TEST_F(BookReports, bookAndIndex_haveEachEntryOnce) {
  for (int i = 0; i < 2; ++i)
    for (const char* command : {"libro", "indice"}) {
      const auto report = make(command);
      ASSERT_TRUE(report) << command;
      EXPECT_EQ(static_cast<std::int64_t>(report->rowCount()), entriesOfBook()) << command;
    }
}

TEST_F(BookReports, annulledEntry_isMarkedOnEachOfItsOwnDocuments) {
  const auto page = [&](const Documento& d, const char* annulled) {
    const Sacramento& s = *d.sacramento;
    desk->parish().Execute(sentencia(s, "UPDATE {Partidas} SET Anulada=") + annulled);
    const bool asks = d.firmado() || (&s == &DEFUNCION && d.orden == std::string("partida"));
    if (asks) user.expectForm("frmEncargado", [](FormDriver& u) { u.escape(); });
    const auto report = makeReport(*desk, d, 1);
    EXPECT_TRUE(report) << d.plantilla;
    return report ? report->pageImage(0, 40) : QImage();
  };
  for (const Documento& d : documentos())
    if (d.clase == ClaseDocumento::Partida && d.sacramento != &MATRIMONIO) {
      EXPECT_NE(page(d, "false"), page(d, "true")) << d.plantilla;
    }
}

TEST_F(BookReports, requestOfAConfirmation_saysWhoseHeadItBears_andWantsABook) {
  const Documento& request = *documento(CONFIRMACION, "datos", "");
  const QStringList notices = makeReport(*desk, request, 1)->notices();
  ASSERT_EQ(notices.size(), 1);
  EXPECT_THAT(notices.front().toStdString(), HasSubstr("El membrete es el de «"));
  desk->parish().Execute("DELETE FROM Libro_Confirmacion");
  user.expectMessage(
      "Esta solicitud no se puede imprimir mientras no haya una institución y un libro de ese "
      "sacramento.");
  EXPECT_FALSE(makeReport(*desk, request, 1));
}

TEST_F(BookReports, title_saysOfWhomOrWhatItIs) {
  desk->parish().Execute(
      "UPDATE Bautismo_Hijo SET Nombre=\"Juan\", PrimerApellido=\"García\", "
      "SegundoApellido=\"Pérez\" WHERE CodBautismo=2");
  desk->parish().Execute("UPDATE Libro_Bautismo SET Nombre=\"1998/01\" WHERE IDLibroBautismo=2");
  EXPECT_EQ(make("partida")->title(), "Partida de bautismo - Juan García Pérez");
  EXPECT_EQ(make("libro")->title(), "Libro de bautismos - 1998/01");
  desk->parish().Execute(
      "UPDATE Bautismo_Hijo SET Nombre=\"---\", SegundoApellido=\"---\" WHERE CodBautismo=2");
  EXPECT_EQ(make("partida")->title(), "Partida de bautismo - García");
  desk->parish().Execute("UPDATE Bautismo_Hijo SET PrimerApellido=\"\" WHERE CodBautismo=2");
  EXPECT_EQ(make("partida")->title(), "Partida de bautismo");
}

TEST_F(BookReports, annulledEntries_areMarkedAndNoOthers) {
  onlyAnnulled("CodLibro=2 AND Folio IN (2, 5)");
  annul("CodLibro=1 AND Folio=1");
  ASSERT_TRUE(make("libro"));
  EXPECT_EQ(marked(Annulled(desk->parish(), BAUTISMO, BOOK)), 2);
  ASSERT_TRUE(make("indice"));
  EXPECT_EQ(marked(Annulled(desk->parish(), BAUTISMO, BOOK)), 2);
}

TEST_F(BookReports, onAPlaceHeldTwice_theNameOfTheChildDecides) {
  onlyAnnulled("CodLibro=2 AND Folio=2");
  desk->parish().Execute("UPDATE Bautismo SET Folio=2, Numero=\"2\" WHERE CodLibro=2 AND Folio=3");
  desk->parish().Execute(
      "UPDATE Bautismo_Hijo SET Nombre=\"Otra\" WHERE CodBautismo IN (SELECT IDBautismo FROM "
      "Bautismo WHERE CodLibro=2 AND Folio=2 AND Anulada=false)");
  ASSERT_TRUE(make("libro"));
  EXPECT_EQ(marked(Annulled(desk->parish(), BAUTISMO, BOOK)), 1);
}

TEST_F(BookReports, ofTheOtherRegisters_areMarkedAndNamedAsThoseOfBaptism) {
  for (const Sacramento* s : {&CONFIRMACION, &DEFUNCION}) {
    const std::int32_t book = bookOf(*s);
    for (const char* command : {"libro", "indice"}) {
      const auto report = makeReport(*desk, *documento(*s, command, ""), book);
      ASSERT_TRUE(report) << s->palabra;
      EXPECT_EQ(report->rowCount(), 3u);
      EXPECT_TRUE(report->title().endsWith(" - VII"));
      EXPECT_EQ(marked(Annulled(desk->parish(), *s, book), *s), 2) << command;
    }
    EXPECT_EQ(bookHeader(desk->parish(), *s, book, false)["Poblacion"],
              "Buitrago del Lozoya (Madrid)");
  }
}

TEST_F(BookReports, duplicate_hasTheYearAndMarksItsAnnulledEntries) {
  const std::string year = desk->parish()
                               .Execute(
                                   "SELECT MAX(FechaBautismo) AS Dia FROM Bautismo WHERE "
                                   "CodLibro=2 AND FechaBautismo<\"3\"")
                               .text("Dia")
                               .substr(0, 4);
  const std::string ofYear =
      "CodLibro<>0 AND FechaBautismo>=\"" + year + "0101\" AND FechaBautismo<=\"" + year + "1231\"";
  onlyAnnulled(ofYear);
  const auto report = duplicate(year);
  ASSERT_TRUE(report);
  const std::int64_t entries = count("SELECT COUNT(IDBautismo) FROM Bautismo WHERE " + ofYear);
  EXPECT_EQ(static_cast<std::int64_t>(report->rowCount()), entries);
  EXPECT_EQ(marked(Annulled(desk->parish(), BAUTISMO)), entries);
  EXPECT_THAT(user.problems(), IsEmpty());
}

TEST_F(BookReports, duplicate_thatFailsInTheMiddle_leavesNoTransactionAndNoRow) {
  failAtTheSecondRow();
  user.answerAnything(Answer::Ok);
  user.expectForm("frmInfDuplicadas", [](FormDriver& d) {
    ask(d, "2015");
    d.form().Unload();
  });
  EXPECT_FALSE(make("duplicadas"));
  EXPECT_FALSE(desk->reports().inTransaction());
  EXPECT_EQ(desk->reports().Execute("SELECT * FROM Documentos_Bautismo").RecordCount(), 0);
}

TEST_F(BookReports, stoppedWhileItsRowsAreWritten_isNothingAndCanBeAskedForAgain) {
  user.stopAt = 3;
  user.answerAnything(Answer::Ok);
  EXPECT_FALSE(make("libro"));
  ASSERT_EQ(user.messages().size(), 1u);
  EXPECT_EQ(user.messages().front().text, forms::Cancelled().what());
  EXPECT_FALSE(desk->reports().inTransaction());
  desk->parish().Execute("UPDATE Bautismo SET FechaBautismo=\"20150101\"");
  user.expectForm("frmInfDuplicadas", [&](FormDriver& d) {
    ask(d, "2015");
    EXPECT_FALSE(d.closed());
    EXPECT_FALSE(desk->reports().inTransaction());
    EXPECT_EQ(desk->reports().Execute("SELECT * FROM Documentos_Bautismo").RecordCount(), 0);
    d.form().Unload();
  });
  EXPECT_FALSE(make("duplicadas"));
  EXPECT_EQ(user.messages().size(), 2u);
  user.stopAt = -1;
  const auto report = make("libro");
  ASSERT_TRUE(report);
  EXPECT_EQ(static_cast<std::int64_t>(report->rowCount()), entriesOfBook());
}

TEST_F(BookReports, header_namesInstitutionDioceseAndTown) {
  desk->parish().Execute(
      "UPDATE Institucion SET InstitucionNombre=\"San Blas Mártir\", InstitucionTipo=\"Parroquia "
      "de\", Diocesis=\"Madrid\"");
  paper::GivenValues values = bookHeader(desk->parish(), BAUTISMO, BOOK, false);
  EXPECT_EQ(values["Institucion"], "Parroquia de San Blas Mártir");
  EXPECT_EQ(values["Diocesis"], "Diócesis de Madrid");
  EXPECT_EQ(values["Poblacion"], "Buitrago del Lozoya (Madrid)");
  EXPECT_EQ(bookHeader(desk->parish(), BAUTISMO, BOOK, true)["Diocesis"], "Diòcesi de Madrid");
  desk->parish().Execute(
      "UPDATE Institucion SET InstitucionNombre=\"\", Diocesis=\"Archidiócesis de Toledo\", "
      "CodMunicipio=0");
  values = bookHeader(desk->parish(), BAUTISMO, BOOK, false);
  EXPECT_EQ(values["Institucion"], "San Blas");
  EXPECT_EQ(values["Diocesis"], "Archidiócesis de Toledo");
  EXPECT_EQ(values["Poblacion"], "");
  EXPECT_TRUE(bookHeader(desk->parish(), BAUTISMO, 99, false).empty());
}

TEST_F(BookReports, certificateWithoutKeeper_isSaidAboveItsPage) {
  user.expectForm("frmEncargado", [](FormDriver& d) { d.escape(); });
  auto report = make("certificado");
  ASSERT_TRUE(report);
  PreviewDialog preview(std::move(*report));
  preview.show();
  const auto* notice = preview.findChild<QLabel*>("notices");
  ASSERT_TRUE(notice && notice->isVisible());
  EXPECT_THAT(notice->text().toStdString(), HasSubstr("no dice quién lo firma"));
  const auto unsaid = make("partida");
  EXPECT_TRUE(unsaid->notices().isEmpty());
}

TEST_F(BookReports, ofSeveral_whoSignsIsAskedOnceAndWhatCannotBeMadeIsTold) {
  desk->parish().Execute("UPDATE Bautismo SET Anulada=1 WHERE IDBautismo=2");
  desk->parish().Execute("DELETE FROM Bautismo WHERE IDBautismo=3");
  forms::ScriptedUser colleague;
  Desk other(files(), "Archivo", colleague, settings, clock);
  const auto lock = other.entorno().support.create_cProcesarBloqueos();
  lock->Inicializar(directory().string());
  FDAPI::DefinicionBloqueo entry;
  entry.strTabla = "Bautismo";
  entry.strRegistro = "4";
  entry.conBd = &other.parish();
  lock->DefinirBloqueo(entry);
  ASSERT_EQ(lock->lngEfectuarBloqueos(), 0);
  user.expectForm("frmEncargado", [](FormDriver& d) { d.click("cmdBoton(0)"); });
  DocumentBatch batch(*desk, *documento(BAUTISMO, "certificado", ""));
  const auto whole = (directory() / "todos.pdf").string();
  std::unique_ptr<paper::Volume> volume;
  const std::map<int, const char*> told{
      {1, ""}, {2, "anulada"}, {3, "ya no existe"}, {4, "Archivo"}, {5, ""}};
  for (const auto& [id, why] : told) {
    const auto report = batch.make(id);
    EXPECT_EQ(report.has_value(), id != 3 && id != 4) << id;
    EXPECT_THAT(batch.told(), HasSubstr(why)) << id;
    if (!report) continue;
    if (!volume) volume = report->volume(whole, "Todos");
    report->bindInto(*volume);
  }
  EXPECT_FALSE(std::filesystem::exists(whole)) << "half of it";
  volume->close();
  std::ifstream in(whole);
  const std::string pdf(std::istreambuf_iterator<char>(in), {});
  EXPECT_THAT(pdf, HasSubstr("/Count 3"));
  EXPECT_THAT(user.problems(), IsEmpty());
  EXPECT_TRUE(user.messages().empty());
}

TEST_F(BookReports, preview_showsItsFirstPageAndCountsTheRest) {
  paper::ReportOptions options;
  options.composition = paper::ReportOptions::Composition::AsNeeded;
  auto report = make("libro", std::move(options));
  ASSERT_TRUE(report);
  PreviewDialog preview(std::move(*report));
  preview.show();
  EXPECT_GE(preview.report().composedPages(), 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return preview.report().isComplete(); }));
  QTest::keyClick(&preview, Qt::Key_End);
  EXPECT_EQ(preview.page() + 1, preview.report().pageCount());
  QTest::keyClick(&preview, Qt::Key_Home);
  EXPECT_EQ(preview.page(), 0);
}

TEST_F(BookReports, longRun_stopsWhenTheUserAsksAndCanBeTriedAgain) {
  LongRun run;
  paper::ReportOptions options;
  options.composition = paper::ReportOptions::Composition::AsNeeded;
  bool stop = true;
  options.progress = [&](std::size_t done, std::size_t total) {
    if (stop)
      for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QProgressDialog*>(w)) dialog->cancel();
    return run.tell(done, total);
  };
  auto report = make("libro", std::move(options));
  ASSERT_TRUE(report);
  EXPECT_FALSE(run.run(nullptr, "Preparando…", [&] { report->pageCount(); }));
  EXPECT_FALSE(report->isComplete());
  stop = false;
  EXPECT_TRUE(run.run(nullptr, "Preparando…", [&] { report->pageCount(); }));
  EXPECT_GT(report->pageCount(), 1);
  EXPECT_FALSE(run.isRunning());
  EXPECT_THROW(run.run(nullptr, "x", [] { throw std::runtime_error("falla"); }),
               std::runtime_error);
  EXPECT_FALSE(run.isRunning());
}

}  // namespace fidaleon::app::BookReportsTest
