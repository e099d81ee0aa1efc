#include "documents/DocumentRow.h"

#include "core/contract/EnSacramento.h"
#include "text/Utf8.h"

namespace fidaleon::documents {

namespace {

std::string valueOf(const Column& column, const DocumentKind& kind, const store::Recordset& entry,
                    const Signature& signature, Lookups& lookups) {
  const auto field = [&] { return entry.text(column.field); };
  const auto municipality = [&] { return static_cast<std::int32_t>(entry.integer(column.field)); };
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
      return lookups.shortDate(field());
    case Source::LongDate:
      return lookups.longDate(field(), kind.wording);
    case Source::LongDateMenorca:
      return lookups.longDate(field(), Wording::Menorca);
    case Source::Town:
      return ValorImprimible(lookups.town(municipality()));
    case Source::Province:
      return ValorImprimible(lookups.province(municipality()));
    case Source::ChildWord:
      return kind.words->child(field());
    case Source::BornWord:
      return kind.words->born(field());
    case Source::FormOfAddress:
      return formOfAddress(field());
    case Source::Keeper:
      return signature.keeper;
    case Source::IssueShort:
      return lookups.shortDate(signature.date);
    case Source::IssueLong:
      return lookups.longDate(signature.date, kind.wording);
    case Source::IssueMenorca:
      return lookups.longDate(signature.date, Wording::Menorca);
  }
  return {};
}

}  // namespace

std::string insertStatement(const DocumentKind& kind, const store::Recordset& entry,
                            const Signature& signature, Lookups& lookups) {
  std::string names;
  std::string values;
  for (const Column& column : kind.columns) {
    const char* separator = names.empty() ? "" : ",";
    const std::string value = valueOf(column, kind, entry, signature, lookups);
    names += separator;
    names += column.name;
    values += separator;
    values += column.quoting == Quoting::Single ? singleQuoted(value) : entreComillas(value);
  }
  return std::string("INSERT INTO ") + kind.table + " (" + names + ") VALUES (" + values + ")";
}

}  // namespace fidaleon::documents
