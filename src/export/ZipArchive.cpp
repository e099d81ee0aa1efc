#include "export/ZipArchive.h"

#include <zip.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace fidaleon::app {
namespace {

// Half the time of the usual one; lists of names are packed nearly as well.
constexpr zip_uint32_t PACKING = 2;
constexpr std::uint64_t MOST = 0xF0000000;  // bytes of an entry in an archive of the usual kind

[[noreturn]] void fail(const zip_error_t& why) {
  const std::string what = "No se puede componer la hoja de cálculo";
  if (zip_error_system_type(&why) == ZIP_ET_SYS)
    throw std::system_error(zip_error_code_system(&why), std::generic_category(), what);
  throw std::runtime_error(what + " (" + std::to_string(zip_error_code_zip(&why)) + ").");
}

/// Hands an entry to the archive in the portions that it asks for.
class Content {
 public:
  explicit Content(ZipEntry entry) : entry_(std::move(entry)) { zip_error_init(&error_); }
  ~Content() { zip_error_fini(&error_); }
  Content(const Content&) = delete;
  Content& operator=(const Content&) = delete;

  const ZipEntry& entry() const { return entry_; }
  std::exception_ptr thrown() const { return thrown_; }

  static zip_int64_t answer(void* self, void* data, zip_uint64_t length, zip_source_cmd_t command) {
    return static_cast<Content*>(self)->answer(data, length, command);
  }

 private:
  zip_int64_t answer(void* data, zip_uint64_t length, zip_source_cmd_t command) {
    switch (command) {
      case ZIP_SOURCE_READ:
        return read(static_cast<char*>(data), length);
      case ZIP_SOURCE_STAT:
        return describe(*static_cast<zip_stat_t*>(data));
      case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&error_, data, length);
      case ZIP_SOURCE_SUPPORTS:
        return zip_source_make_command_bitmap(ZIP_SOURCE_OPEN, ZIP_SOURCE_READ, ZIP_SOURCE_CLOSE,
                                              ZIP_SOURCE_STAT, ZIP_SOURCE_ERROR, ZIP_SOURCE_FREE,
                                              -1);
      default:
        return 0;
    }
  }

  // Without a size the archive makes room for one of many digits, which not every reader takes.
  zip_int64_t describe(zip_stat_t& facts) const {
    zip_stat_init(&facts);
    if (entry_.atMost > MOST) return sizeof facts;
    facts.size = entry_.atMost;
    facts.valid = ZIP_STAT_SIZE;
    return sizeof facts;
  }

  // Nothing may be thrown through the library.
  zip_int64_t read(char* to, zip_uint64_t length) {
    try {
      while (part_.size() < length && !ended_) {
        const std::size_t before = part_.size();
        entry_.next(part_);
        ended_ = part_.size() == before;
      }
    } catch (...) {
      thrown_ = std::current_exception();
      zip_error_set(&error_, ZIP_ER_CANCELLED, 0);
      return -1;
    }
    const std::size_t given = std::min<std::size_t>(part_.size(), length);
    std::memcpy(to, part_.data(), given);
    part_.erase(0, given);
    return static_cast<zip_int64_t>(given);
  }

  ZipEntry entry_;
  std::string part_;
  bool ended_ = false;
  std::exception_ptr thrown_;
  zip_error_t error_;
};

struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};

void add(zip_t* archive, Content& content) {
  zip_source_t* source = zip_source_function(archive, &Content::answer, &content);
  const zip_int64_t place =
      source ? zip_file_add(archive, content.entry().name.c_str(), source, ZIP_FL_ENC_UTF_8) : -1;
  if (place < 0) {
    zip_source_free(source);
    fail(*zip_get_error(archive));
  }
  const bool packed = content.entry().method == ZipEntry::Packed;
  if (zip_set_file_compression(archive, static_cast<zip_uint64_t>(place),
                               packed ? ZIP_CM_DEFLATE : ZIP_CM_STORE, packed ? PACKING : 0) != 0)
    fail(*zip_get_error(archive));
}

}  // namespace

void writeZip(const std::filesystem::path& file, std::vector<ZipEntry> entries) {
  std::vector<std::unique_ptr<Content>> contents;  // read when the archive is closed
  int code = 0;
  std::unique_ptr<zip_t, Discard> archive(zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &code));
  if (!archive) {
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    fail(error);
  }
  for (ZipEntry& entry : entries) {
    contents.push_back(std::make_unique<Content>(std::move(entry)));
    add(archive.get(), *contents.back());
  }
  if (zip_close(archive.get()) == 0) return void(archive.release());
  for (const auto& content : contents)
    if (content->thrown()) std::rethrow_exception(content->thrown());
  fail(*zip_get_error(archive.get()));
}

ZipEntry entryOf(std::string name, std::string content, ZipEntry::Method method) {
  const std::uint64_t size = content.size();
  const auto next = [content = std::move(content)](std::string& part) mutable {
    part += std::exchange(content, {});
  };
  return {std::move(name), next, size, method};
}

}  // namespace fidaleon::app
