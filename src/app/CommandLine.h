#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace fidaleon::app {

/// What the program was asked to do.
struct CommandLine {
  enum class Task { Desktop, Demo, Pictures, Table, Import, Server, Move, Script, Help, Wrong };
  Task task = Task::Desktop;
  std::filesystem::path path;  // the folder, the file of Table or Import, the database of Script
  std::string complaint;       // of Wrong, in Spanish
  std::string codePage;        // of Table; empty: what the table says
  /// What goes with Server and Move, by the name of its option: "--base", "--usuario"...
  std::map<std::string, std::string> more;

  /// Empty when it is not given.
  std::string with(const std::string& option) const;

  static CommandLine parse(const std::vector<std::string>& arguments);
  static std::string help();
};

}  // namespace fidaleon::app
