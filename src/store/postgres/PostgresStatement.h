#pragma once

#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "store/postgres/PostgresEngine.h"

namespace fidaleon::store {

/// The first rows of one table are asked for alone, and the others only when they are read on to;
/// of a great many the last ones come one by one, as long as nobody else needs the link.
class PostgresStatement : public Statement, private Link::Reader {
 public:
  PostgresStatement(PostgresEngine& engine, std::string_view sql);
  ~PostgresStatement() override;
  PostgresStatement(const PostgresStatement&) = delete;
  PostgresStatement& operator=(const PostgresStatement&) = delete;

  int columnCount() const override { return answer_.columns(); }
  std::string columnName(int position) const override;
  std::string columnTable(int position) const override;
  void bind(int number, const Literal& value, Lifetime lifetime) override;
  void start() override;
  bool step() override;
  void read(RowStore& rows) override;
  void reset() override;

 private:
  enum class State { Bound, Begun, Streaming, Parked };

  void takeAll() override;
  bool readOn();
  bool readRest();
  bool takeNext();
  std::string limited(int rows) const;
  void requireSame(int row, const Answer& now, int at) const;
  void giveBack();
  void addRow(RowStore& rows, const Answer& from, int row);
  bool isWide(const Literal& value) const;
  void put(int number, std::string_view text);
  /// With every whole number that is compared as a real one.
  static std::string widened(std::string sql);
  void resolve();

  PostgresEngine& engine_;
  std::string sql_;
  std::string slice_;  // the same for the first rows alone
  Traits traits_;
  std::vector<char> whole_;  // for each value, whether a whole number is expected
  int few_ = 0;              // as many as were asked for
  Request request_;
  std::string texts_;                // the values, each closed by a zero byte
  std::vector<std::size_t> places_;  // where in there each begins; kNull for Null
  bool wide_ = false;
  State state_ = State::Bound;
  Answer answer_;           // all rows, or the first ones
  Answer current_;          // the one that has come
  std::vector<Oid> types_;  // of its columns
  int row_ = -1;
  std::unique_ptr<RowStore> parked_;  // rows that came when somebody else needed the link
  std::int64_t next_ = 0;             // of those
  std::exception_ptr failure_;        // that ended their coming
};

}  // namespace fidaleon::store
