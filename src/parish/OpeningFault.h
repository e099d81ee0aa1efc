#pragma once

#include <string>
#include <vector>

#include "parish/ParishFiles.h"
#include "store/Error.h"

namespace fidaleon::app {

/// What can be done about a parish that does not open.
enum class Remedy { Retry, Password, OtherIsOff, ReturnToCopy, OtherFolder, NewParish, Exit };

/// A parish that does not open, as its user is told: what is wrong, what it means for the data,
/// and what can be done.
struct OpeningFault {
  std::string title;
  std::string text;
  std::vector<Remedy> remedies;
};

OpeningFault describeFault(const store::Error& error, const ParishFiles& files);
/// A fault of the file system or of the program's own files.
OpeningFault describeFault(const std::exception& error, const ParishFiles& files);

/// Text of the button of a remedy.
std::string remedyName(Remedy remedy);

}  // namespace fidaleon::app
