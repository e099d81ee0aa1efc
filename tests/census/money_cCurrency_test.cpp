#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "census/money/cCurrency.h"

namespace fidaleon::tests {
namespace {

std::string formatear(const std::string& valor, bool decimales = true) {
  return cCurrency().FormatearCurrency(valor, decimales);
}

std::string enEuros(const std::string& pesetas) {
  Importe cantidad = Importe::deTexto(pesetas);
  return cCurrency().PesetasAEuros(cantidad);
}

std::string enPesetas(const std::string& euros) {
  return cCurrency().EurosAPesetas(Importe::deTexto(euros));
}

TEST(FormatearCurrency, Numbers_GetSpanishSignsAndTwoDecimalsOrNone) {
  const struct {
    const char *valor, *con, *sin;
  } casos[] = {
      {"0", "0,00", "0"},
      {"7", "7,00", "7"},
      {"1000", "1.000,00", "1.000"},
      {"1234567,891", "1.234.567,89", "1.234.568"},
      {"1.234,5", "1.234,50", "1.235"},
      {",5", "0,50", "1"},
      {"5,", "5,00", "5"},
      {"007", "7,00", "7"},
      {" +12 ", "12,00", "12"},
      {"0,005", "0,01", "0"},
      {"-0,005", "-0,01", "0"},
      {"-0,004", "0,00", "0"},
      {"-1234,5", "-1.234,50", "-1.235"},
      {"99,995", "100,00", "100"},
      {"999,5", "999,50", "1.000"},
  };
  for (const auto& caso : casos) {
    EXPECT_EQ(formatear(caso.valor), caso.con) << caso.valor;
    EXPECT_EQ(formatear(caso.valor, false), caso.sin) << caso.valor;
  }
}

// Half-edited amounts: the point that was a sign of thousands may stand anywhere by then.
TEST(FormatearCurrency, PointsOutOfPlace_CountForNothing) {
  EXPECT_EQ(formatear("1.00", false), "100");
  EXPECT_EQ(formatear("12.3456,7"), "123.456,70");
}

TEST(FormatearCurrency, TextThatIsNoNumber_IsZero) {
  for (const char* texto : {"", "  ", "abc", "12a", "-", "+", ",", ".", "1,2,3", "1,2.3", "--1",
                            "1-", "1e3", "0x10", "inf", "nan", "1 000"}) {
    EXPECT_EQ(formatear(texto), "0,00") << texto;
    EXPECT_EQ(formatear(texto, false), "0") << texto;
  }
}

TEST(FormatearCurrency, MoreThanFourteenCharacters_LosesItsLowDigits) {
  EXPECT_EQ(formatear("12345678901,25"), "12.345.678.901,25");
  EXPECT_EQ(formatear("123456789012,25"), "123.456.789.012,00");
  EXPECT_EQ(formatear("123456789012345"), "12.345.678.901.234,00");
  EXPECT_EQ(formatear("123456789012345", false), "12.345.678.901.234");
  EXPECT_EQ(formatear("-123456789012345"), "-1.234.567.890.123,00");
  EXPECT_EQ(formatear(std::string(400, '9')), "99.999.999.999.999,00");
}

TEST(PesetasAEuros, Amounts_AreCutAtTheThirdDecimalAndRoundedAtTheSecond) {
  EXPECT_EQ(enEuros("0"), "0,00");
  EXPECT_EQ(enEuros("1.000"), "6,01");
  EXPECT_EQ(enEuros("94"), "0,57");  // 0,5650
  EXPECT_EQ(enEuros("-94"), "-0,57");
  EXPECT_EQ(enEuros("25"), "0,15");
  EXPECT_EQ(enEuros("-25"), "-0,15");
  EXPECT_EQ(enEuros("166,386"), "1,00");
  EXPECT_EQ(enEuros("99.999.999"), "601.012,10");
  EXPECT_EQ(enEuros("no es un número"), "0,00");
}

TEST(PesetasAEuros, Argument_IsLeftWithTheRoundedValue) {
  Importe cantidad = Importe::deTexto("1000");
  cCurrency().PesetasAEuros(cantidad);
  EXPECT_EQ(cantidad.diezmilesimas(), 60100);
  EXPECT_EQ(cantidad.texto(), "6,01");
}

TEST(EurosAPesetas, Amounts_AreRoundedToEvenOnAnExactHalf) {
  EXPECT_EQ(enPesetas("0,00"), "0");
  EXPECT_EQ(enPesetas("6,01"), "1.000");
  EXPECT_EQ(enPesetas("250"), "41.596");
  EXPECT_EQ(enPesetas("750"), "124.790");
  EXPECT_EQ(enPesetas("-250"), "-41.596");
  EXPECT_EQ(enPesetas("9.999.999,99"), "1.663.859.998");
}

TEST(Conversion, ThereAndBack_NeedNotEndWhereItBegan) {
  EXPECT_EQ(enPesetas(enEuros("1")), "2");
}

TEST(Conversion, LargestAmounts_LoseDigitsAndNothingElse) {
  for (const auto n :
       {std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
    Importe cantidad = Importe::deDiezmilesimas(n);
    // About 153.464 billions, of which 14 characters stay, and 5,5 billions.
    EXPECT_THAT(cCurrency().EurosAPesetas(cantidad),
                ::testing::MatchesRegex(n < 0 ? "-1[.]534[.]63.[.]...[.]..."
                                              : "15[.]346[.]3..[.]...[.]..."));
    EXPECT_THAT(cCurrency().PesetasAEuros(cantidad),
                ::testing::MatchesRegex("-?5[.]543[.]...[.]...[.]...,00"));
  }
}

TEST(Importe, Text_IsReadExactlyAndWrittenShort) {
  const struct {
    const char* leido;
    std::int64_t diezmilesimas;
    const char* escrito;
  } casos[] = {
      {"1.000", 10000000, "1000"},
      {"6,01", 60100, "6,01"},
      {"-0,00005", -1, "-0,0001"},
      {"0,00004", 0, "0"},
      {"", 0, "0"},
      {"922.337.203.685.477,5807", std::numeric_limits<std::int64_t>::max(),
       "922337203685477,5807"},
      {"-922337203685477,5808", std::numeric_limits<std::int64_t>::min(), "-922337203685477,5808"},
  };
  for (const auto& caso : casos) {
    const Importe importe = Importe::deTexto(caso.leido);
    EXPECT_EQ(importe.diezmilesimas(), caso.diezmilesimas) << caso.leido;
    EXPECT_EQ(importe.texto(), caso.escrito);
  }
}

TEST(Importe, TextBeyondItsRange_IsRefusedWithAClearMessage) {
  for (const char* texto : {"922.337.203.685.477,5808", "-1000000000000000000000"}) try {
      Importe::deTexto(texto);
      ADD_FAILURE() << texto;
    } catch (const std::out_of_range& error) {
      EXPECT_EQ(error.what(), "El importe «" + std::string(texto) + "» es demasiado grande.");
    }
}

}  // namespace
}  // namespace fidaleon::tests
