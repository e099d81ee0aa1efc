#pragma once

#include <string>

#include "text/Dates.h"

namespace fidaleon::text {

/// "lunes, 15 de marzo de 2004".
std::string toLong(const Date& d);

}  // namespace fidaleon::text
