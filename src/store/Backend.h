#pragma once
// What can be done to a database as a whole. What becomes of its single statements is the Engine's.

#include <filesystem>
#include <functional>
#include <memory>

#include "store/Engine.h"
#include "store/schema/Schema.h"

namespace fidaleon::store {

class Connection;
class Draft;

/// Puts into a new database what it is to hold before anybody sees it.
using Filling = std::function<void(Connection&)>;

/// One place where a database is, or is to be. Everything throws store::Error.
class Backend {
 public:
  virtual ~Backend() = default;

  /// What a connection to it gives as its "DATA SOURCE".
  virtual std::filesystem::path source() const = 0;
  /// The database as it is, of whatever version. Throws Missing, NotADatabase, Busy, ReadOnly,
  /// Connection.
  virtual std::unique_ptr<Engine> open() = 0;
  /// A database with its tables and seed rows and what `fill` adds: the whole of it or nothing.
  /// Throws NameTaken.
  virtual void create(const Schema& schema, const Filling& fill) = 0;

  /// A database that is being filled, perhaps over several runs of the program. Nobody can open it
  /// before it is finished.
  struct Unfinished {
    std::unique_ptr<Engine> engine;
    bool resumed = false;  // an earlier run has begun it
  };
  /// Goes on with the one that is there, or begins one, which has tables of this version and no
  /// rows. Throws NameTaken where there is a whole one.
  virtual Unfinished unfinished(const Schema& schema) = 0;
  /// It is whole from now on, and on the disk. Nobody may have it open. Throws NameTaken.
  virtual void finish(const Schema& schema) = 0;

  /// Replaces all content by that of a copy, a file of the same version, in one transaction.
  virtual void replaceBy(const std::filesystem::path& copy, const Schema& schema,
                         const Progress& progress) = 0;
  /// Puts a copy in the place of a database that can be opened no more. Gives the name that what
  /// was there has now; empty when there was nothing. Throws Misuse where that cannot be done.
  virtual std::filesystem::path takePlace(Draft& copy) = 0;
  /// Whether somebody who reads for long keeps nobody from writing.
  virtual bool readersHinderNobody() = 0;
  /// Goes back to the way of storing by which readers hinder nobody, where there is one.
  virtual void takeUpLog() = 0;
};

/// The one for what bears this name.
std::unique_ptr<Backend> backendAt(const std::filesystem::path& place);

}  // namespace fidaleon::store
