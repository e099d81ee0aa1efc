#include "parish/server/ServerParish.h"

#include "files/Durable.h"
#include "locks/MeetingPlace.h"
#include "parish/ParishFiles.h"
#include "parish/Presence.h"
#include "parish/server/MoveNote.h"
#include "store/FileFault.h"
#include "store/Open.h"
#include "store/postgres/ServerAccess.h"
#include "text/Numbers.h"

namespace fidaleon::app {

namespace fs = std::filesystem;

namespace {

void makeFolder(const fs::path& directory) {
  try {
    files::makeFolders(directory);
  } catch (const fs::filesystem_error& e) {
    throw store::fileFault("No se puede preparar la carpeta", directory, e.code());
  }
}

void noteEdition(const ParishFiles& files, store::Connection& parish) {
  const auto row = parish.Execute("SELECT Edicion FROM Instalacion");
  if (!row.EOF_()) writeEdition(files, row.text("Edicion"));
}

/// Takes it away again unless it is kept.
class NewAddress {
 public:
  /// A folder that has it already is no fault.
  NewAddress(const fs::path& directory, const store::ServerAddress& address)
      : file_(directory / store::ADDRESS_FILE) {
    const ParishFiles files(directory);
    if (files.exists() && store::serverAt(directory) != address)
      throw store::NameTaken(files.parish());
    if (files.exists()) return;
    store::writeAddress(file_, address);
    made_ = true;
  }
  ~NewAddress() {
    std::error_code ignored;
    if (made_) fs::remove(file_, ignored);
  }
  NewAddress(const NewAddress&) = delete;
  NewAddress& operator=(const NewAddress&) = delete;
  void keep() { made_ = false; }

 private:
  fs::path file_;
  bool made_ = false;
};

void requireNobody(const std::vector<locks::Holder>& there) {
  if (there.empty()) return;
  std::string who;
  for (const locks::Holder& holder : there) who += "\n  • " + spoken(holder);
  throw store::Error(
      store::ErrorKind::Busy,
      "No se puede trasladar la parroquia mientras alguien más trabaja en ella:\n" + who);
}

Moved counted(const std::vector<std::int64_t>& rows) {
  Moved moved;
  for (std::size_t i = 0; i < rows.size(); ++i)
    moved.tables.emplace_back(store::parishSchema().tables()[i].name(), rows[i]);
  return moved;
}

}  // namespace

std::optional<store::ServerAddress> addressFrom(const std::string& written,
                                                const std::string& user) {
  store::ServerAddress address;
  const std::size_t slash = written.rfind('/');
  if (slash == std::string::npos || slash == 0 || slash + 1 == written.size()) return std::nullopt;
  address.database = written.substr(slash + 1);
  address.host = written.substr(0, slash);
  address.user = user;
  const std::size_t colon = address.host.rfind(':');
  const bool inBrackets = address.host.starts_with('[');
  const bool colons = colon != std::string::npos && address.host.find(':') != colon;
  if (colons && address.host.find(',') != std::string::npos) return std::nullopt;  // one port
  if (colon != std::string::npos && (inBrackets || !colons) &&
      (!inBrackets || address.host[colon - 1] == ']')) {
    const auto port = text::toInteger(address.host.substr(colon + 1));
    if (!port || *port < 1 || *port > 65535) return std::nullopt;
    address.port = static_cast<int>(*port);
    address.host.resize(colon);
  }
  if (inBrackets && address.host.ends_with(']'))
    address.host = address.host.substr(1, address.host.size() - 2);
  if (address.host.empty() || user.empty()) return std::nullopt;
  return address;
}

void connectParish(const fs::path& directory, const store::ServerAddress& address) {
  makeFolder(directory);
  NewAddress file(directory, address);
  const ParishFiles files(directory);
  noteEdition(files, *store::openDatabase(files.parish(), store::parishSchema()));
  file.keep();
}

std::int64_t Moved::rows() const {
  std::int64_t all = 0;
  for (const auto& [table, count] : tables) all += count;
  return all;
}

std::string Moved::spoken() const {
  return std::to_string(tables.size()) + " tablas y " + std::to_string(rows()) + " filas";
}

Moved moveParish(const MoveOrder& order, const std::string& user, const std::string& since,
                 const store::TransferWatch& watch) {
  const ParishFiles source = ParishFiles(order.from).resolved();
  const ParishFiles target(order.to);
  if (!source.exists())
    throw store::Error(store::ErrorKind::Missing,
                       "En la carpeta «" + order.from.string() + "» no hay ninguna parroquia.");
  makeFolder(order.to);
  std::optional<NewAddress> address;
  if (order.address)
    address.emplace(order.to, *order.address);
  else if (target.exists())
    throw store::NameTaken(target.parish());
  MoveNote note{fs::absolute(order.to), since};
  Moved moved;
  const Presence presence(source.directory, user, since);
  requireNobody(presence.alone("está trasladando la parroquia", [&] {
    const auto meeting = locks::meetingAt(order.to);
    const auto guard = meeting->enter();
    const auto there = store::backendAt(target.parish());
    store::TransferWatch also = watch;
    // From here on something is half done, and can be gone on with.
    also.begun = [&] {
      if (address) address->keep();
      writeMoveNote(source, note);
    };
    moved = counted(store::moveDatabase(*store::backendAt(source.parish()), *there,
                                        store::parishSchema(), also));
    note.done = true;
    writeMoveNote(source, note);
  }));
  noteEdition(target, *store::openDatabase(target.parish(), store::parishSchema()));
  return moved;
}

}  // namespace fidaleon::app
