#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace fidaleon::app {

/// What the program was asked to do.
struct CommandLine {
  enum class Task { Desktop, Demo, Pictures, Table, Import, Help, Wrong };
  Task task = Task::Desktop;
  std::filesystem::path path;  // the folder, or the file of Table or Import; empty: the default
  std::string complaint;       // of Wrong, in Spanish
  std::string codePage;        // of Table; empty: what the table says

  static CommandLine parse(const std::vector<std::string>& arguments);
  static std::string help();
};

}  // namespace fidaleon::app
