#include "store/postgres/ServerAccess.h"

#include <fstream>
#include <iterator>

#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "store/Draft.h"
#include "store/FileFault.h"
#include "store/Open.h"

namespace fidaleon::store {

namespace fs = std::filesystem;

bool isAddress(const fs::path& place) {
  return place.filename() == ADDRESS_FILE;
}

ServerAddress readAddress(const fs::path& file) {
  if (!files::isThere(file))
    throw Error(ErrorKind::Missing, "No se encuentra «" + file.string() + "».");
  std::ifstream in(file);
  const std::string text(std::istreambuf_iterator<char>(in), {});
  if (!in) throw Error(ErrorKind::Connection, "No se puede leer «" + file.string() + "».");
  return ServerAddress::parse(text);
}

void writeAddress(const fs::path& file, const ServerAddress& address) {
  Draft draft(file, ".nueva");
  std::ofstream out(draft.path());
  out << address.written();
  out.close();
  if (!out) throw Error(ErrorKind::DiskFull, "No se puede escribir «" + file.string() + "».");
  if (!draft.acceptIfFree()) throw NameTaken(file);
}

std::optional<ServerAddress> serverAt(const fs::path& directory) {
  const fs::path file = directory / ADDRESS_FILE;
  if (!files::isThere(file)) return std::nullopt;
  return readAddress(file);
}

}  // namespace fidaleon::store
