#include "app/Precaution.h"

namespace fidaleon::app {

Precaution::Precaution(const SafetyCopies& copies, store::Connection& parish,
                       const std::string& before, const Moment& now)
    : copies_(copies), today_(now.day), file_(copies.make(parish, before, now)) {
  try {
    watch_.emplace(parish);
  } catch (const store::Error&) {
    // Without a watch the copy is kept.
  }
}

Precaution::~Precaution() {
  try {
    if (watch_ && !watch_->changed())
      SafetyCopies::remove(file_);
    else
      copies_.prune(today_);
  } catch (const std::exception&) {
    // A copy too many does no harm.
  }
}

}  // namespace fidaleon::app
