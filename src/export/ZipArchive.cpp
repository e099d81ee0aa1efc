#include "export/ZipArchive.h"

#include <zip.h>

#include <memory>
#include <stdexcept>

namespace fidaleon::app {
namespace {

[[noreturn]] void fail(const std::string& why) {
  throw std::runtime_error("No se puede componer la hoja de cálculo (" + why + ").");
}

/// The memory that an archive is written to.
class Memory {
 public:
  Memory() : source_(zip_source_buffer_create(nullptr, 0, 0, nullptr)) {
    if (!source_) fail("memoria");
  }
  ~Memory() { zip_source_free(source_); }
  Memory(const Memory&) = delete;
  Memory& operator=(const Memory&) = delete;

  /// The archive takes a share of the memory, which it gives back when it is closed.
  zip_t* openArchive() {
    zip_error_t error;
    zip_error_init(&error);
    zip_t* archive = zip_open_from_source(source_, ZIP_CREATE | ZIP_TRUNCATE, &error);
    zip_error_fini(&error);
    if (!archive) fail("archivo");
    zip_source_keep(source_);
    return archive;
  }

  std::string bytes() {
    zip_stat_t facts;
    if (zip_source_stat(source_, &facts) != 0 || zip_source_open(source_) != 0) fail("tamaño");
    std::string all(facts.size, '\0');
    const zip_int64_t got = zip_source_read(source_, all.data(), all.size());
    zip_source_close(source_);
    if (got != static_cast<zip_int64_t>(all.size())) fail("lectura");
    return all;
  }

 private:
  zip_source_t* source_;
};

struct Discard {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};

void add(zip_t* archive, const ZipEntry& entry) {
  zip_source_t* content = zip_source_buffer(archive, entry.content.data(), entry.content.size(), 0);
  const zip_int64_t place =
      content ? zip_file_add(archive, entry.name.c_str(), content, ZIP_FL_ENC_UTF_8) : -1;
  if (place < 0) {
    zip_source_free(content);
    fail(entry.name);
  }
  const bool packed = entry.method == ZipEntry::Packed;
  if (zip_set_file_compression(archive, static_cast<zip_uint64_t>(place),
                               packed ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0) != 0)
    fail(entry.name);
}

}  // namespace

std::string zipArchive(const std::vector<ZipEntry>& entries) {
  Memory memory;
  std::unique_ptr<zip_t, Discard> archive(memory.openArchive());
  for (const ZipEntry& entry : entries) add(archive.get(), entry);
  if (zip_close(archive.get()) != 0) fail("cierre");
  archive.release();
  return memory.bytes();
}

}  // namespace fidaleon::app
