#include "store/Draft.h"

#include <chrono>
#include <vector>

#include "files/Durable.h"
#include "files/Naming.h"
#include "files/PrivateFile.h"
#include "store/Companions.h"
#include "store/FileFault.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

void removeAll(const fs::path& draft) {
  std::error_code ignored;
  fs::remove(draft, ignored);
  for (const fs::path& file : companionsOf(draft)) fs::remove(file, ignored);
}

/// The hour is compared with the one that the disk has just given to a file: the clocks of two
/// machines may differ.
bool isOlderByADay(const fs::path& file, const fs::path& justMade) {
  std::error_code failed;
  const auto then = fs::last_write_time(file, failed);
  if (failed) return false;
  const auto now = fs::last_write_time(justMade, failed);
  return !failed && now - then > std::chrono::hours(24);
}

/// What follows the name of a draft: "-1f09c2d4", "-1f09c2d4-wal". Other files may begin alike.
bool isEnding(std::string ending) {
  for (const std::string companion : {"-wal", "-journal", "-shm"})
    if (ending.ends_with(companion)) ending.resize(ending.size() - companion.size());
  return ending.empty() || (ending.front() == '-' &&
                            ending.find_first_not_of("0123456789abcdef", 1) == std::string::npos);
}

void removeRests(const std::string& beginning, const fs::path& justMade) {
  std::vector<fs::path> rests;
  std::error_code failed;
  fs::directory_iterator at(justMade.has_parent_path() ? justMade.parent_path() : ".", failed);
  for (; !failed && at != fs::directory_iterator(); at.increment(failed)) {
    const std::string name = at->path().filename().string();
    if (name.starts_with(beginning) && isEnding(name.substr(beginning.size())) &&
        isOlderByADay(at->path(), justMade))
      rests.push_back(at->path());
  }
  for (const fs::path& rest : rests) fs::remove(rest, failed);
}

}  // namespace

Draft::Draft(const fs::path& file, const char* ending) : file_(file) {
  try {
    draft_ = files::createUnique(file, ending);
  } catch (const fs::filesystem_error& e) {
    throw fileFault("No se puede escribir en", file, e.code());
  }
  removeRests(file.filename().string() + ending, draft_);
}

Draft::~Draft() {
  removeAll(draft_);
}

void Draft::complete() const {
  if (hasUnfinished(draft_))
    throw Error(ErrorKind::Connection, "No se ha terminado de escribir «" + draft_.string() + "».");
  files::syncFile(draft_);
}

void Draft::accept() {
  try {
    complete();
    removeCompanions(file_);
    files::moveTo(draft_, file_);
  } catch (const fs::filesystem_error& e) {
    throw fileFault("No se puede crear el archivo", file_, e.code());
  }
}

bool Draft::acceptIfFree() {
  try {
    complete();
    return files::takeFreeName(draft_, file_);
  } catch (const fs::filesystem_error& e) {
    throw fileFault("No se puede crear el archivo", file_, e.code());
  }
}

}  // namespace fidaleon::store
