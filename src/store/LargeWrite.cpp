#include "store/LargeWrite.h"

#include "store/Engine.h"

namespace fidaleon::store {

LargeWrite::LargeWrite(Engine& engine) : engine_(engine) {
  engine_.prepareFor(Writing::Large);
}

LargeWrite::~LargeWrite() {
  try {
    engine_.prepareFor(Writing::Usual);
  } catch (const Error&) {
    // Only slower or larger than it need be.
  }
}

}  // namespace fidaleon::store
