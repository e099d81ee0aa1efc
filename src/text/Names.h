#pragma once
// What becomes of a name that somebody typed.

#include <cstddef>
#include <string>
#include <string_view>

namespace fidaleon::text {

/// Each double quote as two apostrophes; as one where two would make the text longer than `most`
/// (0: no limit), so that nothing of it has to be cut off.
std::string withoutQuotes(std::string_view s, std::size_t most = 0);
/// The same name but for case and for blanks, wherever they stand.
bool sameName(std::string_view a, std::string_view b);

/// What a file of any system may be called after this text: a slash becomes "-", what no name may
/// hold goes, and so does what makes it longer than `mostBytes`. May come out empty.
std::string fileName(std::string_view s, std::size_t mostBytes = 200);

}  // namespace fidaleon::text
