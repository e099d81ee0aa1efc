#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace fidaleon::locks {

/// How far a lock on a file can be seen.
enum class Reach {
  Everywhere,  // by all machines that use the disk
  OneMachine,  // perhaps only through the same mount of the same machine
};

/// `kind` as statfs(2) tells it, `options` as the mount has them, separated by commas.
Reach reachOf(std::uint32_t kind, std::string_view options);
/// Of what cannot be looked at nothing good is assumed.
Reach reachOf(const std::filesystem::path& folder);

}  // namespace fidaleon::locks
