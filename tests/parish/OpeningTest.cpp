#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "parish/OpeningFault.h"
#include "parish/Parish.h"
#include "parish/Preferences.h"
#include "store/Open.h"

namespace fidaleon::app {
namespace {

using store::ErrorKind;

class Opening : public ParishTest {
 protected:
  ErrorKind failure() {
    try {
      openParish(files());
    } catch (const store::Error& e) {
      fault = describeFault(e, files());
      return e.kind();
    }
    ADD_FAILURE() << "opened";
    return ErrorKind::Other;
  }
  bool offers(Remedy remedy) const {
    return std::find(fault.remedies.begin(), fault.remedies.end(), remedy) != fault.remedies.end();
  }
  void write(const std::filesystem::path& file, const std::string& text) {
    std::ofstream(file) << text;
  }
  OpeningFault fault;
};

TEST_F(Opening, firstRun_makesBothDatabasesTheTownAndTheLastValues) {
  create(Content::Empty);
  EXPECT_TRUE(std::filesystem::exists(files().parish()));
  EXPECT_EQ(desk->parishName(), "San Blas");
  EXPECT_EQ(desk->edition(), "Madrid");
  EXPECT_EQ(count("SELECT COUNT(IDProvincia) FROM Provincia"), 52);
  EXPECT_EQ(rowsOf("SELECT Institucion.IDInstitucion FROM Institucion, Ultimos, Municipio, "
                   "Provincia WHERE Ultimos.IDInstitucion=Institucion.IDInstitucion AND "
                   "IDMunicipio=CodMunicipio AND IDProvincia=CodProvincia AND "
                   "Provincia.Nombre=\"Madrid\""),
            1);
}

TEST_F(Opening, firstRun_givenUpInTheSetup_endsTheProgram) {
  create(Content::Empty);
  user.expectForm("frmDatosSetup", [](forms::FormDriver& d) { d.click("cmdBoton(1)"); });
  user.answerAnything(forms::Answer::Yes);
  EXPECT_FALSE(desk->setUp());
}

TEST_F(Opening, firstRun_missingAnswersAreNamed) {
  NewParish p = described();
  EXPECT_EQ(whatIsMissing(p), "");
  p.name = "  ";
  EXPECT_EQ(whatIsMissing(p), "Escriba el nombre de la parroquia.");
  p = described();
  p.province = 0;
  EXPECT_EQ(whatIsMissing(p), "Elija la provincia de la parroquia.");
}

TEST_F(Opening, firstRun_neverTouchesAParishThatIsThere) {
  create(Content::Empty);
  NewParish second = described();
  second.name = "San Roque";
  second.edition = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
  EXPECT_NE(whatIsMissing(second), "");
  EXPECT_THROW(createParish(second, clock.today()), store::NameTaken);
  open();
  EXPECT_EQ(desk->parishName(), "San Blas");
  EXPECT_EQ(desk->edition(), "Madrid");
}

TEST_F(Opening, firstRun_whereAParishCannotBeLookedAt_leavesItAlone) {
  std::filesystem::create_symlink("parroquia.fidaleon", files().parish());  // leads to itself
  EXPECT_NE(whatIsMissing(described()), "");
  EXPECT_THROW(createParish(described(), clock.today(), fillSampleParish), store::NameTaken);
  EXPECT_TRUE(std::filesystem::is_symlink(files().parish()));
}

TEST_F(Opening, firstRun_thatFails_leavesNothing) {
  NewParish p = described();
  p.directory = "/proc/fidaleon";
  EXPECT_THROW(createParish(p, clock.today()), store::Error);
  p.directory = directory();
  std::filesystem::create_directory(files().note());
  EXPECT_THROW(createParish(p, clock.today()), store::Error);
  EXPECT_FALSE(files().exists());
}

TEST_F(Opening, firstRun_forThisAccountOrForItsGroup_decidesWhoMayRead) {
  using std::filesystem::perms;
  const auto rightsOf = [](const std::filesystem::path& path) {
    return std::filesystem::status(path).permissions();
  };
  for (const bool shared : {false, true}) {
    NewParish p = described(Content::Empty);
    p.directory = directory() / (shared ? "de todos" : "de una");
    if (shared) p.group = getgid();
    createParish(p, clock.today());
    EXPECT_EQ(rightsOf(p.directory), shared ? perms(02770) : perms(0700));
    for (const auto& file : std::filesystem::directory_iterator(p.directory))
      EXPECT_EQ(rightsOf(file.path()), shared ? perms(0660) : perms(0600)) << file.path();
  }
}

TEST_F(Opening, nameThatIsNoText_isRefusedAtOnce) {
  NewParish p = described();
  p.directory = directory() / "Parroquia de Bu\xF1uel";
  EXPECT_THAT(whatIsMissing(p), ::testing::HasSubstr("UTF-8"));
  EXPECT_THROW(openParish(ParishFiles(p.directory)), store::Error);
}

TEST_F(Opening, reachedThroughALink_isWhereItLies) {
  create(Content::Empty);
  const std::filesystem::path other = directory() / "otra";
  std::filesystem::create_directory(other);
  std::filesystem::create_symlink(files().parish(), ParishFiles(other).parish());
  Desk linked(ParishFiles(other), "Ana", user, settings, clock);
  EXPECT_EQ(linked.presence().others().size(), 1u);
}

TEST_F(Opening, whereAnotherCannotBeSeen_theUserIsToldWaysOut) {
  fault = describeFault(locks::UnseenOther("motivo", {}), files());
  EXPECT_TRUE(offers(Remedy::OtherIsOff));
  EXPECT_EQ(fault.text, "motivo");
}

TEST_F(Opening, firstRun_quotesInANameDoNoHarm) {
  NewParish p = described(Content::Empty);
  p.name = "San \"Blas\"; DROP TABLE Institucion";
  createParish(p, clock.today());
  open();
  EXPECT_EQ(desk->parishName(), "San ''Blas''; DROP TABLE Institucion");
}

TEST_F(Opening, missing_offersANewParish) {
  EXPECT_EQ(failure(), ErrorKind::Missing);
  EXPECT_TRUE(offers(Remedy::NewParish));
  EXPECT_THAT(fault.text, ::testing::HasSubstr(files().parish().string()));
  EXPECT_FALSE(offers(Remedy::ReturnToCopy));
  std::filesystem::create_directory(directory() / "copias");
  write(directory() / "copias" / "a mano.copia", "x");
  failure();
  EXPECT_TRUE(offers(Remedy::ReturnToCopy)) << "it has left a copy";
}

TEST_F(Opening, whileAnotherHoldsTheFile_saysSoAndCanBeTriedAgain) {
  create(Content::Empty);
  desk.reset();
  int told[2];
  int ended[2];
  ASSERT_EQ(pipe(told), 0);
  ASSERT_EQ(pipe(ended), 0);
  const std::string file = files().parish().string();
  const pid_t other = fork();
  if (other == 0) {
    sqlite3* db = nullptr;
    sqlite3_open(file.c_str(), &db);
    const bool holds = sqlite3_exec(db, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr,
                                    nullptr, nullptr) == SQLITE_OK;
    char sign = holds ? 'y' : 'n';
    if (::write(told[1], &sign, 1) == 1 && ::read(ended[0], &sign, 1) == 1) _exit(0);
    _exit(1);
  }
  char held = 0;
  ASSERT_EQ(::read(told[0], &held, 1), 1);
  ASSERT_EQ(held, 'y');
  EXPECT_EQ(failure(), ErrorKind::Busy);
  EXPECT_EQ(fault.title, "La parroquia está ocupada");
  EXPECT_TRUE(offers(Remedy::Retry));
  ASSERT_EQ(::write(ended[1], &held, 1), 1);
  waitpid(other, nullptr, 0);
  open();
  EXPECT_EQ(desk->parishName(), "San Blas");
}

TEST_F(Opening, noDatabase_isNotTouched) {
  write(files().parish(), std::string(4096, 'x'));
  EXPECT_EQ(failure(), ErrorKind::NotADatabase);
  EXPECT_TRUE(offers(Remedy::ReturnToCopy));
  EXPECT_TRUE(offers(Remedy::OtherFolder));
  EXPECT_FALSE(offers(Remedy::NewParish));
  EXPECT_EQ(std::filesystem::file_size(files().parish()), 4096u);
}

TEST_F(Opening, twoWindowsOfOneAccount_haveScratchTablesOfTheirOwnAndLeaveNone) {
  create(Content::Empty);
  char host[256] = {};
  gethostname(host, sizeof host - 1);
  const std::filesystem::path kept = directory() / ("informes-" + std::string(host) + "-" +
                                                    std::to_string(getuid()) + ".fidaleon");
  write(kept, "de una versión anterior");
  Desk other(files(), "Secretaría", user, settings, clock);
  const auto rowsOn = [](store::Connection& reports) {
    return reports.Execute("SELECT * FROM Documentos_Bautismo").RecordCount();
  };
  desk->reports().Execute("INSERT INTO Documentos_Bautismo (NombreHijo) VALUES (\"Ana\")");
  EXPECT_EQ(rowsOn(desk->reports()), 1);
  EXPECT_EQ(rowsOn(other.reports()), 0);
  for (const auto& file : std::filesystem::directory_iterator(directory()))
    EXPECT_FALSE(file.path().filename().string().starts_with("informes")) << file.path();
}

TEST_F(Opening, everyFaultSaysSomethingAndLetsTheUserOut) {
  for (int kind = 0; kind <= static_cast<int>(ErrorKind::Other); ++kind) {
    fault = describeFault(store::Error(static_cast<ErrorKind>(kind), "motivo"), files());
    EXPECT_FALSE(fault.title.empty());
    EXPECT_FALSE(fault.text.empty());
    EXPECT_TRUE(offers(Remedy::Exit));
    EXPECT_GE(fault.remedies.size(), 2u);
  }
}

TEST_F(Opening, preferences_areKept) {
  EXPECT_TRUE(readPreferences(settings).directory.empty());
  writePreferences(settings, {"Secretaría", "/datos/parroquia"});
  EXPECT_EQ(readPreferences(settings).user, "Secretaría");
  EXPECT_EQ(readPreferences(settings).directory, "/datos/parroquia");
}

TEST_F(Opening, edition_isTheParishs) {
  NewParish p = described(Content::Empty);
  p.edition = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
  createParish(p, clock.today());
  const auto opened = [&](const std::string& edition) {
    open();
    EXPECT_EQ(desk->edition(), edition);
    return desk->editionDoubt();
  };
  EXPECT_EQ(opened("Menorca"), EditionDoubt::None);
  for (const char* note : {"", "Marte\n"}) {
    write(files().note(), note);
    EXPECT_EQ(opened("Menorca"), EditionDoubt::NoteRestored);
    EXPECT_EQ(opened("Menorca"), EditionDoubt::None);
  }
  write(files().note(), "Zaragoza\n");
  EXPECT_EQ(opened("Menorca"), EditionDoubt::NoteDiffers);
  desk->setEdition(FDAPI::cCAplicacion::APP_FIDALEON_ZARAGOZA);
  EXPECT_EQ(opened("Zaragoza"), EditionDoubt::None);
  // A parish of an earlier version keeps no edition itself.
  desk->parish().Execute("DELETE * FROM Instalacion");
  EXPECT_EQ(opened("Zaragoza"), EditionDoubt::None);
  std::filesystem::remove(files().note());
  EXPECT_EQ(opened("Zaragoza"), EditionDoubt::NoteRestored);
  desk->parish().Execute("DELETE * FROM Instalacion");
  std::filesystem::remove(files().note());
  EXPECT_EQ(opened("Madrid"), EditionDoubt::Unknown);
}

}  // namespace
}  // namespace fidaleon::app
