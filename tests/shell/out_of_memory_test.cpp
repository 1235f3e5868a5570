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
using testing::Each;
using testing::SizeIs;
using testing::StartsWith;

class OutOfMemory : public ProgramOn<toolkit::memory::MemoryToolkit> {};

TEST_F(OutOfMemory, AtAnyPlaceOfAPassIsReportedAndTheProgramLivesOn) {
  Open();
  window_->cbScale(7)->Toggle();
  long refusals = 0;
  for (long place = 0;; ++place) {
    const auto other = window_->cbOther();
    window_->lbContaining()->Select(0);
    toolkit_.ClearLog();
    until_refusal = place;
    other->Toggle();
    const bool refused = until_refusal < 0;
    until_refusal = -1;
    std::vector<std::string> failures;
    for (const std::string& line : toolkit_.Lines()) {
      if (!line.starts_with("lb") && !line.starts_with("cb")) failures.push_back(line);
    }
    if (!refused) break;
    ++refusals;
    ASSERT_THAT(failures, SizeIs(1)) << "place " << place;
    ASSERT_THAT(failures, Each(StartsWith("failure OutOfMemoryException"))) << "place " << place;
    // With memory again, the next input is answered in full.
    if (other->Value()) other->Toggle();
    window_->cbScale(7)->Toggle();
    window_->cbScale(7)->Toggle();
    ASSERT_THAT(Containing(), SizeIs(3)) << "place " << place;
    ASSERT_THAT(Stars(), SizeIs(0)) << "place " << place;
  }
  EXPECT_GT(refusals, 100) << "in a pass over twelve roots";
}

}  // namespace
