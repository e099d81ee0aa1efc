#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "forms/ScriptedUser.h"
#include "paper/Report.h"
#include "parish/Desk.h"
#include "support/Clocks.h"
#include "support/MemorySettings.h"

namespace fidaleon::app {

/// What every part of the demonstration works with: the desk with its scripted user, and steps that
/// are told, checked and written down in the log of the directory.
class DemoWalk {
 public:
  static constexpr const char* USER = "Secretaría";
  static constexpr const char* LOG = "demo.log";

  /// A step did not do what it should.
  struct Failed : std::runtime_error {
    using std::runtime_error::runtime_error;
  };

  DemoWalk(std::filesystem::path directory, std::ostream& out);

  /// Empties the directory of what an earlier walk left; anything else in it is not ours to remove.
  void prepareDirectory();
  /// The desk of the parish that lies there now.
  void openDesk();

  void say(const std::string& line);
  /// Throws Failed when the user was asked anything else than the step told them.
  void step(const std::string& title, const std::function<void()>& body);
  void check(bool condition, const std::string& what);
  /// First field of the first row; empty when there is none.
  std::string single(const std::string& sql);
  std::string count(const std::string& table) {
    return std::to_string(desk().parish().Execute("SELECT * FROM " + table).RecordCount());
  }
  /// `things`: what the rows are.
  void save(const std::optional<paper::Report>& report, std::size_t rows, const std::string& name,
            const std::string& things);

  Desk& desk() { return *desk_; }
  forms::ScriptedUser& user() { return user_; }
  const support::SystemClock& clock() const { return clock_; }
  const std::filesystem::path& directory() const { return directory_; }
  int steps() const { return steps_; }

 private:
  std::filesystem::path directory_;
  std::ostream& out_;
  std::ofstream log_;
  int steps_ = 0;
  forms::ScriptedUser user_;
  support::MemorySettings settings_;
  support::SystemClock clock_;
  std::unique_ptr<Desk> desk_;
};

}  // namespace fidaleon::app
