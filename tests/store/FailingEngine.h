#pragma once
// Makes chosen statements of a connection fail, to walk the failure paths of whoever uses it:
//
//   FailingEngine* faults = FailingEngine::wrap(*connection);
//   faults->failOn("INSERT INTO bautismo_hijo", store::ErrorKind::DiskFull);
//
// A part is looked for, without regard to case, in the statement as it was issued, with "?" in
// the place of each value. Transactions are "BEGIN", "COMMIT" and "ROLLBACK".

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "store/Connection.h"
#include "store/ForwardingEngine.h"
#include "text/Utf8.h"

namespace fidaleon::store {

/// The kind of the error that comes out of `act`, and its words; a failure when none does.
template <class Act>
ErrorKind kindOf(Act act, std::string* words = nullptr) {
  try {
    act();
  } catch (const Error& error) {
    EXPECT_STRNE(error.what(), "");
    if (words) *words = error.what();
    return error.kind();
  }
  ADD_FAILURE() << "nothing was thrown";
  return ErrorKind::Other;
}

class FailingEngine : public ForwardingEngine {
 public:
  /// The engine belongs to the connection and lives as long.
  static FailingEngine* wrap(Connection& connection) {
    FailingEngine* wrapper = nullptr;
    connection.wrapEngine([&](std::unique_ptr<Engine> inner) {
      auto made = std::make_unique<FailingEngine>(std::move(inner));
      wrapper = made.get();
      return made;
    });
    return wrapper;
  }

  using ForwardingEngine::ForwardingEngine;

  /// The execution number `nth`, from 1, of a statement with this part fails, once.
  void failOn(const std::string& part, ErrorKind kind = ErrorKind::Other, int nth = 1) {
    faults_.push_back({text::foldCase(part), kind, nth, false});
  }
  /// Every execution fails.
  void failAlwaysOn(const std::string& part, ErrorKind kind = ErrorKind::Other) {
    faults_.push_back({text::foldCase(part), kind, 1, true});
  }
  /// The process is killed at change number `nth`, commits included, before it is made.
  void dieAt(int nth) { dieAt_ = nth; }
  void clear() { faults_.clear(); }
  /// Faults that have not come about.
  std::size_t pending() const { return faults_.size(); }
  /// What was executed, in order, failed statements included.
  const std::vector<std::string>& executed() const { return executed_; }

  std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) override {
    const std::string shown = text::replaceAll(source, "\x01", "?");
    return std::make_unique<FailingStatement>(*this, ForwardingEngine::prepare(sql, source), shown);
  }
  void begin(int depth) override {
    meet("BEGIN");
    ForwardingEngine::begin(depth);
  }
  void commit(int depth) override {
    meet("COMMIT");
    ForwardingEngine::commit(depth);
  }
  void rollback(int depth) override {
    meet("ROLLBACK");
    ForwardingEngine::rollback(depth);
  }

 private:
  struct Fault {
    std::string part;
    ErrorKind kind;
    int left;
    bool always;
  };

  class FailingStatement : public ForwardingStatement {
   public:
    FailingStatement(FailingEngine& engine, std::unique_ptr<Statement> inner, std::string source)
        : ForwardingStatement(std::move(inner)), engine_(engine), source_(std::move(source)) {}

    bool step() override {
      if (!begun_) engine_.meet(source_);
      begun_ = true;
      return ForwardingStatement::step();
    }
    void reset() override {
      begun_ = false;
      ForwardingStatement::reset();
    }

   private:
    FailingEngine& engine_;
    std::string source_;
    bool begun_ = false;
  };

  void meet(const std::string& source) {
    executed_.push_back(source);
    const std::string folded = text::foldCase(source);
    const bool reads = folded.starts_with("select") || folded.starts_with("begin");
    if (!reads && --dieAt_ == 0) ::kill(::getpid(), SIGKILL);
    for (auto fault = faults_.begin(); fault != faults_.end(); ++fault) {
      if (folded.find(fault->part) == std::string::npos || --fault->left > 0) continue;
      const ErrorKind kind = fault->kind;
      if (!fault->always) faults_.erase(fault);
      throw Error(kind, "Fallo provocado por la prueba.");
    }
  }

  int dieAt_ = 0;
  std::vector<Fault> faults_;
  std::vector<std::string> executed_;
};

}  // namespace fidaleon::store
