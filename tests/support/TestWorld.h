#pragma once
// A parish of its own for each test: both databases in memory (NewDatabase.h), a scripted user,
// settings, a clock that stands still on 22 November 2026, and real locks in a directory that goes
// with the test.

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "core/contract/Contexto.h"
#include "files/Machine.h"
#include "forms/ScriptedUser.h"
#include "support/Clocks.h"
#include "support/Fields.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"
#include "support/NewDatabase.h"

namespace fidaleon::tests {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;
using forms::Answer;
using forms::FormDriver;
using forms::Key;
using forms::KeyPress;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Pair;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;
using Act = forms::ScriptedUser::Act;

/// Fails the test with what went against the script.
#define EXPECT_SCRIPT_DONE(user) EXPECT_THAT((user).problems(), ::testing::ElementsAre())

/// Presses "Cancelar" when the bar of the work has come so far.
struct TestUser : forms::ScriptedUser {
  void progressMove(std::int64_t position) override {
    ScriptedUser::progressMove(position);
    if (position == stopAt) throw forms::Cancelled();
  }
  std::int64_t stopAt = -1;
};

/// Members are in the order in which they need each other. `config` may be changed at any time;
/// set `entorno.installation` before the act to change the edition.
struct TestWorld {
  explicit TestWorld(const char* aplicacion = FDAPI::cCAplicacion::APP_FIDALEON_MADRID)
      : entorno{user, host, settings, clock, {aplicacion, {}}}, contexto(entorno) {
    contexto.gobjConfig = &config;
  }
  /// What was expected has come, and nothing else.
  ~TestWorld() {
    if (!mayBreakOff) {
      EXPECT_SCRIPT_DONE(user);
    }
    EXPECT_SCRIPT_DONE(otherUser);
  }
  TestWorld(const TestWorld&) = delete;
  TestWorld& operator=(const TestWorld&) = delete;

  bool mayBreakOff = false;  // of what is expected, some may never come
  TempDirectory directory;
  FDAPI::cConfig config{"Fidaleon", "", "ana", "Castellano", false};
  TestUser user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  std::unique_ptr<store::Connection> parish =
      newDatabase(store::parishSchema(), (directory.path() / "parroquia.mdb").string());
  std::unique_ptr<store::Connection> reports =
      store::memoryDatabase(store::reportsSchema(), (directory.path() / "informes.mdb").string());
  Entorno entorno;
  Contexto contexto;

  store::Connection& con() { return *parish; }
  store::Connection& conInformes() { return *reports; }

  /// First field of the first row as text; empty when there is no row.
  std::string value(const std::string& sql) { return first(*parish, sql); }
  std::string report(const std::string& sql) { return first(*reports, sql); }
  /// "SELECT COUNT(*)" of a table or of a table and its condition.
  std::int64_t count(const std::string& fromClause) {
    return parish->Execute("SELECT * FROM " + fromClause).RecordCount();
  }

  /// The key of a new institution, with its row in Ultimos.
  std::int32_t institucion(const std::string& nombre, std::int32_t codMunicipio = 0,
                           const std::string& diocesis = "Madrid") {
    insert(*parish, "Institucion",
           "InstitucionTipo=Parroquia de; Domicilio=Calle Mayor, 1; CIF=; CP=28001; "
           "Telefono=910000000; Vicaria=Vicaría I; Parroco=Pedro Ruiz Sanz; EncargadoArchivo=; "
           "Nombre=" +
               nombre + "; InstitucionNombre=" + nombre + "; Diocesis=" + diocesis +
               "; CodMunicipio=" + std::to_string(codMunicipio));
    const std::int32_t id = number("SELECT MAX(IDInstitucion) AS ID FROM Institucion");
    insert(*parish, "Ultimos", "IDInstitucion=" + std::to_string(id) + "; Encargado=");
    return id;
  }
  /// The key of a province: one of the 52 that every database has, or a new one.
  std::int32_t provincia(const std::string& nombre) {
    const std::string find = "SELECT IDProvincia FROM Provincia WHERE Nombre=\"" + nombre + "\"";
    if (value(find).empty()) insert(*parish, "Provincia", "Codigo_Oficial=0; Nombre=" + nombre);
    return number(find);
  }
  /// The key of a new town.
  std::int32_t municipio(const std::string& nombre, const std::string& provinciaNombre) {
    insert(*parish, "Municipio",
           "Nombre=" + nombre + "; CodProvincia=" + std::to_string(provincia(provinciaNombre)));
    return number("SELECT MAX(IDMunicipio) AS ID FROM Municipio");
  }

  /// The lock session of another workstation on the same directory. What it says goes to
  /// `otherUser`.
  std::unique_ptr<FDAPI::cProcesarBloqueos> otherSession() {
    auto session = otherSupport_.create_cProcesarBloqueos();
    session->Inicializar(directory.path().string());
    return session;
  }
  /// Another workstation has this table, or this row of it, as long as the result lives.
  std::unique_ptr<FDAPI::cProcesarBloqueos> otherHolds(const std::string& table,
                                                       std::int32_t row = 0, bool shared = false) {
    auto session = otherSession();
    session->DefinirBloqueo(lockOf(table, row, shared));
    EXPECT_EQ(session->lngEfectuarBloqueos(), 0);
    return session;
  }
  /// Whether another workstation could have it now.
  bool isFree(const std::string& table, std::int32_t row = 0, bool shared = false) {
    const auto session = otherSession();
    session->DefinirBloqueo(lockOf(table, row, shared));
    otherUser.answerAnything(forms::Answer::Ok);
    return session->lngEfectuarBloqueos(true) == 0;
  }
  forms::ScriptedUser otherUser;

 private:
  static FDAPI::DefinicionBloqueo lockOf(const std::string& table, std::int32_t row, bool shared) {
    FDAPI::DefinicionBloqueo lock;
    lock.strTabla = table;
    if (row != 0) lock.strRegistro = std::to_string(row);
    lock.blnBloqueoParcialTabla = shared;
    return lock;
  }
  static std::string first(store::Connection& connection, const std::string& sql) {
    const store::Recordset rs = connection.Execute(sql);
    return rs.EOF_() ? std::string() : rs.Fields(0).Value().text();
  }
  std::int32_t number(const std::string& sql) {
    return static_cast<std::int32_t>(parish->Execute(sql).Fields(0).Value().integer());
  }

  FDAPI::cConfig otherConfig_{"Fidaleon", "", "luis", "Castellano", false};
  support::HostSupport otherSupport_{otherUser, settings, clock, otherConfig_, "SACRISTIA"};
};

}  // namespace fidaleon::tests
