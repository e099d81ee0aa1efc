#include "store/Plan.h"

#include <algorithm>

#include "text/Utf8.h"

namespace fidaleon::store {

std::unique_ptr<Statement> Plan::lend(Engine& engine) {
  if (!idle_.empty()) {
    auto statement = std::move(idle_.back());
    idle_.pop_back();
    return statement;
  }
  return engine.prepare(rewritten_.sql, shape_.text);
}

void Plan::understood(const Statement& statement) {
  proven_ = true;
  if (!columns_.empty()) return;
  for (int i = 0; i < statement.columnCount(); ++i) {
    const std::string name = statement.columnName(i);
    const bool first = std::none_of(columns_.begin(), columns_.end(), [&](const auto& c) {
      return text::equalsNoCase(c.name, name);
    });
    columns_.push_back({name, statement.columnTable(i), first});
  }
}

Plan* Plan::backwards(Engine& engine) {
  if (!asked_ && !rewritten_.last.empty() && engine.sameWay(rewritten_.sql, rewritten_.last))
    backwards_ = std::make_unique<Plan>(
        shape_, Rewritten{rewritten_.last, {}, rewritten_.targets, rewritten_.returnsRows});
  asked_ = true;
  return backwards_.get();
}

void Plan::giveBack(std::unique_ptr<Statement> statement) {
  statement->reset();
  if (!retired_ && idle_.size() < kIdle) idle_.push_back(std::move(statement));
}

void Plan::retire() {
  retired_ = true;
  if (backwards_ != nullptr) backwards_->retire();
  idle_.clear();
}

}  // namespace fidaleon::store
