#include <gmock/gmock.h>

#include "framework/cast.h"
#include "framework/failures.h"
#include "framework/text.h"
#include "framework/weak_ref.h"

namespace {

using namespace framework;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> Parts(const Array<String>& parts) {
  std::vector<std::string> texts;
  for (std::int64_t i = 0; i <= parts.LastIndex(); ++i) texts.emplace_back(parts[i]);
  return texts;
}

TEST(String, NilAndEmptyAreTheSameEverywhere) {
  EXPECT_EQ(RuntimeStringCompare(String(), ""), 0);
  EXPECT_EQ(std::string(RuntimeAddString(String(), "b")), "b");
  EXPECT_EQ(std::string(RuntimeAddString("a", String())), "a");
  EXPECT_THAT(Parts(Split(String(), ",")), ElementsAre(""));
}

TEST(String, KeepsZeroBytesAndBytesThatAreNoText) {
  const std::string bytes("a\0\xFF,\xC3", 5);
  EXPECT_THAT(Parts(Split(bytes, ",")), ElementsAre(std::string("a\0\xFF", 3), "\xC3"));
}

TEST(String, EqualityFoldsTheCaseOfAsciiAlone) {
  EXPECT_EQ(RuntimeStringCompare("true", "TRUE"), 0);
  EXPECT_NE(RuntimeStringCompare("TRUE ", "TRUE"), 0);
  EXPECT_NE(RuntimeStringCompare("\xC3\xA4", "\xC3\x84"), 0);
  EXPECT_FALSE(Same(String("a"), String("A"))) << "a change of case is a change";
}

TEST(Split, KeepsThePlaceOfEveryPart) {
  EXPECT_THAT(Parts(Split(",\"a, b\",,", ",")), ElementsAre("", "\"a", " b\"", "", ""));
  EXPECT_THAT(Parts(Split("abc", "")), ElementsAre("abc"));
}

TEST(Numbers, GoIntoTextAndBack) {
  for (int mask = 0; mask < 4096; ++mask) {
    ASSERT_EQ(static_cast<int>(Val(Str(mask))), mask);
    ASSERT_EQ(std::stoi(std::string(Bin(mask)), nullptr, 2), mask);
  }
  EXPECT_EQ(std::string(Bin(0)), "0");
  EXPECT_EQ(std::string(Bin(2192)), "100010010000");
  EXPECT_EQ(Val("  2773 notes"), 2773);
  for (const char* const no_number : {"", "notes", "nan", "inf", "-", "-inf", "1e999"}) {
    EXPECT_EQ(Val(no_number), 0) << no_number;
  }
}

TEST(Array, RaisesOutsideItsElementsAndWhenNil) {
  const Array<int> array{7};
  EXPECT_THROW(array[-1], OutOfBoundsException);
  EXPECT_THROW(array[1], OutOfBoundsException);
  EXPECT_THROW(array.Remove(1), OutOfBoundsException);
  EXPECT_EQ(CreateArray<int>(-1).LastIndex(), -1);
  EXPECT_THROW(Array<int>().LastIndex(), NilObjectException);
}

TEST(Array, IsSharedByItsCopies) {
  const Array<int> array{1};
  const Array<int> copy = array;
  copy.Append(2);
  EXPECT_EQ(array[1], 2);
}

struct Thing : Object {
  explicit Thing(int* gone) : gone_(gone) {}
  ~Thing() override { ++*gone_; }
  int* gone_;
};
struct Other : Object {};

TEST(Ref, KeepsItsObjectAndRaisesWhenNil) {
  int gone = 0;
  {
    auto one = RuntimeNewObject<Thing>(&gone);
    Ref<Object> two = one;
    one = nullptr;
    EXPECT_EQ(gone, 0);
    EXPECT_THROW(RuntimeCheckCast<Other>(two), IllegalCastException);
  }
  EXPECT_EQ(gone, 1);
  try {
    *Ref<Thing>();
    FAIL();
  } catch (const NilObjectException& failure) {
    EXPECT_THAT(std::string(failure.Message()), HasSubstr("Thing"));
  }
}

/// Asks for itself while it goes.
struct Clinging : Object {
  ~Clinging() override { EXPECT_FALSE(self->Value()); }
  Ref<WeakRef> self = RuntimeNewObject<WeakRef>(this);
};

TEST(WeakRef, GivesNothingBackWhileItsObjectGoes) {
  const Ref<WeakRef> weak = RuntimeNewObject<Clinging>()->self;
  EXPECT_FALSE(weak->Value());
}

TEST(WeakRef, EmptiesItselfAndKeepsNothingAlive) {
  int gone = 0;
  auto thing = RuntimeNewObject<Thing>(&gone);
  const auto weak = RuntimeNewObject<WeakRef>(thing);
  const auto second = RuntimeNewObject<WeakRef>(thing);
  EXPECT_EQ(weak->Value(), thing);
  thing = nullptr;
  EXPECT_EQ(gone, 1);
  EXPECT_FALSE(weak->Value());
  EXPECT_FALSE(second->Value());
}

}  // namespace
