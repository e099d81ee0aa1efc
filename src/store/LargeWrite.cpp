#include "store/LargeWrite.h"

#include "store/Engine.h"

namespace fidaleon::store {

LargeWrite::LargeWrite(Connection& connection) : connection_(connection) {
  connection_.engine().run("PRAGMA cache_size = -40000; PRAGMA wal_autocheckpoint = 8000;");
}

LargeWrite::~LargeWrite() {
  try {
    connection_.engine().run(
        "PRAGMA cache_size = -2000; PRAGMA wal_autocheckpoint = 1000; PRAGMA shrink_memory;");
  } catch (const Error&) {
    // Only slower or larger than it need be.
  }
}

}  // namespace fidaleon::store
