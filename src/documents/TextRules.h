#pragma once
// The rules by which a stored value becomes the text that a document prints.

#include <string>
#include <string_view>

#include "store/Value.h"

namespace fidaleon::documents {

/// What a document prints for nothing.
inline constexpr const char* BLANK = "---";

/// "---" for Null and for a value that is empty once trimmed; otherwise the value, untrimmed.
std::string ValorImprimible(const store::Value& value);
std::string ValorImprimible(const std::string& value);

/// A marginal note followed by a dotted line up to 600 characters (601 when the count is odd), so
/// that nothing can be added by hand behind it.
std::string paddedNotes(const std::string& notes);

/// The letter under which an index lists a surname: the first one, in capitals, accents kept.
std::string initial(const std::string& surname);

/// Words that agree with the child's sex. The register holds "Hombre", "Mujer" or "---".
struct GenderWords {
  const char* boy;
  const char* girl;
  const char* bornBoy;
  const char* bornGirl;
  bool blankIsBoy;  // "---" takes the boy's words; otherwise all but "Hombre" take the girl's

  bool isBoy(std::string_view sexo) const;
  const char* child(std::string_view sexo) const { return isBoy(sexo) ? boy : girl; }
  const char* born(std::string_view sexo) const { return isBoy(sexo) ? bornBoy : bornGirl; }
};

inline constexpr GenderWords WORDS_ENTRY{"al niño", "a la niña", "nacido", "nacida", true};
inline constexpr GenderWords WORDS_ENTRY_MENORCA{"al fillet", "la filleta", "nat", "nada", true};
inline constexpr GenderWords WORDS_REQUEST{"El niño", "La niña", "nacido", "nacida", true};
inline constexpr GenderWords WORDS_REQUEST_MENORCA{"El fill", "La filla", "nat", "nada", true};
/// In the book a child of unknown sex takes the girl's words.
inline constexpr GenderWords WORDS_BOOK{"al niño", "a la niña", "nacido", "nacida", false};
inline constexpr GenderWords WORDS_BOOK_MENORCA{"al fillet", "la filleta", "nat", "nada", false};
/// The slip says whose child it is where the others say that it was born.
inline constexpr GenderWords WORDS_VOLANTE{"al niño", "a la niña", "hijo", "hija", false};

/// "D.", "Dª." or, where the sex is not known, "D./Dª".
const char* formOfAddress(std::string_view sexo);

}  // namespace fidaleon::documents
