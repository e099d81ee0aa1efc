#include <gtest/gtest.h>

#include "locks/LockEntry.h"

namespace fidaleon::locks::ConflictTest {

const std::vector<LockEntry> ALL{{Kind::Table, "Bautismo", "", 0},
                                 {Kind::SharedTable, "Bautismo", "", 0},
                                 {Kind::Record, "Bautismo", "7", 0},
                                 {Kind::SharedRecord, "Bautismo", "7", 0}};

TEST(Conflict, EveryPairOfKinds_IsAsTheTableSays) {
  const bool keepsOut[4][4] = {{true, true, true, true},
                               {true, false, false, false},
                               {true, false, true, true},
                               {true, false, true, false}};
  for (std::size_t a = 0; a < 4; ++a)
    for (std::size_t b = 0; b < 4; ++b)
      EXPECT_EQ(conflict(ALL[a], ALL[b]), keepsOut[a][b]) << a << " against " << b;
}

TEST(Conflict, AnotherRecordOrTable_IsNoneButTheCaseOfTheNameIs) {
  const LockEntry other{Kind::Record, "bautismo", "8", 0};
  EXPECT_FALSE(conflict(ALL[2], other));
  EXPECT_TRUE(conflict(ALL[0], other));
  EXPECT_FALSE(conflict(ALL[0], {Kind::Table, "Confirmacion", "", 0}));
}

TEST(Lines, AreReadBackAndDamagedOnesPassedOver) {
  const HeldEntry held{{Kind::SharedRecord, "Libro_Bautismo", "12", 3},
                       {"José\tMª\n", "DESPACHO", 4711, "22/11/2026 a las 10:30"}};
  const std::string one = encode({held});
  const auto back = decode(one + "basura\n" + one.substr(0, 20));
  ASSERT_EQ(back.size(), 1u);
  EXPECT_EQ(back[0].entry, held.entry);
  EXPECT_EQ(back[0].holder.user, "José Mª ");
  EXPECT_EQ(back[0].holder.process, 4711);
  std::string wrong = one;
  wrong[wrong.find("12")] = '9';
  EXPECT_TRUE(decode(wrong).empty());
}

}  // namespace fidaleon::locks::ConflictTest
