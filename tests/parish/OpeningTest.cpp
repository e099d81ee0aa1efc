#include <unistd.h>

#include <fstream>

#include "parish/OpeningFault.h"
#include "parish/Parish.h"
#include "parish/Preferences.h"
#include "store/Open.h"

namespace fidaleon::app::OpeningTest {

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

TEST_F(Opening, FirstRun_MakesBothDatabasesTheTownAndTheLastValues) {
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

TEST_F(Opening, FirstRun_GivenUpInTheSetup_EndsTheProgram) {
  create(Content::Empty);
  user.expectForm("frmDatosSetup", [](FormDriver& d) { d.click("cmdBoton(1)"); });
  user.answerAnything(Answer::Yes);
  EXPECT_FALSE(desk->setUp());
}

TEST_F(Opening, FirstRun_NeverTouchesAParishThatIsThere) {
  create(Content::Empty);
  NewParish second = described(Content::Empty);
  second.name = "San \"Roque\"; DROP TABLE Institucion";
  second.edition = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
  EXPECT_NE(whatIsMissing(second), "");
  EXPECT_THROW(createParish(second, clock.today()), store::NameTaken);
  open();
  EXPECT_EQ(desk->parishName(), "San Blas");
  EXPECT_EQ(desk->edition(), "Madrid");
  second.directory = directory() / "otra";
  createParish(second, clock.today());
  EXPECT_EQ(Desk(ParishFiles(second.directory), "Ana", user, settings, clock).parishName(),
            "San ''Roque''; DROP TABLE Institucion");
}

TEST_F(Opening, FirstRun_WhereAParishCannotBeLookedAt_LeavesItAlone) {
  std::filesystem::create_symlink("parroquia.fidaleon", files().parish());  // leads to itself
  EXPECT_NE(whatIsMissing(described()), "");
  EXPECT_THROW(createParish(described(), clock.today(), fillSampleParish), store::NameTaken);
  EXPECT_TRUE(std::filesystem::is_symlink(files().parish()));
}

TEST_F(Opening, FirstRun_ThatFails_LeavesNothing) {
  NewParish p = described();
  p.directory = "/proc/fidaleon";
  EXPECT_THROW(createParish(p, clock.today()), store::Error);
  p.directory = directory();
  const auto full = [](auto&&...) { throw store::Error(ErrorKind::DiskFull, "lleno"); };
  EXPECT_THROW(createParish(p, clock.today(), full), store::Error);
  EXPECT_FALSE(std::filesystem::exists(files().note()));
  std::filesystem::create_directory(files().note());
  EXPECT_THROW(createParish(p, clock.today()), store::Error);
  EXPECT_FALSE(files().exists());
}

TEST_F(Opening, FirstRun_ForThisAccountOrForItsGroup_DecidesWhoMayRead) {
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

TEST_F(Opening, ReachedThroughALink_IsWhereItLies) {
  create(Content::Empty);
  const std::filesystem::path other = directory() / "otra";
  std::filesystem::create_directory(other);
  std::filesystem::create_symlink(files().parish(), ParishFiles(other).parish());
  Desk linked(ParishFiles(other), "Ana", user, settings, clock);
  EXPECT_EQ(linked.presence().others().size(), 1u);
}

TEST_F(Opening, FirstRun_WhatIsMissingOrUnreadableIsNamed) {
  const auto missing = [&](const std::function<void(NewParish&)>& change) {
    NewParish p = described();
    change(p);
    return whatIsMissing(p);
  };
  EXPECT_EQ(missing([](NewParish&) {}), "");
  EXPECT_EQ(missing([](NewParish& p) { p.name = "  "; }), "Escriba el nombre de la parroquia.");
  EXPECT_EQ(missing([](NewParish& p) { p.province = 0; }), "Elija la provincia de la parroquia.");
  const auto noText = directory() / "Parroquia de Bu\xF1uel";
  EXPECT_THAT(missing([&](NewParish& p) { p.directory = noText; }), HasSubstr("UTF-8"));
  EXPECT_THROW(openParish(ParishFiles(noText)), store::Error);
}

TEST_F(Opening, EveryFault_SaysSomethingAndLetsTheUserOut) {
  for (int kind = 0; kind <= static_cast<int>(ErrorKind::Other); ++kind) {
    fault = describeFault(store::Error(static_cast<ErrorKind>(kind), "motivo"), files());
    EXPECT_FALSE(fault.title.empty() || fault.text.empty());
    EXPECT_TRUE(offers(Remedy::Exit) && offers(Remedy::Retry));
    EXPECT_GE(fault.remedies.size(), 2u);
    EXPECT_EQ(offers(Remedy::NewParish), static_cast<ErrorKind>(kind) == ErrorKind::Missing);
  }
  fault = describeFault(locks::UnseenOther("motivo", {}), files());
  EXPECT_TRUE(offers(Remedy::OtherIsOff));
  EXPECT_EQ(fault.text, "motivo");
  write(files().parish(), std::string(4096, 'x'));
  EXPECT_EQ(failure(), ErrorKind::NotADatabase);
  EXPECT_TRUE(offers(Remedy::ReturnToCopy) && offers(Remedy::OtherFolder));
  EXPECT_EQ(std::filesystem::file_size(files().parish()), 4096u) << "it is not touched";
}

TEST_F(Opening, Missing_OffersANewParish) {
  EXPECT_EQ(failure(), ErrorKind::Missing);
  EXPECT_TRUE(offers(Remedy::NewParish));
  EXPECT_THAT(fault.text, HasSubstr(files().parish().string()));
  EXPECT_FALSE(offers(Remedy::ReturnToCopy));
  std::filesystem::create_directory(directory() / "copias");
  write(directory() / "copias" / "a mano.copia", "x");
  failure();
  EXPECT_TRUE(offers(Remedy::ReturnToCopy)) << "it has left a copy";
}

TEST_F(Opening, TwoWindowsOfOneAccount_HaveScratchTablesOfTheirOwnAndLeaveNone) {
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

TEST_F(Opening, Preferences_AreKept) {
  EXPECT_TRUE(readPreferences(settings).directory.empty());
  writePreferences(settings, {"Secretaría", "/datos/parroquia"});
  EXPECT_EQ(readPreferences(settings).user, "Secretaría");
  EXPECT_EQ(readPreferences(settings).directory, "/datos/parroquia");
}

TEST_F(Opening, Edition_IsTheParishs) {
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

}  // namespace fidaleon::app::OpeningTest
