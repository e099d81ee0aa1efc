#pragma once

#include <optional>
#include <string>

#include "parish/copies/SafetyCopies.h"
#include "store/ChangeWatch.h"

namespace fidaleon::app {

/// A copy of the parish made before something is taken away: of what is stored, without what the
/// connection has begun and not yet committed. At the end it is removed again when nothing has
/// changed since; otherwise it stays, and older ones may go.
class Precaution {
 public:
  /// Throws store::Error when there can be no copy.
  Precaution(const SafetyCopies& copies, store::Connection& parish, const std::string& before,
             const Moment& now);
  ~Precaution();
  Precaution(const Precaution&) = delete;
  Precaution& operator=(const Precaution&) = delete;

 private:
  const SafetyCopies& copies_;
  Moment now_;
  std::filesystem::path file_;
  std::optional<store::ChangeWatch> watch_;
};

}  // namespace fidaleon::app
