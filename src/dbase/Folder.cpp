#include "dbase/Folder.h"

#include <algorithm>

#include "dbase/Error.h"
#include "text/Utf8.h"

namespace fidaleon::dbase {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestPage = 64;  // of the file that names the code page

std::optional<fs::path> beside(const fs::path& table, const char* extension) {
  return locate(fs::path(table).replace_extension(extension));
}

std::string pageBeside(const fs::path& table) {
  const auto file = beside(table, ".cpg");
  if (!file) return {};
  const auto bytes = openFile(*file);
  std::string text(std::min<std::uint64_t>(bytes->size(), kLongestPage), ' ');
  bytes->read(0, text);
  return text.substr(0, text.find_first_of("\r\n"));
}

void addMemos(const fs::path& table, Table::Files& files) {
  char version = 0;
  if (files.table->size() > 0) files.table->read(0, {&version, 1});
  const auto fpt = beside(table, ".fpt");
  const auto dbt = beside(table, ".dbt");
  const bool newer = static_cast<unsigned char>(version) == 0xF5 || (version & 0xF0) == 0x30;
  if (fpt && (newer || !dbt)) {
    files.kind = Memos::Kind::Fpt;
    files.memos = openFile(*fpt);
  } else if (dbt) {
    // A table of dBase IV says so in its first byte.
    files.kind = (version & 0x08) != 0 ? Memos::Kind::Signed : Memos::Kind::Marked;
    files.memos = openFile(*dbt);
  }
}

}  // namespace

std::optional<fs::path> locate(const fs::path& file) {
  std::error_code failed;
  if (fs::exists(fs::symlink_status(file, failed))) return file;
  const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
  fs::directory_iterator entries(folder, failed);
  if (failed == std::errc::no_such_file_or_directory) return std::nullopt;
  if (failed) throw Error("No se puede leer la carpeta «" + folder.string() + "».");
  std::vector<fs::path> found;
  for (const auto end = fs::directory_iterator(); entries != end && !failed;
       entries.increment(failed)) {
    if (text::equalsNoCase(entries->path().filename().string(), file.filename().string()))
      found.push_back(entries->path());
  }
  if (failed) throw Error("No se puede leer la carpeta «" + folder.string() + "».");
  if (found.size() > 1)
    throw Error("Hay varios archivos «" + file.filename().string() +
                "» que solo se distinguen en mayúsculas y minúsculas.");
  return found.empty() ? std::nullopt : std::optional(found[0]);
}

Table::Files filesOf(const fs::path& table) {
  const fs::path real = locate(table).value_or(table);
  Table::Files files;
  files.table = openFile(real);
  files.codePage = pageBeside(real);
  addMemos(real, files);
  return files;
}

}  // namespace fidaleon::dbase
