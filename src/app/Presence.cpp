#include "app/Presence.h"

#include <unistd.h>

#include <algorithm>
#include <array>

namespace fidaleon::app {
namespace {

std::string hostName() {
  std::array<char, 256> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "desconocido";
}

bool same(const locks::Holder& a, const locks::Holder& b) {
  return a.user == b.user && a.host == b.host && a.process == b.process;
}

}  // namespace

Presence::Presence(const std::filesystem::path& parishDirectory, const std::string& user,
                   const std::string& since)
    : meeting_(parishDirectory) {
  // A shared lock on what no dialog ever asks for.
  const locks::LockEntry entry{locks::Kind::SharedTable, "Parroquia abierta", {}, 0};
  try {
    const auto guard = meeting_.enter();
    meeting_.publish(guard, {{entry, {user, hostName(), ::getpid(), since}}});
  } catch (const locks::Unusable&) {
    // Whoever needs a lock is told by the dialog that asks for it.
  }
}

Presence::~Presence() {
  meeting_.withdraw();
}

std::vector<locks::Holder> Presence::others() const {
  return others(meeting_.enter());
}

std::vector<locks::Holder> Presence::alone(const std::function<void()>& work) const {
  const auto guard = meeting_.enter();
  std::vector<locks::Holder> there = others(guard);
  if (there.empty()) work();
  return there;
}

std::vector<locks::Holder> Presence::others(const locks::SharedDirectory::Guard& guard) const {
  std::vector<locks::Holder> all;
  for (const locks::HeldEntry& held : meeting_.others(guard))
    if (std::none_of(all.begin(), all.end(),
                     [&](const locks::Holder& known) { return same(known, held.holder); }))
      all.push_back(held.holder);
  return all;
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
