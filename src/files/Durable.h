#pragma once
// How what the program writes by itself comes to the disk: in such an order that a power cut leaves
// what was there or what is new, never half of it, and nothing that was told as done is undone.
// All throw std::filesystem::filesystem_error, whose code says why.

#include <filesystem>
#include <string>
#include <string_view>

namespace fidaleon::files {

/// What was written to the file is on the disk.
void syncFile(const std::filesystem::path& file);
/// The names in the folder of the file are on the disk. Does nothing where the file system has no
/// such order.
void syncFolderOf(const std::filesystem::path& file);

/// Makes the folder and those above it that are missing, for their owner alone, or as the
/// set-group-id folder above them says; all are on the disk.
void makeFolders(const std::filesystem::path& folder);
/// Takes the place of what bears the name, if anything does.
void moveTo(const std::filesystem::path& file, const std::filesystem::path& name);
/// Takes the file away for good; one that is not there is no fault.
void removeForGood(const std::filesystem::path& file);
/// A file in the making, under a passing name beside the one whose place it is to take. Without
/// takeName() it is gone with this, and the old one is as it was.
class Replacement {
 public:
  explicit Replacement(const std::filesystem::path& file);
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  const std::filesystem::path& passing() const { return passing_; }
  /// What was written under the passing name is on the disk, and then under its own.
  void takeName();

 private:
  std::filesystem::path name_;
  std::filesystem::path passing_;
};

/// The file holds this content under its name, with the rights of its folder.
void replace(const std::filesystem::path& file, std::string_view content);

/// False only when nothing bears the name: what cannot be looked at counts as there.
bool isThere(const std::filesystem::path& file);
/// A name with this ending that nobody else has or will have: "parroquia.fidaleon.nueva-1f09c2d4".
std::filesystem::path passingName(const std::filesystem::path& file, const std::string& ending);

}  // namespace fidaleon::files
