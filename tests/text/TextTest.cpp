#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "text/Dates.h"
#include "text/Names.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::text::TextTest {

TEST(Utf8, Positions_CountLetters) {
  EXPECT_EQ(length("Ñoño 😀"), 6U);
  EXPECT_EQ(left("Ñoño", 2), "Ño");
  EXPECT_EQ(left("Ñoño", 9), "Ñoño");
  EXPECT_EQ(right("Ñoño", 2), "ño");
  EXPECT_EQ(right("Ñoño", 0), "");
  EXPECT_EQ(mid("Ñoño", 1, 2), "oñ");
  EXPECT_EQ(mid("Ñoño", 2), "ño");
  EXPECT_EQ(mid("Ñoño", 7), "");
  EXPECT_EQ(trim("  a b\t "), "a b\t");
  EXPECT_EQ(trim("   "), "");
  EXPECT_EQ(toUtf8(toUtf32("ñ😀")), "ñ😀");
}

TEST(Utf8, BrokenBytes_BecomeTheReplacementCharacter) {
  const std::string broken = "a\xC3(\xF0\x9F";
  EXPECT_EQ(left(broken, 2), "a\uFFFD");
  EXPECT_EQ(sanitized(broken), "a\uFFFD(\uFFFD");
  EXPECT_EQ(sanitized(std::string("a\0b\x1B[c\x7F\u0085d\te\r\n", 14)), "ab[cd\te\r\n");
  EXPECT_EQ(toUtf32("\xFF").front(), U'\uFFFD');
}

TEST(Utf8, LetterCase_IsThatOfUnicode) {
  EXPECT_EQ(upper("ñandú"), "ÑANDÚ");
  EXPECT_EQ(lower("ÀNGELA ÑÁÑEZ"), "àngela ñáñez");
  EXPECT_TRUE(equalsNoCase("AÑO", "año"));
  EXPECT_FALSE(equalsNoCase("AÑO", "ano"));
  EXPECT_EQ(foldCase("Cumpleaños"), foldCase("CUMPLEAÑOS"));
}

TEST(Utf8, SearchKey_FindsWithoutAccents) {
  EXPECT_EQ(searchKey("José Muñoz"), "jose munoz");
  EXPECT_EQ(searchKey("muñoz"), searchKey("MUNOZ"));
  EXPECT_EQ(searchKey("l·l"), "l·l");
}

TEST(Utf8, ReplaceAll_DoesNotLookAgainAtWhatItPutIn) {
  EXPECT_EQ(replaceAll("a\"b\"", "\"", "''"), "a''b''");
  EXPECT_EQ(replaceAll("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
}

TEST(Utf8, Compare_IsSpanishOrder) {
  std::vector<std::string> names = {"Ñáñez",  "Oro",     "nuño",    "Nuñez", "Núñez",
                                    "zurita", "Álvarez", "alvarez", "Nz"};
  std::sort(names.begin(), names.end(),
            [](const auto& a, const auto& b) { return compare(a, b) < 0; });
  EXPECT_EQ(names, (std::vector<std::string>{"alvarez", "Álvarez", "Nuñez", "Núñez", "nuño", "Nz",
                                             "Ñáñez", "Oro", "zurita"}));
  EXPECT_EQ(compare("JOSÉ", "josé"), 0);
  EXPECT_NE(compare("Jose", "José"), 0);
  EXPECT_NE(compare("a", "a "), 0);
  EXPECT_EQ(compare("e\u0301", "é"), 0) << "both ways of writing é";
  EXPECT_FALSE(orderVersion().empty());
}

TEST(Numbers, Val_ReadsTheLeadingNumber) {
  const struct {
    const char* text;
    double value;
  } cases[] = {{"12a", 12}, {"a12", 0}, {" 7", 7},    {"", 0},      {"---", 0},  {"-3.5x", -3.5},
               {"1 2", 12}, {"+4", 4},  {"12e5", 12}, {"0012", 12}, {".5", 0.5}, {"1.2.3", 1.2}};
  for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << c.text;
}

TEST(Numbers, WholeTexts_AreNumbersOrNot) {
  for (const char* number : {"12", " 12 ", "-1", "+3.5", ".5"}) EXPECT_TRUE(isNumeric(number));
  for (const char* other : {"", " ", "-", "12a", "1.2.3", "---", "1 2"}) {
    EXPECT_FALSE(isNumeric(other)) << other;
  }
  EXPECT_EQ(toInteger(" 2147483647 "), 2147483647);
  EXPECT_EQ(toInteger("-5"), -5);
  EXPECT_EQ(toInteger("+5"), 5);
  for (const char* other : {"2147483648", "", "5.0", "+-5", "5a"}) {
    EXPECT_FALSE(toInteger(other)) << other;
  }
}

TEST(Dates, Stored_IsEightDigitsOfADay) {
  EXPECT_EQ(parseStored("20000229"), (Date{2000, 2, 29}));
  for (const char* other : {"19000229", "20031301", "2003010", "---", "", "2003 101", "00000101"}) {
    EXPECT_FALSE(parseStored(other)) << other;
  }
  EXPECT_EQ(toStored({987, 3, 4}), "09870304");
  EXPECT_EQ(toShort({987, 3, 4}), "04/03/0987");
}

TEST(Dates, Typed_IsReadWithAnySeparator) {
  for (const char* typed : {"4/3/1987", "04-03-1987", " 4.03.1987 "}) {
    EXPECT_EQ(parseShort(typed), (Date{1987, 3, 4})) << typed;
  }
  for (const char* other : {"31/4/1987", "4/3/87", "4/3", "", "//", "a/3/1987", "4/3/1987/1"}) {
    EXPECT_FALSE(parseShort(other)) << other;
  }
  EXPECT_TRUE(isBlankDate(""));
  EXPECT_TRUE(isBlankDate(" --- "));
  EXPECT_FALSE(isBlankDate("20030101"));
}

TEST(Dates, TypedInAnyWay_TakeTheCenturyOfTheBook) {
  const DateSense sense{Date{2026, 11, 22}, 1930};
  for (const auto& [typed, read] : std::initializer_list<std::pair<const char*, const char*>>{
           {"3-5-24", "19240503"},
           {"030524", "19240503"},
           {" 3 May 1924 ", "19240503"},
           {"3 de septiembre del 30", "19300903"},
           {"3set31", "18310903"},
           {"1.1.00", "19000101"},
           {"hoy", "20261122"},
           {"03051998", "19980503"}})
    EXPECT_EQ(toStored(parseTyped(typed, sense).value_or(Date{})), read) << typed;
  for (const char* other :
       {"31-2-24", "3 ma 24", "3 mayor 24", "1//2/24", "3-5", "ayer", "3-5-024"})
    EXPECT_FALSE(parseTyped(other, sense)) << other;
  EXPECT_FALSE(parseTyped("3-5-24", {})) << "no book, no century";
}

TEST(Dates, Time_IsReadWithAndWithoutColon) {
  EXPECT_EQ(parseTime("9:05"), "09:05");
  EXPECT_EQ(parseTime("905"), "09:05");
  EXPECT_EQ(parseTime("2359"), "23:59");
  for (const char* other : {"24:00", "12:60", "9", "95", "1:5", "12:345", "ab:cd", "", ":30"}) {
    EXPECT_FALSE(parseTime(other)) << other;
  }
}

TEST(Dates, Years_AreWholeOnes) {
  EXPECT_EQ(yearsBetween({2000, 2, 29}, {2001, 2, 28}), 0);
  EXPECT_EQ(yearsBetween({2000, 2, 29}, {2001, 3, 1}), 1);
  EXPECT_EQ(yearsBetween({1950, 5, 4}, {2003, 5, 4}), 53);
  EXPECT_EQ(yearsBetween({2003, 1, 1}, {1950, 1, 1}), 0);
}

TEST(Names, FileName_HoldsNothingThatAFileSystemRefuses) {
  EXPECT_EQ(fileName("Libro de bautismos - 1998/01"), "Libro de bautismos - 1998-01");
  EXPECT_EQ(fileName("Certificado - Núñez, \"Pepe\" <?>\n. . "), "Certificado - Núñez, Pepe");
  EXPECT_EQ(fileName("A/. "), "A-");
  EXPECT_EQ(fileName("ñññ", 5), "ññ");
}

}  // namespace fidaleon::text::TextTest
