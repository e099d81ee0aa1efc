// The run of a book: progress, empty books, failures, a user who stops it.

#include "LibroWorld.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::BookRunTest {

struct Caso {
  std::string nombre;
  const Registro* registro;
  SinFirma miembro;
};

std::vector<Caso> casos() {
  std::vector<Caso> todos;
  for (const Registro& r : REGISTROS) {
    todos.push_back({r.miembro("Libro"), &r, r.libro});
    todos.push_back({r.miembro("Libro") + "Menorca", &r, r.libroMenorca});
    todos.push_back({r.miembro("IndiceLibro"), &r, r.indice});
  }
  return todos;
}

class BookRun : public ::testing::TestWithParam<Caso> {
 protected:
  void imprimir() { w.imprimir(GetParam().miembro); }
  LibroWorld w{*GetParam().registro};
};

TEST_P(BookRun, Progress_IsOpenWhileRowsAreWritten) {
  w.agregar({.folio = "13"});
  w.agregar({.folio = "14"});
  imprimir();
  EXPECT_EQ(w.filas(), 3);
  EXPECT_THAT(w.user.progressLog,
              ElementsAre("open 3 Procesando vista preliminar ...", "1", "2", "3", "close"));
  EXPECT_EQ(w.user.hourglassDepth(), 0);
}

TEST_P(BookRun, EmptyBook_NoRowNoProgressNoMessage) {
  imprimir();
  w.user.progressLog.clear();
  w.vaciarLibro();
  const store::FailingEngine* motor = store::FailingEngine::wrap(w.conInformes());
  imprimir();
  EXPECT_EQ(w.filas(), 1) << "the table is left as it was";
  EXPECT_THAT(w.user.progressLog, IsEmpty());
  EXPECT_THAT(motor->executed(), Not(Contains("ROLLBACK")));
}

TEST_P(BookRun, RowFails_AllIsTakenBackBeforeTheErrorIsTold) {
  w.agregar({.folio = "13"});
  imprimir();
  w.user.progressLog.clear();
  auto* motor = store::FailingEngine::wrap(w.conInformes());
  motor->failOn(GetParam().registro->insercion(), store::ErrorKind::DiskFull, 2);
  w.user.answerAnything(Answer::Ok);
  imprimir();
  EXPECT_EQ(w.filas(), 2) << "those of the earlier run";
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_THAT(w.user.progressLog, ElementsAre(HasSubstr("open 2"), "1", "close"));
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text,
              HasSubstr(GetParam().registro->porCargador()
                            ? "  - "
                            : "FidaleonNucleo / cInformes / " + GetParam().nombre + ")"));
}

TEST_P(BookRun, ReadingFails_IsToldAndNothingStaysOpen) {
  for (const int paso : {1, 2}) {
    LibroWorld otro(*GetParam().registro);
    store::FailingEngine::wrap(otro.con())->failOn("SELECT", store::ErrorKind::Other, paso);
    otro.user.answerAnything(Answer::Ok);
    otro.imprimir(GetParam().miembro);
    EXPECT_EQ(otro.user.messages().size(), 1u) << paso;
    EXPECT_THAT(otro.user.progressLog, IsEmpty()) << paso;
    EXPECT_FALSE(otro.conInformes().inTransaction()) << paso;
  }
}

TEST_P(BookRun, StoppedByTheUser_LeavesNothingAndIsNoError) {
  w.agregar({.folio = "13"});
  w.agregar({.folio = "14"});
  w.user.stopAt = 2;
  w.user.expectMessage(forms::Cancelled().what());
  imprimir();
  EXPECT_EQ(w.filas(), 0);
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_EQ(w.user.progressLog.back(), "close");
  EXPECT_EQ(w.user.messages().at(0).icon, forms::MsgIcon::Information);
}

INSTANTIATE_TEST_SUITE_P(Documents, BookRun, ::testing::ValuesIn(casos()),
                         [](const auto& caso) { return caso.param.nombre; });

}  // namespace fidaleon::tests::BookRunTest
