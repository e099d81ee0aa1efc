#include "parish/copies/Precaution.h"

#include "store/Open.h"

namespace fidaleon::app {
namespace {

std::unique_ptr<store::Connection> stored(const store::Connection& parish) {
  return store::openDatabase(parish.Properties("DATA SOURCE").Value, parish.schema());
}

}  // namespace

Precaution::Precaution(const SafetyCopies& copies, store::Connection& parish,
                       const std::string& before, const Moment& now)
    : copies_(copies), now_(now), file_(copies.make(*stored(parish), before, now)) {
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
      copies_.prune(now_);
  } catch (const std::exception&) {
    // A copy too many does no harm.
  }
}

}  // namespace fidaleon::app
