#pragma once
// Word lists for the sample parish. The people made from them are invented.

#include <array>
#include <string_view>

namespace fidaleon::app::sample {

struct Town {
  int provinceCode;  // official code of the province
  std::string_view name;
};

/// Where the sample parish of an edition stands.
struct Home {
  std::string_view edition;
  int provinceCode;
  std::string_view town;
  std::string_view diocese;
  std::string_view vicariate;
  std::string_view deanery;
  std::string_view neighbour;      // the town of the second institution
  std::string_view neighbourName;  // its short name
};

const Home& homeOf(std::string_view edition);

extern const std::array<Town, 72> TOWNS;
extern const std::array<std::string_view, 44> BOYS_OLD;
extern const std::array<std::string_view, 44> GIRLS_OLD;
extern const std::array<std::string_view, 30> BOYS_NEW;
extern const std::array<std::string_view, 30> GIRLS_NEW;
extern const std::array<std::string_view, 56> SURNAMES;
extern const std::array<std::string_view, 18> TRADES;
extern const std::array<std::string_view, 14> STREETS;
extern const std::array<std::string_view, 12> PARISHES;

}  // namespace fidaleon::app::sample
