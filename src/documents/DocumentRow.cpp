#include "documents/DocumentRow.h"

#include <algorithm>
#include <map>

#include "core/statements/Citas.h"
#include "text/Numbers.h"
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
  if (quoting == Quoting::None)
    statement += value;
  else
    citarEn(statement, value, quoting == Quoting::Single ? '\'' : '"');
}

/// 0 for a text that is no number: nothing is found by it.
std::int32_t keyIn(const std::string& text) {
  return static_cast<std::int32_t>(text::toInteger(text).value_or(0));
}

class RecordsetSource : public FieldSource {
 public:
  explicit RecordsetSource(const store::Recordset& records) : records_(records) {
    for (int i = 0; i < records.FieldCount(); ++i) places_.emplace(records.FieldName(i), i);
  }
  std::string text(std::string_view name) const override { return records_.text(name); }
  std::int64_t integer(std::string_view name) const override { return records_.integer(name); }
  /// A name that the record set spells or qualifies in another way comes last: it knows it all the
  /// same.
  int place(std::string_view name) const override {
    const auto found = places_.find(name);
    return found == places_.end() ? records_.FieldCount() : found->second;
  }

 private:
  const store::Recordset& records_;
  std::map<std::string, int, std::less<>> places_;
};

}  // namespace

RowStatements::RowStatements(const DocumentKind& kind, const Signature& signature, Lookups& lookups,
                             const store::Recordset& entry)
    : kind_(kind),
      signature_(signature),
      lookups_(lookups),
      ofRecordset_(std::make_unique<RecordsetSource>(entry)),
      entry_(*ofRecordset_) {
  resolveColumns();
}

RowStatements::RowStatements(const DocumentKind& kind, const Signature& signature, Lookups& lookups,
                             const FieldSource& entry)
    : kind_(kind), signature_(signature), lookups_(lookups), entry_(entry) {
  resolveColumns();
}

void RowStatements::resolveColumns() {
  writeHead();
  columns_.reserve(kind_.columns.size());
  fields_.reserve(kind_.columns.size());
  for (const Column& column : kind_.columns) {
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

void RowStatements::orderFields() {
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    fields_[i].place = entry_.place(fields_[i].name);
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
    case Source::PrintablePaddedNotes:
      return paddedNotes(ValorImprimible(field.text));
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
    case Source::TownOrText:
      return ValorImprimible(text::toInteger(field.text) ? lookups_.town(keyIn(field.text))
                                                         : field.text);
    case Source::ProvinceIfKey:
      return ValorImprimible(lookups_.province(keyIn(field.text)));
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
