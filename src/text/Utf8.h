#pragma once
// UTF-8 text as the rules count it: positions and lengths are code points, letters are those of
// Unicode. Invalid bytes are replaced by U+FFFD wherever a function has to decode them.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fidaleon::text {

std::size_t length(std::string_view s);
std::string left(std::string_view s, std::size_t n);
std::string right(std::string_view s, std::size_t n);
/// `start` counts from 0; past the end gives the empty text.
std::string mid(std::string_view s, std::size_t start, std::size_t n = std::string_view::npos);

/// Blanks (U+0020) only, on both ends: what the rules call trimmed.
std::string trim(std::string_view s);
std::string upper(std::string_view s);
std::string lower(std::string_view s);
/// Full case folding: two texts that differ only in case fold to the same bytes.
std::string foldCase(std::string_view s);
bool equalsNoCase(std::string_view a, std::string_view b);
/// Folded case and accents taken off, for filters that find as one types ("jose" finds "José").
/// The tilde of ñ goes too: "munoz" and "muñoz" both find "Muñoz", and "munoz" finds "Munoz".
std::string searchKey(std::string_view s);
std::string replaceAll(std::string_view s, std::string_view what, std::string_view with);

/// Spanish order (ñ after n), accents count, case does not. Below, equal or above 0.
int compare(std::string_view a, std::string_view b);
/// Changes when the machine's libraries order text in another way: what was sorted is to be
/// sorted anew.
std::string orderVersion();

/// Valid UTF-8 without control characters other than tab, carriage return and line feed.
std::string sanitized(std::string_view s);

std::u32string toUtf32(std::string_view s);
std::string toUtf8(std::u32string_view s);

}  // namespace fidaleon::text
