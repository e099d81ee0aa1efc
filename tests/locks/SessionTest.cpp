#include <filesystem>
#include <fstream>

#include "locks/MeetingPlaces.h"
#include "locks/SharedDirectory.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::SessionTest {

namespace fs = std::filesystem;
using FDAPI::DefinicionBloqueo;

constexpr const char* REFUSED_RECORD =
    "En este momento no se puede abrir la partida de bautismo.\n"
    "Lo está usando: ana, en este mismo equipo, en otra ventana del programa, desde el 22/11/2026 "
    "a las 10:30.\n"
    "Inténtelo de nuevo cuando termine.";

DefinicionBloqueo whole(const std::string& table) {
  DefinicionBloqueo d;
  d.strTabla = table;
  return d;
}
DefinicionBloqueo shared(const std::string& table) {
  DefinicionBloqueo d = whole(table);
  d.blnBloqueoParcialTabla = true;
  return d;
}
DefinicionBloqueo record(const std::string& table, const std::string& which,
                         store::Connection* con = nullptr) {
  DefinicionBloqueo d = whole(table);
  d.strRegistro = which;
  d.conBd = con;
  return d;
}
DefinicionBloqueo sharedRecord(const std::string& table, const std::string& which,
                               store::Connection* con = nullptr) {
  DefinicionBloqueo d = record(table, which, con);
  d.blnBloqueoParcialRegistro = true;
  return d;
}

class AtAPlace {
 protected:
  std::unique_ptr<FDAPI::cProcesarBloqueos> open() { return abrirSesion(w.contexto, w.con()); }
  static long take(FDAPI::cProcesarBloqueos& session, std::vector<DefinicionBloqueo> definitions) {
    for (DefinicionBloqueo& d : definitions) session.DefinirBloqueo(std::move(d));
    return session.lngEfectuarBloqueos();
  }
  int sessionFiles() const {
    int n = 0;
    for (const auto& f : fs::directory_iterator(w.directory.path()))
      n += f.path().filename().string().starts_with(locks::SharedDirectory::SESSION_PREFIX);
    return n;
  }
  void lastMessage(const std::string& part) const {
    ASSERT_FALSE(w.user.messages().empty());
    EXPECT_THAT(w.user.messages().back().text, HasSubstr(part));
  }
  TestWorld w;
};

class Session : public AtAPlace, public ::testing::TestWithParam<Place> {
 protected:
  Session() {
    if (GetParam() == Place::Server) meetOnServer(w.directory.path());
  }
};
MEETING_PLACES(Session);

/// What is so of files alone.
class SessionInAFolder : public AtAPlace, public ::testing::Test {};

TEST_P(Session, TwoOfOneProcess_ConflictAndTheUserIsTold) {
  auto first = open();
  auto second = open();
  EXPECT_EQ(take(*first, {record("Bautismo", "7")}), 0);
  w.user.expectMessage(REFUSED_RECORD);
  EXPECT_EQ(take(*second, {record("BAUTISMO", "7")}), FDAPI::BloqueoRegistro);
  EXPECT_EQ(second->lngUltimoBloqueoError(), FDAPI::BloqueoRegistro);
  first->LiberarBloqueos();
  EXPECT_EQ(take(*second, {record("Bautismo", "7")}), 0);
  EXPECT_EQ(second->lngUltimoBloqueoError(), 0);
}

TEST_P(Session, EachRefusal_HasItsKind) {
  w.user.answerAnything(Answer::Ok);
  auto other = w.otherSession();
  ASSERT_EQ(take(*other, {whole("Bautismo"), shared("Provincia"), record("Institucion", "2")}), 0);
  EXPECT_EQ(take(*open(), {record("Bautismo", "1")}), FDAPI::BloqueoRegistro);
  lastMessage("luis, en el equipo SACRISTIA, desde el 22/11/2026 a las 10:30");
  lastMessage("Tiene reservado todo el conjunto");
  EXPECT_EQ(take(*open(), {sharedRecord("Institucion", "1"), record("Bautismo", "1")}),
            FDAPI::BloqueoRegistroConPadres);
  EXPECT_EQ(take(*open(), {shared("Municipio"), whole("Provincia")}), FDAPI::BloqueoTabla);
  lastMessage("En este momento no se puede trabajar con las provincias.");
  EXPECT_EQ(take(*open(), {shared("Bautismo")}), FDAPI::BloqueoCompartido);
  EXPECT_EQ(take(*open(), {sharedRecord("Institucion", "2")}), FDAPI::BloqueoCompartido);
  lastMessage("En este momento no se puede abrir la institución.");
  EXPECT_EQ(take(*open(), {shared("Provincia"), sharedRecord("Institucion", "3")}), 0);
}

TEST_P(Session, RefusedToWhoGoesOnAllTheSame_SaysWhatIsLeftAndWhoHasIt) {
  const std::string luis = "luis, en el equipo SACRISTIA, desde el 22/11/2026 a las 10:30";
  auto other = w.otherSession();
  ASSERT_EQ(take(*other, {record("Bautismo", "9"), whole("Municipio")}), 0);
  auto mine = open();
  mine->AlRehusar(FDAPI::BloqueoRegistro, "Solo se puede consultar");
  w.user.expectMessage("Solo se puede consultar: la partida de bautismo la tiene " + luis + ".");
  EXPECT_EQ(take(*mine, {record("Bautismo", "9")}), FDAPI::BloqueoRegistro);
  EXPECT_EQ(mine->strPoseedor(), luis);
  mine->AlRehusar(FDAPI::BloqueoCompartido, "Solo se puede consultar");
  w.user.expectMessage("Solo se puede consultar: los municipios los tiene " + luis + ".");
  EXPECT_EQ(take(*mine, {sharedRecord("Municipio", "1")}), FDAPI::BloqueoCompartido);
  w.user.answerAnything(Answer::Ok);
  EXPECT_NE(mine->lngEfectuarBloqueos(), 0);
  lastMessage("Inténtelo de nuevo");  // it was said for one attempt
  other->LiberarBloqueos();
  EXPECT_EQ(mine->lngEfectuarBloqueos(), 0);
  EXPECT_EQ(mine->strPoseedor(), "");
}

TEST_P(Session, Refused_TakesNothingNewAndKeepsWhatItHad) {
  w.user.answerAnything(Answer::Ok);
  auto other = w.otherSession();
  auto mine = open();
  ASSERT_EQ(take(*other, {record("Bautismo", "9")}), 0);
  ASSERT_EQ(take(*mine, {shared("Municipio")}), 0);
  EXPECT_NE(take(*mine, {whole("Confirmacion"), record("Bautismo", "9")}), 0);
  EXPECT_EQ(take(*w.otherSession(), {whole("Confirmacion")}), 0);
  w.otherUser.answerAnything(Answer::Ok);
  EXPECT_EQ(take(*w.otherSession(), {whole("Municipio")}), FDAPI::BloqueoTabla);
}

TEST_P(Session, RefusedDefinitions_AreTriedAgainButGiveWayToNewOnes) {
  w.user.answerAnything(Answer::Ok);
  auto other = w.otherSession();
  auto mine = open();
  ASSERT_EQ(take(*other, {whole("Bautismo")}), 0);
  EXPECT_NE(take(*mine, {whole("Bautismo")}), 0);
  EXPECT_NE(mine->lngEfectuarBloqueos(), 0);
  EXPECT_EQ(take(*mine, {whole("Confirmacion")}), 0);
}

TEST_P(Session, OnlyTesting_HoldsNothing) {
  auto mine = open();
  mine->DefinirBloqueo(whole("Bautismo"));
  EXPECT_EQ(mine->lngEfectuarBloqueos(true), 0);
  EXPECT_EQ(take(*w.otherSession(), {whole("Bautismo")}), 0);
  EXPECT_EQ(mine->lngEfectuarBloqueos(), 0);
  w.otherUser.answerAnything(Answer::Ok);
  EXPECT_EQ(take(*w.otherSession(), {whole("Bautismo")}), FDAPI::BloqueoTabla);
}

TEST_P(Session, Releasing_IsByTableOrByTableAndCounter) {
  w.otherUser.answerAnything(Answer::Ok);
  auto mine = open();
  DefinicionBloqueo third = record("Grupo", "30");
  third.lngContador = 3;
  ASSERT_EQ(take(*mine, {third, record("Grupo", "31"), whole("Cargo")}), 0);
  mine->LiberarBloqueo("Nada");
  mine->LiberarBloqueo("Grupo3");
  EXPECT_EQ(take(*w.otherSession(), {record("Grupo", "30")}), 0);
  EXPECT_NE(take(*w.otherSession(), {record("Grupo", "31")}), 0);
  mine->LiberarBloqueo("grupo");
  EXPECT_EQ(take(*w.otherSession(), {whole("Grupo")}), 0);
  EXPECT_NE(take(*w.otherSession(), {whole("Cargo")}), 0);
}

TEST_F(SessionInAFolder, Dropped_LeavesNoLockAndNoFile) {
  {
    auto mine = open();
    ASSERT_EQ(take(*mine, {whole("Bautismo")}), 0);
    EXPECT_EQ(sessionFiles(), 1);
  }
  EXPECT_EQ(sessionFiles(), 0);
  EXPECT_EQ(take(*w.otherSession(), {whole("Bautismo")}), 0);
}

TEST_P(Session, RecordsOfAStatement_AreThoseOfTheMomentOfTaking) {
  w.otherUser.answerAnything(Answer::Ok);
  auto mine = open();
  mine->DefinirBloqueo(record("Institucion", "SELECT IDInstitucion FROM Institucion", &w.con()));
  const std::string id = std::to_string(w.institucion("San Pedro"));
  EXPECT_EQ(mine->lngEfectuarBloqueos(), 0);
  EXPECT_NE(take(*w.otherSession(), {record("Institucion", id)}), 0);
  EXPECT_EQ(take(*w.otherSession(), {record("Institucion", "99")}), 0);
}

TEST_P(Session, RecordThatIsGone_IsToldAndTakesNothing) {
  DefinicionBloqueo d = record("Institucion", "5", &w.con());
  d.blnComprobarExisteRegistro = true;
  d.strSQLExisteRegistro = "SELECT IDInstitucion FROM Institucion WHERE IDInstitucion=";
  w.user.expectMessage(
      "Ya no existe la institución: se ha eliminado desde otro puesto. Actualice la lista.");
  auto mine = open();
  EXPECT_EQ(take(*mine, {shared("Provincia"), d}), FDAPI::BloqueoRegistroNoExiste);
  EXPECT_EQ(take(*w.otherSession(), {whole("Provincia")}), 0);
  d.strRegistro = std::to_string(w.institucion("San Pedro"));
  EXPECT_EQ(take(*open(), {d}), 0);
  d.strSQLExisteRegistro += d.strRegistro;  // the whole statement serves as well
  EXPECT_EQ(take(*open(), {d}), 0);
}

TEST_P(Session, StatementWithoutConnectionOrThatFails_Throws) {
  auto mine = open();
  EXPECT_THROW(mine->DefinirBloqueo(record("Bautismo", "SELECT 1")), std::invalid_argument);
  mine->DefinirBloqueo(record("Bautismo", "SELECT Nada FROM Ninguna", &w.con()));
  EXPECT_THROW(mine->lngEfectuarBloqueos(), store::Error);
  EXPECT_EQ(mine->lngUltimoBloqueoError(), FDAPI::BloqueoSesion);
  EXPECT_EQ(take(*mine, {record("Bautismo", "1")}), 0);
  mine->LiberarBloqueos();
  EXPECT_EQ(take(*w.otherSession(), {whole("Bautismo")}), 0);
}

TEST_F(SessionInAFolder, DirectoryThatIsMissingOrNotWritable_FailsTheSession) {
  w.user.answerAnything(Answer::Ok);
  auto mine = w.host.create_cProcesarBloqueos();
  EXPECT_EQ(take(*mine, {whole("Bautismo")}), FDAPI::BloqueoSesion);
  mine->Inicializar((w.directory.path() / "no" / "existe").string());
  EXPECT_EQ(take(*mine, {whole("Bautismo")}), FDAPI::BloqueoSesion);
  lastMessage("la carpeta no existe.");
  mine->Inicializar("/proc");  // nobody may create a file here, not even root
  EXPECT_EQ(take(*mine, {whole("Bautismo")}), FDAPI::BloqueoSesion);
  lastMessage("No se puede trabajar con los bloqueos en la carpeta «/proc»");
}

TEST_F(SessionInAFolder, LeftOrDamagedFiles_AreSwept) {
  const auto file = [&](const std::string& name) { return w.directory.path() / name; };
  std::ofstream(file(locks::SharedDirectory::GUARD_FILE)) << std::string(100, '\0') << "basura";
  std::ofstream(file(std::string(locks::SharedDirectory::SESSION_PREFIX) + "viejo.1.2"))
      << locks::encode({{{locks::Kind::Table, "Bautismo", "", 0}, {"ana", "VIEJO", 1, "hoy"}}});
  std::ofstream(file(std::string(locks::SharedDirectory::SESSION_PREFIX) + "roto.1.2")) << "T\tBau";
  EXPECT_EQ(take(*open(), {whole("Bautismo")}), 0);
  EXPECT_EQ(sessionFiles(), 0);
}

// It may be another account's, or this program may have no file descriptor left.
TEST_F(SessionInAFolder, FileOfAnotherSessionThatCannotBeOpened_CountsAsHeld) {
  w.user.answerAnything(Answer::Ok);
  const fs::path left =
      w.directory.path() / (std::string(locks::SharedDirectory::SESSION_PREFIX) + "ajeno.1.2");
  fs::create_symlink("no-se-sigue", left);
  EXPECT_EQ(take(*open(), {whole("Bautismo")}), FDAPI::BloqueoSesion);
  lastMessage("No se puede trabajar con los bloqueos");
  fs::remove(left);
  EXPECT_EQ(take(*open(), {whole("Bautismo")}), 0);
}

TEST_F(SessionInAFolder, FilesOfTheLocks_AreForWhoeverTheFolderIsFor) {
  auto mine = open();
  ASSERT_EQ(take(*mine, {whole("Bautismo")}), 0);
  for (const auto& f : fs::directory_iterator(w.directory.path())) {
    if (f.path().string().find("bloqueos") == std::string::npos) continue;
    EXPECT_EQ(fs::status(f.path()).permissions(), fs::perms(0600)) << f.path();
  }
}

TEST_F(SessionInAFolder, GuardFileRemovedUnderneath_IsMadeAgain) {
  auto mine = open();
  ASSERT_EQ(take(*mine, {whole("Bautismo")}), 0);
  fs::remove(w.directory.path() / locks::SharedDirectory::GUARD_FILE);
  w.otherUser.answerAnything(Answer::Ok);
  EXPECT_EQ(take(*w.otherSession(), {whole("Bautismo")}), FDAPI::BloqueoTabla);
}

}  // namespace fidaleon::tests::SessionTest
