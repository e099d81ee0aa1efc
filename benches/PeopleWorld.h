#pragma once
// A parish of 100,000 persons, 5,000 of them collaborators, with a scripted user before it.

#include "benches/People.h"
#include "core/contract/Contexto.h"
#include "forms/ScriptedUser.h"
#include "store/Open.h"
#include "support/Clocks.h"
#include "support/HostSupport.h"
#include "support/MemorySettings.h"

namespace fidaleon::bench {

struct PeopleWorld {
  explicit PeopleWorld(int persons) {
    contexto.gobjConfig = &config;
    fillCensus(*connection, persons);
  }

  FDAPI::cConfig config{"Fidaleon", "", "ana", "Castellano", false};
  forms::ScriptedUser user;
  support::MemorySettings settings;
  support::FixedClock clock{text::Date{2026, 11, 22}, "10:30"};
  support::HostSupport host{user, settings, clock, config, "DESPACHO"};
  Entorno entorno{user, host, settings, clock, {}};
  Contexto contexto{entorno};
  std::unique_ptr<store::Connection> connection = store::memoryDatabase(store::parishSchema());
};

}  // namespace fidaleon::bench
