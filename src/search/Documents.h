#pragma once
// What the index keeps of an entry, and under which marks the entry is found.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "search/Entry.h"

namespace fidaleon::search {

using WordId = std::uint32_t;  // counts from 1; 0 is a word that the index does not have

/// The texts of an entry as numbers: of names and places the words, of towns, books and folios
/// their own numbers, of days "yyyyMMdd".
struct Document {
  Register in = Register::Baptism;
  std::int32_t key = 0;
  std::uint64_t digest = 0;
  std::vector<std::pair<Field, std::vector<std::uint32_t>>> fields;

  const std::vector<std::uint32_t>& numbers(Field field) const;
};

/// What is looked up: a number, and what it means there.
enum class Mark : std::uint8_t {
  OfSubject,  // a word of those whom the entry is about
  OfOthers,   // a word of the others that it names
  Place,      // a word
  Town,
  Book,  // of a register: see bookNumber()
  Institution,
  Year,
  Folio,
  Kind,
};
using MarkId = std::uint64_t;

constexpr MarkId markId(Mark mark, std::uint32_t number) {
  return (static_cast<MarkId>(number) << 4) | static_cast<MarkId>(mark);
}
constexpr std::uint32_t bookNumber(Register in, std::int64_t book) {
  return static_cast<std::uint32_t>(book) * 4 + static_cast<std::uint32_t>(in);
}

/// Gives each word of a text its number.
using WordsOf = std::function<std::vector<WordId>(const std::string& text)>;
Document documentOf(const Entry& entry, const WordsOf& words);
/// Each mark once, in order.
std::vector<MarkId> marksOf(const Document& document);

std::string packed(const Document& document);
/// False when it is no packed document.
bool unpack(std::string_view bytes, Document& document);

}  // namespace fidaleon::search
