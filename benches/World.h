#pragma once
// A parish file of its own with a scripted user before it, for the measurements.

#include "benches/Folder.h"
#include "core/contract/Contexto.h"
#include "forms/ScriptedUser.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace fidaleon::bench {

struct World {
  World() { contexto.gobjConfig = &config; }
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  std::filesystem::path file() const { return folder / "parroquia.fidaleon"; }

  Folder folder;
  FDAPI::cConfig config{"Fidaleon", "", "ana", "Castellano", false};
  forms::ScriptedUser user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  Entorno entorno{user, host, settings, clock, {}};
  Contexto contexto{entorno};
  std::unique_ptr<store::Connection> connection =
      store::createDatabase(file(), store::parishSchema());
};

}  // namespace fidaleon::bench
