#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

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

/// Where the fields of a row come from, by the names that the columns give them.
class FieldSource {
 public:
  virtual ~FieldSource() = default;
  virtual std::string text(std::string_view name) const = 0;
  virtual std::int64_t integer(std::string_view name) const = 0;
  /// Fields are asked for in the order of their places.
  virtual int place(std::string_view) const { return 0; }
};

/// The INSERTs of one run over a record set. What does not change from row to row is worked out
/// once, and each field is read once a row, in the order in which the record set has it.
class RowStatements {
 public:
  /// All must outlive this object.
  RowStatements(const DocumentKind& kind, const Signature& signature, Lookups& lookups,
                const store::Recordset& entry);
  RowStatements(const DocumentKind& kind, const Signature& signature, Lookups& lookups,
                const FieldSource& entry);
  RowStatements(const RowStatements&) = delete;
  RowStatements& operator=(const RowStatements&) = delete;

  /// The INSERT that carries what the entry has now into the document's table; stands until the
  /// next call. Throws store::Error for a field that it does not have.
  const std::string& current();

 private:
  struct Field {
    std::string_view name;
    int place;   // in the entry
    bool isKey;  // of a municipality
    std::string text;
    std::int32_t key = 0;
  };
  void resolveColumns();
  void writeHead();
  /// The number of a field that a column takes.
  std::size_t fieldOf(const char* name, bool isKey);
  void orderFields();
  void readFields();
  std::string fixedValue(const Column& column);
  std::string rowValue(const Column& column, const Field& field, const Field& until);

  const DocumentKind& kind_;
  const Signature& signature_;
  Lookups& lookups_;
  std::unique_ptr<const FieldSource> ofRecordset_;  // only where the entry is a record set
  const FieldSource& entry_;
  static constexpr std::size_t NO_FIELD = static_cast<std::size_t>(-1);
  struct Filled {
    const Column* column;
    std::size_t field;  // none for what is the same in every row
    std::size_t until;
    std::string fixed;  // that, with its quotes
  };
  std::vector<Field> fields_;
  std::vector<std::size_t> inOrder_;
  std::vector<Filled> columns_;
  std::string statement_;
  std::size_t head_ = 0;  // bytes of the statement that are the same for all rows
};

/// The INSERT of a document of one row.
std::string insertStatement(const DocumentKind& kind, const store::Recordset& entry,
                            const Signature& signature, Lookups& lookups);

}  // namespace fidaleon::documents
