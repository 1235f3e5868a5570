#include <gmock/gmock.h>

#include <set>

#include "framework/failures.h"
#include "framework/text.h"
#include "pitch/mask.h"
#include "pitch/tscale.h"

namespace {

using framework::Array;
using framework::RuntimeNewObject;
using framework::String;
using pitch::Rotate12;
using pitch::TScale;

/// The same thing another way: a set of semitones above the root.
std::set<int> Semitones(std::int64_t mask) {
  std::set<int> notes;
  for (int i = 0; i < 12; ++i) {
    if ((mask >> (11 - i)) % 2 != 0) notes.insert(i);
  }
  return notes;
}

std::set<int> MeasuredFrom(const std::set<int>& notes, int position) {
  std::set<int> moved;
  for (const int note : notes) moved.insert((note + 12 - position) % 12);
  return moved;
}

framework::Ref<TScale> Scale(std::int64_t mask) {
  auto fields = framework::CreateArray<String>(1);
  for (int i = 0; i < 12; ++i) fields.Append((mask >> (11 - i)) % 2 != 0 ? "TRUE" : "FALSE");
  auto scale = RuntimeNewObject<TScale>();
  scale->Constructor(fields);
  return scale;
}

TEST(Rotate12, MeasuresEveryMaskFromEveryPosition) {
  for (int mask = 0; mask < 4096; ++mask) {
    for (int count = 0; count <= 12; ++count) {
      ASSERT_EQ(Semitones(Rotate12(mask, count)), MeasuredFrom(Semitones(mask), count % 12))
          << "mask " << mask << ", count " << count;
    }
  }
}

TEST(Rotate12, RunsTheCountAsItStands) {
  EXPECT_EQ(Rotate12(2192, 4), 2312);
  EXPECT_EQ(Rotate12(2192, -5), 2192);
  EXPECT_EQ(Rotate12(2192, 13), 289);
  EXPECT_EQ(Rotate12(2192, 24), 2192);
}

TEST(Rotate12, HoldsItsRuleOutsideTheRangeOfAMask) {
  EXPECT_EQ(Rotate12(4096, 0), 4096);
  EXPECT_EQ(Rotate12(4096, 1), 0);
  EXPECT_EQ(Rotate12(6144, 1), 1);
  EXPECT_EQ(Rotate12(-1, 1), -1);
  EXPECT_EQ(Rotate12(-3, 1), -5);
  EXPECT_EQ(Rotate12(-2048, 1), 1);
}

TEST(NameIndex, WrapsBehindTheLastName) {
  EXPECT_EQ(pitch::NameIndex(3, 0), 3);
  EXPECT_EQ(pitch::NameIndex(11, 1), 0);
  EXPECT_EQ(pitch::NameIndex(11, 11), 10);
}

TEST(TScale, IsEqualToAMaskOrStrictlyMoreOrNeither) {
  for (const int notes : {0, 1, 144, 2192, 2730, 2773, 2906, 4095}) {
    const auto scale = Scale(notes);
    ASSERT_EQ(scale->Notes(), notes);
    const std::set<int> own = Semitones(notes);
    for (int mask = 0; mask < 4096; ++mask) {
      const std::set<int> wanted = Semitones(mask);
      const bool all = std::includes(own.begin(), own.end(), wanted.begin(), wanted.end());
      ASSERT_EQ(scale->Equivalent(mask), own == wanted) << notes << " against " << mask;
      ASSERT_EQ(scale->ContainsAll(mask), all && own != wanted) << notes << " against " << mask;
    }
  }
}

TEST(TScale, TakesALineVerbatim) {
  const auto scale = RuntimeNewObject<TScale>();
  scale->Constructor(framework::Split(
      "Common,Major,TRUE,x,true,,TRUE,TRUE,FALSE,TRUE, TRUE,TRUE,TRUE ,TRUE,surplus,TRUE", ","));
  EXPECT_EQ(std::string(scale->Print()), "Common : Major : 2773");
}

TEST(TScale, RaisesAtTheFirstMissingField) {
  for (const int count : {0, 1, 2, 13}) {
    try {
      RuntimeNewObject<TScale>()->Constructor(framework::CreateArray<String>(count - 1));
      ADD_FAILURE() << "a line of " << count << " fields was taken";
    } catch (const framework::OutOfBoundsException& failure) {
      EXPECT_THAT(std::string(failure.Message()),
                  testing::StartsWith("Index " + std::to_string(count) + " "));
    }
  }
  EXPECT_THROW(RuntimeNewObject<TScale>()->Constructor(Array<String>()),
               framework::NilObjectException);
}

}  // namespace
