#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "locks/Maker.h"
#include "locks/MeetingPlace.h"
#include "locks/OfdLock.h"

namespace fidaleon::locks {

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
class SharedDirectory : public MeetingPlace {
 public:
  static constexpr std::chrono::milliseconds PATIENCE{5000};
  explicit SharedDirectory(std::filesystem::path directory,
                           std::chrono::milliseconds patience = PATIENCE, Vantage vantage = {});
  ~SharedDirectory() override { withdraw(); }

  std::unique_ptr<MeetingPlace> another() const override {
    return std::make_unique<SharedDirectory>(directory_, patience_, vantage_);
  }
  Reach reach() const override { return vantage_.reach(directory_); }
  Guard enter() const override;
  /// Throws UnseenOther, and Unusable when a session cannot be looked at.
  std::vector<Session> sessions(const Guard&) const override;
  std::optional<Clash> clash(const LockSet& wanted) const override;
  std::optional<Clash> take(const LockSet& wanted, const std::vector<HeldEntry>& more) override;
  void publish(const std::vector<HeldEntry>& entries) override { put(enter(), 0, entries); }
  bool join(const Guard& guard, const std::vector<HeldEntry>& entries) override;
  /// Takes away their files.
  void dismissUnseen(const Guard&) const override;
  void withdraw() noexcept override;

  static constexpr const char* GUARD_FILE = "fidaleon.bloqueos";
  static constexpr const char* SESSION_PREFIX = ".fidaleon.bloqueos.";

 private:
  enum class State { Lives, Ended, Unseen };
  State stateOf(const std::filesystem::path& path, const File& file) const;
  void forEachOther(
      const std::function<void(const std::filesystem::path&, const File&, State)>& each) const;
  std::optional<Clash> clash(const Guard& guard, const LockSet& wanted) const;
  bool ensureOwnFile();
  void put(const Guard&, std::size_t from, const std::vector<HeldEntry>& entries);
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
