#include "support/SettingsText.h"

#include <array>
#include <cstdio>
#include <optional>

#include "text/Utf8.h"

namespace fidaleon::support {

namespace {

constexpr std::string_view TITLE = "# Ajustes de Fidaleon";

/// A text that a reader would change, as one in another encoding, is written in plain ASCII.
std::string escape(std::string_view s, std::string_view marks) {
  const unsigned char last = text::sanitized(s) == s ? 0xFF : 0x7E;
  std::string out;
  for (const char c : s) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte <= last && c != '%' && marks.find(c) == std::string_view::npos) {
      out += c;
    } else {
      std::array<char, 4> hex{};
      std::snprintf(hex.data(), hex.size(), "%%%02X", byte);
      out += hex.data();
    }
  }
  return out;
}

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::optional<std::string> unescape(std::string_view s) {
  std::string out;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] != '%') {
      out += s[i];
      continue;
    }
    if (i + 2 >= s.size()) return std::nullopt;
    const int high = hexDigit(s[i + 1]);
    const int low = hexDigit(s[i + 2]);
    if (high < 0 || low < 0) return std::nullopt;
    out += static_cast<char>(high * 16 + low);
    i += 2;
  }
  return out;
}

bool isClean(std::string_view line) {
  return text::sanitized(line) == line;
}

/// Both sides of the first `mark`.
std::optional<std::pair<std::string, std::string>> twoParts(std::string_view s, char mark) {
  const std::size_t at = s.find(mark);
  if (at == std::string_view::npos) return std::nullopt;
  const auto first = unescape(s.substr(0, at));
  const auto second = unescape(s.substr(at + 1));
  if (!first || !second) return std::nullopt;
  return std::pair(*first, *second);
}

}  // namespace

std::string formatSettings(const SettingValues& values) {
  std::string content = std::string(TITLE) + "\n";
  std::string group;
  for (const auto& [name, value] : values) {
    const auto& [application, section, key] = name;
    const std::string header = "[" + escape(application, "/") + "/" + escape(section, "") + "]";
    if (header != group) content += "\n" + header + "\n";
    group = header;
    content += escape(key, "=#[") + "=" + escape(value, "") + "\n";
  }
  return content;
}

ReadSettings parseSettings(std::string_view content) {
  ReadSettings result;
  std::optional<std::pair<std::string, std::string>> group;
  while (!content.empty()) {
    const std::size_t end = content.find('\n');
    const std::string_view line = content.substr(0, end);
    content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
    if (line.empty() || line.front() == '#') continue;
    const bool header = line.front() == '[';
    const bool closed = end != std::string_view::npos && (!header || line.back() == ']');
    const auto parts = !closed || !isClean(line) ? std::nullopt
                       : header                  ? twoParts(line.substr(1, line.size() - 2), '/')
                                                 : twoParts(line, '=');
    if (header) group = parts;
    if (!parts || !group)
      result.damaged = true;
    else if (!header)
      result.values[{group->first, group->second, parts->first}] = parts->second;
  }
  return result;
}

}  // namespace fidaleon::support
