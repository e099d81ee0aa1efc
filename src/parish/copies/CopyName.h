#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "parish/copies/Moment.h"

namespace fidaleon::app {

/// What the file name of an automatic copy says, as in "2026-11-22 10.30.05 Eliminar en
/// Partidas.fidaleon". Names sort as the copies were made, and no file system refuses them.
struct CopyName {
  Moment moment;
  int ordinal = 1;     // above 1 when others were made in the same second: "10.30.05-2"
  std::string before;  // the command that the copy was made before

  /// The file name; what cannot stand in one is left out of the command.
  std::string file() const;
  /// Nothing unless it is the name of an automatic copy, compressed or not.
  static std::optional<CopyName> parse(std::string_view file);

  static constexpr const char* ENDING = ".fidaleon";
  static constexpr const char* COMPRESSED = ".zst";  // behind the ending
};

}  // namespace fidaleon::app
