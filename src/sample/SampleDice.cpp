#include "sample/SampleDice.h"

#include <algorithm>
#include <array>

#include "sample/SampleNames.h"

namespace fidaleon::app::sample {
namespace {

constexpr int NEW_NAMES_FROM = 1988;

constexpr std::array<std::string_view, 7> MINISTERS{
    {"Anselmo Carrascosa Ruipérez", "Hilario Zorita Manzano", "Cosme Peñalba Ortún",
     "Evaristo Montalvo Rincón", "Jacinto Olivares Bermejo", "Abilio Santacana Prieto",
     "Rogelio Villamor Escribano"}};

}  // namespace

std::string Dice::givenName(bool woman, int year) {
  if (year >= NEW_NAMES_FROM) return woman ? pick(GIRLS_NEW) : pick(BOYS_NEW);
  std::string name = woman ? pick(GIRLS_OLD) : pick(BOYS_OLD);
  if (woman && oneIn(3) && name != "María") name = "María " + name;
  return name;
}

std::string ministerIn(int year, int lastYear) {
  const int era = (std::min(year, lastYear) - FIRST_YEAR) * static_cast<int>(MINISTERS.size()) /
                  (lastYear - FIRST_YEAR + 1);
  return std::string(MINISTERS[static_cast<std::size_t>(era)]);
}

text::Date daysAfter(text::Date d, int days) {
  static constexpr int LENGTH[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  d.day += days;
  while (d.day > LENGTH[d.month - 1]) {
    d.day -= LENGTH[d.month - 1];
    if (++d.month > 12) d.month = 1, ++d.year;
  }
  return d;
}

}  // namespace fidaleon::app::sample
