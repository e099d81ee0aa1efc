#pragma once

#include <filesystem>

namespace fidaleon::store {

/// Whether the file, or the folder that it is to be created in, lies on another machine or on a
/// disk whose locks and shared memory cannot be relied on.
bool isNetworkDisk(const std::filesystem::path& file);

/// Read from the head of the file, without opening it as a database.
bool usesWriteAheadLog(const std::filesystem::path& file);

}  // namespace fidaleon::store
