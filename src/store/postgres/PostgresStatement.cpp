#include "store/postgres/PostgresStatement.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "text/Numbers.h"

namespace fidaleon::store {

namespace {

constexpr std::size_t kNull = std::numeric_limits<std::size_t>::max();
constexpr int kFew = 20;
constexpr int kFewest = 3;    // as many as are looked at when a record set is opened
constexpr int kMany = 50000;  // more than that are not held at once
constexpr std::string_view kWhole = "::int8";

/// How the server numbers the types that are not text.
enum : Oid {
  Truth = 16,
  Whole8 = 20,
  Whole2 = 21,
  Whole4 = 23,
  Real4 = 700,
  Real8 = 701,
  Exact = 1700
};

template <class Number>
Number numberOf(std::string_view digits) {
  Number n{};
  std::from_chars(digits.data(), digits.data() + digits.size(), n);
  return n;
}

void addCell(RowStore& rows, Oid type, std::string_view cell) {
  switch (type) {
    case Truth:
      return rows.addInteger(cell == "t" ? 1 : 0);
    case Whole2:
    case Whole4:
    case Whole8:
      return rows.addInteger(numberOf<std::int64_t>(cell));
    case Exact:
      // What sums of whole numbers give.
      if (cell.find('.') == std::string_view::npos && cell.size() < 19)
        return rows.addInteger(numberOf<std::int64_t>(cell));
      [[fallthrough]];
    case Real4:
    case Real8:
      return rows.addReal(numberOf<double>(cell));
    default:
      return rows.addText(cell);
  }
}

void addValue(RowStore& rows, const Value& value) {
  if (value.isNull()) return rows.addNull();
  if (value.isInteger()) return rows.addInteger(value.integer());
  if (value.isReal()) return rows.addReal(value.real());
  rows.addText(value.text());
}

/// For each value, whether it is compared with a whole number.
std::vector<char> wholeValues(std::string_view sql) {
  std::vector<char> whole;
  for (auto at = sql.find('$'); at != std::string_view::npos; at = sql.find('$', at + 1)) {
    auto end = at + 1;
    while (end < sql.size() && sql[end] >= '0' && sql[end] <= '9') ++end;
    const auto number = numberOf<std::size_t>(sql.substr(at + 1, end - at - 1));
    if (number == 0) continue;
    if (whole.size() < number) whole.resize(number, 0);
    whole[number - 1] = sql.substr(end).starts_with(kWhole) ? 1 : 0;
  }
  return whole;
}

}  // namespace

PostgresStatement::PostgresStatement(PostgresEngine& engine, std::string_view sql)
    : engine_(engine), sql_(sql), traits_(traitsOf(sql)), whole_(wholeValues(sql)) {
  places_.assign(whole_.size(), kNull);
  if (!traits_.sliced) return;
  slice_ = limited(traits_.fromTheEnd ? kFewest : kFew);
}

PostgresStatement::~PostgresStatement() {
  reset();
}

std::string PostgresStatement::columnName(int position) const {
  const char* name = PQfname(answer_.get(), position);
  return name != nullptr ? name : "";
}

std::string PostgresStatement::columnTable(int position) const {
  const Oid table = PQftable(answer_.get(), position);
  return table == InvalidOid ? std::string() : engine_.tableOf(table);
}

/// A text that is no number is neither equal to nor below any: it comes after all of them.
bool PostgresStatement::isWide(const Literal& value) const {
  switch (value.kind) {
    case Literal::Kind::Real:
      return true;
    case Literal::Kind::Text:
      return !text::toInteger(value.text);
    default:
      return false;
  }
}

void PostgresStatement::put(int number, std::string_view text) {
  if (text.find('\0') != std::string_view::npos)
    throw Error(ErrorKind::Constraint, "El texto tiene un carácter que no se puede guardar.");
  places_[static_cast<std::size_t>(number - 1)] = texts_.size();
  texts_.append(text).push_back('\0');
}

void PostgresStatement::bind(int number, const Literal& value, Lifetime) {
  const auto at = static_cast<std::size_t>(number - 1);
  if (at >= places_.size()) places_.resize(at + 1, kNull);
  if (state_ != State::Bound) reset();
  char digits[32];
  switch (value.kind) {
    case Literal::Kind::Null:
      places_[at] = kNull;
      return;
    case Literal::Kind::Integer: {
      const auto end = std::to_chars(digits, digits + sizeof digits, value.integer).ptr;
      return put(number, {digits, static_cast<std::size_t>(end - digits)});
    }
    case Literal::Kind::Real:
      wide_ = wide_ || (at < whole_.size() && whole_[at] != 0);
      return put(number, Value(value.real).text());
    case Literal::Kind::Text:
      if (at >= whole_.size() || whole_[at] == 0) return put(number, value.text);
      wide_ = wide_ || isWide(value);
      return put(number,
                 text::isNumeric(value.text) ? Value(text::Val(value.text)).text() : "Infinity");
  }
}

std::string PostgresStatement::widened(std::string sql) {
  for (auto at = sql.find(kWhole); at != std::string::npos; at = sql.find(kWhole, at))
    sql.replace(at, kWhole.size(), "::float8");
  return sql;
}

void PostgresStatement::resolve() {
  request_.values.clear();
  for (const std::size_t place : places_)
    request_.values.push_back(place == kNull ? nullptr : texts_.data() + place);
}

void PostgresStatement::start() {
  if (state_ != State::Bound) return;
  resolve();
  const std::string& sql = traits_.sliced ? slice_ : sql_;
  answer_ = engine_.carryOut(wide_ ? widened(sql) : sql, traits_, request_);
  state_ = State::Begun;
  few_ = traits_.fromTheEnd ? kFewest : kFew;
  row_ = -1;
}

bool PostgresStatement::step() {
  start();
  if (state_ == State::Begun && ++row_ < answer_.rows()) return true;
  return readOn();
}

bool PostgresStatement::readOn() {
  switch (state_) {
    case State::Bound:
      return false;
    case State::Begun:
      return traits_.sliced && answer_.rows() == few_ && readRest();
    case State::Streaming:
      return takeNext();
    case State::Parked:
      break;
  }
  if (failure_ != nullptr && next_ >= parked_->rows()) std::rethrow_exception(failure_);
  return next_++ < parked_->rows();
}

/// The whole again, up to where the first rows end. They must still be what they were: whoever goes
/// on reading is to see one state of the data.
bool PostgresStatement::readRest() {
  if (few_ < kMany) {
    Answer many = engine_.carryOut(limited(kMany), traits_, request_);
    for (int row = 0; row < few_; ++row) requireSame(row, many, row);
    answer_ = std::move(many);
    few_ = kMany;
    return row_ < answer_.rows();
  }
  engine_.read(wide_ ? widened(sql_) : sql_, request_, *this);
  state_ = State::Streaming;
  try {
    for (int row = 0; row < few_; ++row) {
      takeNext();
      requireSame(row, current_, 0);
    }
  } catch (const Error&) {
    if (state_ == State::Streaming) giveBack();
    throw;
  }
  return takeNext();
}

std::string PostgresStatement::limited(int rows) const {
  return (wide_ ? widened(sql_) : sql_) + " LIMIT " + std::to_string(rows);
}

void PostgresStatement::requireSame(int row, const Answer& now, int at) const {
  bool same = at < now.rows();
  for (int i = 0; same && i < answer_.columns(); ++i)
    same = answer_.isNull(row, i) == now.isNull(at, i) && answer_.text(row, i) == now.text(at, i);
  if (same) return;
  throw Error(ErrorKind::Busy,
              "Otro puesto ha cambiado los datos mientras se leían. Vuelva a intentarlo.");
}

bool PostgresStatement::takeNext() {
  current_ = engine_.link().next();
  if (current_.isRow()) return true;
  state_ = State::Begun;  // and nothing left of it
  answer_ = Answer();
  return false;
}

void PostgresStatement::takeAll() {
  parked_ = std::make_unique<RowStore>(answer_.columns());
  next_ = 0;
  state_ = State::Parked;
  try {
    Answer row;
    while ((row = engine_.link().next()).isRow()) addRow(*parked_, row, 0);
  } catch (...) {
    failure_ = std::current_exception();
  }
}

void PostgresStatement::addRow(RowStore& rows, const Answer& from, int row) {
  if (types_.empty())
    for (int i = 0; i < from.columns(); ++i) types_.push_back(PQftype(from.get(), i));
  const int columns = static_cast<int>(types_.size());
  rows.beginRow();
  for (int i = 0; i < rows.width(); ++i) {
    const std::string_view cell = i < columns ? from.text(row, i) : std::string_view();
    if (cell.empty() && (i >= columns || from.isNull(row, i)))
      rows.addNull();
    else
      addCell(rows, types_[static_cast<std::size_t>(i)], cell);
  }
  rows.endRow();
}

void PostgresStatement::read(RowStore& rows) {
  if (state_ == State::Streaming) return addRow(rows, current_, 0);
  if (state_ == State::Begun) return addRow(rows, answer_, row_);
  rows.beginRow();
  for (int i = 0; i < rows.width(); ++i) addValue(rows, parked_->at(next_ - 1, i));
  rows.endRow();
}

/// What is still to come is not wanted any more.
void PostgresStatement::giveBack() {
  try {
    while (engine_.link().next().isRow()) {
    }
  } catch (const Error&) {
    // Nobody asked for it.
  }
  state_ = State::Begun;
}

void PostgresStatement::reset() {
  if (state_ == State::Streaming) giveBack();
  state_ = State::Bound;
  answer_ = Answer();
  current_ = Answer();
  types_.clear();
  parked_ = nullptr;
  failure_ = nullptr;
  texts_.clear();
  wide_ = false;
}

}  // namespace fidaleon::store
