#include "locks/MeetingPlace.h"

#include "locks/SharedDirectory.h"

namespace fidaleon::locks {

void MeetingPlace::Guard::announce(const HeldEntry& work) noexcept {
  try {
    door_->announce(work);
  } catch (const std::exception&) {
    // Those who wait are told less.
  }
}

std::unique_ptr<MeetingPlace> meetingAt(const std::filesystem::path& directory) {
  return std::make_unique<SharedDirectory>(directory);
}

}  // namespace fidaleon::locks
