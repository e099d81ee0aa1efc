#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "store/Error.h"
#include "store/Recordset.h"

namespace fidaleon::store {

class Engine;
class Schema;

/// A named property of a connection.
struct Property {
  std::string Value;
};

/// An open database. Takes statements in the parish dialect with values inline; every literal
/// is bound as a parameter, never spliced into what the engine parses. One thread.
/// Everything throws store::Error. A statement that fails leaves the others standing.
class Connection {
 public:
  /// `schema` is the catalogue of the database (tables, columns, types) and must outlive it.
  Connection(std::unique_ptr<Engine> engine, const Schema& schema, std::string dataSource);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  Recordset Execute(std::string_view sql);

  /// To be called ahead of a transaction in which rows are taken away: whoever wants to keep them
  /// first (RemovalWatch) does so while nobody has to wait. Within a transaction nothing happens.
  void aheadOfRemoval();
  /// Nest freely; an inner rollback undoes the inner part alone.
  void BeginTrans();
  void CommitTrans();
  void RollbackTrans();
  bool inTransaction() const;

  /// "DATA SOURCE": the full path of the database file. Any other name throws UnknownName.
  Property Properties(std::string_view name) const;

  const Schema& schema() const;
  Engine& engine();
  /// Puts something between the connection and its engine; tests make statements fail by it.
  void wrapEngine(const std::function<std::unique_ptr<Engine>(std::unique_ptr<Engine>)>& wrap);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace fidaleon::store
