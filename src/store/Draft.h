#pragma once

#include <filesystem>

namespace fidaleon::store {

/// A file made under a passing name beside the one wanted, so that no half of it ever stands under
/// that name. Removed unless it is accepted; what an earlier one left behind is removed too.
class Draft {
 public:
  Draft(const std::filesystem::path& file, const char* ending);
  ~Draft();
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  const std::filesystem::path& path() const { return draft_; }
  /// Takes the place of the file wanted, if there is one, and of what the engine left beside that;
  /// is then on the disk under its name. The database in it must be closed. Throws Connection.
  void accept();

 private:
  std::filesystem::path file_;
  std::filesystem::path draft_;
};

}  // namespace fidaleon::store
