#include "app/DraftFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <random>
#include <set>
#include <system_error>

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

class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return fd_; }
  bool open() const { return fd_ >= 0; }

 private:
  int fd_;
};

int createPrivate(const fs::path& file) {
  ::unlink(file.c_str());
  const int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
  if (fd < 0) fail();
  return fd;
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
  const Descriptor in(::open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
  struct stat is {};
  if (!in.open() || ::fstat(in.get(), &is) != 0) return {};
  if (!S_ISREG(is.st_mode) || is.st_uid != ::getuid()) return {};
  std::string content;
  char block[16384];
  for (ssize_t n = 0; (n = ::read(in.get(), block, sizeof block)) > 0;)
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
  if (alive_ < 0) return;
  ::unlink(named(session_, ALIVE).c_str());
  ::close(alive_);
}

fs::path DraftFolder::named(const std::string& session, const char* ending) const {
  return folder_ / (session + ending);
}

// The sign of life takes its name when it is held already: nobody sees one that seems dead.
void DraftFolder::prepare() {
  if (alive_ >= 0) return;
  fs::create_directories(folder_.parent_path());
  if (::mkdir(folder_.c_str(), 0700) != 0 && errno != EEXIST) fail();
  const Descriptor own(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!own.open() || ::fchmod(own.get(), 0700) != 0) fail();
  const fs::path next = named(session_, NEXT);
  const int fd = createPrivate(next);
  if (::flock(fd, LOCK_EX | LOCK_NB) != 0 ||
      ::rename(next.c_str(), named(session_, ALIVE).c_str()) != 0) {
    const int error = errno;
    ::close(fd);
    errno = error;
    fail();
  }
  alive_ = fd;
}

void DraftFolder::write(const std::string& content, const std::string& session) const {
  const fs::path next = named(session, NEXT);
  writeWhole(Descriptor(createPrivate(next)).get(), content);
  if (::rename(next.c_str(), named(session, DRAFT).c_str()) != 0) fail();
  const Descriptor folder(::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder.open() || ::fsync(folder.get()) != 0) fail();
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
  const Descriptor sign(::open(named(session, ALIVE).c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
  if (!sign.open()) return errno == ENOENT;
  return ::flock(sign.get(), LOCK_SH | LOCK_NB) == 0;
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
