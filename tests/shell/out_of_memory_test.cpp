#include <array>
#include <cstdlib>
#include <new>

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

/// Allocations that still succeed before one is refused; below zero, none ever is.
long until_refusal = -1;
/// Whether all that follow are refused too.
bool lasting = false;
bool refused = false;

bool Refuses() {
  if (until_refusal < 0 || until_refusal-- > 0) return false;
  if (lasting) until_refusal = 0;
  return refused = true;
}

}  // namespace

void* operator new(std::size_t size) {
  if (Refuses()) throw std::bad_alloc();
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using namespace framework;
using namespace support;

using OutOfMemory = ProgramOn<toolkit::memory::MemoryToolkit>;

// The first in the file: nothing is there from an earlier run.
TEST_F(OutOfMemory, BehindAStartOrARunIsReportedAndTheProgramEndsWithItsStatus) {
  lasting = true;
  const auto fails = [] {
    testing::internal::CaptureStderr();
    const int status = shell::main();
    until_refusal = -1;
    EXPECT_EQ(status, 1);
    // The log may have no room to note that the toolkit is asked to wait.
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::StartsWith("std::bad_exception: std::bad_exception\n"));
  };
  toolkit_.Observe([](const std::string&) {
    until_refusal = 0;
    throw std::bad_exception();
  });
  fails();
  toolkit_.Observe(nullptr);
  toolkit_.Post([] {
    _RunEvent([] { throw std::bad_exception(); });
    until_refusal = 0;
  });
  fails();
}

/// Whoever reports a lasting refusal has no memory either.
constexpr const char* kLine =
    "OutOfMemoryException: The system has no memory left. (error number 0)\n";

TEST_F(OutOfMemory, AtAnyPlaceOfAPassIsReportedAndTheProgramLivesOn) {
  Open();
  window_->cbScale(7)->Toggle();
  const auto other = window_->cbOther();
  for (const bool for_good : {false, true}) {
    lasting = for_good;
    long place = 0;
    for (refused = true; refused; ++place) {
      SCOPED_TRACE("place " + std::to_string(place));
      window_->lbContaining()->Select(0);
      toolkit_.ClearLog();
      testing::internal::CaptureStderr();
      refused = false;
      until_refusal = place;
      other->Toggle();
      until_refusal = -1;
      ASSERT_EQ(testing::internal::GetCapturedStderr(), refused && lasting ? kLine : "");
      const std::vector<std::string> told(refused && !lasting ? 1 : 0,
                                          "failure OutOfMemoryException");
      ASSERT_EQ(Told(), told);
      // With memory again, the next input is answered in full.
      if (other->Value()) other->Toggle();
      window_->cbScale(7)->Toggle();
      window_->cbScale(7)->Toggle();
      ASSERT_THAT(Containing(), testing::SizeIs(3));
      ASSERT_EQ(Stars(), "000000000000");
    }
    EXPECT_GT(place, 30) << "in a pass over twelve roots";
  }
}

TEST_F(OutOfMemory, TheWayToTheGuardAsksForNone) {
  Open();
  const std::array<char, 100> much{'a'};
  char seen = 0;
  refused = false;
  until_refusal = 0;
  _RunEvent([much, &seen] { seen = much[0]; });
  until_refusal = -1;
  EXPECT_EQ(seen, 'a');
  EXPECT_FALSE(refused);
}

}  // namespace
