#include "../../../benches/BookStress.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

class BooksUnderStress : public ::testing::TestWithParam<stress::Kind> {};
INSTANTIATE_TEST_SUITE_P(Registers, BooksUnderStress, ::testing::ValuesIn(stress::KINDS),
                         [](const auto& kind) { return kind.param.sacrament.palabra; });

TEST_P(BooksUnderStress, EightWorkstations_NoPositionTwiceAndNothingLost) {
  const TempDirectory directory;
  const stress::Outcome o = stress::run(directory.path(), 8, {2, 120}, GetParam());
  EXPECT_GE(o.entered, 8 * 2);
  EXPECT_EQ(o.stored, o.entered);
  EXPECT_EQ(o.listed, o.stored);
  EXPECT_EQ(o.repeated, 0);
  EXPECT_EQ(o.missing, 0);
  EXPECT_EQ(o.faults, 0);
  EXPECT_TRUE(o.whole);
}

}  // namespace fidaleon::tests
