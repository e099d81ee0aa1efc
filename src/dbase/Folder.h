#pragma once

#include <filesystem>
#include <optional>

#include "dbase/Table.h"

namespace fidaleon::dbase {

/// The file of this name in its folder, whatever the case of its letters; the very name goes
/// before others. Empty when there is none. Throws Error when the folder cannot be read, or when
/// several bear the name and none is the very one.
std::optional<std::filesystem::path> locate(const std::filesystem::path& file);

/// The table, its memos and its code page. Throws Error.
Table::Files filesOf(const std::filesystem::path& table);

}  // namespace fidaleon::dbase
