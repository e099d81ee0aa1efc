#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace fidaleon::app {

/// Of baptism, confirmation, marriage and death: the folder below this one, or it itself, that has
/// the table; empty where there is none, or several.
std::array<std::filesystem::path, 4> findLegacyTables(const std::filesystem::path& folder);

/// The beginning of a table, as it will be read.
struct LegacyGlance {
  std::vector<std::string> titles;
  std::vector<std::vector<std::string>> rows;
  std::string codePage;
  std::string refusal;  // why it cannot be read; empty: it can
};

/// The first rows of the table of a register (0 to 3). `codePage` as dbase::Table takes it.
LegacyGlance glanceAt(const std::filesystem::path& folder, std::size_t which,
                      const std::string& codePage, std::size_t rows);
/// The first full names of that table that have more than one word.
std::vector<std::string> fullNamesIn(const std::filesystem::path& folder, std::size_t which,
                                     const std::string& codePage, std::size_t most);

}  // namespace fidaleon::app
