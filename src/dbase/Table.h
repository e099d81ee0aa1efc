#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dbase/CodePage.h"
#include "dbase/Conversion.h"
#include "dbase/Error.h"
#include "dbase/Header.h"
#include "dbase/Memos.h"
#include "dbase/Row.h"

namespace fidaleon::dbase {

/// Something in a table that may not be what somebody typed.
struct Doubt {
  std::int64_t record = 0;  // from 1, deleted ones counted; 0: the table as a whole
  std::string column;       // empty: the record or the table as a whole
  std::string what;         // in Spanish, the end of a sentence

  /// "Registro 7, columna FECHA: no es una fecha («19410231»)."
  std::string sentence() const;
};

/// The rows of a table of dBase III, dBase IV, FoxPro or Visual FoxPro, one after the other. What
/// it needs of memory does not grow with the table. What is damaged is either refused (Error) or
/// told as a Doubt; a value that cannot be read is missing then. Nothing is ever written.
class Table {
 public:
  using Told = std::function<void(const Doubt&)>;
  /// The files of a table. `memos` may be none where no column needs any.
  struct Files {
    std::unique_ptr<Bytes> table;
    std::unique_ptr<Bytes> memos;
    Memos::Kind kind = Memos::Kind::Signed;
    std::string codePage;  // what the file beside it says; empty: there is none
  };

  /// `codePage` as CodePage::named takes it; empty: by the header, else by the .cpg file, else 850.
  /// Throws Error, also for a code page that nobody knows.
  Table(Files files, const std::string& codePage, Told told);
  /// A table by its name and what belongs to it in the same folder, in any case of the letters.
  static Table open(const std::filesystem::path& file, const std::string& codePage, Told told);

  Table(Table&&) noexcept;
  ~Table();

  const std::vector<Field>& fields() const;
  /// Its place among the fields, without regard to case.
  std::optional<std::size_t> find(std::string_view column) const;
  const std::string& codePage() const;
  /// As the header says; the file may hold more or fewer.
  std::int64_t announced() const;

  /// The next row that is not deleted; false at the end. Throws Error when the file cannot be read.
  bool next(Row& row);
  /// Any record by its number, deleted or not, out of the turn of next(); false when there is none.
  bool at(std::int64_t record, Row& row);
  /// From now on the other columns are not looked at, and are missing.
  void only(const std::vector<std::size_t>& columns);
  /// Deleted ones met so far.
  std::int64_t deleted() const;

 private:
  struct Reader;
  std::unique_ptr<Reader> reader_;
};

}  // namespace fidaleon::dbase
