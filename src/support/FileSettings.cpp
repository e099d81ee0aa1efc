#include "support/FileSettings.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <fstream>
#include <sstream>
#include <system_error>
#include <thread>

#include "files/AccountFolders.h"
#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "locks/OfdLock.h"
#include "text/SystemErrors.h"

namespace fidaleon::support {

namespace fs = std::filesystem;

namespace {

fs::path with(const fs::path& file, const std::string& ending) {
  fs::path other = file;
  other += ending;
  return other;
}

/// Waits for its turn to change the file.
locks::File turnToWrite(const fs::path& file) {
  locks::File guard = locks::File::openOrCreate(with(file, ".bloqueo"));
  for (int i = 0; i < 500; ++i) {
    if (guard.tryLock()) return guard;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  throw std::system_error(EBUSY, std::generic_category());
}

}  // namespace

FileSettings::FileSettings(fs::path file, Report report)
    : file_(std::move(file)), report_(std::move(report)) {}

fs::path FileSettings::defaultFile() {
  return files::configFolder() / "ajustes.ini";
}

/// Throws std::system_error when it cannot be told whether there is one: to take that for none
/// would lose all that it holds with the next write.
FileSettings::Stamp FileSettings::stamp() const {
  struct stat file {};
  if (::stat(file_.c_str(), &file) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) return {};
    throw std::system_error(errno, std::generic_category());
  }
  return {file.st_ino, file.st_mtim.tv_sec, file.st_mtim.tv_nsec, file.st_size};
}

/// Throws std::system_error when there is a file that cannot be read.
void FileSettings::load() const {
  seen_ = stamp();
  values_.clear();
  damaged_ = false;
  if (seen_ == Stamp()) return;
  const int fd = ::open(file_.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd >= 0) ::close(fd);
  std::ifstream in(file_, std::ios::binary);
  std::ostringstream content;
  if (fd < 0 || !in || (seen_.size > 0 && !(content << in.rdbuf()))) {
    seen_ = {};
    throw std::system_error(EACCES, std::generic_category());
  }
  ReadSettings found = parseSettings(content.str());
  values_ = std::move(found.values);
  damaged_ = found.damaged;
}

void FileSettings::refresh() const {
  if (stamp() == seen_) return;
  load();
  if (!damaged_) return;
  const locks::File turn = turnToWrite(file_);
  load();  // another program may have mended it meanwhile
  mend();
}

void FileSettings::mend() const {
  if (!damaged_) return;
  const fs::path kept = with(file_, ".danado");
  fs::copy_file(file_, kept, fs::copy_options::overwrite_existing);
  files::narrow(kept);
  files::syncFile(kept);
  save(values_);
  damaged_ = false;
  if (report_)
    report_(
        "El fichero de ajustes estaba dañado. Se ha conservado lo que se podía leer y se ha "
        "guardado una copia en «" +
        kept.string() + "».");
}

/// What could not be saved is not read back either.
void FileSettings::save(SettingValues values) const {
  files::replace(file_, formatSettings(values));
  values_ = std::move(values);
  seen_ = stamp();
}

std::string FileSettings::read(const std::string& application, const std::string& section,
                               const std::string& key, const std::string& byDefault) const {
  try {
    refresh();
  } catch (const std::system_error&) {
    // Unreadable, or damaged where nothing may be written: what could be read serves.
  }
  const auto found = values_.find({application, section, key});
  return found == values_.end() ? byDefault : found->second;
}

void FileSettings::write(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& value) {
  update([&](SettingValues& values) {
    const auto [entry, isNew] = values.try_emplace({application, section, key}, value);
    if (!isNew && entry->second == value) return false;
    entry->second = value;
    return true;
  });
}

std::vector<Settings::Name> FileSettings::names(const std::string& application) const {
  refresh();
  std::vector<Name> all;
  for (const auto& [name, value] : values_)
    if (std::get<0>(name) == application) all.push_back({std::get<1>(name), std::get<2>(name)});
  return all;
}

void FileSettings::remove(const std::string& application, const std::string& section,
                          const std::string& key) {
  update([&](SettingValues& values) { return values.erase({application, section, key}) != 0; });
}

void FileSettings::update(const std::function<bool(SettingValues&)>& change) {
  try {
    refresh();
    SettingValues known = values_;
    if (!change(known)) return;
    files::makeFolders(file_.parent_path());
    const locks::File turn = turnToWrite(file_);
    load();
    mend();
    SettingValues values = values_;
    if (change(values)) save(std::move(values));
  } catch (const std::system_error& e) {
    throw std::runtime_error("No se ha podido guardar el ajuste en «" + file_.string() +
                             "»: " + text::systemReason(e.code()));
  }
}

}  // namespace fidaleon::support
