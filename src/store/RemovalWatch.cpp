#include "store/RemovalWatch.h"

#include "store/ForwardingEngine.h"

namespace fidaleon::store {

namespace {

using Shared = std::shared_ptr<RemovalWatch::Told>;

bool removes(std::string_view sql) {
  const std::size_t first = sql.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && sql.substr(first).starts_with("DELETE ");
}

class Removal : public ForwardingStatement {
 public:
  Removal(std::unique_ptr<Statement> inner, Shared told)
      : ForwardingStatement(std::move(inner)), told_(std::move(told)) {}

  bool step() override {
    if (*told_) (*told_)();
    return ForwardingStatement::step();
  }

 private:
  Shared told_;
};

class WatchedEngine : public ForwardingEngine {
 public:
  WatchedEngine(std::unique_ptr<Engine> inner, Shared told)
      : ForwardingEngine(std::move(inner)), told_(std::move(told)) {}

  std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) override {
    auto statement = ForwardingEngine::prepare(sql, source);
    if (!removes(sql)) return statement;
    return std::make_unique<Removal>(std::move(statement), told_);
  }
  void aheadOfRemoval() override {
    if (*told_) (*told_)();
    ForwardingEngine::aheadOfRemoval();
  }

 private:
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
