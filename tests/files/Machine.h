#pragma once
// What the machine does around a program: folders, full disks, other programs.

#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace fidaleon::tests {

/// A directory that is emptied and removed at the end.
class TempDirectory {
 public:
  TempDirectory() {
    std::string pattern = (std::filesystem::temp_directory_path() / "fidaleon-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) std::abort();
    path_ = pattern;
  }
  ~TempDirectory() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// No file may grow beyond this for as long as it lives: a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
  sighandler_t handler_;
};

/// Another program at work beside the test, which ends with its work. Each hears the letters that
/// the other says.
class OtherProcess {
 public:
  template <class Work>
  explicit OtherProcess(Work work) {
    int ends[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) std::abort();
    pid_ = ::fork();
    end_ = ends[pid_ == 0];
    ::close(ends[pid_ != 0]);
    if (pid_ != 0) return;
    work(*this);
    ::_exit(0);
  }
  ~OtherProcess() {
    kill();
    ::close(end_);
  }
  void say(char c = 'y') const {
    if (::write(end_, &c, 1) != 1) ::_exit(1);
  }
  /// '?' when the other has ended.
  char hear() const {
    char c = 0;
    return ::read(end_, &c, 1) == 1 ? c : '?';
  }
  void kill() {
    if (pid_ > 0) ::kill(pid_, SIGKILL);
    end();
  }
  /// Waits for it, and gives the status of waitpid.
  int end() {
    int status = 0;
    if (pid_ > 0) ::waitpid(pid_, &status, 0);
    pid_ = -1;
    return status;
  }

 private:
  int end_ = -1;
  pid_t pid_ = -1;
};

}  // namespace fidaleon::tests
