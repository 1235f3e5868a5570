#include "check/characters.h"

#include <gtest/gtest.h>

namespace {

TEST(Characters, AreThoseOfUtf8AndNoOthers) {
  for (const std::string_view good : {"\x7F", "\u0080", "\u07FF", "\u0800", "\uD7FF", "\uE000",
                                      "\uFFFF", "\U00010000", "\U00040000", "\U0010FFFF"}) {
    EXPECT_EQ(check::CharacterSize(good), good.size()) << check::Quoted(good);
  }
  for (const std::string_view bad :
       {"", "\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xE2\x82", "\xED\xA0\x80",
        "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE2\x82\xC0", "\xFF"}) {
    EXPECT_EQ(check::CharacterSize(bad), 0U) << check::Quoted(bad);
  }
  EXPECT_EQ(check::FindNoText("\xFF"
                              "a"),
            0U);
}

TEST(Characters, ThatAreUnseenAreEscapedAndThoseBeyondFortyAreLeftOut) {
  EXPECT_EQ(check::Quoted("à é \x1F\x7F\u0080\u00A0\u00A1"), R"("à é \x1F\x7F\xC2\x80\xC2\xA0¡")");
  const std::string forty(40, 'a');
  EXPECT_EQ(check::Quoted(forty), '"' + forty + '"');
  EXPECT_EQ(check::Quoted(forty + "b"), '"' + forty + "\"...");
}

}  // namespace
