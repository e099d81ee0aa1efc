#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/contract/FDAPI.h"
#include "forms/UserInterface.h"
#include "text/Dates.h"

namespace fidaleon {

/// Text values by application, section and key; sections are paths with backslashes.
class Settings {
 public:
  virtual ~Settings() = default;
  /// `byDefault` when there is no such value.
  virtual std::string read(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& byDefault = {}) const = 0;
  /// Throws std::runtime_error with a message in Spanish when the value cannot be kept.
  virtual void write(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value) = 0;

  struct Name {
    std::string section;
    std::string key;
  };
  /// All that is kept for an application, in the order of section and key.
  virtual std::vector<Name> names(const std::string& application) const {
    (void)application;
    throw std::runtime_error("Estos ajustes no se pueden enumerar.");
  }
  /// A value that does not exist is no error; otherwise throws as write() does.
  virtual void remove(const std::string& application, const std::string& section,
                      const std::string& key) {
    (void)application, (void)section, (void)key;
    throw std::runtime_error("Estos ajustes no se pueden borrar.");
  }
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual text::Date today() const = 0;
  /// "HH:mm".
  virtual std::string now() const = 0;
};

/// Makes the support objects. Each call makes one of its own.
class SupportFactory {
 public:
  virtual ~SupportFactory() = default;
  virtual std::unique_ptr<FDAPI::cFidaleon> create_cFidaleon() = 0;
  virtual std::unique_ptr<FDAPI::cIListas> create_cIListas() = 0;
  virtual std::unique_ptr<FDAPI::cProcesarBloqueos> create_cProcesarBloqueos() = 0;
  virtual std::unique_ptr<FDAPI::cInformes> create_cInformes() = 0;
};

/// What the installation decides, for cConstante.
struct Installation {
  std::string Aplicacion = FDAPI::cCAplicacion::APP_FIDALEON_MADRID;
  std::string INF_TipoAplicacion;
};

/// All that the library needs of the outside world, handed in by the caller, who owns every part
/// and keeps it alive for as long as the library is used.
struct Entorno {
  forms::UserInterface& ui;
  SupportFactory& support;
  Settings& settings;
  Clock& clock;
  Installation installation;
};

}  // namespace fidaleon
