#include "support/FileSettings.h"

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>
#include <thread>

#include "locks/OfdLock.h"

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

/// The new content is on the disk before it takes the file's name.
void replaceFile(const fs::path& file, const std::string& content) {
  const fs::path next = with(file, ".nuevo");
  const int fd = ::open(next.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (fd < 0) throw std::system_error(errno, std::generic_category());
  const bool written =
      ::write(fd, content.data(), content.size()) == static_cast<ssize_t>(content.size()) &&
      ::fsync(fd) == 0;
  const int error = errno;
  ::close(fd);
  if (!written) throw std::system_error(error, std::generic_category());
  fs::rename(next, file);
}

}  // namespace

FileSettings::FileSettings(fs::path file, Report report)
    : file_(std::move(file)), report_(std::move(report)) {}

fs::path FileSettings::defaultFile() {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  const char* home = std::getenv("HOME");
  const fs::path base =
      config && *config == '/' ? fs::path(config) : fs::path(home ? home : ".") / ".config";
  return base / "fidaleon" / "ajustes.ini";
}

void FileSettings::refresh() const {
  std::error_code error;
  const auto time = fs::last_write_time(file_, error);
  const auto size = error ? 0 : fs::file_size(file_, error);
  if (error) {
    values_.clear();
    seen_ = {};
    return;
  }
  if (time == seen_ && size == seenSize_) return;
  std::ifstream in(file_, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  ReadSettings found = parseSettings(content.str());
  values_ = std::move(found.values);
  seen_ = time;
  seenSize_ = size;
  if (found.damaged) setAside();
}

// Copied rather than moved: what could be read stays in force until the next write.
void FileSettings::setAside() const {
  const fs::path kept = with(file_, ".danado");
  std::error_code error;
  fs::copy_file(file_, kept, fs::copy_options::overwrite_existing, error);
  if (error) return;
  try {
    save();
  } catch (const std::system_error&) {
    return;
  }
  if (report_)
    report_(
        "El fichero de ajustes estaba dañado. Se ha conservado lo que se podía leer y se ha "
        "guardado una copia en «" +
        kept.string() + "».");
}

void FileSettings::save() const {
  replaceFile(file_, formatSettings(values_));
  std::error_code ignored;
  seen_ = fs::last_write_time(file_, ignored);
  seenSize_ = fs::file_size(file_, ignored);
}

std::string FileSettings::read(const std::string& application, const std::string& section,
                               const std::string& key, const std::string& byDefault) const {
  refresh();
  const auto found = values_.find({application, section, key});
  return found == values_.end() ? byDefault : found->second;
}

void FileSettings::write(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& value) {
  try {
    fs::create_directories(file_.parent_path());
    const locks::File turn = turnToWrite(file_);
    seen_ = {};  // two writes may share one tick of the file's time
    refresh();
    const auto [entry, isNew] = values_.try_emplace({application, section, key}, value);
    if (!isNew && entry->second == value) return;
    entry->second = value;
    save();
  } catch (const std::system_error& e) {
    throw std::runtime_error("No se ha podido guardar el ajuste en «" + file_.string() +
                             "»: " + e.code().message() + ".");
  }
}

}  // namespace fidaleon::support
