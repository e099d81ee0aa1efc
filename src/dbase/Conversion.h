#pragma once

#include <string>
#include <string_view>

#include "dbase/CodePage.h"
#include "dbase/Header.h"
#include "dbase/Memos.h"
#include "dbase/Row.h"

namespace fidaleon::dbase {

/// What the bytes of a column mean. Their text goes behind that of the columns before.
class Conversion {
 public:
  /// All must outlive it; there may be no memos.
  Conversion(const CodePage& codePage, Memos* memos) : codePage_(codePage), memos_(memos) {}

  /// The cell tells the length of its text; where that lies is not sure before the row is complete.
  /// In Spanish what is doubtful about the value; null when all is well. Throws Error.
  const char* convert(const Field& field, std::string_view bytes, std::string& texts, Cell& cell);

 private:
  using Convert = const char* (Conversion::*)(const Field&, std::string_view, std::string&, Cell&);
  struct Kind {
    char letter;
    Convert convert;
  };
  static const Kind KINDS[];

  const char* text(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* number(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* date(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* logical(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* memo(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* whole(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* money(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* moment(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* binary(const Field&, std::string_view bytes, std::string& texts, Cell& cell);
  const char* put(std::string_view bytes, std::string& texts, Cell& cell) const;

  const CodePage& codePage_;
  Memos* memos_;
  std::string unbroken_;
};

}  // namespace fidaleon::dbase
