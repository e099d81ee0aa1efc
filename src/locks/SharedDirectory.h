#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "locks/LockEntry.h"
#include "locks/Maker.h"
#include "locks/OfdLock.h"
#include "locks/Reach.h"

namespace fidaleon::locks {

/// The directory cannot serve as a meeting place; what() says why, in Spanish.
class Unusable : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Another program may be at work in a directory where the two cannot see each other's locks.
class UnseenOther : public Unusable {
 public:
  UnseenOther(const std::string& message, Holder other)
      : Unusable(message), other_(std::move(other)) {}
  const Holder& other() const { return other_; }

 private:
  Holder other_;
};

/// From where the directory is looked at. Tests take other views of it.
struct Vantage {
  Maker self = thisProgram();
  std::function<Reach(const std::filesystem::path&)> reach =
      [](const std::filesystem::path& directory) { return reachOf(directory); };
  std::function<bool(const File&)> seesLock = [](const File& file) { return file.lockedByOther(); };
};

/// Where the workstations that share a directory meet. "fidaleon.bloqueos" in it is the guard:
/// whoever has it locked may look and write. Each session that holds locks has a hidden file of
/// its own that lists them and that it keeps locked for as long as it lives. A session file that
/// nobody has locked belongs to a session that is dead, and is swept by the next one that looks;
/// but not when its program is seen to live, nor, where locks may not be seen from another machine,
/// when it was of another one.
class SharedDirectory {
 public:
  static constexpr std::chrono::milliseconds PATIENCE{5000};
  explicit SharedDirectory(std::filesystem::path directory,
                           std::chrono::milliseconds patience = PATIENCE, Vantage vantage = {});

  /// The right to look and write; given back when dropped.
  class Guard {
   public:
    explicit Guard(File file) : file_(std::move(file)) {}
    Guard(Guard&&) noexcept = default;
    ~Guard();
    /// What goes on meanwhile, for those whose patience ends: the table says it, as in "está
    /// ordenando los libros". Nothing when it cannot be written.
    void announce(const HeldEntry& work) noexcept;

   private:
    File file_;
    bool announced_ = false;
  };
  /// Waits no longer than its patience. Throws Unusable.
  Guard enter() const;

  /// Another living session: what it holds, or only who it is when that cannot be read.
  struct Session {
    Holder holder;
    std::vector<HeldEntry> held;
  };
  /// Sweeps the dead. Wants the guard. Throws UnseenOther, and Unusable when a session cannot be
  /// looked at.
  std::vector<Session> sessions(const Guard&) const;
  /// What all of them hold.
  std::vector<HeldEntry> others(const Guard& guard) const;
  /// Lists these as held by this session. Wants the guard; on Unusable the list is as before.
  void publish(const Guard&, const std::vector<HeldEntry>& entries) { put(0, entries); }
  /// The same beside what it lists already.
  void publishMore(const Guard&, const std::vector<HeldEntry>& entries) {
    put(content_.size(), entries);
  }
  /// The same for a program that comes to work here. It must find that locks are seen and that no
  /// other is there unseen, or it throws and is not here. False when it is here but its list could
  /// not be written.
  bool join(const Guard& guard, const std::vector<HeldEntry>& entries);
  /// Takes away the files of those that cannot be seen: only a user can know that they have ended.
  void dismissUnseen(const Guard&) const;
  /// Ends the session's list. Needs no guard and never fails.
  void withdraw() noexcept;

  static constexpr const char* GUARD_FILE = "fidaleon.bloqueos";
  static constexpr const char* SESSION_PREFIX = ".fidaleon.bloqueos.";

 private:
  enum class State { Lives, Ended, Unseen };
  State stateOf(const std::filesystem::path& path, const File& file) const;
  void forEachOther(
      const std::function<void(const std::filesystem::path&, const File&, State)>& each) const;
  bool ensureOwnFile();
  void put(std::size_t from, const std::vector<HeldEntry>& entries);
  void write(std::size_t from);
  void requireVisible() const;

  std::filesystem::path directory_;
  std::chrono::milliseconds patience_;
  Vantage vantage_;
  std::filesystem::path ownPath_;
  std::optional<File> own_;
  std::string content_;   // what the own file is to hold
  bool damaged_ = false;  // and does not, since it could not be written
};

}  // namespace fidaleon::locks
