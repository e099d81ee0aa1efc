#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "parish/NewParish.h"
#include "store/Transfer.h"
#include "store/postgres/ServerAddress.h"

namespace fidaleon::app {

/// "archivo.diocesis.es:5433/sanblas", "/var/run/postgresql/sanblas" or "[::1]/sanblas" as an
/// address; none when it is not of that form.
std::optional<store::ServerAddress> addressFrom(const std::string& written,
                                                const std::string& user);

/// The folder is from now on that of the parish which the server has there. A folder that has that
/// address already is no fault. Throws store::Error (Missing where the database holds no parish,
/// NameTaken where the folder holds another one); nothing stays behind then.
void connectParish(const std::filesystem::path& directory, const store::ServerAddress& address);

/// From where to where a parish is moved: into a file, or onto a server.
struct MoveOrder {
  std::filesystem::path from;
  std::filesystem::path to;
  std::optional<store::ServerAddress> address;
};

/// What has been compared at the end.
struct Moved {
  std::vector<std::pair<std::string, std::int64_t>> tables;  // with their rows

  std::int64_t rows() const;
  /// "41 tablas y 23412 filas"
  std::string spoken() const;
};

/// Brings a parish whole into another folder: into a file there, or onto the server of the address.
/// The parish that is moved stays as it is, with a MoveNote beside it; nobody else may work on it.
/// What an earlier call left half done is gone on with. `since` is the moment, as a MoveNote has
/// it. Throws store::Error (Cancelled when the watch gave it up, Busy while somebody works) and
/// locks::Unusable.
Moved moveParish(const MoveOrder& order, const std::string& user, const std::string& since,
                 const store::TransferWatch& watch);

/// What a server's administrator runs once for a database: who owns, who uses, who reads.
std::string rolesScript(const std::string& database);

}  // namespace fidaleon::app
