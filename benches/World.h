#pragma once
// A parish file of its own with a scripted user before it, for the measurements.

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>

#include "core/contract/Contexto.h"
#include "forms/ScriptedUser.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace fidaleon::bench {

struct World {
  World() {
    contexto.gobjConfig = &config;
    if (!::mkdtemp(folder.data())) throw std::runtime_error(folder);
    connection = store::createDatabase(file(), store::parishSchema());
  }
  ~World() {
    connection.reset();
    std::filesystem::remove_all(folder);
  }
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  std::filesystem::path file() const {
    return std::filesystem::path(folder) / "parroquia.fidaleon";
  }

  std::string folder = (std::filesystem::temp_directory_path() / "fidaleon-XXXXXX").string();
  FDAPI::cConfig config{"Fidaleon", "", "ana", "Castellano", false};
  forms::ScriptedUser user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  Entorno entorno{user, host, settings, clock, {}};
  Contexto contexto{entorno};
  std::unique_ptr<store::Connection> connection;
};

}  // namespace fidaleon::bench
