#include "parish/Presence.h"

#include <unistd.h>

#include <algorithm>
#include <array>

#include "locks/HostName.h"

namespace fidaleon::app {
namespace {

bool same(const locks::Holder& a, const locks::Holder& b) {
  return a.user == b.user && a.host == b.host && a.process == b.process;
}

/// A shared lock on what no dialog ever asks for.
locks::HeldEntry present(const locks::Holder& self) {
  return {{locks::Kind::SharedTable, "Parroquia abierta", {}, 0}, self};
}

}  // namespace

Presence::Presence(const std::filesystem::path& parishDirectory, const std::string& user,
                   const std::string& since)
    : self_{user, locks::hostName(), ::getpid(), since},
      meeting_(locks::meetingAt(parishDirectory)) {
  told_ = meeting_->join(meeting_->enter(), {present(self_)});
}

void Presence::tellAgain() noexcept {
  if (told_) return;
  try {
    meeting_->publish({present(self_)});
    told_ = true;
  } catch (const std::exception&) {
    // The disk is still full, or somebody lets nobody in.
  }
}

std::vector<locks::Holder> Presence::others() const {
  return others(meeting_->enter());
}

std::vector<locks::Holder> Presence::alone(const std::string& doing,
                                           const std::function<void()>& work) const {
  auto guard = meeting_->enter();
  std::vector<locks::Holder> there = others(guard);
  if (!there.empty()) return there;
  guard.announce({{locks::Kind::Table, doing, {}, 0}, self_});
  work();
  return there;
}

std::vector<locks::Holder> Presence::others(const locks::MeetingPlace::Guard& guard) const {
  std::vector<locks::Holder> all;
  const auto add = [&all](const locks::Holder& holder) {
    if (std::none_of(all.begin(), all.end(),
                     [&](const locks::Holder& known) { return same(known, holder); }))
      all.push_back(holder);
  };
  for (const auto& session : meeting_->sessions(guard)) {
    if (session.held.empty()) add(session.holder);
    for (const locks::HeldEntry& held : session.held) add(held.holder);
  }
  return all;
}

void dismissUnseen(const std::filesystem::path& parishDirectory) {
  const auto meeting = locks::meetingAt(parishDirectory);
  meeting->dismissUnseen(meeting->enter());
}

std::string spoken(const locks::Holder& holder) {
  const std::string who = holder.user.empty() ? "Alguien" : holder.user;
  // "23/11/2026 a las 10:30"
  const std::size_t day = holder.since.find(' ');
  const std::size_t hour = holder.since.rfind(' ');
  const std::string where = who + ", en el equipo " + holder.host;
  if (day == std::string::npos) return where;
  return where + ", desde las " + holder.since.substr(hour + 1) + " del " +
         holder.since.substr(0, day);
}

}  // namespace fidaleon::app
