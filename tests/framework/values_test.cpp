#include <limits>
#include <set>

#include "framework/values/cast.h"
#include "framework/values/pool.h"
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

TEST_F(Values, OfNoUseAreRefusedOrTakenForEmpty) {
  for (const std::int64_t last : {std::int64_t{-2}, std::numeric_limits<std::int64_t>::min(),
                                  std::numeric_limits<std::int64_t>::max()}) {
    EXPECT_THROW(CreateArray<String>(last), OutOfBoundsException) << last;
  }
  EXPECT_EQ(CreateArray<String>(-1).LastIndex(), -1);
  EXPECT_EQ(Split(nullptr, nullptr)[0].View(), "");
  EXPECT_EQ(Split("a,b", nullptr).LastIndex(), 0);
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

TEST_F(Values, HaveRoomOfTheirOwnInAPool) {
  struct Large {
    std::array<std::byte, 5000> bytes;
  };
  Pool<Large> pool;
  std::set<std::byte*> rooms;
  const auto take = [&] {
    auto* const room = static_cast<std::byte*>(pool.Take());
    std::fill_n(room, sizeof(Large), std::byte{1});
    const auto next = rooms.insert(room).first;
    EXPECT_TRUE(next == rooms.begin() || *std::prev(next) + sizeof(Large) <= room);
    EXPECT_TRUE(std::next(next) == rooms.end() || room + sizeof(Large) <= *std::next(next));
  };
  for (int i = 0; i < 100; ++i) take();
  EXPECT_EQ(rooms.size(), 100);
  const std::set<std::byte*> given = {*rooms.begin(), *std::next(rooms.begin(), 40)};
  for (std::byte* const room : given) {
    rooms.erase(room);
    pool.GiveBack(room);
  }
  take();
  take();
  EXPECT_TRUE(std::ranges::includes(rooms, given));
  take();
  EXPECT_EQ(rooms.size(), 101);
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
