#include "locks/OfdLock.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace fidaleon::locks {

namespace {

// Far behind the content: where locks are mandatory, as on Windows shares, the locked byte could
// not be read by the others.
constexpr off_t LOCKED_BYTE = 0x40000000;

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

struct flock region(short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = LOCKED_BYTE;
  lock.l_len = 1;
  return lock;
}

}  // namespace

File::File(File&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

File& File::operator=(File&& other) noexcept {
  std::swap(fd_, other.fd_);
  return *this;
}

File::~File() {
  if (fd_ >= 0) ::close(fd_);
}

File File::openOrCreate(const std::filesystem::path& path) {
  const int fd = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  if (fd >= 0) return File(fd);
  if (errno != ENOENT) fail("open");
  try {
    return create(path);
  } catch (const std::system_error& e) {
    if (e.code().value() != EEXIST) throw;
  }
  const int again = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  if (again < 0) fail("open");
  return File(again);
}

File File::create(const std::filesystem::path& path) {
  const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (fd < 0) fail("open");
  // The directory decides who may come here; some share systems refuse to change modes.
  if (::fchmod(fd, 0666) != 0) errno = 0;
  return File(fd);
}

std::optional<File> File::openToRead(const std::filesystem::path& path) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return std::nullopt;
  return File(fd);
}

bool File::tryLock() {
  struct flock lock = region(F_WRLCK);
  if (::fcntl(fd_, F_OFD_SETLK, &lock) == 0) return true;
  if (errno == EAGAIN || errno == EACCES || errno == EINTR) return false;
  fail("lock");
}

bool File::lockedByOther() const {
  struct flock lock = region(F_RDLCK);
  if (::fcntl(fd_, F_OFD_GETLK, &lock) != 0) fail("lock");
  return lock.l_type != F_UNLCK;
}

void File::unlock() {
  struct flock lock = region(F_UNLCK);
  if (::fcntl(fd_, F_OFD_SETLK, &lock) != 0) fail("unlock");
}

std::string File::read() const {
  std::string content;
  char buffer[4096];
  for (;;) {
    const ssize_t n = ::pread(fd_, buffer, sizeof buffer, static_cast<off_t>(content.size()));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) fail("read");
    if (n == 0) return content;
    content.append(buffer, static_cast<std::size_t>(n));
  }
}

void File::write(const std::string& content) {
  std::size_t done = 0;
  while (done < content.size()) {
    const ssize_t n =
        ::pwrite(fd_, content.data() + done, content.size() - done, static_cast<off_t>(done));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) fail("write");
    done += static_cast<std::size_t>(n);
  }
  if (::ftruncate(fd_, static_cast<off_t>(content.size())) != 0) fail("truncate");
}

}  // namespace fidaleon::locks
