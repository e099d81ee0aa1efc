#include "../../../benches/BookStress.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

TEST(BooksUnderStress, EightWorkstations_NoPositionTwiceAndNothingLost) {
  const TempDirectory directory;
  const stress::Outcome o = stress::run(directory.path(), 8, {6, 120});
  EXPECT_GE(o.entered, 8 * 6);
  EXPECT_EQ(o.stored, o.entered);
  EXPECT_EQ(o.listed, o.stored);
  EXPECT_EQ(o.repeated, 0);
  EXPECT_EQ(o.missing, 0);
  EXPECT_EQ(o.faults, 0);
  EXPECT_TRUE(o.whole);
}

}  // namespace fidaleon::tests
