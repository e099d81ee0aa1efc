#pragma once

#include <string>

#include "core/contract/FDAPI.h"
#include "locks/LockEntry.h"

namespace fidaleon::locks {

/// What a table holds, as people call it: "la partida de bautismo", "las partidas de bautismo".
std::string oneOf(const std::string& table);
std::string allOf(const std::string& table);

/// What the user is told when a lock is refused. `own` is who asked.
std::string refusal(const LockEntry& wanted, const HeldEntry& held, const Holder& own);
std::string recordGone(const LockEntry& wanted);

}  // namespace fidaleon::locks
