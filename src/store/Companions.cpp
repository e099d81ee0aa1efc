#include "store/Companions.h"

#include <system_error>

#include "files/Durable.h"
#include "store/Error.h"
#include "text/SystemErrors.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

namespace {

constexpr const char* ENDINGS[] = {"-wal", "-journal", "-shm"};

fs::path with(const fs::path& file, const std::string& ending) {
  fs::path other = file;
  other += ending;
  return other;
}

[[noreturn]] void refuse(const fs::filesystem_error& e) {
  throw Error(ErrorKind::Connection,
              "No se puede apartar «" + e.path1().string() + "»: " + text::systemReason(e.code()));
}

fs::path freeName(const fs::path& database, const std::string& ending) {
  for (int n = 1;; ++n) {
    fs::path name = with(database, ending + "-" + std::to_string(n));
    if (!files::isThere(name) && companionsOf(name).empty()) return name;
  }
}

void moveCompanions(const fs::path& database, const fs::path& aside) {
  for (const char* const companion : ENDINGS) {
    const fs::path file = with(database, companion);
    if (files::isThere(file)) files::moveTo(file, with(aside, companion));
  }
}

}  // namespace

std::vector<fs::path> companionsOf(const fs::path& database) {
  std::vector<fs::path> all;
  for (const char* const ending : ENDINGS)
    if (const fs::path file = with(database, ending); files::isThere(file)) all.push_back(file);
  return all;
}

bool hasUnfinished(const fs::path& database) {
  const fs::path journal = with(database, "-journal");
  std::error_code failed;
  if (files::isThere(journal) && (fs::file_size(journal, failed) > 0 || failed)) return true;
  return files::isThere(with(database, "-wal"));
}

void removeCompanions(const fs::path& database) {
  try {
    for (const fs::path& file : companionsOf(database)) files::removeForGood(file);
  } catch (const fs::filesystem_error& e) {
    refuse(e);
  }
}

// The database first: what stays behind without it is opened by nobody.
fs::path putAside(const fs::path& database, const std::string& ending) {
  const fs::path aside = freeName(database, ending);
  try {
    if (files::isThere(database)) files::moveTo(database, aside);
    moveCompanions(database, aside);
  } catch (const fs::filesystem_error& e) {
    refuse(e);
  }
  return aside;
}

void putCompanionsAside(const fs::path& database, const std::string& ending) {
  try {
    moveCompanions(database, freeName(database, ending));
  } catch (const fs::filesystem_error& e) {
    refuse(e);
  }
}

}  // namespace fidaleon::store
