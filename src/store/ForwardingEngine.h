#pragma once
// For engines that stand before another one and change some of what it does.

#include <memory>
#include <string>
#include <utility>

#include "store/Engine.h"

namespace fidaleon::store {

/// Hands everything on to the statement behind it.
class ForwardingStatement : public Statement {
 public:
  explicit ForwardingStatement(std::unique_ptr<Statement> inner) : inner_(std::move(inner)) {}

  int columnCount() const override { return inner_->columnCount(); }
  std::string columnName(int position) const override { return inner_->columnName(position); }
  std::string columnTable(int position) const override { return inner_->columnTable(position); }
  void bind(int number, const Literal& value, Lifetime lifetime) override {
    inner_->bind(number, value, lifetime);
  }
  void start() override { inner_->start(); }
  bool step() override { return inner_->step(); }
  void read(RowStore& rows) override { inner_->read(rows); }
  void reset() override { inner_->reset(); }

 private:
  std::unique_ptr<Statement> inner_;
};

/// Hands everything on to the engine behind it.
class ForwardingEngine : public Engine {
 public:
  explicit ForwardingEngine(std::unique_ptr<Engine> inner) : inner_(std::move(inner)) {}

  std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) override {
    return inner_->prepare(sql, source);
  }
  bool sameWay(const std::string& sql, const std::string& reversed) override {
    return inner_->sameWay(sql, reversed);
  }
  void run(std::string_view sql) override { inner_->run(sql); }
  void beginReading() override { inner_->beginReading(); }
  void aheadOfRemoval() override { inner_->aheadOfRemoval(); }
  void begin(int depth) override { inner_->begin(depth); }
  void commit(int depth) override { inner_->commit(depth); }
  void rollback(int depth) override { inner_->rollback(depth); }
  bool inTransaction() const override { return inner_->inTransaction(); }
  const Spelling& spelling() const override { return inner_->spelling(); }
  std::int64_t othersStored() override { return inner_->othersStored(); }
  void backup(const std::filesystem::path& to, const Schema& schema,
              const Progress& progress) override {
    inner_->backup(to, schema, progress);
  }
  void requireSound(Check check, const Progress& progress) override {
    inner_->requireSound(check, progress);
  }
  void renewTextOrder() override { inner_->renewTextOrder(); }
  void prepareFor(Writing writing) override { inner_->prepareFor(writing); }
  void fenceWith(Fence* fence) override { inner_->fenceWith(fence); }
  void interrupt() override { inner_->interrupt(); }
  void onTouched(Touched told) override { inner_->onTouched(std::move(told)); }
  std::int64_t touchedSoFar() const override { return inner_->touchedSoFar(); }

 private:
  std::unique_ptr<Engine> inner_;
};

}  // namespace fidaleon::store
