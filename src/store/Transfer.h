#pragma once
// The rows of all tables from one database into another, whatever engines they have.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "store/Backend.h"
#include "store/Engine.h"
#include "store/Progress.h"

namespace fidaleon::store {

/// Told what a user should know while it goes on, in Spanish.
using Telling = std::function<void(const std::string& sentence)>;

enum class TransferStage { Copying, Comparing };
/// Told of each table before it is gone through, with its rows.
using AtTable =
    std::function<void(TransferStage stage, const std::string& table, std::int64_t rows)>;

/// Who follows a move, from the thread that does it. Any may be empty.
struct TransferWatch {
  Progress progress;
  Telling tell;
  AtTable at;
  std::function<void()> begun = {};  // the target is this one's to fill
};

/// The tables of `to` hold then what those of `from` hold, row by row with the same keys, in the
/// order in which the rows were entered; and no key is given there again that was given in `from`.
/// What is alike already stays: so an interrupted run is gone on with. A table that begins
/// otherwise is emptied and begun anew, which is told. Slices of a table are committed one by one,
/// unless a transaction is open in `to`. `from` must not change meanwhile (beginReading). Throws
/// Cancelled; what is committed then stays.
void copyRows(Engine& from, Engine& to, const Schema& schema, const Progress& progress = {},
              const Telling& tell = {}, const AtTable& at = {});

/// Compares both, row by row and value by value. Throws NotADatabase with the first table and row
/// that differ, Cancelled.
void requireSameRows(Engine& a, Engine& b, const Schema& schema, const Progress& progress = {},
                     const AtTable& at = {});

/// All rows into a new file, which is closed again: a copy as FileBackend opens it.
void copyIntoFile(Engine& from, const std::filesystem::path& to, const Schema& schema,
                  const Progress& progress = {});

/// A database comes to another place, whole and compared, or is not there. `from` must be of the
/// schema's version (else NewerSchema or NotADatabase), stays as it is, and must not change
/// meanwhile. What an earlier run left unfinished in `to` is gone on with. Gives how many rows each
/// table has in both, in the order of the schema. Throws NameTaken, Cancelled.
std::vector<std::int64_t> moveDatabase(Backend& from, Backend& to, const Schema& schema,
                                       const TransferWatch& watch = {});

}  // namespace fidaleon::store
