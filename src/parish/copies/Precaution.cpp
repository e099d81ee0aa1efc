#include "parish/copies/Precaution.h"

#include "store/Open.h"

namespace fidaleon::app {

Precaution::Precaution(const SafetyCopies& copies, store::Connection& parish,
                       const std::string& before, const Moment& now, const Runner& run)
    : copies_(copies), now_(now) {
  const std::filesystem::path file = parish.Properties("DATA SOURCE").Value;
  const store::Schema& schema = parish.schema();
  run([&](const store::Progress& progress) {
    file_ = copies.make(*store::openDatabase(file, schema), before, now, progress);
  });
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
