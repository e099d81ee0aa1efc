#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "parish/ParishFiles.h"

namespace fidaleon::app {

/// What lies beside a parish that has been moved elsewhere, or is on its way.
struct MoveNote {
  std::filesystem::path to;  // a folder of this machine
  std::string since;         // "dd/mm/yyyy a las HH:mm"
  bool done = false;

  bool operator==(const MoveNote&) const = default;
};

/// None where there is none or it says nothing.
std::optional<MoveNote> readMoveNote(const ParishFiles& files);
/// On the disk when it returns. Throws store::Error.
void writeMoveNote(const ParishFiles& files, const MoveNote& note);
/// The parish counts again as one that has gone nowhere.
void removeMoveNote(const ParishFiles& files) noexcept;

}  // namespace fidaleon::app
