#include "locks/SharedDirectory.h"

#include <unistd.h>

#include <array>
#include <random>
#include <system_error>
#include <thread>

#include "locks/HostName.h"
#include "locks/LockTexts.h"
#include "text/SystemErrors.h"

namespace fidaleon::locks {

namespace fs = std::filesystem;

namespace {

std::string unusable(const fs::path& directory, const std::string& why) {
  return "No se puede trabajar con los bloqueos en la carpeta «" + directory.string() + "»: " + why;
}

/// "HOST.MAKER.RANDOM"
std::string newSessionName(const Maker& self) {
  return SharedDirectory::SESSION_PREFIX + hostName() + "." + self.text() + "." +
         std::to_string(std::random_device{}());
}

std::string withoutLastPart(const std::string& name) {
  return name.substr(0, name.rfind('.'));
}

std::optional<Maker> makerOf(const fs::path& session) {
  const std::string name = withoutLastPart(session.filename().string());
  return Maker::parse(std::string_view(name).substr(name.rfind('.') + 1));
}

/// Who it is as far as the name of its file tells.
Holder namedBy(const fs::path& session) {
  const std::string name = withoutLastPart(withoutLastPart(session.filename().string()));
  const std::string prefix = SharedDirectory::SESSION_PREFIX;
  const auto maker = makerOf(session);
  return {{},
          name.size() > prefix.size() ? name.substr(prefix.size()) : std::string(),
          maker ? maker->process : 0,
          {}};
}

Holder holderOf(const fs::path& session, const std::vector<HeldEntry>& held) {
  return held.empty() ? namedBy(session) : held.front().holder;
}

/// The locked guard file.
class LockedFile : public MeetingPlace::Guard::Door {
 public:
  explicit LockedFile(File file) : file_(std::move(file)) {}
  ~LockedFile() override {
    if (!announced_) return;
    try {
      file_.write({});
    } catch (const std::system_error&) {
      // The next one to announce something writes over it.
    }
  }
  void announce(const HeldEntry& work) override {
    announced_ = true;
    file_.write(encode({work}));
  }

 private:
  File file_;
  bool announced_ = false;
};

}  // namespace

SharedDirectory::SharedDirectory(fs::path directory, std::chrono::milliseconds patience,
                                 Vantage vantage)
    : directory_(directory.empty() ? fs::path("/") : std::move(directory)),
      patience_(patience),
      vantage_(std::move(vantage)) {}

MeetingPlace::Guard SharedDirectory::enter() const {
  const auto until = std::chrono::steady_clock::now() + patience_;
  try {
    File file = File::openOrCreate(directory_ / GUARD_FILE);
    for (auto pause = std::chrono::microseconds(200); !file.tryLock(); pause += pause / 2) {
      if (std::chrono::steady_clock::now() > until) {
        const std::vector<HeldEntry> work = decode(file.read());
        throw Unusable(work.size() == 1
                           ? goingOn(work.front())
                           : unusable(directory_, "otro puesto la tiene ocupada y no responde."));
      }
      std::this_thread::sleep_for(std::min(pause, std::chrono::microseconds(20000)));
    }
    if (!file.read().empty()) file.write({});  // by one that was killed at its work
    return Guard(std::make_unique<LockedFile>(std::move(file)));
  } catch (const std::system_error& e) {
    throw Unusable(unusable(directory_, text::systemReason(e.code())));
  }
}

SharedDirectory::State SharedDirectory::stateOf(const fs::path& path, const File& file) const {
  if (vantage_.seesLock(file)) return State::Lives;
  const auto maker = makerOf(path);
  const Life life = maker ? lifeOf(*maker, vantage_.self) : Life::Unknown;
  // One that lives and whose lock is not seen proves that this disk hides locks, whatever its kind.
  if (life != Life::Unknown) return life == Life::Ended ? State::Ended : State::Unseen;
  return vantage_.reach(directory_) == Reach::Everywhere ? State::Ended : State::Unseen;
}

void SharedDirectory::forEachOther(
    const std::function<void(const fs::path&, const File&, State)>& each) const {
  try {
    for (const auto& found : fs::directory_iterator(directory_)) {
      if (found.path() == ownPath_ || !found.path().filename().string().starts_with(SESSION_PREFIX))
        continue;
      const std::optional<File> session = File::openToRead(found.path());
      if (session) each(found.path(), *session, stateOf(found.path(), *session));
    }
  } catch (const std::system_error& e) {
    throw Unusable(unusable(directory_, text::systemReason(e.code())));
  }
}

std::vector<SharedDirectory::Session> SharedDirectory::sessions(const Guard&) const {
  std::vector<Session> all;
  forEachOther([&](const fs::path& path, const File& file, State state) {
    if (state == State::Ended) {
      std::error_code ignored;  // whoever may remove it will
      fs::remove(path, ignored);
      return;
    }
    std::vector<HeldEntry> held = decode(file.read());
    const Holder holder = holderOf(path, held);
    if (state == State::Unseen) throw UnseenOther(unseen(directory_.string(), holder), holder);
    all.push_back({holder, std::move(held)});
  });
  return all;
}

std::optional<MeetingPlace::Clash> SharedDirectory::clash(const LockSet& wanted) const {
  return clash(enter(), wanted);
}

std::optional<MeetingPlace::Clash> SharedDirectory::clash(const Guard& guard,
                                                          const LockSet& wanted) const {
  std::size_t first = wanted.all().size();
  std::optional<Clash> found;
  for (const Session& session : sessions(guard))
    for (const HeldEntry& held : session.held)
      if (const auto place = wanted.firstConflict(held.entry); place && *place < first) {
        first = *place;
        found = {wanted.all()[first].entry, held};
      }
  return found;
}

std::optional<MeetingPlace::Clash> SharedDirectory::take(const LockSet& wanted,
                                                         const std::vector<HeldEntry>& more) {
  const Guard guard = enter();
  std::optional<Clash> found = clash(guard, wanted);
  if (!found && !more.empty()) put(guard, content_.size(), more);
  return found;
}

void SharedDirectory::dismissUnseen(const Guard&) const {
  forEachOther([&](const fs::path& path, const File&, State state) {
    if (state == State::Unseen) fs::remove(path);
  });
}

/// True when there was none yet.
bool SharedDirectory::ensureOwnFile() {
  if (own_) return false;
  const fs::path path = directory_ / newSessionName(vantage_.self);
  File file = File::create(path);
  ownPath_ = path;
  if (!file.tryLock()) throw std::system_error(ENOLCK, std::generic_category());
  own_ = std::move(file);
  return true;
}

void SharedDirectory::put(const Guard&, std::size_t from, const std::vector<HeldEntry>& entries) {
  const std::string before = content_.substr(from);
  content_.replace(from, std::string::npos, encode(entries));
  bool isNew = true;
  try {
    isNew = ensureOwnFile();
    write(from);
  } catch (const std::system_error& e) {
    const std::string why = text::systemReason(e.code());
    content_.replace(from, std::string::npos, before);
    try {
      isNew ? withdraw() : write(from);
    } catch (const std::system_error&) {
      // The list stays damaged: its good lines still count, and the next one replaces it.
    }
    throw Unusable(unusable(directory_, why));
  }
}

void SharedDirectory::write(std::size_t from) {
  const std::size_t start = damaged_ ? 0 : from;
  damaged_ = true;
  own_->write(std::string_view(content_).substr(start), start);
  damaged_ = false;
}

// Where the guard itself is not seen by all, another may come at the same time: whoever has told
// that he is here looks again.
bool SharedDirectory::join(const Guard& guard, const std::vector<HeldEntry>& entries) {
  sessions(guard);
  bool told = false;
  try {
    ensureOwnFile();
    requireVisible();
    sessions(guard);
    content_ = encode(entries);
    write(0);
    told = true;
  } catch (const Unusable&) {
    withdraw();
    throw;
  } catch (const std::system_error& e) {
    if (own_) return told;
    withdraw();
    throw Unusable(unusable(directory_, text::systemReason(e.code())));
  }
  return told;
}

void SharedDirectory::requireVisible() const {
  try {
    const std::optional<File> again = File::openToRead(ownPath_);
    if (again && vantage_.seesLock(*again)) return;
  } catch (const std::system_error& e) {
    throw Unusable(unusable(directory_, text::systemReason(e.code())));
  }
  throw Unusable(unusable(directory_, "la unidad no guarda los bloqueos. Elija otra carpeta."));
}

void SharedDirectory::withdraw() noexcept {
  if (!ownPath_.empty()) {
    std::error_code ignored;  // left behind, it is swept by the next session
    fs::remove(ownPath_, ignored);
  }
  own_.reset();
  ownPath_.clear();
  content_.clear();
  damaged_ = false;
}

}  // namespace fidaleon::locks
