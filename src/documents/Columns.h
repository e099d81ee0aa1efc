#pragma once
// A document's row as data: which column takes which value, in the order of the statement.

#include <initializer_list>
#include <string_view>
#include <vector>

namespace fidaleon::documents {

/// How a column's value comes about; "field" is a field of the record set.
enum class Source {
  Stored,                // the field as it is, Null as empty
  Printable,             // the field through ValorImprimible
  PrintableUpper,        // the same in capitals
  DashesIfEmpty,         // the field, "---" when it is empty
  PaddedNotes,           // the field with its dotted line
  PrintablePaddedNotes,  // the same through ValorImprimible
  ShortDate,             // the date in the field, "dd/mm/yyyy"
  LongDate,              // in words, in the wording of the document
  LongDateMenorca,       // in words, in Catalan whatever the document's wording
  LongDateSpanish,       // in words, in Spanish whatever the document's wording
  LongDateAndYear,       // in Spanish, the year in words too
  AgeAt,                 // whole years from the date in the field to the one in `until`
  AgeToday,
  Town,           // name of the municipality whose key is in the field
  Province,       // name of its province
  TownOrText,     // the same where the field, a text, may hold the name itself
  ProvinceIfKey,  // and its province, "---" for such a name
  ChildWord,      // "al niño", "a la niña" and their like
  BornWord,       // "nacido", "nacida" and their like
  FormOfAddress,  // "D.", "Dª."
  Year,           // first four characters of the date in the field
  Initial,        // first letter of the field in capitals, leading blanks aside
  Keeper,         // who signs
  IssueShort,     // date of issue
  IssueLong,
  IssueMenorca,
  // The same of the institution that issues the document, where it is read by itself.
  InstitutionStored,
  InstitutionTown,
  InstitutionProvince,
};

/// Which quotes stand around the value in the statement.
enum class Quoting { Double, Single, None };

struct Column {
  const char* name;  // as the statement writes it, with brackets where it needs them
  Source source;
  const char* field = "";
  Quoting quoting = Quoting::Double;
  const char* until = "";  // AgeAt: the later date's field
};

using Columns = std::vector<Column>;

Columns joined(std::initializer_list<Columns> groups);
/// These lists are read like sentences: a name that is not in the list is a mistake of the caller
/// and throws std::logic_error.
Columns without(Columns columns, std::initializer_list<std::string_view> names);
Columns replacing(Columns columns, std::string_view name, const Column& by);
Columns insertingBehind(Columns columns, std::string_view name, const Column& added);
/// The columns of the institution are taken of the one that is read by itself.
Columns ofInstitution(Columns columns);

/// One line of an index. `libro` is the field of the book's name; `persona` are first surname,
/// second surname and name.
Columns indexLine(const char* libro, const Columns& persona);

}  // namespace fidaleon::documents
