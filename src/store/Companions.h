#pragma once
// What the engine keeps beside a database while it is open, and leaves there when its program is
// killed. Belongs to the content of that one file: beside another it would be played into it.

#include <filesystem>
#include <vector>

namespace fidaleon::store {

/// Those that are there: the log, the journal, the shared memory.
std::vector<std::filesystem::path> companionsOf(const std::filesystem::path& database);
/// Whether somebody has the database open with its log, or was killed while storing something. A
/// journal cut to nothing says nothing.
bool hasUnfinished(const std::filesystem::path& database);
/// Takes them away for good. Throws Connection when one stays.
void removeCompanions(const std::filesystem::path& database);
/// The database, if it is there, and what is beside it get another name each that begins like this
/// one; what they were called is free then, for good. Gives the new name of the database. Throws
/// Connection.
std::filesystem::path putAside(const std::filesystem::path& database, const std::string& ending);

/// Only what is beside it: a database that has come to the name meanwhile stays there.
void putCompanionsAside(const std::filesystem::path& database, const std::string& ending);

}  // namespace fidaleon::store
