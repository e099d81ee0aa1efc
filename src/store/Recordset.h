#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "store/Value.h"

namespace fidaleon::store {

class RecordsetState;

/// One field of the current row.
class Field {
 public:
  Field(std::string name, store::Value value) : name_(std::move(name)), value_(std::move(value)) {}
  const std::string& Name() const { return name_; }
  const store::Value& Value() const { return value_; }

 private:
  std::string name_;
  store::Value value_;
};

/// The rows of one statement. Rows are stepped on demand and kept, so one may go back; they are
/// drained when the count is asked for, and before the connection writes or ends a transaction, so
/// an open record set shows the rows as they were when it was opened. Owns its rows; may outlive no
/// connection it came from. Move only.
class Recordset {
 public:
  Recordset();
  explicit Recordset(std::shared_ptr<RecordsetState> state);
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  bool EOF_() const;  // EOF is a macro of the C library
  bool BOF() const;
  /// Exact, also before moving.
  std::int64_t RecordCount() const;
  void MoveFirst();
  /// By the opposite order where an index has it, so that nothing is read but that row; whoever
  /// then moves on or asks for the count has the others fetched.
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  /// 1 open, 0 closed. A statement that returns no rows gives a closed record set.
  int State() const;
  void Close();

  int FieldCount() const;
  std::string FieldName(int position) const;
  /// By name without regard to case ("nombre"), by qualified name where a SELECT * has it twice
  /// ("Libro_Bautismo.nombre"), or by position from 0. Throws Error(UnknownName), or
  /// Error(Misuse) when there is no current row.
  Field Fields(std::string_view name) const;
  Field Fields(int position) const;

  /// Short forms of Fields(name).Value().
  Value value(std::string_view name) const;
  std::string text(std::string_view name) const;
  std::int64_t integer(std::string_view name) const;
  bool flag(std::string_view name) const;
  /// Where the column stands, as Fields(name) finds it.
  int position(std::string_view name) const;
  /// The same by position, for many rows: nothing is looked up and no Field is made.
  std::string text(int position) const;
  std::int64_t integer(int position) const;

 private:
  std::shared_ptr<RecordsetState> state_;
};

}  // namespace fidaleon::store
