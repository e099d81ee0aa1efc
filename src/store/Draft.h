#pragma once

#include <filesystem>

namespace fidaleon::store {

/// A file made under a passing name beside the one wanted, so that no half of it ever stands under
/// that name. It is there from the beginning, empty, under a name that nobody else has, and goes
/// unless it is accepted. What others have left unfinished for more than a day goes too.
class Draft {
 public:
  /// Throws Connection, ReadOnly, DiskFull.
  Draft(const std::filesystem::path& file, const char* ending);
  ~Draft();
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  const std::filesystem::path& path() const { return draft_; }
  /// Takes the place of the file wanted, if there is one, and of what the engine left beside that;
  /// is then on the disk under its name. The database in it must be closed. Throws Connection,
  /// ReadOnly, DiskFull.
  void accept();
  /// The same where no other file may be replaced: of several who want one name, one gets it. False
  /// when it is taken.
  bool acceptIfFree();

 private:
  void complete() const;

  std::filesystem::path file_;
  std::filesystem::path draft_;
};

}  // namespace fidaleon::store
