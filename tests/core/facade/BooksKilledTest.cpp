// A workstation that dies half way through an entry.

#include <csignal>

#include "../../../benches/BookStress.h"
#include "store/FailingEngine.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::BooksKilledTest {

struct Station {
  Station(forms::UserInterface& u, const std::filesystem::path& file)
      : user(u), parish(store::openDatabase(file, store::parishSchema())) {}

  forms::UserInterface& user;
  FDAPI::cConfig config{"Fidaleon", "", "ana", "Castellano", false};
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  Entorno entorno{user, host, settings, clock, {}};
  cNucleo nucleo{entorno};
  std::unique_ptr<store::Connection> parish;
};

struct Road {
  const char* name;
  void (*take)(cNucleo&, store::Connection&, const FDAPI::cConfig&);
};

class KilledHalfWay : public ::testing::TestWithParam<Road> {
 protected:
  void SetUp() override {
    stress::createParish(file);
    walk(0, {"", [](cNucleo& n, store::Connection& con, const FDAPI::cConfig& config) {
               n.NuevaPartida(con, config, "PartidasBautismo");
             }});
  }
  /// False when it was killed, at change number `death`.
  bool walk(int death, const Road& road) {
    const pid_t victim = ::fork();
    if (victim == 0) {
      stress::Secretary user(death + 1);  // whose children have no family yet
      user.book = death == 0 ? stress::NEW_BOOK : stress::OLD_BOOK;
      Station station(user, file);
      store::FailingEngine::wrap(*station.parish)->dieAt(death);
      road.take(station.nucleo, *station.parish, station.config);
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(victim, &status, 0);
    return WIFEXITED(status);
  }
  std::string everything() {
    const auto parish = store::openDatabase(file, store::parishSchema());
    std::string all;
    for (const char* table : {"Bautismo", "Bautismo_Hijo", "Bautismo_Padres", "Bautismo_Madres",
                              "Bautismo_Matrimonio", "Libro_Bautismo"})
      for (auto rs = parish->Execute(std::string("SELECT * FROM ") + table); !rs.EOF_();
           rs.MoveNext())
        for (int i = 0; i < rs.FieldCount(); ++i) all += rs.Fields(i).Value().text() + "|";
    return all;
  }

  TempDirectory directory;
  std::filesystem::path file = directory.path() / "parroquia.fid";
};

TEST_P(KilledHalfWay, AtAnyChange_LeavesThingsAsTheyWere) {
  const std::string before = everything();
  int death = 1;
  for (; !walk(death, GetParam()); ++death) {
    ASSERT_EQ(everything(), before) << "at change " << death;
    ASSERT_LT(death, 40);
  }
  EXPECT_GT(death, 5);
  EXPECT_NE(everything(), before);
}

const Road ROADS[] = {
    {"OldEntry",
     [](cNucleo& n, store::Connection& con, const FDAPI::cConfig& config) {
       n.AntiguaPartida(con, config, "PartidasBautismo");
     }},
    {"DeletedEntry",
     [](cNucleo& n, store::Connection& con, const FDAPI::cConfig& config) {
       n.EliminarPartida(con, 1, config, "PartidasBautismo");
     }},
};

INSTANTIATE_TEST_SUITE_P(Facade, KilledHalfWay, ::testing::ValuesIn(ROADS),
                         [](const auto& road) { return std::string(road.param.name); });

/// The two entries that the list of a book adds are stored one by one.
TEST_F(KilledHalfWay, InTheListOfABook_NoEntryIsHalfThere) {
  const Road list{"", [](cNucleo& n, store::Connection& con, const FDAPI::cConfig& config) {
                    n.PropiedadesLibro(con, 1, config, "LibrosBautismo");
                  }};
  int death = 1;
  for (bool killed = true; killed && death < 60; ++death) {
    killed = !walk(death, list);
    stress::Outcome outcome;
    stress::lookThrough(file, outcome);
    EXPECT_EQ(outcome.stored, outcome.listed) << "at change " << death;
  }
  EXPECT_GT(death, 12);
}

}  // namespace fidaleon::tests::BooksKilledTest
