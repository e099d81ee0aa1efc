#pragma once

#include <string>

#include "documents/Columns.h"
#include "documents/Lookups.h"
#include "documents/TextRules.h"
#include "store/Recordset.h"

namespace fidaleon::documents {

/// A kind of document: the table its rows go to, and how each column comes about.
struct DocumentKind {
  const char* member;  // as errors name it
  const char* table;
  Wording wording;
  const GenderWords* words;  // null where no column asks for them
  Columns columns;
};

/// Who signs, the date of issue as "yyyymmdd", and the institution that issues the document where
/// columns ask for it; the record set is not owned.
struct Signature {
  std::string keeper;
  std::string date;
  const store::Recordset* institution = nullptr;
};

/// The INSERTs of one run. What does not change from row to row is worked out once.
class RowStatements {
 public:
  /// All must outlive this object.
  RowStatements(const DocumentKind& kind, const Signature& signature, Lookups& lookups);

  /// The INSERT that carries the current row of `entry` into the document's table; stands until
  /// the next call.
  const std::string& of(const store::Recordset& entry);

 private:
  std::string valueOf(const Column& column, const store::Recordset& entry);

  const DocumentKind& kind_;
  const Signature& signature_;
  Lookups& lookups_;
  std::string statement_;
  std::size_t head_;  // bytes of the statement that are the same for all rows
};

/// The INSERT of a document of one row.
std::string insertStatement(const DocumentKind& kind, const store::Recordset& entry,
                            const Signature& signature, Lookups& lookups);

}  // namespace fidaleon::documents
