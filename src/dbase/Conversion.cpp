#include "dbase/Conversion.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>

namespace fidaleon::dbase {

namespace {

constexpr std::string_view kBlanks(" \0", 2);

std::string_view withoutEnd(std::string_view s) {
  std::size_t size = s.size();
  while (size > 0 && (s[size - 1] == ' ' || s[size - 1] == '\0')) --size;
  return s.substr(0, size);
}

std::string_view trimmed(std::string_view s) {
  s = withoutEnd(s);
  return s.substr(std::min(s.find_first_not_of(kBlanks), s.size()));
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

int digits(std::string_view s) {
  int number = 0;
  for (const char c : s) number = number * 10 + (c - '0');
  return number;
}

void putDigits(std::string_view s, std::string& texts, Cell& cell) {
  cell.text = s;
  texts.append(s);
}

template <class Number>
void putNumber(Number n, std::string& texts, Cell& cell) {
  char room[32];
  const auto end = std::to_chars(room, room + sizeof room, n).ptr;
  putDigits({room, static_cast<std::size_t>(end - room)}, texts, cell);
}

std::int64_t littleEndian64(std::string_view bytes) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(littleEndian(bytes.substr(4))) << 32 |
                                   littleEndian(bytes));
}

/// The day that astronomers number so; only for 1 and what follows.
text::Date dayNumbered(std::int64_t number) {
  const std::int64_t a = number + 32044;
  const std::int64_t b = (4 * a + 3) / 146097;
  const std::int64_t c = a - 146097 * b / 4;
  const std::int64_t d = (4 * c + 3) / 1461;
  const std::int64_t e = c - 1461 * d / 4;
  const std::int64_t m = (5 * e + 2) / 153;
  return {static_cast<int>(100 * b + d - 4800 + m / 10), static_cast<int>(m + 3 - 12 * (m / 10)),
          static_cast<int>(e - (153 * m + 2) / 5 + 1)};
}

constexpr const char* NOT_A_NUMBER = "no es un número";
constexpr const char* NOT_A_DATE = "no es una fecha";

}  // namespace

const Conversion::Kind Conversion::KINDS[] = {
    {'C', &Conversion::text},   {'V', &Conversion::text},   {'N', &Conversion::number},
    {'F', &Conversion::number}, {'D', &Conversion::date},   {'L', &Conversion::logical},
    {'M', &Conversion::memo},   {'I', &Conversion::whole},  {'Y', &Conversion::money},
    {'T', &Conversion::moment}, {'B', &Conversion::binary}, {'G', &Conversion::memo},
    {'P', &Conversion::memo},   {'W', &Conversion::memo},   {'Q', &Conversion::binary},
};

const char* Conversion::convert(const Field& field, std::string_view bytes, std::string& texts,
                                Cell& cell) {
  cell = Cell();
  for (const Kind& kind : KINDS)
    if (kind.letter == field.letter) return (this->*kind.convert)(field, bytes, texts, cell);
  return nullptr;
}

const char* Conversion::put(std::string_view bytes, std::string& texts, Cell& cell) const {
  if (bytes.empty()) return nullptr;
  const std::size_t before = texts.size();
  const bool known = codePage_.append(bytes, texts);
  cell.kind = Cell::Kind::Text;
  cell.text = {texts.data() + before, texts.size() - before};
  return known ? nullptr : "tiene signos que su página de códigos no conoce";
}

const char* Conversion::text(const Field&, std::string_view bytes, std::string& texts, Cell& cell) {
  return put(withoutEnd(bytes), texts, cell);
}

const char* Conversion::number(const Field& field, std::string_view bytes, std::string& texts,
                               Cell& cell) {
  std::string_view s = trimmed(bytes);
  if (s.empty()) return nullptr;
  if (s.find_first_not_of('*') == std::string_view::npos)
    return "el número no cabía en su columna y se perdió";
  if (s[0] == '+') s.remove_prefix(1);
  const char* end = s.data() + s.size();
  const std::size_t first = s.starts_with('-') ? 1 : 0;
  if (first >= s.size() || (!isDigit(s[first]) && s[first] != '.')) return NOT_A_NUMBER;
  const auto integer = std::from_chars(s.data(), end, cell.integer);
  if (field.decimals == 0 && integer.ec == std::errc() && integer.ptr == end) {
    cell.kind = Cell::Kind::Integer;
    cell.real = static_cast<double>(cell.integer);
  } else {
    cell.integer = 0;
    const auto real = std::from_chars(s.data(), end, cell.real);
    if (real.ec != std::errc() || real.ptr != end) return NOT_A_NUMBER;
    cell.kind = Cell::Kind::Real;
  }
  putDigits(s, texts, cell);
  return nullptr;
}

const char* Conversion::date(const Field&, std::string_view bytes, std::string&, Cell& cell) {
  if (std::all_of(bytes.begin(), bytes.end(), isDigit)) {
    const text::Date day{digits(bytes.substr(0, 4)), digits(bytes.substr(4, 2)),
                         digits(bytes.substr(6, 2))};
    if (day == text::Date()) return nullptr;
    if (!text::isValid(day)) return NOT_A_DATE;
    cell.kind = Cell::Kind::Date;
    cell.date = day;
    return nullptr;
  }
  return trimmed(bytes).find_first_not_of("/-. ") == std::string_view::npos ? nullptr : NOT_A_DATE;
}

const char* Conversion::logical(const Field&, std::string_view bytes, std::string&, Cell& cell) {
  const char c = bytes[0];
  if (c == ' ' || c == '?' || c == '\0') return nullptr;
  const bool yes = std::strchr("TtYySs", c) != nullptr;
  if (!yes && std::strchr("FfNn", c) == nullptr) return "no es ni sí ni no";
  cell.kind = Cell::Kind::Logical;
  cell.integer = yes ? 1 : 0;
  return nullptr;
}

const char* Conversion::memo(const Field& field, std::string_view bytes, std::string& texts,
                             Cell& cell) {
  std::uint32_t block = 0;
  if (field.width == 4) {
    block = littleEndian(bytes);
  } else if (const std::string_view s = trimmed(bytes); !s.empty()) {
    const auto read = std::from_chars(s.data(), s.data() + s.size(), block);
    if (read.ec != std::errc() || read.ptr != s.data() + s.size())
      return "apunta fuera del archivo de los memos";
  }
  if (block == 0 || memos_ == nullptr) return nullptr;
  if (field.letter != 'M') return "es una imagen o un objeto, que no se lee";
  const Memos::Memo memo = memos_->read(block);
  if (!memo.isText) return "es una imagen o un objeto, que no se lee";
  std::string_view s = withoutEnd(memo.bytes);
  if (memos_->hasSoftBreaks() && s.find('\x8D') != std::string_view::npos) {
    // Where the editor broke a line the words go on.
    unbroken_.clear();
    for (std::size_t i = 0; i < s.size(); ++i) {
      const bool soft = s[i] == '\x8D' && i + 1 < s.size() && s[i + 1] == '\n';
      if (!soft) unbroken_ += s[i];
      if (soft && !unbroken_.ends_with(' ')) unbroken_ += ' ';
      if (soft) ++i;
    }
    s = unbroken_;
  }
  const char* doubt = put(s, texts, cell);
  return memo.doubt != nullptr ? memo.doubt : doubt;
}

const char* Conversion::whole(const Field&, std::string_view bytes, std::string& texts,
                              Cell& cell) {
  cell.kind = Cell::Kind::Integer;
  cell.integer = static_cast<std::int32_t>(littleEndian(bytes));
  cell.real = static_cast<double>(cell.integer);
  putNumber(cell.integer, texts, cell);
  return nullptr;
}

const char* Conversion::money(const Field&, std::string_view bytes, std::string& texts,
                              Cell& cell) {
  const std::int64_t n = littleEndian64(bytes);
  const std::uint64_t size =
      n < 0 ? 0 - static_cast<std::uint64_t>(n) : static_cast<std::uint64_t>(n);
  const std::string decimals = std::to_string(10000 + size % 10000);
  cell.kind = Cell::Kind::Real;
  cell.real = static_cast<double>(n) / 10000;
  putDigits((n < 0 ? "-" : "") + std::to_string(size / 10000) + "." + decimals.substr(1), texts,
            cell);
  return nullptr;
}

const char* Conversion::moment(const Field&, std::string_view bytes, std::string&, Cell& cell) {
  constexpr std::int64_t kFirst = 1721426, kLast = 5373484;  // of the years 1 and 9999
  const std::int64_t day = littleEndian(bytes);
  const std::int64_t milliseconds = littleEndian(bytes.substr(4));
  if ((day == 0 && milliseconds == 0) || bytes == "        ") return nullptr;
  if (day < kFirst || day > kLast || milliseconds >= 86400000) return NOT_A_DATE;
  cell.kind = Cell::Kind::Moment;
  cell.date = dayNumbered(day);
  cell.integer = milliseconds;
  return nullptr;
}

const char* Conversion::binary(const Field& field, std::string_view bytes, std::string& texts,
                               Cell& cell) {
  if (field.letter == 'B' && field.width == 10) return memo(field, bytes, texts, cell);
  if (field.letter == 'Q') return withoutEnd(bytes).empty() ? nullptr : "no es texto, y no se lee";
  cell.real = std::bit_cast<double>(littleEndian64(bytes));
  if (!std::isfinite(cell.real)) return NOT_A_NUMBER;
  cell.kind = Cell::Kind::Real;
  putNumber(cell.real, texts, cell);
  return nullptr;
}

}  // namespace fidaleon::dbase
