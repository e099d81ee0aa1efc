#pragma once
// The normal forms in which names are compared. All work on words as wordsOf() gives them: folded,
// without accents, the tilde of ñ among them.

#include <string>
#include <string_view>
#include <vector>

namespace fidaleon::search {

/// The words of a name, a place or what somebody types, in their order. Particles ("de la", "y")
/// and titles ("D.", "Doña") are left out, unless there is nothing else; "---" has no words. A
/// letter set high belongs to its word: "M.ª" is "ma".
std::vector<std::string> wordsOf(std::string_view text);

/// How the word sounds: words that differ in b/v, ll/y, g/j, h, c/z/s, k/qu or in a doubled letter
/// have the same sound.
std::string soundOf(std::string_view word);

/// The words are not alike, but become so by one letter put in, left out, put right, or by two
/// neighbours that change places.
bool oneLetterApart(std::string_view a, std::string_view b);

/// What an abbreviation stands for ("fco": "francisco"), and a name that has grown together with
/// its particle ("delafuente": "fuente"); any other word is itself.
std::string_view writtenOut(std::string_view word);

/// The name that a familiar or neighbouring form goes back to ("paco", "francesc": "francisco");
/// any other word is itself.
std::string_view usualName(std::string_view word);

}  // namespace fidaleon::search
