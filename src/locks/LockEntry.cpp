#include "locks/LockEntry.h"

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

std::string oneField(std::string_view s) {
  std::string field(s);
  for (char& c : field)
    if (c == '\t' || c == '\n' || c == '\r') c = ' ';
  return field + '\t';
}

std::vector<std::string_view> split(std::string_view s, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = s.find(separator);
    parts.push_back(s.substr(0, end));
    if (end == std::string_view::npos) return parts;
    s.remove_prefix(end + 1);
  }
}

template <class Number>
bool parse(std::string_view s, Number& n) {
  const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), n);
  return error == std::errc() && end == s.data() + s.size();
}

std::string encodeLine(const HeldEntry& held) {
  const std::string line = std::string(1, KIND_LETTERS[static_cast<std::size_t>(held.entry.kind)]) +
                           '\t' + oneField(held.entry.table) + oneField(held.entry.record) +
                           oneField(std::to_string(held.entry.counter)) +
                           oneField(held.holder.user) + oneField(held.holder.host) +
                           oneField(std::to_string(held.holder.process)) +
                           oneField(held.holder.since);
  return line + std::to_string(checksum(line)) + '\n';
}

std::optional<HeldEntry> decodeLine(std::string_view line) {
  const std::vector<std::string_view> f = split(line, '\t');
  if (f.size() != FIELDS || f[0].size() != 1) return std::nullopt;
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

bool onRecord(Kind kind) {
  return kind == Kind::Record || kind == Kind::SharedRecord;
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
  for (const HeldEntry& held : entries) content += encodeLine(held);
  return content;
}

std::vector<HeldEntry> decode(std::string_view content) {
  std::vector<HeldEntry> entries;
  for (const std::string_view line : split(content, '\n'))
    if (auto held = decodeLine(line)) entries.push_back(std::move(*held));
  return entries;
}

}  // namespace fidaleon::locks
