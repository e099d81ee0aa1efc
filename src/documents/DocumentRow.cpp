#include "documents/DocumentRow.h"

#include <algorithm>

#include "core/statements/Citas.h"
#include "text/Utf8.h"

namespace fidaleon::documents {

namespace {

bool isTown(Source source) {
  return source == Source::Town || source == Source::Province;
}

/// The value is the same in every row of a run.
bool isFixed(Source source) {
  switch (source) {
    case Source::Keeper:
    case Source::IssueShort:
    case Source::IssueLong:
    case Source::IssueMenorca:
    case Source::InstitutionStored:
    case Source::InstitutionTown:
    case Source::InstitutionProvince:
      return true;
    default:
      return false;
  }
}

void appendQuoted(std::string& statement, const std::string& value, Quoting quoting) {
  citarEn(statement, value, quoting == Quoting::Single ? '\'' : '"');
}

}  // namespace

RowStatements::RowStatements(const DocumentKind& kind, const Signature& signature, Lookups& lookups,
                             const store::Recordset& entry)
    : kind_(kind), signature_(signature), lookups_(lookups), entry_(entry) {
  writeHead();
  columns_.reserve(kind.columns.size());
  fields_.reserve(kind.columns.size());
  for (const Column& column : kind.columns) {
    Filled& filled = columns_.emplace_back(Filled{&column, NO_FIELD, NO_FIELD, {}});
    if (isFixed(column.source)) {
      appendQuoted(filled.fixed, fixedValue(column), column.quoting);
      continue;
    }
    filled.field = fieldOf(column.field, isTown(column.source));
    filled.until = *column.until ? fieldOf(column.until, false) : filled.field;
  }
  orderFields();
}

void RowStatements::writeHead() {
  statement_ = std::string("INSERT INTO ") + kind_.table + " (";
  const char* separator = "";
  for (const Column& column : kind_.columns) {
    statement_ += separator;
    statement_ += column.name;
    separator = ", ";
  }
  statement_ += ") VALUES (";
  head_ = statement_.size();
}

std::size_t RowStatements::fieldOf(const char* name, bool isKey) {
  // Columns that share a field mostly follow each other.
  for (std::size_t i = fields_.size(); i-- > 0;)
    if (fields_[i].isKey == isKey && fields_[i].name == name) return i;
  fields_.push_back({name, 0, isKey, {}, 0});
  return fields_.size() - 1;
}

/// A name that the record set spells or qualifies in another way comes last: it knows it all the
/// same.
void RowStatements::orderFields() {
  std::vector<std::pair<std::string, int>> places;
  for (int i = 0; i < entry_.FieldCount(); ++i) places.emplace_back(entry_.FieldName(i), i);
  std::stable_sort(places.begin(), places.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const auto found = std::lower_bound(
        places.begin(), places.end(), fields_[i].name,
        [](const auto& place, std::string_view name) { return place.first < name; });
    const bool known = found != places.end() && found->first == fields_[i].name;
    fields_[i].place = known ? found->second : entry_.FieldCount();
    inOrder_.push_back(i);
  }
  std::stable_sort(inOrder_.begin(), inOrder_.end(), [&](std::size_t a, std::size_t b) {
    return fields_[a].place < fields_[b].place;
  });
}

void RowStatements::readFields() {
  for (const std::size_t i : inOrder_) {
    Field& field = fields_[i];
    if (field.isKey)
      field.key = static_cast<std::int32_t>(entry_.integer(field.name));
    else
      field.text = entry_.text(field.name);
  }
}

const std::string& RowStatements::current() {
  readFields();
  statement_.resize(head_);
  for (const Filled& filled : columns_) {
    if (statement_.size() != head_) statement_ += ',';
    if (filled.field == NO_FIELD)
      statement_ += filled.fixed;
    else
      appendQuoted(statement_,
                   rowValue(*filled.column, fields_[filled.field], fields_[filled.until]),
                   filled.column->quoting);
  }
  statement_ += ')';
  return statement_;
}

std::string RowStatements::fixedValue(const Column& column) {
  const auto municipality = [&] {
    return static_cast<std::int32_t>(signature_.institution->integer(column.field));
  };
  switch (column.source) {
    case Source::Keeper:
      return signature_.keeper;
    case Source::IssueShort:
      return lookups_.shortDate(signature_.date);
    case Source::IssueLong:
      return lookups_.longDate(signature_.date, kind_.wording);
    case Source::IssueMenorca:
      return lookups_.longDate(signature_.date, Wording::Menorca);
    case Source::InstitutionStored:
      return signature_.institution->text(column.field);
    case Source::InstitutionTown:
      return ValorImprimible(lookups_.town(municipality()));
    case Source::InstitutionProvince:
      return ValorImprimible(lookups_.province(municipality()));
    default:
      return {};
  }
}

std::string RowStatements::rowValue(const Column& column, const Field& field, const Field& until) {
  switch (column.source) {
    case Source::Stored:
      return field.text;
    case Source::Printable:
      return ValorImprimible(field.text);
    case Source::PrintableUpper:
      return ValorImprimible(text::upper(field.text));
    case Source::DashesIfEmpty:
      return field.text.empty() ? BLANK : field.text;
    case Source::PaddedNotes:
      return paddedNotes(field.text);
    case Source::ShortDate:
      return lookups_.shortDate(field.text);
    case Source::LongDate:
      return lookups_.longDate(field.text, kind_.wording);
    case Source::LongDateMenorca:
      return lookups_.longDate(field.text, Wording::Menorca);
    case Source::LongDateSpanish:
      return lookups_.longDate(field.text, Wording::AlwaysSpanish);
    case Source::LongDateAndYear:
      return lookups_.longDate(field.text, Wording::YearInWords);
    case Source::AgeAt:
      return lookups_.age(field.text, until.text);
    case Source::AgeToday:
      return lookups_.ageToday(field.text);
    case Source::Town:
      return ValorImprimible(lookups_.town(field.key));
    case Source::Province:
      return ValorImprimible(lookups_.province(field.key));
    case Source::ChildWord:
      return kind_.words->child(field.text);
    case Source::BornWord:
      return kind_.words->born(field.text);
    case Source::FormOfAddress:
      return formOfAddress(field.text);
    case Source::Year:
      return text::left(field.text, 4);
    case Source::Initial:
      return initial(field.text);
    default:
      return {};
  }
}

std::string insertStatement(const DocumentKind& kind, const store::Recordset& entry,
                            const Signature& signature, Lookups& lookups) {
  return RowStatements(kind, signature, lookups, entry).current();
}

}  // namespace fidaleon::documents
