#include <gtest/gtest.h>

#include "support/Identidad.h"

namespace fidaleon::support::IdentityTest {

TEST(Identity, Letters) {
  EXPECT_EQ(letraNIF("12345678"), "Z");
  EXPECT_EQ(letraNIF("12.345.678"), "Z");
  EXPECT_EQ(letraNIF("0"), "T");
  EXPECT_EQ(letraNIF("X1234567"), "L");
  EXPECT_EQ(letraNIF("y1234567"), "X");
  for (const char* bad : {"", "123456789", "12A", "X123", "ñ"}) EXPECT_EQ(letraNIF(bad), "") << bad;
}

TEST(Identity, NumbersOfPersons) {
  for (const char* good : {"12345678Z", "12345678-z", "00000000T", "X1234567L", "K1234567L"})
    EXPECT_TRUE(nifValido(good)) << good;
  for (const char* bad : {"", "Z", "12345678A", "X1234567A", "K1234567A", "123456789Z"})
    EXPECT_FALSE(nifValido(bad)) << bad;
}

TEST(Identity, NumbersOfEntities) {
  // An abbey, a school and a company: letter, either and digit at the end.
  for (const char* good : {"A58818501", "G28029643", "Q2826000H", "R0800010A", "a-58818501"})
    EXPECT_TRUE(cifValido(good)) << good;
  for (const char* bad :
       {"", "A58818502", "A5881850A", "Q28260008", "A5881850", "AB8818501", "58818501A"})
    EXPECT_FALSE(cifValido(bad)) << bad;
  // Whatever stands behind a letter that no organisation has.
  for (const char letter : std::string("IKLMOTXYZ9"))
    for (const char* rest : {"58818501", "2826000H"})
      EXPECT_FALSE(cifValido(letter + std::string(rest))) << letter << rest;
}

}  // namespace fidaleon::support::IdentityTest
