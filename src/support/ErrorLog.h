#pragma once

#include <deque>
#include <string>

#include "core/contract/Entorno.h"

namespace fidaleon::support {

/// The last errors that a user has been told of, as somebody who helps from afar may read them:
/// when, where in the program and of which kind. Never their texts, which quote names and
/// statements.
class ErrorLog {
 public:
  static constexpr std::size_t MOST = 20;

  struct Entry {
    std::string when;  // "dd/mm/yyyy HH:mm"
    std::string where;
    std::string kind;
  };

  /// The error that is being handled; `where` is a name of the program.
  void note(const Clock& clock, const std::string& where);
  /// The oldest first, at most MOST.
  const std::deque<Entry>& entries() const { return entries_; }

 private:
  std::deque<Entry> entries_;
};

}  // namespace fidaleon::support
