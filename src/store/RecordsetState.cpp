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
}

bool RecordsetState::fetch(std::int64_t rows) {
  if (rows_.rows() >= rows) return true;
  if (failure_ != nullptr) std::rethrow_exception(failure_);
  if (statement_ == nullptr) return false;
  try {
    while (rows_.rows() < rows) {
      if (!statement_->step()) {
        finish();
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
  open_.remove(*this);
}

bool RecordsetState::atEnd() {
  return position_ >= 0 && !fetch(position_ + 1);
}

bool RecordsetState::atBegin() {
  return position_ < 0 || !fetch(1);
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

int RecordsetState::find(std::string_view name) {
  const int count = columnCount();
  // Only a name that no earlier column has is surely the expected one.
  if (expected_ < count && plan_->columns()[static_cast<std::size_t>(expected_)].first &&
      matches(expected_, name)) {
    return expected_++;
  }
  for (int i = 0; i < count; ++i) {
    if (!matches(i, name)) continue;
    expected_ = i + 1;
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

const RowStore& RecordsetState::current(int position) {
  column(position);
  if (position_ < 0 || !fetch(position_ + 1)) {
    throw Error(ErrorKind::Misuse, "No hay ningún registro en curso.");
  }
  return rows_;
}

}  // namespace fidaleon::store
