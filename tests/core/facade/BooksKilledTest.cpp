// A workstation that dies half way through an entry.

#include <csignal>

#include "../../../benches/BookStress.h"
#include "store/FailingEngine.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::BooksKilledTest {

struct Road {
  const char* name;
  const stress::Kind& kind;
  void (*take)(stress::Desk&, const std::string& word);
  bool oneStep = true;
};

class KilledHalfWay : public ::testing::TestWithParam<Road> {
 protected:
  void SetUp() override {
    stress::createParish(file, kind());
    walk(0, [](stress::Desk& d, const std::string& word) {
      d.nucleo.NuevaPartida(*d.parish, d.config, "Partidas" + word);
    });
  }
  const stress::Kind& kind() const { return GetParam().kind; }
  /// False when it was killed, at change number `death`.
  bool walk(int death, void (*take)(stress::Desk&, const std::string&)) {
    const pid_t victim = ::fork();
    if (victim == 0) {
      stress::Secretary user(death + 1, kind());  // whose people have no family yet
      user.book = death == 0 ? stress::NEW_BOOK : stress::OLD_BOOK;
      stress::Desk desk(user, file, "ana");
      store::FailingEngine::wrap(*desk.parish)->dieAt(death);
      take(desk, kind().sacrament.palabra);
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(victim, &status, 0);
    return WIFEXITED(status);
  }
  std::string everything() {
    const auto parish = store::openDatabase(file, store::parishSchema());
    std::string all;
    std::vector<std::string> tables{kind().sacrament.tablaLibros, "Matrimonio_Cursos"};
    for (const FilaDePartida& row : formaPartida(kind().sacrament)->filas)
      tables.push_back(row.tabla);
    for (const std::string& table : tables)
      for (auto rs = parish->Execute("SELECT * FROM " + table); !rs.EOF_(); rs.MoveNext())
        for (int i = 0; i < rs.FieldCount(); ++i) all += rs.Fields(i).Value().text() + "|";
    return all;
  }

  TempDirectory directory;
  std::filesystem::path file = directory.path() / "parroquia.fid";
};

/// The entries that the list of a book adds are stored one by one; any other road is one step.
TEST_P(KilledHalfWay, AtAnyChange_NoEntryIsHalfThere) {
  const std::string before = everything();
  int death = 1;
  for (; !walk(death, GetParam().take); ++death) {
    ASSERT_TRUE(!GetParam().oneStep || everything() == before) << "at change " << death;
    stress::Outcome outcome;
    stress::lookThrough(file, kind(), outcome);
    ASSERT_EQ(outcome.stored, outcome.listed) << "at change " << death;
    ASSERT_LT(death, 60);
  }
  EXPECT_GT(death, 5);
  EXPECT_NE(everything(), before);
}

void oldEntry(stress::Desk& d, const std::string& word) {
  d.nucleo.AntiguaPartida(*d.parish, d.config, "Partidas" + word);
}
void removal(stress::Desk& d, const std::string& word) {
  d.nucleo.EliminarPartida(*d.parish, 1, d.config, "Partidas" + word);
}
void list(stress::Desk& d, const std::string& word) {
  d.nucleo.PropiedadesLibro(*d.parish, 1, d.config, "Libros" + word);
}

const Road ROADS[] = {{"Old", stress::KINDS[0], oldEntry},
                      {"Removal", stress::KINDS[1], removal},
                      {"OldMarriage", stress::KINDS[2], oldEntry},
                      {"List", stress::KINDS[3], list, false}};

INSTANTIATE_TEST_SUITE_P(Facade, KilledHalfWay, ::testing::ValuesIn(ROADS),
                         [](const auto& road) { return std::string(road.param.name); });

}  // namespace fidaleon::tests::BooksKilledTest
