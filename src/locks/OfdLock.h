#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "files/PrivateFile.h"

namespace fidaleon::locks {

/// An open file, closed when dropped. Never inherited by a program started from this one, so that
/// no lock outlives the process that took it.
class File {
 public:
  /// Opens for reading and writing. A file that is created has the rights of its directory
  /// (files::rightsIn). No symbolic link is followed. Throws std::system_error.
  static File openOrCreate(const std::filesystem::path& path);
  /// Creates a file that must not exist yet. Throws std::system_error.
  static File create(const std::filesystem::path& path);
  /// Nothing when there is no such file. Throws std::system_error when there is one that cannot be
  /// opened.
  static std::optional<File> openToRead(const std::filesystem::path& path);

  /// Takes the one byte that stands for the whole file, as against every other open of the file
  /// in this process, in others and on other machines. False when another has it. The operating
  /// system gives it back when the file is closed or the process dies, however it dies.
  /// Throws std::system_error where the file system keeps no locks.
  bool tryLock();
  /// True when another open of the file holds the lock.
  bool lockedByOther() const;
  void unlock();

  std::string read() const;
  /// Puts this in place of what the file holds from that byte on; throws std::system_error.
  void write(std::string_view content, std::size_t from = 0);

 private:
  explicit File(files::Descriptor descriptor) : descriptor_(std::move(descriptor)) {}
  static std::optional<File> openIfThere(const std::filesystem::path& path, int flags);
  int fd() const { return descriptor_.number(); }

  files::Descriptor descriptor_;
};

}  // namespace fidaleon::locks
