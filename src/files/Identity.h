#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace fidaleon::files {

/// Which file it is that bears a name, whatever is in it.
struct Identity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;

  friend bool operator==(const Identity&, const Identity&) = default;
};

/// Nothing when there is none or it cannot be looked at.
std::optional<Identity> identityOf(const std::filesystem::path& file) noexcept;

}  // namespace fidaleon::files
