#include "window/layout.h"

#include <sstream>

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;

std::string Contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The fuzzer's seeds are blocks of the layout, each with a number in place of the 0xFF.
TEST(Layout, BlocksStandByteForByte) {
  const std::pair<const char*, Block> blocks[] = {
      {"window", window::layout::MainWindow()},
      {"listbox", window::layout::Of("lbContaining")},
      {"check_box", window::layout::Of("cbScale", 1)},
      {"label", window::layout::Of("lbStar", 3)},
      {"popup_menu", window::layout::Of("pmRoot")},
  };
  for (const auto& [seed, block] : blocks) {
    const std::string_view bytes(reinterpret_cast<const char*>(block.bytes), block.length + 1);
    EXPECT_EQ(bytes, "\xFF" + Contents(std::string(BLOCK_SEEDS) + seed).substr(1)) << seed;
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.bytes) % 16, 0U) << seed;
  }
  EXPECT_THROW(window::layout::Of("cbScale", 12), KeyNotFoundException);
}

/// A line of layout.txt: what a control has that others of its kind may have otherwise.
std::string Described(const Ref<Control>& any) {
  const auto control = RuntimeCheckCast<RectControl>(any);
  std::ostringstream text;
  text << Text(control->Name());
  if (control->Index() != Control::kNoIndex) text << "(" << control->Index() << ")";
  text << " at " << control->Left() << "," << control->Top() << " of " << control->Width() << "x"
       << control->Height() << " tab " << control->TabIndex()
       << (control->Parent() ? " inside '" : " from '") << Text(control->InitialParent()) << "'";
  if (const auto* list = dynamic_cast<Listbox*>(any.Get()))
    text << " columns " << list->ColumnCount();
  if (const auto* box = dynamic_cast<CheckBox*>(any.Get()))
    text << " '" << Text(box->Caption()) << "'";
  if (const auto* label = dynamic_cast<Label*>(any.Get())) {
    text << (label->Visible() ? " '" : " hidden '") << Text(label->Text()) << "' size "
         << label->TextSize() << " align " << label->TextAlign() << " green "
         << int{label->TextColor().green};
  }
  return text.str() + " help '" + Text(control->HelpTag()) + "'\n";
}

/// The entries of a menu, each with those below it behind it.
std::vector<Ref<MenuItem>> Entries(const MenuItem& menu) {
  std::vector<Ref<MenuItem>> entries;
  for (std::int64_t i = 0; i <= menu._Children().LastIndex(); ++i) {
    entries.push_back(menu._Children()[i]);
    const auto below = Entries(*entries.back());
    entries.insert(entries.end(), below.begin(), below.end());
  }
  return entries;
}

using OpenedWindow = ProgramOn<toolkit::memory::MemoryToolkit>;

TEST_F(OpenedWindow, HasItsControlsAndMenusInOrder) {
  Open();
  std::string text;
  for (const auto& control : window_->_Controls()) text += Described(control);
  for (const auto& entry : Entries(*window_->MenuBar())) {
    EXPECT_TRUE(entry->AutoEnable() && entry->Visible());
    text += Text(entry->Name()) + " '" + Text(entry->Text()) + "' '" +
            Text(entry->KeyboardShortcut()) + "'\n";
  }
  EXPECT_EQ(text, Contents(LAYOUT));
  EXPECT_THAT(
      Entries(*window_->MenuBar()),
      testing::ElementsAre(window_->FileMenu(), window_->FileQuit(), window_->EditMenu(),
                           window_->EditUndo(), window_->EditSeparator1(), window_->EditCut(),
                           window_->EditCopy(), window_->EditPaste(), window_->EditClear(),
                           window_->EditSeparator2(), window_->EditSelectAll()));
}

TEST_F(OpenedWindow, TakesAMemberMadeAtRunTime) {
  Open();
  const Ref<CheckBox> box = window_->__New<window::cbScaleClass>();
  box->Constructor();
  EXPECT_EQ(Described(box), Described(window_->cbScale(0)));
  window_->cbScale(4)->Toggle();
  window_->lbContaining()->Select(0);
  box->Toggle();
  EXPECT_EQ(Stars(), "000000000000") << "its Action has the set's handler";
  EXPECT_THAT(toolkit_.Lines(), testing::Contains("cbScale(0).Value")) << "it is on the screen";

  const Ref<RectControl> star = window_->__New<window::lbStarClass>();
  star->Constructor();
  EXPECT_EQ(star->Top(), 458) << "the place of the star that was made first";
  EXPECT_FALSE(star->Parent()) << "its Open has the set's handler";
  EXPECT_EQ(star->Index(), 0);
  EXPECT_NE(window_->lbStar(0), star) << "the first one filed answers";
  EXPECT_THAT(window_->_Controls(), testing::SizeIs(37)) << "both are filed";
}

}  // namespace
