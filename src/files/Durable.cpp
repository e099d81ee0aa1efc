#include "files/Durable.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>

#include "files/PrivateFile.h"

namespace fidaleon::files {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const char* what, const fs::path& file, int why = errno) {
  throw fs::filesystem_error(what, file, std::error_code(why, std::generic_category()));
}

fs::path folderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : ".";
}

void writeAll(int fd, std::string_view content, const fs::path& file) {
  while (!content.empty()) {
    const ssize_t done = ::write(fd, content.data(), content.size());
    if (done < 0 && errno != EINTR) fail("write", file);
    if (done > 0) content.remove_prefix(static_cast<std::size_t>(done));
  }
}

}  // namespace

void syncFile(const fs::path& file) {
  const Descriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (opened.number() < 0) fail("open", file);
  if (::fsync(opened.number()) != 0) fail("fsync", file);
}

void syncFolderOf(const fs::path& file) {
  const fs::path folder = folderOf(file);
  const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.number() >= 0 && ::fsync(opened.number()) == 0) return;
  // A folder may be written to and not read; some network disks cannot do it at all.
  const bool unable = errno == EACCES || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
  if (!unable) fail("fsync", folder);
}

void makeFolders(const fs::path& folder) {
  std::error_code failed;
  if (folder.empty() || fs::is_directory(folder, failed)) return;
  const fs::path whole = folder.has_filename() ? folder : folder.parent_path();
  makeFolders(whole.parent_path());
  if (::mkdir(whole.c_str(), S_IRWXU) != 0 && errno != EEXIST) fail("mkdir", whole);
  if (!fs::is_directory(whole, failed)) fail("mkdir", whole, ENOTDIR);
  if (isShared(whole)) ::chmod(whole.c_str(), S_ISGID | S_IRWXU | S_IRWXG);
  syncFolderOf(whole);
}

void moveTo(const fs::path& file, const fs::path& name) {
  fs::rename(file, name);
  syncFolderOf(name);
  if (folderOf(file) != folderOf(name)) syncFolderOf(file);
}

void removeForGood(const fs::path& file) {
  if (fs::remove(file)) syncFolderOf(file);
}

Replacement::Replacement(const fs::path& file)
    : name_(file), passing_(passingName(file, ".nuevo")) {}

Replacement::~Replacement() {
  std::error_code ignored;
  if (!passing_.empty()) fs::remove(passing_, ignored);
}

void Replacement::takeName() {
  syncFile(passing_);
  moveTo(passing_, name_);
  passing_.clear();
}

void replace(const fs::path& file, std::string_view content) {
  Replacement next(file);
  {
    const Descriptor out = create(next.passing());
    writeAll(out.number(), content, next.passing());
  }
  next.takeName();
}

bool isThere(const fs::path& file) {
  std::error_code failed;
  return fs::symlink_status(file, failed).type() != fs::file_type::not_found;
}

fs::path passingName(const fs::path& file, const std::string& ending) {
  char number[16];
  std::snprintf(number, sizeof number, "-%08x", std::random_device()());
  fs::path name = file;
  name += ending + number;
  return name;
}

}  // namespace fidaleon::files
