#include "locks/SharedDirectory.h"

#include <unistd.h>

#include <random>
#include <system_error>
#include <thread>

#include "text/SystemErrors.h"

namespace fidaleon::locks {

namespace fs = std::filesystem;

namespace {

std::string unusable(const fs::path& directory, const std::string& why) {
  return "No se puede trabajar con los bloqueos en la carpeta «" + directory.string() + "»: " + why;
}

std::string newSessionName() {
  char host[256] = "equipo";
  ::gethostname(host, sizeof host - 1);
  return SharedDirectory::SESSION_PREFIX + std::string(host) + "." + std::to_string(::getpid()) +
         "." + std::to_string(std::random_device{}());
}

}  // namespace

SharedDirectory::SharedDirectory(fs::path directory, std::chrono::milliseconds patience)
    : directory_(directory.empty() ? fs::path("/") : std::move(directory)), patience_(patience) {}

SharedDirectory::Guard SharedDirectory::enter() const {
  const auto until = std::chrono::steady_clock::now() + patience_;
  try {
    File file = File::openOrCreate(directory_ / GUARD_FILE);
    for (auto pause = std::chrono::microseconds(200); !file.tryLock(); pause += pause / 2) {
      if (std::chrono::steady_clock::now() > until)
        throw Unusable(unusable(directory_, "otro puesto la tiene ocupada y no responde."));
      std::this_thread::sleep_for(std::min(pause, std::chrono::microseconds(20000)));
    }
    return Guard(std::move(file));
  } catch (const std::system_error& e) {
    throw Unusable(unusable(directory_, text::systemReason(e.code())));
  }
}

std::vector<HeldEntry> SharedDirectory::others(const Guard&) const {
  std::vector<HeldEntry> all;
  try {
    for (const auto& found : fs::directory_iterator(directory_)) {
      if (found.path() == ownPath_ || !found.path().filename().string().starts_with(SESSION_PREFIX))
        continue;
      const std::optional<File> session = File::openToRead(found.path());
      if (!session) continue;  // ended while we looked
      if (session->lockedByOther()) {
        for (HeldEntry& held : decode(session->read())) all.push_back(std::move(held));
      } else {
        std::error_code ignored;  // whoever may remove it will
        fs::remove(found.path(), ignored);
      }
    }
  } catch (const std::system_error& e) {
    throw Unusable(unusable(directory_, text::systemReason(e.code())));
  }
  return all;
}

void SharedDirectory::ensureOwnFile() {
  if (own_) return;
  const fs::path path = directory_ / newSessionName();
  File file = File::create(path);
  ownPath_ = path;
  if (!file.tryLock()) throw std::system_error(ENOLCK, std::generic_category());
  own_ = std::move(file);
}

void SharedDirectory::publish(const Guard&, const std::vector<HeldEntry>& entries) {
  std::string before;
  try {
    ensureOwnFile();
    before = own_->read();
    own_->write(encode(entries));
  } catch (const std::system_error& e) {
    const std::string why = text::systemReason(e.code());
    if (own_ && !before.empty()) {
      try {
        own_->write(before);
      } catch (const std::system_error&) {
        // The list stays damaged: its good lines still count, and it ends with the session.
      }
    } else {
      withdraw();
    }
    throw Unusable(unusable(directory_, why));
  }
}

void SharedDirectory::withdraw() noexcept {
  if (!ownPath_.empty()) {
    std::error_code ignored;  // left behind, it is swept by the next session
    fs::remove(ownPath_, ignored);
  }
  own_.reset();
  ownPath_.clear();
}

}  // namespace fidaleon::locks
