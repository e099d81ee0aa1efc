#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/Connection.h"

namespace fidaleon::app {

/// An institution with those who may sign for it, and whom certificates propose.
struct InstitutionKeepers {
  std::int32_t institution = 0;
  std::string name;
  std::vector<std::string> keepers;
  std::string usual;  // empty where none has been chosen
};

/// By the key of the institution; those without keepers are left out. Throws store::Error.
std::vector<InstitutionKeepers> keepersOf(store::Connection& parish);
/// Whom the certificates of that institution propose from now on. Throws store::Error.
void setUsualKeeper(store::Connection& parish, std::int32_t institution, const std::string& keeper);

}  // namespace fidaleon::app
