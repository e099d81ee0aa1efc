#include "files/PrivateFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "files/Durable.h"

namespace fidaleon::files {

namespace fs = std::filesystem;

namespace {

constexpr mode_t OWNER = S_IRUSR | S_IWUSR;
constexpr mode_t GROUP = S_IRGRP | S_IWGRP;

[[noreturn]] void fail(const fs::path& path) {
  throw fs::filesystem_error("open", path, std::error_code(errno, std::generic_category()));
}

fs::path folderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : ".";
}

}  // namespace

bool isShared(const fs::path& folder) {
  struct stat facts = {};
  return ::stat(folder.c_str(), &facts) == 0 && (facts.st_mode & S_ISGID) != 0;
}

mode_t rightsIn(const fs::path& folder) {
  return isShared(folder) ? OWNER | GROUP : OWNER;
}

void shareWith(const fs::path& folder, gid_t group) {
  constexpr mode_t SHARED = S_ISGID | S_IRWXU | S_IRWXG;
  if (::chown(folder.c_str(), static_cast<uid_t>(-1), group) != 0 ||
      ::chmod(folder.c_str(), SHARED) != 0)
    throw fs::filesystem_error("chmod", folder, std::error_code(errno, std::generic_category()));
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

Descriptor::~Descriptor() {
  if (number_ >= 0) ::close(number_);
}

Descriptor create(const fs::path& file) {
  Descriptor made(::open(file.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, OWNER));
  if (made.number() < 0) fail(file);
  // Some shares refuse to change rights: there, their own rules decide.
  ::fchmod(made.number(), rightsIn(folderOf(file)));
  return made;
}

Descriptor open(const fs::path& file, int flags) {
  Descriptor opened(::open(file.c_str(), flags | O_NOFOLLOW | O_CLOEXEC));
  if (opened.number() < 0) fail(file);
  return opened;
}

fs::path createUnique(const fs::path& file, const std::string& ending) {
  for (;;) {
    fs::path name = passingName(file, ending);
    try {
      create(name);
      return name;
    } catch (const std::system_error& e) {
      if (e.code() != std::errc::file_exists) throw;
    }
  }
}

void narrow(const fs::path& file) noexcept {
  struct stat facts = {};
  if (::lstat(file.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) return;
  if (facts.st_uid != ::geteuid()) return;
  const mode_t rights = rightsIn(folderOf(file));
  if ((facts.st_mode & ALLPERMS) != rights) ::chmod(file.c_str(), rights);
}

}  // namespace fidaleon::files
