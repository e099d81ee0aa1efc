#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "locks/SharedDirectory.h"

namespace fidaleon::app {

/// Tells the other workstations, where they meet for their locks, that somebody works on the
/// parish; and tells who else does. Keeps nobody from anything. Ends with the program, however that
/// ends.
class Presence {
 public:
  /// `since` is "dd/mm/yyyy HH:mm". Where the folder keeps no locks nobody is told.
  Presence(const std::filesystem::path& parishDirectory, const std::string& user,
           const std::string& since);
  ~Presence();
  Presence(const Presence&) = delete;
  Presence& operator=(const Presence&) = delete;

  /// Everybody else who works on the parish, each once. Throws locks::Unusable.
  std::vector<locks::Holder> others() const;
  /// Does the work if nobody else is there, and lets nobody in meanwhile; it should take no more
  /// than some seconds. The answer is who is there: the work has been done when it is empty.
  /// Throws locks::Unusable, and what the work throws.
  std::vector<locks::Holder> alone(const std::function<void()>& work) const;

 private:
  std::vector<locks::Holder> others(const locks::SharedDirectory::Guard& guard) const;

  locks::SharedDirectory meeting_;
};

/// "Ana, en el equipo SACRISTIA, desde las 10:30 del 22/11/2026"
std::string spoken(const locks::Holder& holder);

}  // namespace fidaleon::app
