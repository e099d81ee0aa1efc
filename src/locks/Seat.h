#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "locks/MeetingPlace.h"
#include "store/Fence.h"
#include "store/postgres/Link.h"

namespace fidaleon::locks {

/// The place of this program on a server: a link of its own, by whose life the others know that the
/// program lives, and the lists of its sessions. When the link is lost it comes back and looks what
/// has become of them. What nobody has taken meanwhile is still held. A session that has lost
/// something is lost as a whole until it withdraws, and nothing is stored before that.
///
/// As a fence it goes with whatever the program stores on the server, so that nothing is stored
/// over a lock that is not held any more, and nobody takes one while something is being stored
/// under it.
///
/// For several threads. Everything throws Unusable where nothing else is said.
class Seat final : public store::Fence {
 public:
  static constexpr std::chrono::milliseconds PATIENCE{5000};
  /// Nobody notices that a refusal takes this long.
  static constexpr std::chrono::milliseconds IN_LINE{250};
  /// Throws store::Error where the server cannot be entered.
  explicit Seat(const store::ServerAddress& address, const std::string& password = {},
                std::chrono::milliseconds patience = PATIENCE);
  ~Seat() override;
  Seat(const Seat&) = delete;
  Seat& operator=(const Seat&) = delete;

  using Entries = std::vector<HeldEntry>;
  /// The number of a new session, with an empty list.
  int open();
  void close(int session) noexcept;
  /// As MeetingPlace has them. Without `more` it is only asked. What another desk has is waited for
  /// a moment, in the order in which the desks came.
  std::optional<MeetingPlace::Clash> take(int session, const LockSet& wanted, const Entries* more);
  void publish(int session, const Entries& entries);
  /// The same for one that is lost by nothing: it is listed again when the program comes back.
  void join(int session, const Entries& entries);
  std::vector<MeetingPlace::Session> others(int session);
  void withdraw(int session) noexcept;
  void shut();
  void announce(const HeldEntry& work);
  void reopen() noexcept;

  std::string statement() override;
  void lost() override;

  /// How many times the server was waited for.
  std::int64_t journeys() const { return link_.journeys(); }

 private:
  struct List {
    Entries held;
    bool comesBack = false;
    bool isLost = false;
  };
  using Step = std::function<store::Answer()>;
  using Watch = std::chrono::steady_clock;
  /// The answer of the server; when another desk stands in the way it was waited for until then.
  store::Answer inLine(List& list, int session, const std::vector<std::string>& values,
                       Watch::time_point until);
  void waitForCall(std::chrono::milliseconds most);

  void arrive();
  void comeBack(bool byNewLink);
  void regain(int session, List& list, bool isKnown);
  bool isHere() const { return link_.isOpen() && generation_ == link_.generation(); }
  /// Comes back, once, when the step finds that the link or the locks are lost.
  store::Answer carryOut(const Step& step);
  [[noreturn]] void refuse(const store::Error& error);
  void requireOpen() const;
  void requireHeld(const List& list);
  std::string whatIsLost(const List& list);
  store::Answer ask(const char* function, int session, const std::vector<std::string>& rest);
  void put(int session, const Entries& entries);

  std::recursive_mutex mutex_;
  std::chrono::milliseconds patience_;
  store::Link link_;
  int generation_ = -1;  // of the link on which the server was told who this is
  std::string desk_;     // its number there
  std::int64_t turn_ = 0;
  std::string guardian_ = "0";  // the server's process of the link that has shut the place
  std::map<int, List> lists_;
  int last_ = 0;
};

}  // namespace fidaleon::locks
