#include <limits>

#include "framework/events/timer.h"
#include "framework/values/cast.h"
#include "framework/values/text.h"
#include "framework/values/weak_ref.h"
#include "support/running.h"

namespace {

using namespace framework;

/// Asks for itself while it goes.
struct Thing final : Object {
  ~Thing() override { EXPECT_FALSE(self->Value()); }
  Ref<WeakRef> self = RuntimeNewObject<WeakRef>(this);
};

using Values = support::Running;

TEST_F(Values, AreKeptByReferencesAndNotByWeakOnes) {
  auto thing = RuntimeNewObject<Thing>();
  const Ref<WeakRef> weak = thing->self;
  Ref<Object> object = thing;
  thing = nullptr;
  EXPECT_EQ(weak->Value(), object);
  object = nullptr;
  EXPECT_FALSE(weak->Value());
}

TEST_F(Values, ThatATimerKeepsGoAsItFiresOrWithTheRun) {
  for (const auto& end : {std::function([this] { toolkit_.Run(); }), {&RuntimePerformFinalizers}}) {
    auto thing = RuntimeNewObject<Thing>();
    const Ref<WeakRef> weak = thing->self;
    Timer::CallLater(0, [kept = std::exchange(thing, nullptr)] {});
    EXPECT_TRUE(weak->Value());
    end();
    EXPECT_FALSE(weak->Value());
  }
}

TEST_F(Values, OfNoUseAreRefusedOrTakenForEmpty) {
  for (const std::int64_t last : {std::int64_t{-2}, std::numeric_limits<std::int64_t>::min(),
                                  std::numeric_limits<std::int64_t>::max()}) {
    EXPECT_THROW(CreateArray<String>(last), OutOfBoundsException) << last;
  }
  EXPECT_EQ(CreateArray<String>(-1).LastIndex(), -1);
  EXPECT_EQ(Split(nullptr, nullptr)[0].View(), "");
  EXPECT_EQ(RuntimeStringCompare("a", "b"), 1);
}

TEST_F(Values, ThatAreTextsHaveAnyLengthAndOutliveEachOther) {
  for (const std::size_t size : {0U, 7U, 8U, 9U, 100U}) {
    const std::string bytes(size, 'x');
    String copy;
    {
      const String text(bytes);
      copy = text;
    }
    const String moved = std::move(copy);
    EXPECT_EQ(String(moved, "y").View(), bytes + "y");
    EXPECT_EQ(moved.View(), bytes);
  }
}

TEST_F(Values, AreReadFromTheStartOfAText) {
  const std::pair<const char*, double> texts[] = {
      {"5", 5},  {" \t-5x3", -5}, {".5e1", 5}, {"1e999", 0},
      {"x1", 0}, {"- 1", 0},      {"+1", 0},   {"", 0},
  };
  for (const auto& [text, value] : texts) EXPECT_EQ(Val(text), value) << text;
}

TEST_F(Values, RaiseWhenThereIsNoneToGiveOut) {
  EXPECT_EQ(Reported([] { *Ref<Thing>(); }),
            "failure NilObjectException: A nil reference was used: Thing (error number 0)");
  EXPECT_THROW(RuntimeCheckCast<Thing>(RuntimeNewObject<Object>()), IllegalCastException);
  EXPECT_THROW(Array<int>().LastIndex(), NilObjectException);
  const Array<int> array{7};
  EXPECT_THROW(array[-1], OutOfBoundsException);
  EXPECT_THROW(array[1], OutOfBoundsException);
  EXPECT_THROW(array.Remove(1), OutOfBoundsException);
}

}  // namespace
