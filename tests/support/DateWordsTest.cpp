#include <gtest/gtest.h>

#include "support/FechasLetra.h"
#include "support/Informes.h"

namespace fidaleon::support::DateWordsTest {

TEST(DateWords, Spanish) {
  Informes i;
  EXPECT_EQ(i.FechaNumAFechaLetra("20030512"), "doce de mayo de 2003");
  EXPECT_EQ(i.FechaNumAFechaLetra("19990101"), "uno de enero de 1999");
  EXPECT_EQ(i.FechaNumAFechaLetra("20240229"), "veintinueve de febrero de 2024");
  EXPECT_EQ(i.FechaNumAFechaLetra("19721231"), "treinta y uno de diciembre de 1972");
  EXPECT_EQ(i.FechaNumAFechaLetraCastellano("20030916"), "dieciséis de septiembre de 2003");
  EXPECT_EQ(i.FechaNumAFechaLetra1("20030512"), "doce de mayo de dos mil tres");
}

TEST(DateWords, CatalanTakesBothOrdersAndElidesBeforeAVowel) {
  Informes i;
  EXPECT_EQ(i.FechaNumAFechaLetraMenorca("20030512"), "dotze de maig de 2003");
  EXPECT_EQ(i.FechaNumAFechaLetraMenorca("12052003"), "dotze de maig de 2003");
  EXPECT_EQ(i.FechaNumAFechaLetraMenorca("01041998"), "u d'abril de 1998");
  EXPECT_EQ(i.FechaNumAFechaLetraMenorca("21081998"), "vint-i-u d'agost de 1998");
  EXPECT_EQ(i.FechaNumAFechaLetraMenorca("19981031"), "trenta-u d'octubre de 1998");
  EXPECT_EQ(i.FechaNumAFechaLetraMenorca("20122012"), "vint de desembre de 2012");
  EXPECT_EQ(i.FechaNumAFechaLetraMenorca("20121012"), "dotze d'octubre de 2012");
}

TEST(DateWords, WhatIsNoDate_ComesBackAsItIs) {
  Informes i;
  for (const char* text : {"", "---", "20030230", "hacia 1850", "2003051", "////"}) {
    EXPECT_EQ(i.FechaNumAFechaLetra(text), text);
    EXPECT_EQ(i.FechaNumAFechaLetraMenorca(text), text);
    EXPECT_EQ(i.FechaNumAFechaLetra1(text), text);
    EXPECT_EQ(i.FechaNumAFechaLetraCastellano(text), text);
  }
}

TEST(NumberWords, AsTheyAreSpelt) {
  const std::pair<int, const char*> cases[] = {{1, "uno"},
                                               {31, "treinta y uno"},
                                               {45, "cuarenta y cinco"},
                                               {100, "cien"},
                                               {101, "ciento uno"},
                                               {1000, "mil"},
                                               {1500, "mil quinientos"},
                                               {1898, "mil ochocientos noventa y ocho"},
                                               {1999, "mil novecientos noventa y nueve"},
                                               {2000, "dos mil"},
                                               {2026, "dos mil veintiséis"}};
  for (const auto& [n, words] : cases) EXPECT_EQ(numeroEnCastellano(n), words);
}

}  // namespace fidaleon::support::DateWordsTest
