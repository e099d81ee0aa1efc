#include "parish/copies/SafetyCopies.h"

#include <sys/stat.h>

#include <algorithm>
#include <system_error>
#include <tuple>

#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "parish/copies/CopyRetention.h"
#include "store/Draft.h"
#include "store/FileFault.h"
#include "store/Open.h"

namespace fidaleon::app {

namespace fs = std::filesystem;

namespace {

constexpr const char* BY_HAND = ".copia";
constexpr const char* UNFINISHED = ".parte";
constexpr std::size_t PLAIN_KEPT = 2;  // those that are most likely to be returned to

fs::path withEnding(fs::path file, const char* ending) {
  return file += ending;
}

[[noreturn]] void refuse(const fs::path& where, const std::error_code& why) {
  throw store::fileFault("No se puede escribir en", where, why);
}

Moment lastWritten(const fs::path& file) {
  struct stat facts = {};
  return ::stat(file.c_str(), &facts) == 0 ? momentOf(facts.st_mtime) : Moment();
}

bool newerFirst(const SafetyCopy& a, const SafetyCopy& b) {
  return std::tie(b.moment, b.ordinal, b.file) < std::tie(a.moment, a.ordinal, a.file);
}

/// False for what is no copy. An empty file is the name of one that is being made.
bool describe(const fs::directory_entry& entry, SafetyCopy& copy) {
  std::error_code failed;
  if (!entry.is_regular_file(failed)) return false;
  copy.file = entry.path();
  copy.bytes = entry.file_size(failed);
  if (failed || copy.bytes == 0) return false;
  if (const auto name = CopyName::parse(copy.file.filename().string())) {
    copy.moment = name->moment;
    copy.ordinal = name->ordinal;
    copy.before = name->before;
    return true;
  }
  copy.moment = lastWritten(copy.file);
  return copy.file.extension() == BY_HAND;
}

bool isPlain(const SafetyCopy& copy) {
  return copy.file.extension() == CopyName::ENDING;
}

template <class Each>
void forEachFile(const fs::path& directory, const Each& each) {
  std::error_code failed;
  fs::directory_iterator at(directory, failed);
  for (; !failed && at != fs::directory_iterator(); at.increment(failed)) each(*at);
}

}  // namespace

// Names of one second sort as they are taken. An empty file takes a name, so that two workstations
// never write the same copy.
fs::path SafetyCopies::reserve(CopyName name) const {
  forEachFile(directory_, [&](const fs::directory_entry& entry) {
    const auto other = CopyName::parse(entry.path().filename().string());
    if (other && other->moment == name.moment)
      name.ordinal = std::max(name.ordinal, other->ordinal + 1);
  });
  for (;; ++name.ordinal) {
    const fs::path file = directory_ / name.file();
    try {
      files::create(file);
      return file;
    } catch (const std::system_error& e) {
      if (e.code() != std::errc::file_exists) refuse(directory_, e.code());
    }
  }
}

fs::path SafetyCopies::make(store::Connection& parish, const std::string& before, const Moment& now,
                            const store::Progress& progress) const {
  try {
    files::makeFolders(directory_);
  } catch (const std::system_error& e) {
    refuse(directory_.parent_path(), e.code());
  }
  const fs::path file = reserve({now, 1, before});
  try {
    store::backupDatabase(parish, file, store::Check::Quick, progress);
  } catch (...) {
    remove(file);
    throw;
  }
  return file;
}

std::vector<SafetyCopy> SafetyCopies::list() const {
  std::vector<SafetyCopy> all;
  forEachFile(directory_, [&](const fs::directory_entry& entry) {
    SafetyCopy copy;
    if (describe(entry, copy)) all.push_back(std::move(copy));
  });
  std::sort(all.begin(), all.end(), newerFirst);
  return all;
}

void SafetyCopies::prune(const Moment& now) const {
  std::vector<SafetyCopy> ours = list();
  std::erase_if(ours, [&](const SafetyCopy& copy) { return copy.byHand() || copy.moment > now; });
  std::vector<CopyFacts> facts;
  // What is still to be compressed may need no more room than there is.
  for (const SafetyCopy& copy : ours)
    facts.push_back({copy.moment.day, isPlain(copy) ? 0 : copy.bytes});
  for (const std::size_t place : superfluous(facts, kept_)) remove(ours[place].file);
  removeRests(now.day);
}

void SafetyCopies::removeRests(const text::Date& today) const {
  std::vector<fs::path> rests;
  forEachFile(directory_, [&](const fs::directory_entry& entry) {
    std::error_code failed;
    fs::path name = entry.path().filename();
    const bool unfinished = name.extension().string().starts_with(UNFINISHED);
    if (unfinished) name = name.stem();
    const auto said = CopyName::parse(name.string());
    const bool empty = entry.is_regular_file(failed) && entry.file_size(failed) == 0;
    if (said && said->moment.day < today && (unfinished || empty)) rests.push_back(entry.path());
  });
  for (const fs::path& rest : rests) remove(rest);
}

void SafetyCopies::compressOlder(const files::GoesOn& goesOn) const noexcept {
  try {
    std::vector<SafetyCopy> ours = list();
    std::erase_if(ours, [](const SafetyCopy& copy) { return copy.byHand(); });
    for (std::size_t i = PLAIN_KEPT; i < ours.size() && goesOn(); ++i)
      if (isPlain(ours[i])) compress(ours[i].file, goesOn);
  } catch (const std::exception&) {
    // They are no worse for it.
  }
}

// A program that was killed may have left the compressed file beside the larger one, whole or not.
void SafetyCopies::compress(const fs::path& copy, const files::GoesOn& goesOn) const {
  const fs::path compressed = withEnding(copy, CopyName::COMPRESSED);
  try {
    store::Draft draft(compressed, UNFINISHED);
    if (!files::compress(copy, draft.path(), goesOn)) return;
    if (!files::holdsTheSame(draft.path(), copy, goesOn)) return;
    draft.accept();
    files::removeForGood(copy);
  } catch (const std::exception&) {
    // It stays as it is, and the next one has its turn.
  }
}

fs::path SafetyCopies::present(const fs::path& copy) {
  const fs::path compressed = withEnding(copy, CopyName::COMPRESSED);
  return !files::isThere(copy) && files::isThere(compressed) ? compressed : copy;
}

void SafetyCopies::remove(const fs::path& copy) noexcept {
  std::error_code ignored;
  fs::remove(copy, ignored);
}

}  // namespace fidaleon::app
