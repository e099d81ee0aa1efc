#include "parish/SimulatedDisk.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <fstream>
#include <iterator>
#include <optional>

namespace fidaleon::tests {

namespace fs = std::filesystem;
using Kind = DiskCall::Kind;

namespace {

constexpr std::size_t SECTOR = 512;

DiskRecorder* recorder = nullptr;
bool networkShare = false;
int syncsUntilFailure = 0;

/// The path below the recorded folder.
std::optional<std::string> recorded(const std::string& path) {
  if (recorder == nullptr) return std::nullopt;
  const std::string root = recorder->folder.string() + "/";
  if (path + "/" == root) return std::string();
  if (!path.starts_with(root) || path.ends_with(" (deleted)")) return std::nullopt;
  std::string below = path.substr(root.size());
  while (below.ends_with('/')) below.pop_back();
  return below;
}

std::optional<std::string> recorded(int fd) {
  if (recorder == nullptr) return std::nullopt;
  char path[4096];
  const auto size = ::readlink(("/proc/self/fd/" + std::to_string(fd)).c_str(), path, sizeof path);
  return size < 0 ? std::nullopt : recorded(std::string(path, static_cast<std::size_t>(size)));
}

template <class Path>
int note(int result, Kind kind, const Path& path, const std::string& other = {}) {
  if (result < 0) return result;
  const int error = errno;
  if (const auto below = recorded(path)) recorder->calls.push_back({kind, *below, other});
  errno = error;
  return result;
}

int noteBoth(int result, Kind kind, const char* from, const char* to) {
  return note(result, kind, std::string(from), recorded(std::string(to)).value_or(""));
}

int opened(const char* path, int flags, mode_t mode) {
  struct stat before = {};
  const bool there = ::lstat(path, &before) == 0;
  const int fd = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
  if (fd < 0 || recorder == nullptr) return fd;
  if (!there) note(fd, Kind::Create, std::string(path));
  if (there && (flags & O_TRUNC)) note(fd, Kind::Cut, std::string(path));
  return fd;
}

ssize_t written(ssize_t size, int fd, const void* bytes, off_t at) {
  if (size <= 0) return size;
  if (const auto below = recorded(fd))
    recorder->calls.push_back({Kind::Write,
                               *below,
                               {},
                               at,
                               {static_cast<const char*>(bytes), static_cast<std::size_t>(size)}});
  return size;
}

int cut(int fd, off_t size) {
  const int result = static_cast<int>(::syscall(SYS_ftruncate, fd, size));
  if (const auto below = recorded(fd); below && result == 0)
    recorder->calls.push_back({Kind::Cut, *below, {}, size, {}});
  return result;
}

int synced(int fd) {
  if (syncsUntilFailure > 0 && --syncsUntilFailure == 0) {
    errno = EIO;
    return -1;
  }
  struct stat facts = {};
  if (recorder == nullptr) return static_cast<int>(::syscall(SYS_fsync, fd));
  const bool folder = ::fstat(fd, &facts) == 0 && S_ISDIR(facts.st_mode);
  return note(0, folder ? Kind::SyncFolder : Kind::Sync, fd);
}

/// Whole sectors from the front are there, the rest is not.
void tear(DiskCall& write, std::mt19937& chance) {
  const std::size_t first = SECTOR - static_cast<std::size_t>(write.at) % SECTOR;
  if (write.bytes.size() <= first) return;
  const std::size_t sectors = (write.bytes.size() - first) / SECTOR;
  write.bytes.resize(first + SECTOR * (chance() % (sectors + 1)));
}

void change(std::string& content, const DiskCall& call) {
  const auto at = static_cast<std::size_t>(call.at);
  if (call.kind == Kind::Cut) return content.resize(at);
  content.resize(std::max(content.size(), at + call.bytes.size()));
  content.replace(at, call.bytes.size(), call.bytes);
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace

DiskRecorder::DiskRecorder(fs::path root) : folder(fs::canonical(root)) {
  recorder = this;
}

DiskRecorder::~DiskRecorder() {
  recorder = nullptr;
}

NetworkShare::NetworkShare() {
  networkShare = true;
}

NetworkShare::~NetworkShare() {
  networkShare = false;
}

FailingSync::FailingSync(int which) {
  syncsUntilFailure = which;
}

FailingSync::~FailingSync() {
  syncsUntilFailure = 0;
}

bool FailingSync::happened() const {
  return syncsUntilFailure == 0;
}

SimulatedDisk::SimulatedDisk(const fs::path& folder) {
  names_[""] = FOLDER;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().lexically_relative(folder).string();
    names_[name] = entry.is_directory() ? FOLDER : static_cast<int>(files_.size());
    if (entry.is_directory()) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    files_.push_back({{std::istreambuf_iterator<char>(in), {}}, {}});
  }
  safeNames_ = names_;
}

void SimulatedDisk::name(const DiskCall& call, Names& names, int file) const {
  if (call.kind == Kind::Create || call.kind == Kind::MakeFolder) {
    names[call.path] = file;
  } else if (call.kind == Kind::Remove) {
    names.erase(call.path);
  } else if (const auto known = names.find(call.path); known != names.end()) {
    names[call.other] = known->second;
    if (call.kind == Kind::Rename) names.erase(call.path);
  }
}

void SimulatedDisk::apply(const DiskCall& call) {
  const auto known = names_.find(call.path);
  int file = known == names_.end() ? FOLDER : known->second;
  switch (call.kind) {
    case Kind::Told:
      return;
    case Kind::Write:
    case Kind::Cut:
      if (file != FOLDER) files_[static_cast<std::size_t>(file)].unsafe.push_back(call);
      return;
    case Kind::Sync:
      if (file == FOLDER) return;
      for (const DiskCall& unsafe : files_[static_cast<std::size_t>(file)].unsafe)
        change(files_[static_cast<std::size_t>(file)].safe, unsafe);
      files_[static_cast<std::size_t>(file)].unsafe.clear();
      return;
    case Kind::SyncFolder:
      std::erase_if(unsafeNames_, [&](const auto& unsafe) {
        if (folderOf(unsafe.first.path) != call.path) return false;
        name(unsafe.first, safeNames_, unsafe.second);
        return true;
      });
      return;
    case Kind::Create:
      file = static_cast<int>(files_.size());
      files_.emplace_back();
      break;
    default:
      break;
  }
  name(call, names_, file);
  unsafeNames_.emplace_back(call, file);
}

std::string SimulatedDisk::contentOf(const File& file, bool whole, std::mt19937& chance) const {
  std::string content = file.safe;
  const auto way = whole ? 1 : chance() % 4;  // none, all, as many as come first, any
  const std::size_t first = chance() % (file.unsafe.size() + 1);
  for (std::size_t i = 0; i < file.unsafe.size(); ++i) {
    const bool there = way == 1 || (way == 2 && i < first) || (way == 3 && chance() % 2 == 0);
    if (!there) continue;
    DiskCall call = file.unsafe[i];
    if (way != 1 && chance() % 4 == 0) tear(call, chance);
    change(content, call);
  }
  return content;
}

void SimulatedDisk::cutPower(const fs::path& into, std::mt19937& chance) const {
  Names names = safeNames_;
  const bool whole = chance() % 4 == 0;  // the program is killed, and the disk goes on
  const std::size_t first = whole ? unsafeNames_.size() : chance() % (unsafeNames_.size() + 1);
  for (std::size_t i = 0; i < first; ++i)
    name(unsafeNames_[i].first, names, unsafeNames_[i].second);
  for (const auto& [path, file] : names) {  // folders come before what is in them
    std::error_code lost;
    if (file == FOLDER) {
      fs::create_directory(into / path, lost);
    } else {
      std::ofstream(into / path, std::ios::binary)
          << contentOf(files_[static_cast<std::size_t>(file)], whole, chance);
    }
  }
}

}  // namespace fidaleon::tests

// In the place of the system's own: for this program, and for the libraries that it uses.

using namespace fidaleon::tests;

extern "C" {

int open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const bool creates = (flags & (O_CREAT | O_TMPFILE)) != 0;
  const mode_t mode = creates ? static_cast<mode_t>(va_arg(more, int)) : 0;
  va_end(more);
  return opened(path, flags, mode);
}

int open64(const char* path, int flags, ...) __attribute__((alias("open")));

ssize_t write(int fd, const void* bytes, size_t size) {
  const off_t at = recorder == nullptr ? 0 : ::lseek(fd, 0, SEEK_CUR);
  return written(::syscall(SYS_write, fd, bytes, size), fd, bytes, at);
}

ssize_t pwrite(int fd, const void* bytes, size_t size, off_t at) {
  return written(::syscall(SYS_pwrite64, fd, bytes, size, at), fd, bytes, at);
}

ssize_t pwrite64(int fd, const void* bytes, size_t size, off64_t at)
    __attribute__((alias("pwrite")));

int ftruncate(int fd, off_t size) noexcept {
  return cut(fd, size);
}

int ftruncate64(int fd, off64_t size) noexcept __attribute__((alias("ftruncate")));

int fsync(int fd) {
  return synced(fd);
}

int fdatasync(int fd) __attribute__((alias("fsync")));

int rename(const char* from, const char* to) noexcept {
  return noteBoth(static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0)),
                  Kind::Rename, from, to);
}

int renameat2(int, const char* from, int, const char* to, unsigned flags) noexcept {
  return noteBoth(static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, flags)),
                  Kind::Rename, from, to);
}

int link(const char* from, const char* to) noexcept {
  return noteBoth(static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0)),
                  Kind::Link, from, to);
}

int unlink(const char* path) noexcept {
  return note(static_cast<int>(::syscall(SYS_unlinkat, AT_FDCWD, path, 0)), Kind::Remove,
              std::string(path));
}

int remove(const char* path) noexcept {
  const int gone = ::unlink(path);
  return gone == 0 || errno != EISDIR ? gone : ::rmdir(path);
}

int mkdir(const char* path, mode_t mode) noexcept {
  return note(static_cast<int>(::syscall(SYS_mkdirat, AT_FDCWD, path, mode)), Kind::MakeFolder,
              std::string(path));
}

int statfs(const char* path, struct statfs* facts) noexcept {
  const int result = static_cast<int>(::syscall(SYS_statfs, path, facts));
  if (networkShare) facts->f_type = NFS_SUPER_MAGIC;
  return result;
}

}  // extern "C"
