#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "locks/LockEntry.h"
#include "locks/LockSet.h"
#include "locks/Reach.h"
#include "store/Fence.h"

namespace fidaleon::locks {

/// What should be a meeting place cannot serve as one; what() says why, in Spanish.
class Unusable : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Another program may be at work in a place where the two cannot see each other's locks.
class UnseenOther : public Unusable {
 public:
  UnseenOther(const std::string& message, Holder other)
      : Unusable(message), other_(std::move(other)) {}
  const Holder& other() const { return other_; }

 private:
  Holder other_;
};

/// Where the workstations that share a parish see what each of them holds. An object is one session
/// there; what it lists vanishes with the program, however that ends. Everything throws Unusable
/// where nothing else is said.
class MeetingPlace {
 public:
  virtual ~MeetingPlace() = default;
  MeetingPlace() = default;
  MeetingPlace(const MeetingPlace&) = delete;
  MeetingPlace& operator=(const MeetingPlace&) = delete;

  /// A further session at the same place.
  virtual std::unique_ptr<MeetingPlace> another() const = 0;
  /// What goes with all that is stored under locks of this place; null where nothing has to. Lives
  /// as long as any of its sessions.
  virtual store::Fence* fence() { return nullptr; }
  /// How far what is listed here can be seen.
  virtual Reach reach() const { return Reach::Everywhere; }

  /// While somebody has it, nobody else looks or takes anything; given back when dropped.
  class Guard {
   public:
    /// What keeps the others out for as long as it lives.
    class Door {
     public:
      virtual ~Door() = default;
      virtual void announce(const HeldEntry& work) = 0;
    };
    explicit Guard(std::unique_ptr<Door> door) : door_(std::move(door)) {}
    /// What goes on meanwhile, for those whose patience ends: the table says it, as in "está
    /// ordenando los libros". Nothing when it cannot be written.
    void announce(const HeldEntry& work) noexcept;

   private:
    std::unique_ptr<Door> door_;
  };
  /// Waits no longer than its patience.
  virtual Guard enter() const = 0;

  /// Another living session: what it holds, or only who it is when that cannot be read.
  struct Session {
    Holder holder;
    std::vector<HeldEntry> held;
  };
  /// All others. What the dead have left is swept.
  virtual std::vector<Session> sessions(const Guard& guard) const = 0;

  /// The first of the locks wanted that cannot be had, and what is in its way.
  struct Clash {
    LockEntry wanted;
    HeldEntry held;
  };
  virtual std::optional<Clash> clash(const LockSet& wanted) const = 0;
  /// The same in one step with listing `more`, which happens only when all of the wanted can be
  /// had: `more` are those of them that this session does not list yet.
  virtual std::optional<Clash> take(const LockSet& wanted, const std::vector<HeldEntry>& more) = 0;
  /// Lists these instead of what it listed; on Unusable the list is as before.
  virtual void publish(const std::vector<HeldEntry>& entries) = 0;
  /// The same for a program that comes to work here. Where it cannot see the others, or they it, it
  /// throws and is not here. False when it is here but its list could not be written.
  virtual bool join(const Guard& guard, const std::vector<HeldEntry>& entries) = 0;
  /// Forgets those that cannot be seen: only a user can know that they have ended.
  virtual void dismissUnseen(const Guard& guard) const = 0;
  /// Ends the session's list. Needs no guard and never fails.
  virtual void withdraw() noexcept = 0;
};

/// That of the parish which lies in a directory, or whose server is told there. Throws store::Error
/// where the server cannot be entered.
std::unique_ptr<MeetingPlace> meetingAt(const std::filesystem::path& directory);
/// Who makes a session at the place of a directory: meetingAt, or a place that is there already.
using Meet = std::function<std::unique_ptr<MeetingPlace>(const std::filesystem::path&)>;

}  // namespace fidaleon::locks
