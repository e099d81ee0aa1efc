#include "search/Documents.h"

#include <algorithm>

#include "text/Dates.h"

namespace fidaleon::search {
namespace {

void pack(std::string& bytes, std::uint32_t number) {
  for (; number >= 0x80; number >>= 7) bytes += static_cast<char>(number | 0x80);
  bytes += static_cast<char>(number);
}

bool unpack(std::string_view& bytes, std::uint32_t& number) {
  number = 0;
  for (int shift = 0; shift < 35 && !bytes.empty(); shift += 7) {
    const auto byte = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    number |= static_cast<std::uint32_t>(byte & 0x7f) << shift;
    if (byte < 0x80) return true;
  }
  return false;
}

Mark markOf(Field field) {
  switch (field) {
    case Field::Place:
      return Mark::Place;
    case Field::Town:
      return Mark::Town;
    case Field::Book:
      return Mark::Book;
    case Field::Institution:
      return Mark::Institution;
    case Field::Folio:
      return Mark::Folio;
    case Field::Day:
    case Field::Born:
      return Mark::Year;
    case Field::Kind:
      return Mark::Kind;
    default:
      return whoOf(field) <= Who::Bride ? Mark::OfSubject : Mark::OfOthers;
  }
}

std::vector<std::uint32_t> kindsOf(const Entry& entry) {
  std::vector<std::uint32_t> kinds{static_cast<std::uint32_t>(entry.in)};
  const auto add = [&](bool is, Kinds kind) {
    if (is) kinds.push_back(static_cast<std::uint32_t>(kind));
  };
  add(entry.isRequest(), Kinds::Request);
  add(entry.isAnnulled(), Kinds::Annulled);
  add(entry.number(Field::Collaborator) != 0, Kinds::Collaborator);
  return kinds;
}

std::uint32_t numberOf(const Entry& entry, Field field, const std::string& text) {
  if (field == Field::Day || field == Field::Born)
    return static_cast<std::uint32_t>(text::parseStored(text) ? std::stol(text) : 0);
  const std::int64_t number = entry.number(field);
  if (field == Field::Book && number != 0) return bookNumber(entry.in, number);
  return number > 0 ? static_cast<std::uint32_t>(number) : 0;
}

}  // namespace

const std::vector<std::uint32_t>& Document::numbers(Field field) const {
  static const std::vector<std::uint32_t> NONE;
  for (const auto& [is, numbers] : fields)
    if (is == field) return numbers;
  return NONE;
}

Document documentOf(const Entry& entry, const WordsOf& words) {
  Document d{entry.in, entry.key, entry.digest, {}};
  std::vector<std::uint32_t> towns;
  for (const auto& [field, text] : entry.texts) {
    if (field >= Field::Number) continue;
    if (isName(field) || field == Field::Place) {
      if (auto ids = words(text); !ids.empty()) d.fields.emplace_back(field, std::move(ids));
    } else if (field == Field::Town) {
      if (const auto town = static_cast<std::uint32_t>(std::atoi(text.c_str())); town != 0)
        towns.push_back(town);
    } else if (const std::uint32_t number = numberOf(entry, field, text); number != 0) {
      d.fields.push_back({field, {number}});
    }
  }
  if (!towns.empty()) d.fields.emplace_back(Field::Town, std::move(towns));
  d.fields.emplace_back(Field::Kind, kindsOf(entry));
  return d;
}

std::vector<MarkId> marksOf(const Document& document) {
  std::vector<MarkId> marks;
  for (const auto& [field, numbers] : document.fields)
    for (const std::uint32_t number : numbers) {
      const Mark mark = markOf(field);
      marks.push_back(markId(mark, mark == Mark::Year ? number / 10000 : number));
    }
  std::sort(marks.begin(), marks.end());
  marks.erase(std::unique(marks.begin(), marks.end()), marks.end());
  return marks;
}

std::string packed(const Document& document) {
  std::string bytes;
  for (const auto& [field, numbers] : document.fields) {
    bytes += static_cast<char>(field);
    pack(bytes, static_cast<std::uint32_t>(numbers.size()));
    for (const std::uint32_t number : numbers) pack(bytes, number);
  }
  return bytes;
}

bool unpack(std::string_view bytes, Document& document) {
  document.fields.clear();
  while (!bytes.empty()) {
    const auto field = static_cast<Field>(bytes.front());
    bytes.remove_prefix(1);
    std::uint32_t count = 0;
    if (!unpack(bytes, count) || count > bytes.size()) return false;
    std::vector<std::uint32_t> numbers(count);
    for (std::uint32_t& number : numbers)
      if (!unpack(bytes, number)) return false;
    document.fields.emplace_back(field, std::move(numbers));
  }
  return true;
}

}  // namespace fidaleon::search
