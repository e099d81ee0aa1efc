#include "text/Utf8.h"

#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace fidaleon::text {

namespace {

constexpr UChar32 kReplacement = 0xFFFD;

bool isAscii(std::string_view s) {
  return std::all_of(s.begin(), s.end(), [](unsigned char c) { return c < 0x80; });
}

/// The next code point from byte `at`, which moves behind it.
UChar32 next(std::string_view s, std::int32_t& at) {
  UChar32 c = 0;
  U8_NEXT_OR_FFFD(s.data(), at, static_cast<std::int32_t>(s.size()), c);
  return c;
}

void append(std::string& out, UChar32 c) {
  char buffer[U8_MAX_LENGTH];
  std::int32_t size = 0;
  UBool failed = false;
  U8_APPEND(reinterpret_cast<std::uint8_t*>(buffer), size, U8_MAX_LENGTH, c, failed);
  if (failed) {
    append(out, kReplacement);
  } else {
    out.append(buffer, static_cast<std::size_t>(size));
  }
}

/// The byte where the code point number `n` begins; the size when there are fewer.
std::size_t byteOf(std::string_view s, std::size_t n) {
  std::int32_t at = 0;
  const auto end = static_cast<std::int32_t>(s.size());
  while (n-- > 0 && at < end) next(s, at);
  return static_cast<std::size_t>(at);
}

std::string valid(std::string_view s) {
  if (isAscii(s)) return std::string(s);
  std::string out;
  out.reserve(s.size());
  const auto end = static_cast<std::int32_t>(s.size());
  for (std::int32_t at = 0; at < end;) append(out, next(s, at));
  return out;
}

icu::UnicodeString toIcu(std::string_view s) {
  return icu::UnicodeString::fromUTF8(
      icu::StringPiece(s.data(), static_cast<std::int32_t>(s.size())));
}

std::string fromIcu(const icu::UnicodeString& u) {
  std::string out;
  u.toUTF8String(out);
  return out;
}

const UCollator* spanish() {
  static const UCollator* collator = [] {
    UErrorCode status = U_ZERO_ERROR;
    UCollator* c = ucol_open("es", &status);
    if (U_FAILURE(status)) throw std::runtime_error("No hay datos del orden alfabético español");
    ucol_setStrength(c, UCOL_SECONDARY);
    return c;
  }();
  return collator;
}

}  // namespace

std::size_t length(std::string_view s) {
  std::size_t n = 0;
  const auto end = static_cast<std::int32_t>(s.size());
  for (std::int32_t at = 0; at < end; ++n) next(s, at);
  return n;
}

std::string left(std::string_view s, std::size_t n) {
  return valid(s.substr(0, byteOf(s, n)));
}

std::string right(std::string_view s, std::size_t n) {
  const std::size_t all = length(s);
  return n >= all ? valid(s) : valid(s.substr(byteOf(s, all - n)));
}

std::string mid(std::string_view s, std::size_t start, std::size_t n) {
  const std::string_view rest = s.substr(byteOf(s, start));
  return n == std::string_view::npos ? valid(rest) : left(rest, n);
}

std::string trim(std::string_view s) {
  const auto first = s.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return valid(s.substr(first, s.find_last_not_of(' ') - first + 1));
}

std::string upper(std::string_view s) {
  return fromIcu(toIcu(s).toUpper(icu::Locale("es")));
}

std::string lower(std::string_view s) {
  return fromIcu(toIcu(s).toLower(icu::Locale("es")));
}

std::string foldCase(std::string_view s) {
  if (!isAscii(s)) return fromIcu(toIcu(s).foldCase());
  std::string out(s);
  for (char& c : out) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  }
  return out;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
  const auto same = [](char x, char y) {
    const auto low = [](char c) {
      return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    };
    return low(x) == low(y);
  };
  if (a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), same)) return true;
  if (isAscii(a) && isAscii(b)) return false;
  return foldCase(a) == foldCase(b);
}

std::string searchKey(std::string_view s) {
  if (isAscii(s)) return foldCase(s);
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
  if (U_FAILURE(status)) return foldCase(s);
  const icu::UnicodeString parts = nfd->normalize(toIcu(s).foldCase(), status);
  icu::UnicodeString bare;
  for (std::int32_t i = 0; i < parts.length(); i = parts.moveIndex32(i, 1)) {
    const UChar32 c = parts.char32At(i);
    if (u_charType(c) != U_NON_SPACING_MARK) bare.append(c);
  }
  return fromIcu(bare);
}

std::string replaceAll(std::string_view s, std::string_view what, std::string_view with) {
  if (what.empty()) return std::string(s);
  std::string out;
  std::size_t from = 0;
  for (auto at = s.find(what); at != std::string_view::npos; at = s.find(what, from)) {
    out.append(s, from, at - from).append(with);
    from = at + what.size();
  }
  return out.append(s, from);
}

namespace {

/// The order of a letter without accent, a digit, a blank or the end of a text among each other,
/// whatever the case; -1 for any other byte.
constexpr std::array<signed char, 256> PLAIN = [] {
  std::array<signed char, 256> order{};
  order.fill(-1);
  order[' '] = 1;
  for (int c = '0'; c <= '9'; ++c) order[static_cast<std::size_t>(c)] = static_cast<signed char>(c);
  for (int c = 'a'; c <= 'z'; ++c)
    order[static_cast<std::size_t>(c)] = order[static_cast<std::size_t>(c - 'a' + 'A')] =
        static_cast<signed char>(c);
  return order;
}();

int plain(std::string_view s, std::size_t at) {
  return at < s.size() ? PLAIN[static_cast<unsigned char>(s[at])] : 0;
}

/// What a letter is may depend on what follows it, as with an accent of its own.
bool standsAlone(std::string_view s, std::size_t at) {
  return at + 1 >= s.size() || static_cast<unsigned char>(s[at + 1]) < 0x80;
}

}  // namespace

int compare(std::string_view a, std::string_view b) {
  // Most texts differ first in plain letters or digits, and where they do the rest has no say.
  for (std::size_t i = 0;; ++i) {
    const int of = plain(a, i);
    const int other = plain(b, i);
    if (of == 0 && other == 0) return 0;
    if (of == other && of > 0) continue;
    if (of < 0 && other < 0 && a[i] == b[i]) continue;
    if (of < 0 || other < 0 || !standsAlone(a, i) || !standsAlone(b, i)) break;
    return of - other;
  }
  UErrorCode status = U_ZERO_ERROR;
  return ucol_strcollUTF8(spanish(), a.data(), static_cast<std::int32_t>(a.size()), b.data(),
                          static_cast<std::int32_t>(b.size()), &status);
}

std::string orderVersion() {
  UVersionInfo version;
  ucol_getVersion(spanish(), version);
  char buffer[U_MAX_VERSION_STRING_LENGTH];
  u_versionToString(version, buffer);
  return buffer;
}

std::string sanitized(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  const auto end = static_cast<std::int32_t>(s.size());
  for (std::int32_t at = 0; at < end;) {
    const UChar32 c = next(s, at);
    if (u_charType(c) != U_CONTROL_CHAR || c == '\t' || c == '\r' || c == '\n') append(out, c);
  }
  return out;
}

std::u32string toUtf32(std::string_view s) {
  std::u32string out;
  out.reserve(s.size());
  const auto end = static_cast<std::int32_t>(s.size());
  for (std::int32_t at = 0; at < end;) out.push_back(static_cast<char32_t>(next(s, at)));
  return out;
}

std::string toUtf8(std::u32string_view s) {
  std::string out;
  out.reserve(s.size());
  for (const char32_t c : s) append(out, static_cast<UChar32>(c));
  return out;
}

}  // namespace fidaleon::text
