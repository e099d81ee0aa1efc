#include "locks/ServerMeeting.h"

namespace fidaleon::locks {

namespace {

class ShutPlace : public MeetingPlace::Guard::Door {
 public:
  explicit ShutPlace(std::shared_ptr<Seat> seat) : seat_(std::move(seat)) { seat_->shut(); }
  ~ShutPlace() override { seat_->reopen(); }
  void announce(const HeldEntry& work) override { seat_->announce(work); }

 private:
  std::shared_ptr<Seat> seat_;
};

}  // namespace

MeetingPlace::Guard ServerMeeting::enter() const {
  return Guard(std::make_unique<ShutPlace>(seat_));
}

bool ServerMeeting::join(const Guard&, const std::vector<HeldEntry>& entries) {
  seat_->join(session_, entries);
  return true;
}

}  // namespace fidaleon::locks
