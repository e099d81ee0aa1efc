#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

namespace fidaleon::files {

/// What is written about people is for the account that owns it alone; in a set-group-id folder,
/// which is how several accounts are given one folder, for the folder's group too. The account's
/// mask has no say in it.
mode_t rightsIn(const std::filesystem::path& folder);
/// Whether the folder is such a one.
bool isShared(const std::filesystem::path& folder);

/// Makes it such a folder, for this group. Throws std::filesystem::filesystem_error.
void shareWith(const std::filesystem::path& folder, gid_t group);

/// An open file, closed when dropped. No program started from this one inherits it.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept;
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor();

  int number() const { return number_; }

 private:
  int number_;
};

/// Creates a file that must not be there yet, for reading and writing, with the rights of its
/// folder. Throws std::filesystem::filesystem_error.
Descriptor create(const std::filesystem::path& file);
/// Opens a file that is there with these flags of open(2); never through a symbolic link. Throws
/// std::filesystem::filesystem_error.
Descriptor open(const std::filesystem::path& file, int flags);
/// A new empty file under a passing name of this one. Throws std::filesystem::filesystem_error.
std::filesystem::path createUnique(const std::filesystem::path& file, const std::string& ending);
/// Takes away what others than rightsIn() tells may do with a file of this account. What cannot be
/// changed stays; no file is opened, so that no lock on it is lost.
void narrow(const std::filesystem::path& file) noexcept;

}  // namespace fidaleon::files
