#pragma once
// A PostgreSQL server of the tests' own: one for all test programs that run at the same time, on a
// local socket, as an ordinary user. It goes by itself when nobody uses it any more, also when
// those who did were killed. Where it cannot be started the tests fail.

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "files/PrivateFile.h"
#include "store/postgres/Link.h"

namespace fidaleon::tests {

class PostgresCluster {
 public:
  /// Started by whoever asks first.
  static PostgresCluster& running() {
    static PostgresCluster cluster;
    return cluster;
  }
  /// As the owner of everything. Another user, con_clave, has to give a password.
  store::ServerAddress address(const std::string& database = "postgres") const {
    store::ServerAddress address;
    address.host = folder_;
    address.database = database;
    address.user = "prueba";
    return address;
  }
  store::Link& link() { return *link_; }
  /// Runs tests/support/servidor, from above the program.
  static int script(const std::string& arguments) {
    std::filesystem::path at = std::filesystem::read_symlink("/proc/self/exe");
    while (at.has_relative_path()) {
      at = at.parent_path();
      if (exists(at / "tests/support/servidor"))
        return std::system(((at / "tests/support/servidor").string() + " " + arguments).c_str());
    }
    throw std::runtime_error("tests/support/servidor");
  }

 private:
  PostgresCluster() {
    const files::Descriptor alone = open(".cerrojo");
    if (flock(alone.number(), LOCK_EX) != 0) throw std::runtime_error(folder_);
    if (flock(inUse_.number(), LOCK_SH) != 0) throw std::runtime_error(folder_);
    try {
      link_ = std::make_unique<store::Link>(address());
    } catch (const store::Error&) {
      start();
      link_ = std::make_unique<store::Link>(address());
    }
    link_->run("SET lock_timeout TO 0");  // other programs of the run may be making the same model
  }
  void start() {
    if (script(folder_) != 0)
      throw std::runtime_error("No server could be started; see " + folder_ + ".registro");
  }
  files::Descriptor open(const char* ending) const {
    const std::string name = folder_ + ending;
    files::Descriptor file(::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (file.number() < 0) throw std::runtime_error(name);
    return file;
  }

  std::string folder_ =
      std::filesystem::temp_directory_path() / ("fidaleon-servidor-" + std::to_string(getuid()));
  files::Descriptor inUse_ = open(".en-uso");
  std::unique_ptr<store::Link> link_;
};

/// A database for one test, gone with it. `model` is a database that it begins as a copy of.
class PostgresDatabase {
 public:
  explicit PostgresDatabase(const std::string& model = "template0") {
    static std::atomic<int> made = 0;
    name_ = "prueba_" + std::to_string(getpid()) + "_" + std::to_string(++made);
    PostgresCluster::running().link().run("CREATE DATABASE " + name_ + " TEMPLATE " + model);
  }
  ~PostgresDatabase() {
    try {
      PostgresCluster::running().link().run("DROP DATABASE " + name_ + " WITH (FORCE)");
    } catch (const store::Error&) {
      // It goes with the server.
    }
  }
  PostgresDatabase(const PostgresDatabase&) = delete;
  PostgresDatabase& operator=(const PostgresDatabase&) = delete;

  store::ServerAddress address() const { return PostgresCluster::running().address(name_); }

 private:
  std::string name_;
};

}  // namespace fidaleon::tests
