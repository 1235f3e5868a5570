#include <gtest/gtest.h>

#include <algorithm>
#include <bitset>

#include "pitch/mask.h"

using pitch::Rotate12;

TEST(Rotate12, TurnsEveryMaskLikeARowOfTwelveDigits) {
  for (int mask = 0; mask < 4096; ++mask) {
    std::string digits = std::bitset<12>(static_cast<unsigned>(mask)).to_string();
    EXPECT_EQ(Rotate12(mask, -5), mask);
    for (int count = 0; count <= 24; ++count) {
      ASSERT_EQ(Rotate12(mask, count), std::stoi(digits, nullptr, 2)) << mask << ", " << count;
      std::rotate(digits.begin(), digits.begin() + 1, digits.end());
    }
  }
}

TEST(Rotate12, HoldsItsRuleOutsideTheRangeOfAMask) {
  EXPECT_EQ(Rotate12(4096, 0), 4096);
  EXPECT_EQ(Rotate12(6144, 1), 1);
  EXPECT_EQ(Rotate12(-3, 1), -5);
  EXPECT_EQ(Rotate12(-2048, 1), 1);
}
