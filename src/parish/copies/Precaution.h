#pragma once

#include <functional>
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
  /// Carries out the making of the copy, which has a connection of its own: on another thread,
  /// with a window that tells how far it is. To return, or throw, when it has ended.
  using Runner = std::function<void(const std::function<void(const store::Progress&)>&)>;
  static void atOnce(const std::function<void(const store::Progress&)>& work) { work({}); }

  /// Throws store::Error when there can be no copy.
  Precaution(const SafetyCopies& copies, store::Connection& parish, const std::string& before,
             const Moment& now, const Runner& run = atOnce);
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
