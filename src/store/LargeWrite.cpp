#include "store/LargeWrite.h"

#include "store/Engine.h"

namespace fidaleon::store {

LargeWrite::LargeWrite(Connection& connection) : connection_(connection) {
  connection_.engine().prepareFor(Writing::Large);
}

LargeWrite::~LargeWrite() {
  try {
    connection_.engine().prepareFor(Writing::Usual);
  } catch (const Error&) {
    // Only slower or larger than it need be.
  }
}

}  // namespace fidaleon::store
