#pragma once

#include <filesystem>
#include <optional>

#include "store/postgres/PasswordKeeper.h"
#include "store/postgres/ServerAddress.h"

namespace fidaleon::store {

/// What lies in the folder of a parish instead of its database when a server has it.
inline constexpr const char* ADDRESS_FILE = "parroquia.servidor";

/// Whether the name is that of an address.
bool isAddress(const std::filesystem::path& place);
/// Throws Missing, NotADatabase, Connection when it cannot be read.
ServerAddress readAddress(const std::filesystem::path& file);
/// For this account alone, or as the folder says; on the disk when it returns. Throws NameTaken
/// when there is one, Connection, ReadOnly, DiskFull.
void writeAddress(const std::filesystem::path& file, const ServerAddress& address);
/// The server that has the parish of this folder; none where the folder has no address. Throws as
/// readAddress.
std::optional<ServerAddress> serverAt(const std::filesystem::path& directory);

}  // namespace fidaleon::store
