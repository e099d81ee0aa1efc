#pragma once

#include <cstdint>

#include "core/contract/Sacramento.h"
#include "paper/Expansion.h"
#include "store/Connection.h"

namespace fidaleon::app {

/// What the pages of a printed book say of its institution: "Institucion", "Diocesis" and
/// "Poblacion". Empty for a book that is gone. Throws store::Error.
paper::GivenValues bookHeader(store::Connection& parish, const Sacramento& sacrament,
                              std::int32_t book, bool catalan);

}  // namespace fidaleon::app
