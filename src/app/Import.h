#pragma once

#include <filesystem>

namespace fidaleon::app {

/// Imports the registers of the older program as the file asks (parish/legacy/ImportOrder.h),
/// without a window. The report goes to the standard output and into a file, messages to the error
/// channel. The answer is the exit code: 0 when everything that was read is there, whole.
int importRegisters(const std::filesystem::path& order);

}  // namespace fidaleon::app
