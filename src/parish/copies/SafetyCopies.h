#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "parish/copies/CopyName.h"
#include "store/Connection.h"

namespace fidaleon::app {

/// A copy of the parish that one can return to.
struct SafetyCopy {
  std::filesystem::path file;
  Moment moment;
  int ordinal = 1;
  std::string before;  // the command it was made before; empty for one made by hand
  std::uintmax_t bytes = 0;

  bool byHand() const { return before.empty(); }
};

/// The folder "copias" beside a parish: the copies that the program makes by itself before it takes
/// something away, and those that users have put there by hand (*.copia). Only the former are ever
/// removed; any other file is left alone.
class SafetyCopies {
 public:
  explicit SafetyCopies(const std::filesystem::path& parishDirectory)
      : directory_(parishDirectory / "copias") {}

  const std::filesystem::path& directory() const { return directory_; }

  /// A verified copy under a name of its own, flushed to the disk. Throws store::Error that says
  /// why there is none; nothing is left behind then.
  std::filesystem::path make(store::Connection& parish, const std::string& before,
                             const Moment& now) const;
  /// Those that are whole, newest first. A folder that is missing or cannot be read has none.
  std::vector<SafetyCopy> list() const;
  /// Removes what need not be kept any longer, and what was left half made on an earlier day. What
  /// cannot be removed stays; so does, without being counted, what bears a moment yet to come: one
  /// of the clocks was or is wrong.
  void prune(const Moment& now) const;

  static void remove(const std::filesystem::path& copy) noexcept;

 private:
  std::filesystem::path reserve(CopyName name) const;
  void removeRests(const text::Date& today) const;

  std::filesystem::path directory_;
};

}  // namespace fidaleon::app
