#pragma once

#include "store/postgres/Link.h"

namespace fidaleon::locks {

/// What the server answers to a desk whose locks it no longer keeps.
inline constexpr int LOCKS_LOST = store::sqlState("FB001");

/// Makes what the desks of a database meet by: tables and functions beside those of the parish,
/// for everybody who may enter. Nothing happens where they are. Throws store::Error.
void prepareServer(store::Link& link);

}  // namespace fidaleon::locks
