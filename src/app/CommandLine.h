#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace fidaleon::app {

/// What the program was asked to do.
struct CommandLine {
  enum class Task { Desktop, Demo, Pictures, Help, Wrong };
  Task task = Task::Desktop;
  std::filesystem::path directory;  // of the data, the demo or the pictures; empty: the default
  std::string complaint;            // of Wrong, in Spanish

  static CommandLine parse(const std::vector<std::string>& arguments);
  static std::string help();
};

}  // namespace fidaleon::app
