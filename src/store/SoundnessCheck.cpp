#include "store/SoundnessCheck.h"

#include "store/Backend.h"
#include "store/Error.h"

namespace fidaleon::store {

bool isDamaged(const std::filesystem::path& database) {
  try {
    backendAt(database)->open()->requireSound();
    return false;
  } catch (const Error& error) {
    return error.kind() == ErrorKind::NotADatabase;
  }
}

SoundnessCheck::SoundnessCheck(std::filesystem::path database, std::function<void(Finding)> told)
    : thread_([this, database = std::move(database), told = std::move(told)] {
        told(look(database));
      }) {}

SoundnessCheck::~SoundnessCheck() {
  {
    const std::lock_guard guard(mutex_);
    givenUp_ = true;
    if (engine_ != nullptr) engine_->interrupt();
  }
  thread_.join();
}

SoundnessCheck::Finding SoundnessCheck::look(const std::filesystem::path& database) {
  Finding finding = Finding::Unknown;
  try {
    const std::unique_ptr<Engine> engine = backendAt(database)->open();
    {
      const std::lock_guard guard(mutex_);
      if (givenUp_) return finding;
      engine_ = engine.get();
    }
    try {
      engine->requireSound();
      finding = Finding::Sound;
    } catch (const Error& error) {
      if (error.kind() == ErrorKind::NotADatabase) finding = Finding::Damaged;
    }
    const std::lock_guard guard(mutex_);
    engine_ = nullptr;
    if (givenUp_) finding = Finding::Unknown;
  } catch (const Error& error) {
    if (error.kind() == ErrorKind::NotADatabase) finding = Finding::Damaged;
  }
  return finding;
}

}  // namespace fidaleon::store
