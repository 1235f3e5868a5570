#include "window/layout.h"

#include <sstream>

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;

std::string Hex(const Block& block, std::size_t offset, std::size_t count) {
  std::ostringstream text;
  for (std::size_t i = offset; i < offset + count; ++i) {
    text << std::hex << std::uppercase << (block.bytes[i] < 16 ? "0" : "")
         << static_cast<int>(block.bytes[i]) << (i + 1 < offset + count ? " " : "");
  }
  return text.str();
}

struct Stretch {
  std::size_t offset;
  std::string bytes;
};

TEST(Layout, BlockOfTheSecondNoteBoxStandsByteForByte) {
  const Block block = window::layout::Of("cbScale", 1);
  EXPECT_EQ(block.length, 439U);
  const Stretch stretches[] = {
      {0, "FF"},
      {1, "4E 61 6D 65 20"},
      {6, "07 00 00 00 63 62 53 63 61 6C 65"},
      {17, "49 6E 64 65 78 20"},
      {23, "01 00 00 00 00 00 00 00"},
      {31, "4C 65 66 74 20"},
      {36, "1E 00 00 00 00 00 00 00"},
      {44, "54 6F 70 20"},
      {48, "DA 00 00 00 00 00 00 00"},
      {85, "4C 6F 63 6B 4C 65 66 74 20"},
      {94, "01"},
      {191, "43 61 70 74 69 6F 6E 20"},
      {199, "07 00 00 00 43 23 20 2F 20 44 62"},
      {338, "54 65 78 74 53 69 7A 65 20"},
      {347, "00 00 00 00"},
      {386, "56 61 6C 75 65 20"},
      {392, "00"},
      {422, "49 6E 69 74 69 61 6C 50 61 72 65 6E 74 20"},
      {436, "00 00 00 00"},
      {440, "00 00 00 00 00 00 00 00"},
  };
  for (const Stretch& stretch : stretches) {
    EXPECT_EQ(Hex(block, stretch.offset, (stretch.bytes.size() + 1) / 3), stretch.bytes)
        << "offset " << stretch.offset;
  }
}

TEST(Layout, BlockEndsWithItsContainerAndHasItsSentinels) {
  const Block member = window::layout::Of("cbScale", 4);
  EXPECT_EQ(Hex(member, member.length + 1 - 13, 13), "09 00 00 00 63 62 53 63 61 6C 65 24 32");
  EXPECT_EQ(Hex(window::layout::Of("cbOther"), 23, 8), "00 00 00 80 FF FF FF FF");
  const Block star = window::layout::Of("lbStar", 0);
  const std::string_view bytes(reinterpret_cast<const char*>(star.bytes), star.length + 1);
  EXPECT_EQ(Hex(star, bytes.find("TextSize ") + 9, 4), "00 00 F0 41");
  EXPECT_EQ(Hex(star, bytes.find("TextColor ") + 10, 4), "00 81 00 00");
  EXPECT_THROW(window::layout::Of("cbScale", 12), KeyNotFoundException);
}

class OpenedWindow : public ProgramOn<toolkit::memory::MemoryToolkit> {};

TEST_F(OpenedWindow, HasItsControlsInTheOrderOfTheirMaking) {
  Open();
  std::string order;
  for (const auto& control : window_->_Controls()) {
    order += Text(control->Name());
    if (control->Index() != Control::kNoIndex) order += std::to_string(control->Index());
    order += " ";
  }
  EXPECT_EQ(order,
            "lbContaining cbScale0 cbScale1 cbScale2 cbScale4 cbScale6 cbScale8 cbScale10 lbStar9 "
            "cbScale3 cbScale5 cbScale7 cbScale9 cbScale11 lbValue lbExact Label1 Label2 Label3 "
            "pmRoot Label4 lbStar0 lbStar1 lbStar2 lbStar5 lbStar3 lbStar6 lbStar4 lbStar7 "
            "lbStar10 lbStar8 lbStar11 lbScale cbOther cbRinL ");
}

TEST_F(OpenedWindow, BlocksAreOfTheirKindsLengthsAndSetWhatTheyName) {
  Open();
  std::size_t shortest = 10000;
  std::size_t longest = 0;
  std::uint64_t digest = 0;
  const auto measure = [&](const Block& block) {
    for (std::size_t i = 0; i <= block.length; ++i) digest = digest * 31 + block.bytes[i];
    shortest = std::min(shortest, block.length);
    longest = std::max(longest, block.length);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.bytes) % 16, 0U);
  };
  measure(window::layout::MainWindow());
  for (const auto& filed : window_->_Controls()) {
    const auto control = RuntimeCheckCast<RectControl>(filed);
    measure(window::layout::Of(control->Name(), control->Index()));
    EXPECT_FALSE(control->Parent()) << Text(control->Name()) << " left its container at opening";
    EXPECT_TRUE(control->LockLeft() && control->LockTop() && control->Enabled());
    EXPECT_FALSE(control->LockRight() || control->LockBottom());
  }
  EXPECT_EQ(shortest, 338U);
  EXPECT_EQ(longest, 911U);
  EXPECT_EQ(digest, 14347917955307236446U)
      << "some measure or text of the layout is another: is that wanted?";
  EXPECT_EQ(window_->Width(), 615);
  EXPECT_EQ(window_->MinHeight(), 64);
  EXPECT_EQ(window_->cbScale(9)->Top(), 459);
  EXPECT_EQ(window_->lbStar(9)->Top(), 458);
  EXPECT_EQ(Text(window_->cbScale(4)->InitialParent()), "cbScale$2");
  EXPECT_EQ(window_->lbStar(3)->TextSize(), 30.0F);
  EXPECT_EQ(window_->lbStar(3)->TextAlign(), Label::kCentre);
  EXPECT_EQ(window_->pmRoot()->Rows().LastIndex(), 11);
  EXPECT_EQ(window_->lbContaining()->ColumnCount(), 4);
  EXPECT_FALSE(window_->lbValue()->Visible());
}

TEST_F(OpenedWindow, TakesAMemberMadeAtRunTime) {
  Open();
  const auto box = window_->__New<window::cbScaleClass>();
  box->Constructor();
  EXPECT_EQ(box->Index(), 0);
  EXPECT_EQ(box->Top(), 188);
  window_->cbScale(4)->Toggle();
  window_->lbContaining()->Select(0);
  box->Toggle();
  EXPECT_THAT(Stars(), testing::IsEmpty()) << "its Action has the set's handler";
  EXPECT_THAT(toolkit_.Lines(), testing::Contains("cbScale(0).Value")) << "it is on the screen";

  const auto star = window_->__New<window::lbStarClass>();
  star->Constructor();
  EXPECT_EQ(star->Index(), 0);
  EXPECT_EQ(star->Top(), 458) << "the place of the star that was made first";
  EXPECT_NE(window_->lbStar(0), star) << "the first one filed answers";
  EXPECT_FALSE(star->Parent()) << "its Open has the set's handler";
  star->Visible(true);
  EXPECT_THAT(toolkit_.Lines(), testing::Contains("lbStar(0).Visible"));
  EXPECT_THAT(window_->_Controls(), testing::SizeIs(37)) << "both are filed";
}

}  // namespace
