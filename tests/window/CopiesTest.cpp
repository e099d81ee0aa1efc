// Copies made before something is taken away: what they are called, what they hold, how long they
// stay.

#include <fstream>

#include "parish/WindowSettings.h"
#include "parish/copies/CopyRetention.h"
#include "parish/copies/Precaution.h"
#include "store/Engine.h"
#include "store/FailingEngine.h"
#include "window/CopiesFixture.h"
#include "window/OpenWindow.h"

namespace fidaleon::app::CopiesTest {

TEST(CopyName, SaysWhenAndBeforeWhat_AndSorts) {
  const CopyName first{NOON, 1, "Eliminar en Partidas, Bautismo"};
  const CopyName second{NOON, 2, "Anular"};
  EXPECT_EQ(first.file(), "2020-05-20 12.00.00 Eliminar en Partidas, Bautismo.fidaleon");
  EXPECT_EQ(second.file(), "2020-05-20 12.00.00-2 Anular.fidaleon");
  EXPECT_LT(first.file(), second.file());
  for (const CopyName& name : {first, second}) {
    const auto read = CopyName::parse(name.file());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->moment, name.moment);
    EXPECT_EQ(read->ordinal, name.ordinal);
    EXPECT_EQ(read->before, name.before);
  }
  EXPECT_EQ((CopyName{NOON, 1, " &Pasar a \"A/B\\C\": <¿qué?>|*\n… "}).file(),
            "2020-05-20 12.00.00 Pasar a A-B-C ¿qué.fidaleon");
  EXPECT_EQ((CopyName{NOON, 1, "..."}).file(), "2020-05-20 12.00.00 Orden.fidaleon");
  EXPECT_LT((CopyName{NOON, 12, std::string(400, 'x')}).file().size(), 235U);
}

TEST(CopyName, OtherFilesAreNone) {
  for (const char* name :
       {"", "parroquia.fidaleon", "2020-05-20 12.00.00.fidaleon", "2026-05-20 12.00.00 X.copia",
        "2026-02-30 12.00.00 X.fidaleon", "2026-05-20 25.00.00 X.fidaleon",
        "2026-05-20 12:00:00 X.fidaleon", "2020-05-20 12.00.00-x Y.fidaleon",
        "2020-05-20 12.00.00-1 Y.fidaleon", "2026-05-20 12.00.00 X.fidaleon.parte",
        "mi 2020-05-20 12.00.00 X.fidaleon", "2026-05-20 12.00.00 .fidaleon"})
    EXPECT_FALSE(CopyName::parse(name)) << name;
}

/// One day for each offset, in days before Wednesday, 20 May 2026.
std::vector<CopyFacts> daysBefore(const std::vector<int>& offsets, std::uintmax_t bytes = 1) {
  std::vector<CopyFacts> copies;
  for (const int offset : offsets) {
    const QDate day = QDate(2026, 5, 20).addDays(-offset);
    copies.push_back({{day.year(), day.month(), day.day()}, bytes});
  }
  return copies;
}

std::vector<int> weekly(int weeks) {
  std::vector<int> offsets;
  for (int week = 1; week <= weeks; ++week) offsets.push_back(7 * week);
  return offsets;
}

TEST(CopyRetention, KeepsThirtyThenOneAWeekForFiftyTwoWeeks) {
  struct Case {
    const char* what;
    std::vector<int> older;  // behind thirty of today
    std::vector<std::size_t> gone;
  };
  const std::vector<Case> cases{
      {"thirty are no burden", {}, {}},
      {"the week of the thirty has its copy", {0, 1, 2}, {30, 31, 32}},
      {"Sunday is another week", {3}, {}},
      {"the newest of each week", {3, 4, 9, 10, 11, 16}, {31, 32, 34, 35}},
      {"fifty-two weeks that have some, and not one more", weekly(53), {82}},
      {"weeks without copies are no matter", {100, 300}, {}},
      {"over the turn of the year it is one week", {139, 140}, {31}},
      {"long ago, or before a clock that is years ahead", {400, 800, 4000}, {}},
  };
  for (const Case& c : cases) {
    std::vector<int> offsets(COPIES_KEPT, 0);
    offsets.insert(offsets.end(), c.older.begin(), c.older.end());
    EXPECT_EQ(superfluous(daysBefore(offsets)), c.gone) << c.what;
  }
  EXPECT_THAT(superfluous({}), IsEmpty());
  EXPECT_THAT(superfluous(daysBefore({900, 901})), IsEmpty()) << "the newest stay";
  EXPECT_THAT(superfluous(daysBefore({0, 1, 2, 3, 4, 5, 6}, BYTES_KEPT / 6)), ElementsAre(6));
  EXPECT_THAT(superfluous(daysBefore({0, 1, 2, 3, 4, 5}, BYTES_KEPT)), ElementsAre(5))
      << "five stay, whatever room they take";
}

TEST_F(Copies, Made_AreWholeAndApart) {
  addOffice("Sacristán");
  const fs::path first = make();
  addOffice("Organista");
  const fs::path second = make("Otra");
  EXPECT_THAT(namesIn(folder()), ElementsAre("2020-05-20 12.00.00 Eliminar.fidaleon",
                                             "2020-05-20 12.00.00-2 Otra.fidaleon"));
  EXPECT_EQ(make().filename(), "2020-05-20 12.00.00-3 Eliminar.fidaleon");
  EXPECT_EQ(officesIn(first), 1);
  EXPECT_EQ(officesIn(second), 2);
}

TEST_F(Copies, ThatCannotBeMade_SayWhyAndLeaveNothing) {
  const auto failure = [&] { return store::kindOf([&] { make(); }); };
  {
    const FullDisk full(20000);
    EXPECT_EQ(failure(), store::ErrorKind::DiskFull);
  }
  EXPECT_THROW(copies.make(desk->parish(), "Eliminar", NOON, [](int) { return false; }),
               store::Error);
  EXPECT_THAT(namesIn(folder()), IsEmpty());
  fs::remove_all(folder());
  std::ofstream(folder()) << "a file in the place of the folder";
  EXPECT_EQ(failure(), store::ErrorKind::ReadOnly);
}

/// An engine whose copies come out wrong.
class BadCopier : public store::FailingEngine {
 public:
  using FailingEngine::FailingEngine;
  std::function<void(const fs::path&)> damage;
  void backup(const fs::path& to, const store::Schema& schema,
              const store::Progress& progress) override {
    FailingEngine::backup(to, schema, progress);
    damage(to);
  }
};

TEST_F(Copies, ThatAreNotTheParish_AreFoundOut) {
  addOffice("Sacristán");
  BadCopier* copier = nullptr;
  desk->parish().wrapEngine([&](std::unique_ptr<store::Engine> inner) {
    auto made = std::make_unique<BadCopier>(std::move(inner));
    copier = made.get();
    return made;
  });
  const std::vector<std::function<void(const fs::path&)>> faults{
      [](const fs::path& f) { fs::resize_file(f, fs::file_size(f) - 4096); },
      [](const fs::path& f) {
        store::openDatabase(f, store::parishSchema())->Execute("DELETE FROM Cargo");
      },
      [](const fs::path& f) { fs::remove(f); },
  };
  for (const auto& fault : faults) {
    copier->damage = fault;
    EXPECT_THROW(make(), store::Error);
    EXPECT_THAT(namesIn(folder()), IsEmpty());
  }
  copier->damage = [](const fs::path&) {};
  EXPECT_EQ(officesIn(make()), 1);
}

TEST_F(Copies, Listed_AreTheWholeOnesNewestFirst) {
  make("Una", {{2020, 5, 1}, 9, 0, 0});
  make("Dos", {{2020, 5, 2}, 9, 0, 0});
  make("Tres", {{2020, 5, 2}, 9, 0, 0});
  place("2020-05-03 10.00.00 A medias.fidaleon", "");
  place("2020-05-03 10.00.00 Otra.fidaleon.parte");
  place("notas.txt");
  place("a mano.copia");
  std::vector<std::string> before;
  for (const SafetyCopy& copy : copies.list()) before.push_back(copy.before);
  EXPECT_THAT(before, ElementsAre("", "Tres", "Dos", "Una")) << "written by hand just now";
  EXPECT_THAT(SafetyCopies("/no/hay").list(), IsEmpty());
}

TEST_F(Copies, Older_AreCompressedAndRemainTheSameCopy) {
  for (int i = 0; i < 4; ++i) make();
  place("a mano.copia");
  copies.compressOlder([] { return false; });
  EXPECT_THAT(namesIn(folder()), ::testing::Each(::testing::Not(::testing::EndsWith(".zst"))))
      << "no longer wanted";
  // Of a program that was killed.
  place("2020-05-20 12.00.00 Eliminar.fidaleon.zst", "\x28\xB5\x2F\xFD");
  copies.compressOlder([] { return true; });
  EXPECT_THAT(namesIn(folder()), ::testing::UnorderedElementsAre(
                                     "2020-05-20 12.00.00 Eliminar.fidaleon.zst",
                                     "2020-05-20 12.00.00-2 Eliminar.fidaleon.zst",
                                     "2020-05-20 12.00.00-3 Eliminar.fidaleon",
                                     "2020-05-20 12.00.00-4 Eliminar.fidaleon", "a mano.copia"));
  EXPECT_EQ(make().filename(), "2020-05-20 12.00.00-5 Eliminar.fidaleon");
}

TEST_F(Copies, Pruned_OnlyOursGo) {
  fs::create_directories(folder());
  for (int day = 1; day <= 31; ++day)
    place(CopyName{{{2026, 3, day}, 8, 0, 0}, 1, "Eliminar"}.file());
  for (int day = 2; day <= 4; ++day)  // Monday to Wednesday
    place(CopyName{{{2026, 2, day}, 8, 0, 0}, 1, "Eliminar"}.file());
  const std::vector<std::string> staying{
      "2020-01-01 copia de Ana.fidaleon", "notas.txt", "parroquia.fidaleon", "vieja.copia",
      "2026-02-04 08.00.00 Eliminar.fidaleon", "2026-05-20 09.00.00 De hoy.fidaleon.parte",
      // Made under a clock that was wrong: they push out nothing.
      "2031-01-01 08.00.00 Eliminar.fidaleon", "2031-01-02 08.00.00 Eliminar.fidaleon"};
  for (const std::string& name : staying) place(name);
  place("2026-05-19 09.00.00 De ayer.fidaleon.parte-journal");
  place("2026-05-19 09.00.00 De ayer.fidaleon", "");
  copies.prune({{2026, 5, 20}, 12, 0, 0});
  const auto left = namesIn(folder());
  // Thirty, and the first of March as the newest of its week.
  EXPECT_EQ(left.size(), 30 + 1 + staying.size());
  for (const std::string& name : staying) EXPECT_THAT(left, Contains(name));
}

TEST_F(Copies, BeforeACommand_StayOnlyWhenItChangedSomething) {
  const auto after = [&](const std::function<void()>& command) {
    {
      const Precaution copy(copies, desk->parish(), "Eliminar", NOON);
      command();
    }
    return namesIn(folder()).size();
  };
  const auto colleague = store::openDatabase(files().parish(), store::parishSchema());
  EXPECT_EQ(after([] {}), 0U);
  EXPECT_EQ(after([&] { offices(); }), 0U);
  EXPECT_EQ(after([&] { Insert("Cargo").text("Nombre", "x").into(*colleague); }), 0U);
  EXPECT_EQ(after([&] {
              desk->parish().BeginTrans();
              addOffice("Sacristán");
              desk->parish().RollbackTrans();
            }),
            0U);
  EXPECT_EQ(after([&] { addOffice("Sacristán"); }), 1U);
}

/// A parish that is damaged and opens all the same.
class DamagedWindow : public OpenWindow<Copies> {
 protected:
  void SetUp() override {
    Copies::SetUp();
    fillOffices();
    make();
    desk.reset();
    damage();
    open("Provincias");
    answerNext("&Volver a una copia…", &said);
  }
  void TearDown() override {
    EXPECT_TRUE(said.contains("La parroquia está estropeada.")) << said.toStdString();
    EXPECT_EQ(window->departure().to, Departure::To::Copy);
    EXPECT_EQ(copies.list().size(), 1U) << "of what was whole";
  }
  QString said;
};

TEST_F(DamagedWindow, IsNoticedBeforeACopyAndToldWithTheWayBack) {
  give("eliminar");
}

TEST_F(DamagedWindow, IsNoticedWhenNobodyIsAtTheKeyboard) {
  window->dailyCheck().begin(std::chrono::seconds(10));
  window->dailyCheck().begin(std::chrono::minutes(10));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !said.isEmpty(); }));
}

class CopiesWindow : public OpenWindow<Copies> {
 protected:
  void SetUp() override {
    open("SolicitudesBautismo");
    before = shown();
  }
  void deleteRequest(Answer answer) {
    user.expectMessage("¿Está seguro que desea eliminar la solicitud?", answer);
    give("eliminar-solicitud");
  }
  int before = 0;
};

TEST_F(CopiesWindow, Deleting_LeavesACopyThatNamesTheCommand) {
  deleteRequest(Answer::No);
  EXPECT_THAT(namesIn(folder()), IsEmpty());
  deleteRequest(Answer::Yes);
  const auto all = copies.list();
  ASSERT_EQ(all.size(), 1U);
  EXPECT_EQ(all[0].before, "Eliminar en Solicitudes, Bautismo");
}

TEST_F(CopiesWindow, ASoundParish_IsLookedThroughOnceADay) {
  const auto checked = [&] { return readWindowSetting(*desk, "comprobada"); };
  window->dailyCheck().begin(std::chrono::minutes(10));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !checked().empty(); }));
  EXPECT_THAT(checked(), HasSubstr("20260520"));
}

TEST_F(CopiesWindow, WhenTheParishIsGone_NothingIsBegunAndItCanBeOpenedAgain) {
  const fs::path aside = directory() / "aparte";
  fs::rename(files().parish(), aside);
  QString text;
  answerNext("&Ahora no", &text);
  give("eliminar-solicitud");
  EXPECT_TRUE(text.contains("ya no está en su sitio")) << text.toStdString();
  EXPECT_EQ(window->departure().to, Departure::To::End);
  answerNext("A&brir de nuevo");
  give("eliminar-solicitud");
  EXPECT_EQ(window->departure().to, Departure::To::Parish);
  fs::rename(aside, files().parish());
  deleteRequest(Answer::Yes);
  EXPECT_EQ(shown(), before - 1) << "it is back";
}

/// Opens the properties of the old book and takes one of its entries out, or changes nothing but
/// the date.
class CopiesBook : public CopiesWindow {
 protected:
  void SetUp() override {
    CopiesWindow::SetUp();
    desk->parish().Execute("UPDATE Libro_Bautismo SET Cerrado=true WHERE Nuevo=true");
    window->showNode("LibrosBautismo");
    ASSERT_TRUE(window->chooseRow(static_cast<std::int32_t>(
        count("SELECT IDLibroBautismo FROM Libro_Bautismo WHERE Nuevo=false"))));
  }
  void acceptBook(bool withoutAnEntry) {
    user.expectForm("frmPropiedadesLibroBautismo", [=](FormDriver& d) {
      if (withoutAnEntry) {
        d.tab("mstLibro", 1);
        d.row("msgPartidas", 1);
        d.click("cmdPartidas(3)");
      }
      d.click("cmdBoton(0)");
      if (!d.closed()) d.click("cmdBoton(1)");
    });
    give("propiedades-libro");
  }
  std::int64_t entries() { return count("SELECT COUNT(*) FROM Bautismo"); }
};

TEST_F(CopiesBook, WithoutSomeOfItsEntries_HasACopyWithThem) {
  const std::int64_t all = entries();
  for (const char* journal : {"WAL", "DELETE"}) {
    SCOPED_TRACE(journal);
    desk->parish().engine().run(std::string("PRAGMA journal_mode = ") + journal);
    acceptBook(false);
    EXPECT_THAT(copies.list(), IsEmpty()) << "nothing was taken away";
    acceptBook(true);
    ASSERT_EQ(copies.list().size(), 1U);
    EXPECT_EQ(copies.list()[0].before, "Propiedades en Libros, Bautismo");
    SafetyCopies::remove(copies.list()[0].file);
  }
  EXPECT_EQ(entries(), all - 2);
}

TEST_F(CopiesWindow, IncompleteEntries_AreToldOfAndRemovedBehindACopy) {
  window->tellOfIncompleteEntries();
  const std::int64_t all = count("SELECT COUNT(*) FROM Bautismo");
  desk->parish().Execute("DELETE * FROM Bautismo_Hijo WHERE CodBautismo=1");
  user.expectMessage(
      "Hay una partida a la que le falta alguna de sus fichas o su institución: puede que no "
      "aparezca en las "
      "listas. ¿Desea verla ahora?",
      Answer::Yes);
  user.expectForm("frmPartidasIncompletas", [&](FormDriver& d) {
    user.expectMessage("¿Está seguro que desea eliminar la partida?", Answer::Yes);
    d.click("cmdBoton(1)");
  });
  window->tellOfIncompleteEntries();
  EXPECT_EQ(count("SELECT COUNT(*) FROM Bautismo"), all - 1);
  ASSERT_EQ(copies.list().size(), 1U);
  EXPECT_EQ(copies.list()[0].before, "Partidas incompletas");
}

TEST_F(CopiesBook, WithoutACopy_KeepsItsEntriesUntilToldToGoOn) {
  const std::int64_t all = entries();
  const std::int64_t touched = desk->parish().engine().touchedSoFar();
  std::ofstream(folder()) << "x";
  user.answerAnything(Answer::Yes);
  QString text;
  answerNext({}, &text);
  acceptBook(true);
  EXPECT_EQ(entries(), all) << "Enter says no";
  EXPECT_EQ(desk->parish().engine().touchedSoFar(), touched) << "it is asked ahead of any change";
  EXPECT_TRUE(text.contains("No se ha podido guardar una copia")) << text.toStdString();
  EXPECT_TRUE(text.contains("No se puede escribir en")) << text.toStdString();
  EXPECT_THAT(user.messages()[0].text, HasSubstr("No se ha eliminado nada"));
  answerNext("C&ontinuar sin copia");
  acceptBook(true);
  EXPECT_EQ(entries(), all - 1);
}

}  // namespace fidaleon::app::CopiesTest
