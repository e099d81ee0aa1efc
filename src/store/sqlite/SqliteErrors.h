#pragma once

#include <sqlite3.h>

#include <string>

#include "store/Error.h"

namespace fidaleon::store {

/// What SQLite's result code means to a caller, told in Spanish.
Error sqliteError(int code, sqlite3* db);
/// Throws unless the code says that all went well.
void check(int code, sqlite3* db);

}  // namespace fidaleon::store
