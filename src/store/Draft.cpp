#include "store/Draft.h"

#include <fcntl.h>
#include <unistd.h>

#include "store/Error.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

/// Without this a power cut may take back the new name. Some network disks cannot do it.
void flushFolderOf(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

/// With what the engine keeps beside it: the journal of a draft whose maker was killed would be
/// played back into the next one.
void removeAll(const fs::path& draft) {
  for (const char* const ending : {"", "-journal", "-wal", "-shm"}) {
    fs::path file = draft;
    file += ending;
    std::error_code ignored;
    fs::remove(file, ignored);
  }
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
  std::error_code failed;
  fs::rename(draft_, file_, failed);
  if (failed)
    throw Error(ErrorKind::Connection, "No se puede crear el archivo «" + file_.string() + "».");
  flushFolderOf(file_);
}

}  // namespace fidaleon::store
