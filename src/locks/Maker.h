#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fidaleon::locks {

/// A running program, as another that meets what it has left behind can tell it.
struct Maker {
  std::string machine;  // the installation; stays the same when the machine starts again
  std::string run;      // the machine from one start to the next
  std::string space;    // where its process number counts
  std::int64_t process = 0;
  std::uint64_t started = 0;  // tells it from a later one of the same number

  /// Fit for a file name: no dots, no blanks.
  std::string text() const;
  static std::optional<Maker> parse(std::string_view text);
};

Maker thisProgram();

enum class Life { Lives, Ended, Unknown };
/// What can be known of the program without its lock: nothing when it is on another machine.
Life lifeOf(const Maker& program, const Maker& here);

}  // namespace fidaleon::locks
