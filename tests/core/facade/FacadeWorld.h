#pragma once
// The library as the main program has it, over a parish with one baptism; with real locks, or with
// lock sessions that note what they are told and answer what the test wants.

#include "core/facade/cNucleo.h"
#include "documents/BautismoWorld.h"

namespace fidaleon::tests {

using Log = std::vector<std::string>;

/// What a lock definition says, in one line.
inline std::string describe(const FDAPI::DefinicionBloqueo& d) {
  std::string line = d.strTabla;
  if (d.blnBloqueoParcialTabla) line += " compartida";
  if (d.blnBloqueoParcialRegistro) line += " parcial";
  if (!d.strRegistro.empty()) line += " [" + d.strRegistro + "]";
  if (d.blnComprobarExisteRegistro) line += " existe [" + d.strSQLExisteRegistro + "]";
  if (!d.strRegistro.empty() && !d.conBd) line += " sin conexión";
  return line;
}

class SpySession : public FDAPI::cProcesarBloqueos {
 public:
  SpySession(Log& log, const std::vector<long>& answers) : log_(log), answers_(answers) {}
  void Inicializar(const std::string& directory) override { log_.push_back("en " + directory); }
  void DefinirBloqueo(FDAPI::DefinicionBloqueo d) override { log_.push_back(describe(d)); }
  long lngEfectuarBloqueos(bool onlyTest) override {
    log_.push_back(onlyTest ? "comprobar" : "efectuar");
    last_ = asked_ < answers_.size() ? answers_[asked_++] : answers_.back();
    return last_;
  }
  long lngUltimoBloqueoError() const override { return last_; }
  void LiberarBloqueo(const std::string& table) override { log_.push_back("liberar " + table); }
  void LiberarBloqueos() override { log_.push_back("liberar"); }

 private:
  Log& log_;
  const std::vector<long>& answers_;
  std::size_t asked_ = 0;
  long last_ = 0;
};

/// The host's support with lock sessions that only note.
class SpySupport : public SupportFactory {
 public:
  explicit SpySupport(SupportFactory& host) : host_(host) {}
  std::unique_ptr<FDAPI::cFidaleon> create_cFidaleon() override { return host_.create_cFidaleon(); }
  std::unique_ptr<FDAPI::cIListas> create_cIListas() override { return host_.create_cIListas(); }
  std::unique_ptr<FDAPI::cInformes> create_cInformes() override { return host_.create_cInformes(); }
  std::unique_ptr<FDAPI::cProcesarBloqueos> create_cProcesarBloqueos() override {
    return std::make_unique<SpySession>(log, answers);
  }
  Log log;
  std::vector<long> answers{0};  // of each session, one after the other; the last one stays

 private:
  SupportFactory& host_;
};

/// A world with the facade over it.
template <class World>
struct WithFacade : World {
  using World::World;
  cNucleo nucleo{this->entorno};

  /// Another workstation takes the record; it keeps it as long as the session lives.
  std::unique_ptr<FDAPI::cProcesarBloqueos> ocupar(const char* tabla, const char* registro = "") {
    return this->otherHolds(tabla, *registro ? std::stoi(registro) : 0);
  }
  /// No lock is left on what the operations use.
  void esperarLibre(const Sacramento& registro = BAUTISMO) {
    for (const char* tabla : {registro.tablaPartidas, registro.tablaLibros, "Institucion",
                              "Provincia", "Municipio", "Libros_Formato", "Libros_TipoNombre"})
      ocupar(tabla);
  }
};

using FacadeWorld = WithFacade<BautismoWorld>;

template <class World>
struct WithSpy : World {
  using World::World;
  SpySupport spy{this->host};
  Entorno observed{this->user, spy, this->settings, this->clock, this->entorno.installation};
  cNucleo nucleo{observed};

  /// The log without its first line, which names the directory of the database.
  Log bloqueos() {
    EXPECT_FALSE(spy.log.empty());
    if (spy.log.empty()) return {};
    EXPECT_EQ(spy.log.front(), "en " + this->directory.path().string());
    return {spy.log.begin() + 1, spy.log.end()};
  }
};

using SpyWorld = WithSpy<BautismoWorld>;

inline void cancelar(FormDriver& u) {
  u.click("cmdBautismo(1)");
}

}  // namespace fidaleon::tests
