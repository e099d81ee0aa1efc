#include "store/Draft.h"

#include <system_error>

#include "files/Durable.h"
#include "store/Companions.h"
#include "store/Error.h"
#include "text/SystemErrors.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

/// With what the engine keeps beside it: the journal of a draft whose maker was killed would be
/// played back into the next one.
void removeAll(const fs::path& draft) {
  std::error_code ignored;
  fs::remove(draft, ignored);
  for (const fs::path& file : companionsOf(draft)) fs::remove(file, ignored);
}

}  // namespace

Draft::Draft(const fs::path& file, const char* ending) : file_(file), draft_(file) {
  draft_ += ending;
  removeAll(draft_);
}

Draft::~Draft() {
  removeAll(draft_);
}

void Draft::accept() {
  if (hasUnfinished(draft_))
    throw Error(ErrorKind::Connection, "No se ha terminado de escribir «" + draft_.string() + "».");
  try {
    files::syncFile(draft_);
    removeCompanions(file_);
    files::moveTo(draft_, file_);
  } catch (const fs::filesystem_error& e) {
    throw Error(ErrorKind::Connection, "No se puede crear el archivo «" + file_.string() +
                                           "»: " + text::systemReason(e.code()));
  }
}

}  // namespace fidaleon::store
