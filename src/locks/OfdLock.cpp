#include "locks/OfdLock.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

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

File File::openOrCreate(const std::filesystem::path& path) {
  if (auto there = openIfThere(path, O_RDWR)) return std::move(*there);
  try {
    return create(path);
  } catch (const std::system_error& e) {
    if (e.code() != std::errc::file_exists) throw;
  }
  return File(files::open(path, O_RDWR));
}

File File::create(const std::filesystem::path& path) {
  return File(files::create(path));
}

std::optional<File> File::openToRead(const std::filesystem::path& path) {
  return openIfThere(path, O_RDONLY);
}

std::optional<File> File::openIfThere(const std::filesystem::path& path, int flags) {
  try {
    return File(files::open(path, flags));
  } catch (const std::system_error& e) {
    if (e.code() == std::errc::no_such_file_or_directory) return std::nullopt;
    throw;
  }
}

bool File::tryLock() {
  struct flock lock = region(F_WRLCK);
  if (::fcntl(fd(), F_OFD_SETLK, &lock) == 0) return true;
  if (errno == EAGAIN || errno == EACCES || errno == EINTR) return false;
  fail("lock");
}

bool File::lockedByOther() const {
  struct flock lock = region(F_RDLCK);
  if (::fcntl(fd(), F_OFD_GETLK, &lock) != 0) fail("lock");
  return lock.l_type != F_UNLCK;
}

void File::unlock() {
  struct flock lock = region(F_UNLCK);
  if (::fcntl(fd(), F_OFD_SETLK, &lock) != 0) fail("unlock");
}

std::string File::read() const {
  std::string content;
  char buffer[4096];
  for (;;) {
    const ssize_t n = ::pread(fd(), buffer, sizeof buffer, static_cast<off_t>(content.size()));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) fail("read");
    if (n == 0) return content;
    content.append(buffer, static_cast<std::size_t>(n));
  }
}

void File::write(std::string_view content, std::size_t from) {
  std::size_t done = 0;
  while (done < content.size()) {
    const ssize_t n = ::pwrite(fd(), content.data() + done, content.size() - done,
                               static_cast<off_t>(from + done));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) fail("write");
    done += static_cast<std::size_t>(n);
  }
  if (::ftruncate(fd(), static_cast<off_t>(from + content.size())) != 0) fail("truncate");
}

}  // namespace fidaleon::locks
