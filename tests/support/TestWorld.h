#pragma once
// A parish of its own for each test: both databases in memory, a scripted user, settings, a clock
// that stands still on 22 November 2026, and real locks in a directory that goes with the test.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "core/contract/Contexto.h"
#include "forms/ScriptedUser.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace fidaleon::tests {

/// A directory that is emptied and removed at the end.
class TempDirectory {
 public:
  TempDirectory() {
    std::string pattern = (std::filesystem::temp_directory_path() / "fidaleon-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) std::abort();
    path_ = pattern;
  }
  ~TempDirectory() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Members are in the order in which they need each other. `config` may be changed at any time;
/// set `entorno.installation` before the act to change the edition.
struct TestWorld {
  explicit TestWorld(const char* aplicacion = FDAPI::cCAplicacion::APP_FIDALEON_MADRID)
      : entorno{user, host, settings, clock, {aplicacion, {}}}, contexto(entorno) {
    contexto.gobjConfig = &config;
  }
  TestWorld(const TestWorld&) = delete;
  TestWorld& operator=(const TestWorld&) = delete;

  TempDirectory directory;
  FDAPI::cConfig config{"Fidaleon", "", "ana", "Castellano", false};
  forms::ScriptedUser user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  std::unique_ptr<store::Connection> parish =
      store::memoryDatabase(store::parishSchema(), (directory.path() / "parroquia.mdb").string());
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
    parish->Execute(
        "INSERT INTO Institucion (Nombre, InstitucionNombre, InstitucionTipo, Domicilio, CIF, "
        "CodMunicipio, CP, Telefono, Diocesis, Vicaria, Parroco, EncargadoArchivo) VALUES (\"" +
        nombre + "\", \"" + nombre + "\", \"Parroquia de\", \"Calle Mayor, 1\", \"\", " +
        std::to_string(codMunicipio) + ", \"28001\", \"910000000\", \"" + diocesis +
        "\", \"Vicaría I\", \"Pedro Ruiz Sanz\", \"\")");
    const std::int32_t id = number("SELECT MAX(IDInstitucion) AS ID FROM Institucion");
    parish->Execute("INSERT INTO Ultimos (IDInstitucion, Encargado) VALUES (" + std::to_string(id) +
                    ", \"\")");
    return id;
  }
  /// The key of a province: one of the 52 that every database has, or a new one.
  std::int32_t provincia(const std::string& nombre) {
    const std::string find = "SELECT IDProvincia FROM Provincia WHERE Nombre=\"" + nombre + "\"";
    if (value(find).empty())
      parish->Execute("INSERT INTO Provincia (Nombre, Codigo_Oficial) VALUES (\"" + nombre +
                      "\", 0)");
    return number(find);
  }
  /// The key of a new town.
  std::int32_t municipio(const std::string& nombre, const std::string& provinciaNombre) {
    parish->Execute("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (\"" + nombre + "\", " +
                    std::to_string(provincia(provinciaNombre)) + ")");
    return number("SELECT MAX(IDMunicipio) AS ID FROM Municipio");
  }

  /// The lock session of another workstation on the same directory. What it says goes to
  /// `otherUser`.
  std::unique_ptr<FDAPI::cProcesarBloqueos> otherSession() {
    auto session = otherSupport_.create_cProcesarBloqueos();
    session->Inicializar(directory.path().string());
    return session;
  }
  forms::ScriptedUser otherUser;

 private:
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

/// Fails the test with what went against the script.
#define EXPECT_SCRIPT_DONE(user) EXPECT_THAT((user).problems(), ::testing::ElementsAre())

}  // namespace fidaleon::tests
