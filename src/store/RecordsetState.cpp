#include "store/RecordsetState.h"

#include <algorithm>
#include <limits>

#include "store/Error.h"
#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

constexpr auto kAll = std::numeric_limits<std::int64_t>::max();

bool sameName(std::string_view a, std::string_view b) {
  return a == b || text::equalsNoCase(a, b);
}

}  // namespace

WayBack::WayBack(Engine& e, const std::vector<Literal>& bound) : engine(e), values(bound) {
  for (Literal& value : values)
    if (value.kind == Literal::Kind::Text) value.text = texts.emplace_back(value.text);
}

void OpenRecordsets::remove(RecordsetState& set) {
  std::erase(sets_, &set);
}

void OpenRecordsets::drain() {
  while (!sets_.empty()) sets_.back()->drain();
}

void OpenRecordsets::abandon() {
  while (!sets_.empty()) sets_.back()->abandon();
}

RecordsetState::RecordsetState(std::shared_ptr<Plan> plan, std::unique_ptr<Statement> statement,
                               OpenRecordsets& open)
    : plan_(std::move(plan)),
      statement_(std::move(statement)),
      open_(open),
      rows_(static_cast<int>(plan_->columns().size())) {
  open_.add(*this);
}

RecordsetState::~RecordsetState() {
  finish();
}

/// Gives the statement back, and with it the engine's read lock.
void RecordsetState::finish() {
  if (statement_ == nullptr) return;
  plan_->giveBack(std::move(statement_));
  open_.remove(*this);
  back_ = nullptr;
}

bool RecordsetState::step(std::int64_t rows) {
  if (failure_ != nullptr) std::rethrow_exception(failure_);
  if (statement_ == nullptr) return false;
  try {
    while (rows_.rows() < rows) {
      if (!statement_->step()) {
        finish();
        settle();
        return false;
      }
      statement_->read(rows_);
    }
  } catch (...) {
    failure_ = std::current_exception();
    finish();
    throw;
  }
  return true;
}

/// An error met here belongs to whoever reads on, not to the statement that made us drain.
void RecordsetState::drain() {
  try {
    fetch(kAll);
  } catch (const Error&) {
    finish();
  }
}

void RecordsetState::abandon() {
  statement_ = nullptr;
  back_ = nullptr;
  open_.remove(*this);
}

/// All rows are there: the last one is no longer a row apart.
void RecordsetState::settle() {
  if (!onLast()) return;
  position_ = rows_.rows() - 1;
  last_ = nullptr;
}

std::int64_t RecordsetState::position() {
  if (onLast()) count();
  return position_;
}

bool RecordsetState::atEnd() {
  return !onLast() && position_ >= 0 && !fetch(position_ + 1);
}

bool RecordsetState::atBegin() {
  return !onLast() && (position_ < 0 || !fetch(1));
}

std::int64_t RecordsetState::count() {
  fetch(kAll);
  return rows_.rows();
}

void RecordsetState::moveTo(std::int64_t row) {
  const bool past = row > 0 && row > position_ && atEnd();
  if (row < -1 || past || (row != -1 && !fetch(1))) {
    throw Error(ErrorKind::Misuse, "No hay más registros en esa dirección.");
  }
  position_ = row;
  last_ = nullptr;
}

void RecordsetState::moveLast() {
  if (onLast() || readLast()) return;
  const std::int64_t rows = count();
  moveTo(rows == 0 ? 0 : rows - 1);
}

void RecordsetState::keepWayBack(Engine& engine, const std::vector<Literal>& values) {
  if (statement_ != nullptr && plan_->hasOrder()) back_ = std::make_unique<WayBack>(engine, values);
}

/// The statement that is still open keeps the engine to one state of the data, so that both see
/// the same rows.
bool RecordsetState::readLast() {
  Plan* plan = back_ != nullptr ? plan_->backwards(back_->engine) : nullptr;
  if (plan == nullptr) return false;
  auto statement = plan->lend(back_->engine);
  auto row = std::make_unique<RowStore>(columnCount());
  try {
    int number = 0;
    for (const Literal& value : back_->values) statement->bind(++number, value, Lifetime::Brief);
    if (statement->step()) statement->read(*row);
  } catch (...) {
    plan->giveBack(std::move(statement));
    throw;
  }
  plan->giveBack(std::move(statement));
  if (row->rows() == 0) return false;
  last_ = std::move(row);
  position_ = kAll;
  return true;
}

const Plan::ResultColumn& RecordsetState::column(int position) const {
  if (position < 0 || position >= columnCount()) {
    throw Error(ErrorKind::UnknownName,
                "No existe el campo número " + std::to_string(position) + ".");
  }
  return plan_->columns()[static_cast<std::size_t>(position)];
}

bool RecordsetState::matches(int position, std::string_view name) const {
  return sameName(plan_->columns()[static_cast<std::size_t>(position)].name, name);
}

int RecordsetState::search(std::string_view name) {
  const int count = columnCount();
  for (int i = 0; i < count; ++i) {
    if (!matches(i, name)) continue;
    expected_ = static_cast<std::size_t>(i) + 1;
    return i;
  }
  if (const auto dot = name.find('.'); dot != std::string_view::npos) {
    for (int i = 0; i < count; ++i) {
      if (matches(i, name.substr(dot + 1)) &&
          sameName(plan_->columns()[static_cast<std::size_t>(i)].table, name.substr(0, dot))) {
        return i;
      }
    }
  }
  throw Error(ErrorKind::UnknownName, "No existe el campo «" + std::string(name) + "».");
}

RecordsetState::Here RecordsetState::reached(int position) {
  column(position);
  if (onLast()) return {*last_, 0};
  if (position_ < 0 || !fetch(position_ + 1))
    throw Error(ErrorKind::Misuse, "No hay ningún registro en curso.");
  return {rows_, position_};
}

}  // namespace fidaleon::store
