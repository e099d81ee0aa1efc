#include "drafts/DraftFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <random>
#include <set>
#include <system_error>
#include <utility>

#include "files/Durable.h"

namespace fidaleon::app {

namespace fs = std::filesystem;

namespace {

constexpr const char* DRAFT = ".borrador";
constexpr const char* TAKEN = ".recuperado";  // of another program, until our own draft has it
constexpr const char* ALIVE = ".vivo";        // held by a lock while the program runs
constexpr const char* NEXT = ".nuevo";

[[noreturn]] void fail() {
  throw std::system_error(errno, std::generic_category());
}

files::Descriptor createAnew(const fs::path& file) {
  ::unlink(file.c_str());
  return files::create(file);
}

files::Descriptor openOwn(const fs::path& file, int flags) {
  return files::Descriptor(::open(file.c_str(), flags | O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
}

void writeWhole(int fd, const std::string& content) {
  for (std::size_t done = 0; done < content.size();) {
    const ssize_t n = ::write(fd, content.data() + done, content.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) fail();
    done += static_cast<std::size_t>(n);
  }
  if (::fsync(fd) != 0) fail();
}

/// Empty for what is no file of this account.
std::string readOwn(const fs::path& file) {
  const files::Descriptor in = openOwn(file, 0);
  struct stat is {};
  if (in.number() < 0 || ::fstat(in.number(), &is) != 0) return {};
  if (!S_ISREG(is.st_mode) || is.st_uid != ::getuid()) return {};
  std::string content;
  char block[16384];
  for (ssize_t n = 0; (n = ::read(in.number(), block, sizeof block)) > 0;)
    content.append(block, static_cast<std::size_t>(n));
  return content;
}

std::string newSession() {
  std::random_device chance;
  std::string name;
  for (int i = 0; i < 16; ++i) name += "0123456789abcdef"[chance() % 16];
  return name;
}

}  // namespace

DraftFolder::DraftFolder(fs::path folder) : folder_(std::move(folder)), session_(newSession()) {}

DraftFolder::~DraftFolder() {
  if (alive_.number() >= 0) ::unlink(named(session_, ALIVE).c_str());
}

fs::path DraftFolder::named(const std::string& session, const char* ending) const {
  return folder_ / (session + ending);
}

// The sign of life takes its name when it is held already: nobody sees one that seems dead.
void DraftFolder::prepare() {
  if (alive_.number() >= 0) return;
  files::makeFolders(folder_);
  const files::Descriptor own = openOwn(folder_, O_DIRECTORY);
  if (own.number() < 0 || ::fchmod(own.number(), S_IRWXU) != 0) fail();
  const fs::path next = named(session_, NEXT);
  files::Descriptor sign = createAnew(next);
  if (::flock(sign.number(), LOCK_EX | LOCK_NB) != 0 ||
      ::rename(next.c_str(), named(session_, ALIVE).c_str()) != 0)
    fail();
  alive_ = std::move(sign);
}

void DraftFolder::write(const std::string& content, const std::string& session) const {
  const fs::path next = named(session, NEXT);
  writeWhole(createAnew(next).number(), content);
  files::moveTo(next, named(session, DRAFT));
}

void DraftFolder::keep(const std::string& content) {
  prepare();
  write(content, session_);
  ::unlink(named(session_, TAKEN).c_str());
}

void DraftFolder::leave(const std::string& content) {
  prepare();
  write(content, newSession());
}

void DraftFolder::drop() {
  ::unlink(named(session_, DRAFT).c_str());
  ::unlink(named(session_, TAKEN).c_str());
}

bool DraftFolder::hasEnded(const std::string& session) const {
  const files::Descriptor sign = openOwn(named(session, ALIVE), 0);
  if (sign.number() < 0) return errno == ENOENT;
  return ::flock(sign.number(), LOCK_SH | LOCK_NB) == 0;
}

std::vector<DraftFolder::Left> DraftFolder::left() const {
  std::vector<Left> found;
  std::set<fs::path> files;
  std::error_code ignored;
  for (const auto& entry : fs::directory_iterator(folder_, ignored)) files.insert(entry.path());
  for (const fs::path& file : files) {
    const std::string session = file.stem().string();
    if (session == session_ || !hasEnded(session)) continue;
    const bool isDraft = file.extension() == DRAFT || file.extension() == TAKEN;
    if (isDraft) found.push_back({file, readOwn(file)});
    // One that is just beginning has no sign of life yet: only what belongs to a sign that nobody
    // holds is rubbish.
    const bool isRest = file.extension() == ALIVE || file.extension() == NEXT;
    const bool wasAlive = files.count(named(session, ALIVE)) != 0;
    const bool hasDraft =
        files.count(named(session, DRAFT)) + files.count(named(session, TAKEN)) != 0;
    if (isRest && wasAlive && !hasDraft) ::unlink(file.c_str());
  }
  return found;
}

bool DraftFolder::take(Left& left) {
  prepare();
  const fs::path mine = named(session_, TAKEN);
  if (::rename(left.file.c_str(), mine.c_str()) != 0) return false;
  left.file = mine;
  return true;
}

void DraftFolder::remove(const Left& left) {
  ::unlink(left.file.c_str());
}

fs::path draftDirectory() {
  const char* state = std::getenv("XDG_STATE_HOME");
  const char* home = std::getenv("HOME");
  const fs::path base =
      state && *state == '/' ? fs::path(state) : fs::path(home ? home : ".") / ".local/state";
  return base / "fidaleon" / "borradores";
}

}  // namespace fidaleon::app
