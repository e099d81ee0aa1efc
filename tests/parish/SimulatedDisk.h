#pragma once
// A disk that keeps what was synced and nothing else for sure. All that this program and its
// libraries write, cut, sync, rename and remove below a folder is recorded at the door of the
// system; from the record come the folders that a power cut may leave behind.

#include <cstdint>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace fidaleon::tests {

/// One call that changes the disk, or the moment when the user was told that something is stored.
struct DiskCall {
  enum class Kind { Create, MakeFolder, Write, Cut, Sync, SyncFolder, Rename, Link, Remove, Told };
  Kind kind;
  std::string path;   // below the folder that is recorded
  std::string other;  // the new name
  std::int64_t at = 0;
  std::string bytes;
};

/// Records as long as it lives; one at a time. What is synced need not reach a real disk then.
class DiskRecorder {
 public:
  explicit DiskRecorder(std::filesystem::path folder);
  ~DiskRecorder();
  DiskRecorder(const DiskRecorder&) = delete;
  DiskRecorder& operator=(const DiskRecorder&) = delete;

  void told() { calls.push_back({DiskCall::Kind::Told}); }

  const std::filesystem::path folder;
  std::vector<DiskCall> calls;
};

/// Every folder passes for one on another machine as long as it lives.
class NetworkShare {
 public:
  NetworkShare();
  ~NetworkShare();
};

/// The sync of this number, from now on, fails; the others do not.
class FailingSync {
 public:
  explicit FailingSync(int which);
  ~FailingSync();
  bool happened() const;
};

class SimulatedDisk {
 public:
  /// Holds, safely, what the folder holds.
  explicit SimulatedDisk(const std::filesystem::path& folder);

  void apply(const DiskCall& call);
  /// Writes into the empty folder what a power cut at this moment leaves: all that was synced, and
  /// by chance some of the rest, sectors of it, in whatever order; now and then all of it, which is
  /// what a killed program leaves.
  void cutPower(const std::filesystem::path& into, std::mt19937& chance) const;

 private:
  using Names = std::map<std::string, int>;  // to the file; FOLDER for a folder
  struct File {
    std::string safe;
    std::vector<DiskCall> unsafe;
  };
  void name(const DiskCall& call, Names& names, int file) const;
  std::string contentOf(const File& file, bool whole, std::mt19937& chance) const;

  static constexpr int FOLDER = -1;
  std::vector<File> files_;
  Names names_;      // as programs see them
  Names safeNames_;  // as the disk has them
  std::vector<std::pair<DiskCall, int>> unsafeNames_;
};

}  // namespace fidaleon::tests
