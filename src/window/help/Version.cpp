#include "window/help/Version.h"

namespace fidaleon::app {

const char* version() {
  return FIDALEON_VERSION;
}

}  // namespace fidaleon::app
