#pragma once
// A parish with a scripted user before it, for the measurements; in a file of its own.

#include <functional>

#include "benches/Folder.h"
#include "core/contract/Contexto.h"
#include "forms/ScriptedUser.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace fidaleon::bench {

struct World {
  World() : World([this] { return store::createDatabase(file(), store::parishSchema()); }) {}
  /// In a database that is made somewhere else.
  explicit World(const std::function<std::unique_ptr<store::Connection>()>& make)
      : connection(make()) {
    contexto.gobjConfig = &config;
  }
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
  std::unique_ptr<store::Connection> connection;
};

}  // namespace fidaleon::bench
