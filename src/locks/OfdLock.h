#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace fidaleon::locks {

/// An open file, closed when dropped. Never inherited by a program started from this one, so that
/// no lock outlives the process that took it.
class File {
 public:
  File() = default;
  File(File&& other) noexcept;
  File& operator=(File&& other) noexcept;
  ~File();

  /// Opens for reading and writing. A file that is created may be used by every account that can
  /// use its directory. Throws std::system_error.
  static File openOrCreate(const std::filesystem::path& path);
  /// Creates a file that must not exist yet. Throws std::system_error.
  static File create(const std::filesystem::path& path);
  /// Nothing when there is no such file or it may not be read.
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
  /// Puts this in place of what the file holds; throws std::system_error.
  void write(const std::string& content);

 private:
  explicit File(int fd) : fd_(fd) {}
  int fd_ = -1;
};

}  // namespace fidaleon::locks
