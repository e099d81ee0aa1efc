#include "documents/DocumentRow.h"

#include "text/Utf8.h"

namespace fidaleon::documents {

namespace {

std::int32_t municipality(const store::Recordset& record, const Column& column) {
  return static_cast<std::int32_t>(record.integer(column.field));
}

void appendQuoted(std::string& statement, const std::string& value, Quoting quoting) {
  if (quoting == Quoting::Single) {
    statement += singleQuoted(value);
    return;
  }
  statement += '"';
  statement += value;
  statement += '"';
}

}  // namespace

RowStatements::RowStatements(const DocumentKind& kind, const Signature& signature, Lookups& lookups)
    : kind_(kind), signature_(signature), lookups_(lookups) {
  statement_ = std::string("INSERT INTO ") + kind.table + " (";
  const char* separator = "";
  for (const Column& column : kind.columns) {
    statement_ += separator;
    statement_ += column.name;
    separator = ", ";
  }
  statement_ += ") VALUES (";
  head_ = statement_.size();
}

const std::string& RowStatements::of(const store::Recordset& entry) {
  statement_.resize(head_);
  for (const Column& column : kind_.columns) {
    if (statement_.size() != head_) statement_ += ',';
    appendQuoted(statement_, valueOf(column, entry), column.quoting);
  }
  statement_ += ')';
  return statement_;
}

std::string RowStatements::valueOf(const Column& column, const store::Recordset& entry) {
  const auto field = [&] { return entry.text(column.field); };
  switch (column.source) {
    case Source::Stored:
      return field();
    case Source::Printable:
      return ValorImprimible(field());
    case Source::PrintableUpper:
      return ValorImprimible(text::upper(field()));
    case Source::DashesIfEmpty:
      return field().empty() ? BLANK : field();
    case Source::PaddedNotes:
      return paddedNotes(field());
    case Source::ShortDate:
      return lookups_.shortDate(field());
    case Source::LongDate:
      return lookups_.longDate(field(), kind_.wording);
    case Source::LongDateMenorca:
      return lookups_.longDate(field(), Wording::Menorca);
    case Source::Town:
      return ValorImprimible(lookups_.town(municipality(entry, column)));
    case Source::Province:
      return ValorImprimible(lookups_.province(municipality(entry, column)));
    case Source::ChildWord:
      return kind_.words->child(field());
    case Source::BornWord:
      return kind_.words->born(field());
    case Source::FormOfAddress:
      return formOfAddress(field());
    case Source::Year:
      return text::left(field(), 4);
    case Source::Initial:
      return initial(field());
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
      return ValorImprimible(lookups_.town(municipality(*signature_.institution, column)));
    case Source::InstitutionProvince:
      return ValorImprimible(lookups_.province(municipality(*signature_.institution, column)));
  }
  return {};
}

std::string insertStatement(const DocumentKind& kind, const store::Recordset& entry,
                            const Signature& signature, Lookups& lookups) {
  return RowStatements(kind, signature, lookups).of(entry);
}

}  // namespace fidaleon::documents
