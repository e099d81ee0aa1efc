#pragma once
// Opening, creating and copying databases. Nothing above this header knows which engine runs.

#include <filesystem>
#include <memory>

#include "store/Backend.h"
#include "store/Connection.h"
#include "store/Error.h"
#include "store/Progress.h"

namespace fidaleon::store {

struct ServerAddress;

/// The two catalogues of the program, built once.
const Schema& parishSchema();   // the registers, the institutions, the census
const Schema& reportsSchema();  // the scratch tables that templates print from

/// Opens the database, where symbolic links lead to, and brings an older one up to the schema's
/// version, in place and as one step. Throws Missing, NotADatabase, NewerSchema, Busy, ReadOnly,
/// DiskFull.
std::unique_ptr<Connection> openDatabase(const std::filesystem::path& place, const Schema& schema);
/// The name of a database to be made belongs to another file already, or to one that somebody made
/// in the same moment.
class NameTaken : public Error {
 public:
  explicit NameTaken(const std::filesystem::path& file);
  explicit NameTaken(const ServerAddress& address);
};
/// Creates the database with its tables and seed rows; never overwrites (NameTaken). `fill` is
/// called before the database takes its name: whatever happens, under that name it is complete.
/// What an earlier one of the name has left beside it is put aside, not played into it.
std::unique_ptr<Connection> createDatabase(const std::filesystem::path& place, const Schema& schema,
                                           const Filling& fill = {});
/// Goes back to the log, for a file on a disk of this machine that once lay elsewhere. Nobody on
/// another machine may have it open. Throws Busy while somebody uses it.
void takeUpLog(const std::filesystem::path& place);
/// Whether somebody who reads for long keeps nobody from writing.
bool readersHinderNobody(const std::filesystem::path& place);
/// An unnamed database in memory with tables and seed rows, for tests and measurements.
std::unique_ptr<Connection> memoryDatabase(const Schema& schema,
                                           const std::string& dataSource = "/tmp/fidaleon.mdb");
/// An unnamed database for this program alone, on the disk as far as the memory does not hold it.
/// It is gone with its connection, also when the program is killed.
std::unique_ptr<Connection> passingDatabase(const Schema& schema);
/// A consistent copy of an open database into a file, through its engine, verified by reopening it,
/// before it takes the place of an older one and again under its name. Throws Busy when a program
/// has that older one open.
void backupDatabase(Connection& from, const std::filesystem::path& to, Check check = Check::Whole,
                    const Progress& progress = {});

}  // namespace fidaleon::store
