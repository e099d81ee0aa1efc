#include "dbase/CodePage.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <vector>

namespace fidaleon::dbase {

namespace {

constexpr const char* REPLACEMENT = "\xEF\xBF\xBD";

struct Language {
  std::uint8_t from, to;  // language bytes
  int codePage;
};

/// The bytes that the makers of the format have given out. What they called the Macintosh's own is
/// 10000 and above.
constexpr Language LANGUAGES[] = {
    {0x01, 0x01, 437},  {0x02, 0x02, 850},   {0x03, 0x03, 1252},  {0x04, 0x04, 10000},
    {0x08, 0x08, 865},  {0x09, 0x09, 437},   {0x0A, 0x0A, 850},   {0x0B, 0x0B, 437},
    {0x0D, 0x0D, 437},  {0x0E, 0x0E, 850},   {0x0F, 0x0F, 437},   {0x10, 0x10, 850},
    {0x11, 0x11, 437},  {0x12, 0x12, 850},   {0x13, 0x13, 932},   {0x14, 0x14, 850},
    {0x15, 0x15, 437},  {0x16, 0x16, 850},   {0x17, 0x17, 865},   {0x18, 0x19, 437},
    {0x1A, 0x1A, 850},  {0x1B, 0x1B, 437},   {0x1C, 0x1C, 863},   {0x1D, 0x1D, 850},
    {0x1F, 0x1F, 852},  {0x22, 0x23, 852},   {0x24, 0x24, 860},   {0x25, 0x25, 850},
    {0x26, 0x26, 866},  {0x37, 0x37, 850},   {0x40, 0x40, 852},   {0x4D, 0x4D, 936},
    {0x4E, 0x4E, 949},  {0x4F, 0x4F, 950},   {0x50, 0x50, 874},   {0x57, 0x59, 1252},
    {0x64, 0x64, 852},  {0x65, 0x65, 866},   {0x66, 0x66, 865},   {0x67, 0x67, 861},
    {0x6A, 0x6A, 737},  {0x6B, 0x6B, 857},   {0x6C, 0x6C, 863},   {0x78, 0x78, 950},
    {0x79, 0x79, 949},  {0x7A, 0x7A, 936},   {0x7B, 0x7B, 932},   {0x7C, 0x7C, 874},
    {0x7D, 0x7D, 1255}, {0x7E, 0x7E, 1256},  {0x86, 0x86, 737},   {0x87, 0x87, 852},
    {0x88, 0x88, 857},  {0x96, 0x96, 10007}, {0x97, 0x97, 10029}, {0x98, 0x98, 10006},
    {0xC8, 0xC8, 1250}, {0xC9, 0xC9, 1251},  {0xCA, 0xCA, 1254},  {0xCB, 0xCB, 1253},
    {0xCC, 0xCC, 1257},
};

struct Alias {
  const char* name;
  const char* meant;
};

/// Programs that write "ISO 8859-1" or "ANSI" mean what Windows has under that name.
constexpr Alias ALIASES[] = {
    {"88591", "1252"},
    {"885915", "ISO-8859-15"},
    {"65001", "UTF-8"},
    {"10000", "macintosh"},
    {"ANSI", "1252"},
    {"OEM", "850"},
    {"10006", "x-mac-greek"},
    {"28591", "1252"},
    {"UTF8", "UTF-8"},
    {"28605", "ISO-8859-15"},
    {"10007", "x-mac-cyrillic"},
    {"LATIN1", "1252"},
    {"10029", "x-mac-centraleurroman"},
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Letters in upper case and digits, nothing between them.
std::string squeezed(std::string_view name) {
  std::string all;
  for (const char c : name) {
    if (c >= 'a' && c <= 'z') all += static_cast<char>(c - 'a' + 'A');
    if (isDigit(c) || (c >= 'A' && c <= 'Z')) all += c;
  }
  return all;
}

std::string canonical(std::string_view name) {
  std::string key = squeezed(name);
  for (const char* prefix : {"ISO", "ANSI", "OEM", "WINDOWS", "MSDOS", "DOS", "CP", "IBM"})
    if (key.starts_with(prefix) && key.size() > std::strlen(prefix))
      key.erase(0, std::strlen(prefix));
  for (const Alias& alias : ALIASES)
    if (key == alias.name) return alias.meant;
  return std::all_of(key.begin(), key.end(), isDigit) ? key : std::string(name);
}

bool isControl(unsigned c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

bool isLineOrTab(unsigned c) {
  return c == '\t' || c == '\r' || c == '\n';
}

/// Any byte of the eight that is no ordinary ASCII character.
bool hasSpecial(std::uint64_t eight) {
  constexpr std::uint64_t ones = 0x0101010101010101U;
  // 0x7F becomes 0x80 by the sum, and what is below 0x20 borrows.
  return ((eight | (eight + ones) | ((eight - ones * 0x20) & ~eight)) & (ones * 0x80)) != 0;
}

}  // namespace

void CodePage::Close::operator()(UConverter* converter) const {
  ucnv_close(converter);
}

CodePage::CodePage(std::string name, Converter converter)
    : name_(std::move(name)), converter_(std::move(converter)) {
  singleByte_ = ucnv_getMaxCharSize(converter_.get()) == 1;
  if (singleByte_) fillLetters();
}

std::optional<CodePage> CodePage::named(std::string_view name) {
  if (squeezed(name).starts_with("LDID")) {
    const std::string number = squeezed(name).substr(4);
    int language = 0;
    std::from_chars(number.data(), number.data() + number.size(), language);
    return language > 0 && language < 256 ? ofLanguage(static_cast<std::uint8_t>(language))
                                          : std::nullopt;
  }
  const std::string known = canonical(name);
  if (known.empty()) return std::nullopt;
  const std::string asked = isDigit(known[0]) ? "cp" + known : known;
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(asked.c_str(), &status));
  if (U_FAILURE(status)) return std::nullopt;
  // Whole runs are taken over as they are where they are plain, so plain must mean the same.
  UChar unicode[4] = {};
  ucnv_toUChars(converter.get(), unicode, 4, "Az", 2, &status);
  if (U_FAILURE(status) || unicode[0] != 'A' || unicode[1] != 'z') return std::nullopt;
  return CodePage(known, std::move(converter));
}

std::optional<CodePage> CodePage::ofLanguage(std::uint8_t language) {
  for (const Language& l : LANGUAGES)
    if (language >= l.from && language <= l.to) return named(std::to_string(l.codePage));
  return std::nullopt;
}

void CodePage::fillLetters() {
  for (unsigned i = 0; i < 256; ++i) {
    Letter& letter = letters_[i];
    UChar unicode[4] = {static_cast<UChar>(i)};
    UErrorCode status = U_ZERO_ERROR;
    const char byte = static_cast<char>(i);
    // Some tables turn the lowest half about where control characters are printed.
    if (i >= 0x80) ucnv_toUChars(converter_.get(), unicode, 4, &byte, 1, &status);
    letter.known = U_SUCCESS(status) && unicode[0] != 0xFFFD &&
                   (!isControl(unicode[0]) || isLineOrTab(unicode[0]));
    char utf8[8] = {};
    std::int32_t size = 0;
    if (letter.known) u_strToUTF8(utf8, sizeof utf8, &size, unicode, 1, &status);
    if (letter.known && size <= 3) {
      std::copy_n(utf8, 3, letter.utf8);
    } else {
      size = i < 0x80 ? 1 : 3;
      std::copy_n(i < 0x80 ? "   " : REPLACEMENT, 3, letter.utf8);
    }
    letter.size = static_cast<std::uint8_t>(size);
  }
}

bool CodePage::append(std::string_view bytes, std::string& to) const {
  std::size_t plain = 0;
  for (std::uint64_t eight = 0; plain + sizeof eight <= bytes.size(); plain += sizeof eight) {
    std::memcpy(&eight, bytes.data() + plain, sizeof eight);
    if (hasSpecial(eight)) break;
  }
  to.append(bytes.substr(0, plain));
  bytes.remove_prefix(plain);
  return singleByte_ ? appendLetters(bytes, to) : appendConverted(bytes, to);
}

bool CodePage::appendLetters(std::string_view bytes, std::string& to) const {
  bool known = true;
  const std::size_t before = to.size();
  to.resize(before + 3 * bytes.size());
  char* end = to.data() + before;
  for (const char c : bytes) {
    const Letter& letter = letters_[static_cast<unsigned char>(c)];
    std::memcpy(end, letter.utf8, 3);
    end += letter.size;
    known &= letter.known;
  }
  to.resize(static_cast<std::size_t>(end - to.data()));
  return known;
}

bool CodePage::appendConverted(std::string_view bytes, std::string& to) const {
  if (bytes.empty()) return true;
  UErrorCode status = U_ZERO_ERROR;
  std::vector<UChar> unicode(bytes.size() * 2 + 1);
  const std::int32_t length =
      ucnv_toUChars(converter_.get(), unicode.data(), static_cast<std::int32_t>(unicode.size()),
                    bytes.data(), static_cast<std::int32_t>(bytes.size()), &status);
  bool known = U_SUCCESS(status);
  for (std::int32_t i = 0; i < length && known; ++i) known = unicode[i] != 0xFFFD;
  for (std::int32_t i = 0; i < length; ++i) {
    if (!isControl(unicode[i]) || isLineOrTab(unicode[i])) continue;
    unicode[i] = ' ';
    known = false;
  }
  const std::size_t before = to.size();
  to.resize(before + static_cast<std::size_t>(length) * 3);
  std::int32_t size = 0;
  status = U_ZERO_ERROR;
  u_strToUTF8(to.data() + before, length * 3, &size, unicode.data(), length, &status);
  to.resize(before + static_cast<std::size_t>(U_SUCCESS(status) ? size : 0));
  return known && U_SUCCESS(status);
}

}  // namespace fidaleon::dbase
