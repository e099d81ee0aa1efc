#include "locks/LockEntry.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "text/Utf8.h"

namespace fidaleon::locks {

namespace {

constexpr std::string_view KIND_LETTERS = "TtRr";  // small: shared
constexpr std::size_t FIELDS = 9;

std::uint32_t checksum(std::string_view s) {
  std::uint32_t h = 2166136261u;
  for (const unsigned char c : s) h = (h ^ c) * 16777619u;
  return h;
}

void addField(std::string& line, std::string_view field) {
  for (const char c : field) line += c == '\t' || c == '\n' || c == '\r' ? ' ' : c;
  line += '\t';
}

/// What stands before the separator; `rest` goes on behind it.
std::string_view cut(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

template <class Number>
bool parse(std::string_view s, Number& n) {
  const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), n);
  return error == std::errc() && end == s.data() + s.size();
}

void addLine(std::string& content, const HeldEntry& held) {
  const std::size_t start = content.size();
  content += KIND_LETTERS[static_cast<std::size_t>(held.entry.kind)];
  content += '\t';
  addField(content, held.entry.table);
  addField(content, held.entry.record);
  addField(content, std::to_string(held.entry.counter));
  addField(content, held.holder.user);
  addField(content, held.holder.host);
  addField(content, std::to_string(held.holder.process));
  addField(content, held.holder.since);
  content += std::to_string(checksum(std::string_view(content).substr(start)));
  content += '\n';
}

std::optional<HeldEntry> decodeLine(std::string_view line) {
  if (std::ranges::count(line, '\t') != FIELDS - 1) return std::nullopt;
  std::array<std::string_view, FIELDS> f;
  std::string_view rest = line;
  for (std::string_view& field : f) field = cut(rest, '\t');
  if (f[0].size() != 1) return std::nullopt;
  const std::size_t kind = KIND_LETTERS.find(f[0]);
  std::uint32_t sum = 0;
  if (kind == std::string_view::npos || !parse(f[8], sum)) return std::nullopt;
  if (sum != checksum(line.substr(0, line.size() - f[8].size()))) return std::nullopt;
  HeldEntry held;
  held.entry = {static_cast<Kind>(kind), std::string(f[1]), std::string(f[2]), 0};
  held.holder = {std::string(f[4]), std::string(f[5]), 0, std::string(f[7])};
  if (!parse(f[3], held.entry.counter) || !parse(f[6], held.holder.process)) return std::nullopt;
  return held;
}

}  // namespace

bool conflict(const LockEntry& a, const LockEntry& b) {
  if (!text::equalsNoCase(a.table, b.table)) return false;
  if (a.kind == Kind::Table || b.kind == Kind::Table) return true;
  if (!onRecord(a.kind) || !onRecord(b.kind)) return false;
  if (a.kind == Kind::SharedRecord && b.kind == Kind::SharedRecord) return false;
  return a.record == b.record;
}

std::string encode(const std::vector<HeldEntry>& entries) {
  std::string content;
  for (const HeldEntry& held : entries) addLine(content, held);
  return content;
}

std::vector<HeldEntry> decode(std::string_view content) {
  std::vector<HeldEntry> entries;
  entries.reserve(static_cast<std::size_t>(std::ranges::count(content, '\n')));
  while (!content.empty())
    if (auto held = decodeLine(cut(content, '\n'))) entries.push_back(std::move(*held));
  return entries;
}

}  // namespace fidaleon::locks
