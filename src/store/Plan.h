#pragma once

#include <memory>
#include <string>
#include <vector>

#include "store/Engine.h"
#include "store/dialect/LiteralLifter.h"
#include "store/dialect/Rewriter.h"

namespace fidaleon::store {

/// What is known of all statements of one shape, and the engine's statements prepared for it that
/// nobody uses at the moment.
class Plan {
 public:
  struct ResultColumn {
    std::string name;
    std::string table;
    bool first = true;  // no column before it has the name
  };

  Plan(Shape shape, Rewritten rewritten)
      : shape_(std::move(shape)), rewritten_(std::move(rewritten)) {}

  const Shape& shape() const { return shape_; }
  /// The engine has understood it once.
  bool proven() const { return proven_; }
  bool returnsRows() const { return rewritten_.returnsRows; }
  const std::vector<const Column*>& targets() const { return rewritten_.targets; }
  /// Known once a statement was understood.
  const std::vector<ResultColumn>& columns() const { return columns_; }
  /// The engine has started this one of the plan's.
  void understood(const Statement& statement);

  bool hasOrder() const { return !rewritten_.last.empty(); }
  /// How the last row is found without the others; null when it cannot be.
  Plan* backwards(Engine& engine);

  std::unique_ptr<Statement> lend(Engine& engine);
  void giveBack(std::unique_ptr<Statement> statement);
  /// No statement is kept any more.
  void retire();

 private:
  static constexpr std::size_t kIdle = 4;

  Shape shape_;
  Rewritten rewritten_;
  std::vector<ResultColumn> columns_;
  std::vector<std::unique_ptr<Statement>> idle_;
  std::unique_ptr<Plan> backwards_;
  bool proven_ = false;
  bool asked_ = false;  // whether there is a way backwards
  bool retired_ = false;
};

}  // namespace fidaleon::store
