#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "locks/LockEntry.h"
#include "locks/OfdLock.h"

namespace fidaleon::locks {

/// The directory cannot serve as a meeting place; what() says why, in Spanish.
class Unusable : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Where the workstations that share a directory meet. "fidaleon.bloqueos" in it is the guard:
/// whoever has it locked may look and write. Each session that holds locks has a hidden file of
/// its own that lists them and that it keeps locked for as long as it lives. A session file that
/// nobody has locked belongs to a session that is dead, and is swept by the next one that looks.
class SharedDirectory {
 public:
  static constexpr std::chrono::milliseconds PATIENCE{5000};
  explicit SharedDirectory(std::filesystem::path directory,
                           std::chrono::milliseconds patience = PATIENCE);

  /// The right to look and write; given back when dropped.
  class Guard {
   public:
    explicit Guard(File file) : file_(std::move(file)) {}

   private:
    File file_;
  };
  /// Waits no longer than its patience. Throws Unusable.
  Guard enter() const;

  /// What all other living sessions hold; sweeps the dead. Wants the guard.
  std::vector<HeldEntry> others(const Guard&) const;
  /// Lists these as held by this session. Wants the guard; on Unusable the list is as before.
  void publish(const Guard&, const std::vector<HeldEntry>& entries);
  /// Ends the session's list. Needs no guard and never fails.
  void withdraw() noexcept;

  static constexpr const char* GUARD_FILE = "fidaleon.bloqueos";
  static constexpr const char* SESSION_PREFIX = ".fidaleon.bloqueos.";

 private:
  void ensureOwnFile();

  std::filesystem::path directory_;
  std::chrono::milliseconds patience_;
  std::filesystem::path ownPath_;
  std::optional<File> own_;
};

}  // namespace fidaleon::locks
