#pragma once

#include <string>

#include "core/contract/FDAPI.h"
#include "locks/LockEntry.h"

namespace fidaleon::locks {

/// What a table holds, as people call it: "la partida de bautismo", "las partidas de bautismo".
std::string oneOf(const std::string& table);
std::string allOf(const std::string& table);

/// "luis, en el equipo SACRISTIA, desde el 22/11/2026 a las 10:30". `own` is who asked.
std::string whoAndSince(const Holder& holder, const Holder& own);
/// What the user is told when a lock is refused and nothing can be done without it.
std::string refusal(const LockEntry& wanted, const HeldEntry& held, const Holder& own);
/// The same when the work goes on: what that means, and who has what.
std::string refusal(const LockEntry& wanted, const HeldEntry& held, const Holder& own,
                    const std::string& consequence);
std::string recordGone(const std::string& table);
/// What those are told who cannot come in while somebody does this.
std::string goingOn(const HeldEntry& work);
/// Why nothing can be stored any more under locks that were lost for a while, and what is left to
/// do. Who has one of them now, if anybody.
std::string lostMeanwhile(const LockEntry* wanted, const HeldEntry* held);
/// Why a program may not come into the folder where the other is, and what can be done.
std::string unseen(const std::string& folder, const Holder& other);

}  // namespace fidaleon::locks
