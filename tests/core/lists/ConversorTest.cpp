#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/lists/cConversor.h"

namespace fidaleon::ConversorTest {

struct Numeral {
  std::int64_t numero;
  const char* romano;
};

class Escritura : public ::testing::TestWithParam<Numeral> {};

TEST_P(Escritura, NumberBecomesItsLetters) {
  EXPECT_EQ(cConversor().ConvertirRomano(GetParam().numero), GetParam().romano);
}

INSTANTIATE_TEST_SUITE_P(Tabla, Escritura,
                         ::testing::Values(Numeral{0, ""}, Numeral{4, "IV"}, Numeral{7, "VII"},
                                           Numeral{9, "IX"}, Numeral{10, "X"}, Numeral{40, "XL"},
                                           Numeral{88, "LXXXVIII"}, Numeral{1900, "MCM"},
                                           Numeral{2026, "MMXXVI"}, Numeral{4999, "MÛCMXCIX"},
                                           Numeral{9000, "MH"}, Numeral{10000, "H"},
                                           Numeral{40000, "HW"}, Numeral{60000, "WH"},
                                           Numeral{90000, "HZ"}, Numeral{123456, "HHMMMCDLVI"}));

class Lectura : public ::testing::TestWithParam<Numeral> {};

TEST_P(Lectura, LettersBecomeTheirNumber) {
  EXPECT_EQ(cConversor().ConvertirArabe(GetParam().romano), GetParam().numero);
}

INSTANTIATE_TEST_SUITE_P(Tabla, Lectura,
                         ::testing::Values(Numeral{0, ""}, Numeral{0, "   "}, Numeral{4, "IV"},
                                           Numeral{1900, "MCM"}, Numeral{12, "  XII "},
                                           Numeral{5000, "Q"}, Numeral{4000, "MQ"},
                                           Numeral{9000, "MH"}, Numeral{0, "Û"}, Numeral{0, "W"},
                                           Numeral{0, "Z"}, Numeral{0, "xii"},
                                           // Û counts nothing, so the M before it is added.
                                           Numeral{1999, "MÛCMXCIX"}));

TEST(Conversor, EveryNumberUpTo3999_IsReadBackAsItWasWritten) {
  const cConversor conversor;
  for (std::int64_t n = 1; n < 4000; ++n)
    ASSERT_EQ(conversor.ConvertirArabe(conversor.ConvertirRomano(n)), n);
}

}  // namespace fidaleon::ConversorTest
