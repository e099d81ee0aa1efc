#include "locks/MeetingPlace.h"

#include "locks/ServerMeeting.h"
#include "locks/SharedDirectory.h"
#include "store/postgres/ServerAccess.h"

namespace fidaleon::locks {

void MeetingPlace::Guard::announce(const HeldEntry& work) noexcept {
  try {
    door_->announce(work);
  } catch (const std::exception&) {
    // Those who wait are told less.
  }
}

std::unique_ptr<MeetingPlace> meetingAt(const std::filesystem::path& directory) {
  const auto address = store::serverAt(directory);
  if (!address) return std::make_unique<SharedDirectory>(directory);
  return std::make_unique<ServerMeeting>(
      std::make_shared<Seat>(*address, store::passwordFor(*address)));
}

}  // namespace fidaleon::locks
