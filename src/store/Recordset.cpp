#include "store/Recordset.h"

#include "store/Error.h"
#include "store/RecordsetState.h"

namespace fidaleon::store {

namespace {

RecordsetState& opened(const std::shared_ptr<RecordsetState>& state) {
  if (state == nullptr) {
    throw Error(ErrorKind::Misuse, "El conjunto de registros está cerrado.");
  }
  return *state;
}

}  // namespace

Recordset::Recordset() = default;
Recordset::Recordset(std::shared_ptr<RecordsetState> state) : state_(std::move(state)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::EOF_() const {
  return opened(state_).atEnd();
}
bool Recordset::BOF() const {
  return opened(state_).atBegin();
}
std::int64_t Recordset::RecordCount() const {
  return opened(state_).count();
}

void Recordset::MoveFirst() {
  opened(state_).moveTo(0);
}

void Recordset::MoveLast() {
  opened(state_).moveLast();
}

void Recordset::MoveNext() {
  RecordsetState& state = opened(state_);
  state.moveTo(state.position() + 1);
}

void Recordset::MovePrevious() {
  RecordsetState& state = opened(state_);
  state.moveTo(state.position() - 1);
}

int Recordset::State() const {
  return state_ == nullptr ? 0 : 1;
}
void Recordset::Close() {
  state_ = nullptr;
}

int Recordset::FieldCount() const {
  return opened(state_).columnCount();
}
std::string Recordset::FieldName(int position) const {
  return opened(state_).column(position).name;
}

Field Recordset::Fields(std::string_view name) const {
  return Fields(opened(state_).find(name));
}

Field Recordset::Fields(int position) const {
  RecordsetState& state = opened(state_);
  return Field(state.column(position).name, state.value(position));
}

Value Recordset::value(std::string_view name) const {
  RecordsetState& state = opened(state_);
  return state.value(state.find(name));
}

std::string Recordset::text(std::string_view name) const {
  RecordsetState& state = opened(state_);
  return state.text(state.find(name));
}

std::int64_t Recordset::integer(std::string_view name) const {
  RecordsetState& state = opened(state_);
  return state.integer(state.find(name));
}

int Recordset::position(std::string_view name) const {
  return opened(state_).find(name);
}

std::string Recordset::text(int position) const {
  return opened(state_).text(position);
}

std::int64_t Recordset::integer(int position) const {
  return opened(state_).integer(position);
}

bool Recordset::flag(std::string_view name) const {
  return integer(name) != 0;
}

}  // namespace fidaleon::store
