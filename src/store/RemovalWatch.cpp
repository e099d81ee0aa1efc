#include "store/RemovalWatch.h"

#include "store/Engine.h"
#include "store/Spelling.h"

namespace fidaleon::store {

namespace {

using Shared = std::shared_ptr<RemovalWatch::Told>;

bool removes(std::string_view sql) {
  const std::size_t first = sql.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && sql.substr(first).starts_with("DELETE ");
}

class Removal : public Statement {
 public:
  Removal(std::unique_ptr<Statement> inner, Shared told)
      : inner_(std::move(inner)), told_(std::move(told)) {}

  int columnCount() const override { return inner_->columnCount(); }
  std::string columnName(int position) const override { return inner_->columnName(position); }
  std::string columnTable(int position) const override { return inner_->columnTable(position); }
  void bind(int number, const Literal& value, Lifetime lifetime) override {
    inner_->bind(number, value, lifetime);
  }
  bool step() override {
    if (*told_) (*told_)();
    return inner_->step();
  }
  void read(RowStore& rows) override { inner_->read(rows); }
  void reset() override { inner_->reset(); }

 private:
  std::unique_ptr<Statement> inner_;
  Shared told_;
};

class WatchedEngine : public Engine {
 public:
  WatchedEngine(std::unique_ptr<Engine> inner, Shared told)
      : inner_(std::move(inner)), told_(std::move(told)) {}

  std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) override {
    auto statement = inner_->prepare(sql, source);
    if (!removes(sql)) return statement;
    return std::make_unique<Removal>(std::move(statement), told_);
  }
  void run(std::string_view sql) override { inner_->run(sql); }
  void begin(int depth) override { inner_->begin(depth); }
  void commit(int depth) override { inner_->commit(depth); }
  void rollback(int depth) override { inner_->rollback(depth); }
  bool inTransaction() const override { return inner_->inTransaction(); }
  const Spelling& spelling() const override { return inner_->spelling(); }
  void backup(const std::filesystem::path& to) override { inner_->backup(to); }

 private:
  std::unique_ptr<Engine> inner_;
  Shared told_;
};

}  // namespace

RemovalWatch::RemovalWatch(Connection& connection) : told_(std::make_shared<Told>()) {
  connection.wrapEngine([&](std::unique_ptr<Engine> inner) {
    return std::make_unique<WatchedEngine>(std::move(inner), told_);
  });
}

RemovalWatch::~RemovalWatch() {
  *told_ = nullptr;
}

RemovalWatch::Listener::Listener(RemovalWatch& watch, Told told) : place_(*watch.told_) {
  place_ = std::move(told);
}

RemovalWatch::Listener::~Listener() {
  place_ = nullptr;
}

}  // namespace fidaleon::store
