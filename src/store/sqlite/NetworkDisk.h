#pragma once

#include <filesystem>

namespace fidaleon::store {

/// Whether the file, or the folder that it is to be created in, lies on another machine or on a
/// disk whose locks and shared memory cannot be relied on.
bool isNetworkDisk(const std::filesystem::path& file);

/// Whether its head says so. Read through the engine: were the file opened and closed here, the
/// system would take from it all the locks that connections of this program hold.
bool usesWriteAheadLog(const std::filesystem::path& file);

}  // namespace fidaleon::store
