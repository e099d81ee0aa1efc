#pragma once

#include <filesystem>
#include <optional>
#include <string>

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

/// Brings a parish whole into another folder: into a file there, or onto the server of `address`.
/// The parish that is moved stays as it is; nobody else may work on it. What an earlier call left
/// half done is gone on with. Throws store::Error (Cancelled when `progress` gave it up, Busy while
/// somebody works) and locks::Unusable.
void moveParish(const std::filesystem::path& from, const std::filesystem::path& to,
                const std::optional<store::ServerAddress>& address, const std::string& user,
                const std::string& since, const store::Progress& progress,
                const store::Telling& tell);

/// What a server's administrator runs once for a database: who owns, who uses, who reads.
std::string rolesScript(const std::string& database);

}  // namespace fidaleon::app
