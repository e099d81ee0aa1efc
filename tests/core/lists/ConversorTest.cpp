#include <gtest/gtest.h>

#include "core/lists/cConversor.h"

namespace fidaleon::ConversorTest {

const std::pair<std::int64_t, const char*> ESCRITOS[] = {
    {0, ""},          {4, "IV"},          {7, "VII"},       {9, "IX"},
    {10, "X"},        {40, "XL"},         {88, "LXXXVIII"}, {1900, "MCM"},
    {2026, "MMXXVI"}, {4999, "MÛCMXCIX"}, {9000, "MH"},     {10000, "H"},
    {40000, "HW"},    {60000, "WH"},      {90000, "HZ"},    {123456, "HHMMMCDLVI"}};
// Û counts nothing, so the M before it is added.
const std::pair<std::int64_t, const char*> LEIDOS[] = {
    {0, "   "}, {12, "  XII "}, {5000, "Q"}, {4000, "MQ"}, {9000, "MH"},
    {0, "Û"},   {0, "W"},       {0, "Z"},    {0, "xii"},   {1999, "MÛCMXCIX"}};

TEST(Conversor, NumbersAndLetters_BecomeEachOther) {
  for (const auto& [n, romano] : ESCRITOS) EXPECT_EQ(cConversor().ConvertirRomano(n), romano);
  for (const auto& [n, romano] : LEIDOS)
    EXPECT_EQ(cConversor().ConvertirArabe(romano), n) << romano;
}

TEST(Conversor, EveryNumberUpTo3999_IsReadBackAsItWasWritten) {
  const cConversor conversor;
  for (std::int64_t n = 1; n < 4000; ++n)
    ASSERT_EQ(conversor.ConvertirArabe(conversor.ConvertirRomano(n)), n);
}

}  // namespace fidaleon::ConversorTest
