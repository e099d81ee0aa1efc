#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/contract/Entorno.h"
#include "parish/NewParish.h"
#include "parish/ParishFiles.h"

class QWidget;

namespace fidaleon::app {

/// A parish that has been worked on at this workstation.
struct KnownParish {
  std::string name;
  std::filesystem::path directory;

  bool operator==(const KnownParish&) const = default;
};

/// The ways to a parish: making one, finding one, and those that were open lately.
class ParishDoor {
 public:
  static constexpr std::size_t MOST = 8;

  /// Both must outlive it.
  ParishDoor(Settings& settings, Clock& clock) : settings_(settings), clock_(clock) {}

  /// The last one opened comes first.
  std::vector<KnownParish> recent() const;
  /// Throws std::runtime_error in Spanish when it cannot be kept.
  void remember(const KnownParish& parish);

  /// Asks for what a new parish needs and makes it; `proposed` is the folder that is offered. A
  /// folder that holds a parish already is the one to open. Nothing when the user gave up.
  std::optional<std::filesystem::path> create(QWidget* over, const std::filesystem::path& proposed);
  /// Connects a folder of this desk to the parish that a server has, or makes one there. Nothing
  /// when the user gave up.
  std::optional<std::filesystem::path> connectToServer(QWidget* over);
  /// Lets the user choose the folder of a parish. Nothing when the user gave up.
  std::optional<std::filesystem::path> choose(QWidget* over) const;
  /// For a new parish, or one that comes from elsewhere: the usual folder, or one beside it that
  /// holds none.
  static std::filesystem::path freeDirectory();

 private:
  std::optional<std::filesystem::path> create(QWidget* over, NewParish proposal);
  void rememberUser(const std::string& user);

  Settings& settings_;
  Clock& clock_;
};

}  // namespace fidaleon::app
