#include "framework/cast.h"
#include "framework/weak_ref.h"
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

TEST_F(Values, HoldATextThatWasWrittenInPlace) {
  for (const std::size_t room : {0U, 8U, 12U, 13U, 100U}) {
    const auto text = String::Written(room, [&](char* to) {
      std::fill_n(to, room, 'x');
      return room;
    });
    EXPECT_EQ(text.View(), std::string(room, 'x'));
  }
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
