#include "support/memory_hand.h"
#include "support/monkey.h"

namespace {

TEST(RandomClicks, AgreeWithAnOracleOfAnotherMake) {
  support::Monkey<support::MemoryHand>::Play(3000);
}

}  // namespace
