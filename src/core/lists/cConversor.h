#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace fidaleon {

/// Roman numerals of book names. Writing and reading differ above 3999: 5000 is written "Û" and
/// read "Q"; letters that are not read count 0.
class cConversor {
 public:
  /// Digits beyond the fifth give nothing; 0 gives the empty text.
  std::string ConvertirRomano(std::int64_t numero) const;
  std::int64_t ConvertirArabe(std::string_view texto) const;
};

}  // namespace fidaleon
