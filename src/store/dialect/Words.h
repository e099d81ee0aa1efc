#pragma once
// Keywords packed into integers, so that a word is recognised by one comparison.

#include <cstdint>
#include <string_view>

namespace fidaleon::store {

/// Up to eight ASCII letters without regard to case; 0 for anything longer.
constexpr std::uint64_t packed(std::string_view word) {
  if (word.empty() || word.size() > 8) return 0;
  std::uint64_t value = 0;
  for (const char c : word) value = value << 8 | (static_cast<unsigned char>(c) | 0x20U);
  return value;
}

}  // namespace fidaleon::store
