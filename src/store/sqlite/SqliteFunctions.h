#pragma once

#include <sqlite3.h>

namespace fidaleon::store {

/// Makes the order of Spanish text (collation ES) and the functions Val, CInt, CLng and CStr
/// known to a connection.
void addFunctions(sqlite3* db);

}  // namespace fidaleon::store
