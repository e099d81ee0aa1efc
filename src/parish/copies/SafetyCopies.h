#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "files/Compressed.h"
#include "parish/copies/CopyName.h"
#include "parish/copies/CopyRetention.h"
#include "store/Connection.h"
#include "store/Progress.h"

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
/// removed or compressed; any other file is left alone.
class SafetyCopies {
 public:
  /// `kept`: how many of the newest stay (CopyRetention).
  explicit SafetyCopies(const std::filesystem::path& parishDirectory,
                        std::size_t kept = COPIES_KEPT)
      : directory_(parishDirectory / "copias"), kept_(kept) {}

  const std::filesystem::path& directory() const { return directory_; }
  std::size_t kept() const { return kept_; }

  /// A verified copy under a name of its own, flushed to the disk. Throws store::Error that says
  /// why there is none; nothing is left behind then.
  std::filesystem::path make(store::Connection& parish, const std::string& before,
                             const Moment& now, const store::Progress& progress = {}) const;
  /// Gives the automatic copies less room, all but the newest, one after the other; each is
  /// compared before the larger file goes. Ends early when `goesOn` says so. Never throws: what
  /// cannot be compressed stays as it is.
  void compressOlder(const files::GoesOn& goesOn) const noexcept;
  /// Where a copy is now that a list showed: it may have been compressed meanwhile.
  static std::filesystem::path present(const std::filesystem::path& copy);
  /// Those that are whole, newest first. A folder that is missing or cannot be read has none.
  std::vector<SafetyCopy> list() const;
  /// Removes what need not be kept any longer, and what was left half made on an earlier day. What
  /// cannot be removed stays; so does, without being counted, what bears a moment yet to come: one
  /// of the clocks was or is wrong.
  void prune(const Moment& now) const;

  static void remove(const std::filesystem::path& copy) noexcept;

 private:
  std::filesystem::path reserve(CopyName name) const;
  void compress(const std::filesystem::path& copy, const files::GoesOn& goesOn) const;
  void removeRests(const text::Date& today) const;

  std::filesystem::path directory_;
  std::size_t kept_;
};

}  // namespace fidaleon::app
