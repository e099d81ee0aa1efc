#pragma once

#include <filesystem>
#include <functional>
#include <mutex>
#include <thread>

namespace fidaleon::store {

class Engine;

/// Reads the whole of a database. False also when it cannot be told.
bool isDamaged(const std::filesystem::path& database);

/// Looks for damage beside the work of the program, on a connection of its own: reads all, and
/// compares what indexes say with what tables say.
class SoundnessCheck {
 public:
  enum class Finding { Sound, Damaged, Unknown };
  /// `told` is called once, from another thread; Unknown when the check was given up.
  SoundnessCheck(std::filesystem::path database, std::function<void(Finding)> told);
  /// Gives up; waits until nothing holds the database any more.
  ~SoundnessCheck();
  SoundnessCheck(const SoundnessCheck&) = delete;
  SoundnessCheck& operator=(const SoundnessCheck&) = delete;

 private:
  Finding look(const std::filesystem::path& database);

  std::mutex mutex_;
  Engine* engine_ = nullptr;  // while it looks
  bool givenUp_ = false;
  std::thread thread_;
};

}  // namespace fidaleon::store
