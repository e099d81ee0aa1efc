#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "forms/Contents.h"

namespace fidaleon::app {

/// The command that opened a form: what has to be done again to open it.
struct Task {
  std::string command;  // empty: none of the window's
  std::string node;
  std::int32_t record = 0;  // 0 for a new one
  int place = 0;            // forms that the command had opened before

  static constexpr int NO_WAY = -1;  // in `place`: nothing opens the form again

  bool operator==(const Task&) const = default;
};

/// What stood in the open forms of a program, each over the one before it.
struct Draft {
  struct Level {
    std::string form;
    std::string caption;  // as it was when the form opened
    forms::Contents before;
    forms::Contents now;

    bool operator==(const Level&) const = default;
    bool changed() const { return !(before == now); }
    /// What was typed, one line each.
    std::string readable() const;
  };

  std::string parish;  // where its database is
  Task task;
  std::string day;   // "yyyymmdd", of the last change
  std::string time;  // "HH:mm"
  std::vector<Level> levels;

  /// What was typed in all forms.
  std::string readable() const;
  std::string text() const;
  /// Nothing when the text is no draft, or that of a newer program.
  static std::optional<Draft> parse(const std::string& text);
};

}  // namespace fidaleon::app
