#pragma once

#include <memory>

#include "locks/Seat.h"

namespace fidaleon::locks {

/// Where the desks of a server meet: one session of the program's place there. What is taken is
/// taken by one journey to the server, all or nothing.
class ServerMeeting : public MeetingPlace {
 public:
  explicit ServerMeeting(std::shared_ptr<Seat> seat)
      : seat_(std::move(seat)), session_(seat_->open()) {}
  ~ServerMeeting() override { seat_->close(session_); }

  std::unique_ptr<MeetingPlace> another() const override {
    return std::make_unique<ServerMeeting>(seat_);
  }
  store::Fence* fence() override { return seat_.get(); }
  Guard enter() const override;
  std::vector<Session> sessions(const Guard&) const override { return seat_->others(session_); }
  std::optional<Clash> clash(const LockSet& wanted) const override {
    return seat_->take(session_, wanted, nullptr);
  }
  std::optional<Clash> take(const LockSet& wanted, const std::vector<HeldEntry>& more) override {
    return seat_->take(session_, wanted, &more);
  }
  void publish(const std::vector<HeldEntry>& entries) override {
    seat_->publish(session_, entries);
  }
  bool join(const Guard&, const std::vector<HeldEntry>& entries) override;
  /// A server sees all.
  void dismissUnseen(const Guard&) const override {}
  void withdraw() noexcept override { seat_->withdraw(session_); }

 private:
  std::shared_ptr<Seat> seat_;
  int session_;
};

}  // namespace fidaleon::locks
