#pragma once

#include <string>

#include "documents/Columns.h"
#include "documents/Lookups.h"
#include "documents/TextRules.h"
#include "store/Recordset.h"

namespace fidaleon::documents {

/// A kind of document: the table its rows go to, and how each column comes about.
struct DocumentKind {
  const char* member;  // of cInformes, as errors name it
  const char* table;
  Wording wording;
  const GenderWords* words;  // null where no column asks for them
  Columns columns;
};

/// Who signs, and the date of issue as "yyyymmdd".
struct Signature {
  std::string keeper;
  std::string date;
};

/// The INSERT that carries the current row of `entry` into the document's table.
std::string insertStatement(const DocumentKind& kind, const store::Recordset& entry,
                            const Signature& signature, Lookups& lookups);

}  // namespace fidaleon::documents
