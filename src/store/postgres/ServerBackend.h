#pragma once

#include <filesystem>

#include "store/Backend.h"
#include "store/postgres/ServerAddress.h"

namespace fidaleon::store {

class PostgresEngine;

/// A database on a server. Its place is the file that holds the address.
class ServerBackend : public Backend {
 public:
  /// Throws as readAddress.
  explicit ServerBackend(const std::filesystem::path& addressFile);

  std::filesystem::path source() const override { return file_; }
  /// Throws Missing also where the database of the server holds none of this program.
  std::unique_ptr<Engine> open() override;
  void create(const Schema& schema, const Filling& fill) override;
  Unfinished unfinished(const Schema& schema) override;
  void finish(const Schema& schema) override;
  void replaceBy(const std::filesystem::path& copy, const Schema& schema,
                 const Progress& progress) override;
  /// Nobody can put a server's database aside from here.
  std::filesystem::path takePlace(Draft& copy) override;
  /// Each sees the state it has begun with.
  bool readersHinderNobody() override { return true; }
  void takeUpLog() override {}

 private:
  std::unique_ptr<PostgresEngine> connect() const;

  std::filesystem::path file_;
  ServerAddress address_;
};

}  // namespace fidaleon::store
