#pragma once

#include <filesystem>

#include "store/Backend.h"

namespace fidaleon::store {

/// A database that is a file of its own. So is every copy of a database, wherever that one is.
class FileBackend : public Backend {
 public:
  explicit FileBackend(std::filesystem::path file) : file_(std::move(file)) {}

  /// The file where symbolic links lead to, once it has been opened.
  std::filesystem::path source() const override { return file_; }
  std::unique_ptr<Engine> open() override;
  void create(const Schema& schema, const Filling& fill) override;
  /// Lies beside the file, as "parroquia.fidaleon.traslado".
  Unfinished unfinished(const Schema& schema) override;
  void finish(const Schema& schema) override;
  void replaceBy(const std::filesystem::path& copy, const Schema& schema,
                 const Progress& progress) override;
  std::filesystem::path takePlace(Draft& copy) override;
  bool readersHinderNobody() override;
  void takeUpLog() override;

 private:
  std::filesystem::path draft() const { return file_.string() + ".traslado"; }

  std::filesystem::path file_;
};

}  // namespace fidaleon::store
