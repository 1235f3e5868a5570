#include <cstdlib>
#include <new>

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

/// Allocations that still succeed before one is refused; below zero, none ever is.
long until_refusal = -1;

}  // namespace

void* operator new(std::size_t size) {
  if (until_refusal >= 0 && until_refusal-- == 0) throw std::bad_alloc();
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using namespace support;

using OutOfMemory = ProgramOn<toolkit::memory::MemoryToolkit>;

TEST_F(OutOfMemory, AtAnyPlaceOfAPassIsReportedAndTheProgramLivesOn) {
  Open();
  window_->cbScale(7)->Toggle();
  const auto other = window_->cbOther();
  long place = 0;
  for (bool refused = true; refused; ++place) {
    SCOPED_TRACE("place " + std::to_string(place));
    window_->lbContaining()->Select(0);
    toolkit_.ClearLog();
    until_refusal = place;
    other->Toggle();
    refused = until_refusal < 0;
    until_refusal = -1;
    ASSERT_EQ(Told(), std::vector<std::string>(refused ? 1 : 0, "failure OutOfMemoryException"));
    // With memory again, the next input is answered in full.
    if (other->Value()) other->Toggle();
    window_->cbScale(7)->Toggle();
    window_->cbScale(7)->Toggle();
    ASSERT_THAT(Containing(), testing::SizeIs(3));
    ASSERT_EQ(Stars(), "000000000000");
  }
  EXPECT_GT(place, 30) << "in a pass over twelve roots";
}

}  // namespace
