#include <QAccessible>

#include "qt/qt_hand.h"

// What a screen reader is told, as far as it shows inside the process.

namespace {

using namespace support;
using testing::ElementsAre;

using Accessibility = OnScreen;

QAccessibleInterface& Spoken(const std::string& name) {
  return *QAccessible::queryAccessibleInterface(&Find(name));
}

TEST_F(Accessibility, ControlsSayWhatTheyAreAndABoxItsStarAsLongAsItShows) {
  Open();
  const auto labels = Spoken("pmRoot").relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0].first->text(QAccessible::Name), "Root Note");

  QAccessibleInterface& box = Spoken("cbScale4");
  QAccessibleInterface& other = Spoken("cbScale3");
  const QString help = other.text(QAccessible::Description);
  EXPECT_EQ(box.text(QAccessible::Name), "E");
  box.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QApplication::processEvents();
  QAccessibleInterface& list = Spoken("lbContaining");
  EXPECT_EQ(list.text(QAccessible::Name), "Containing All Notes");
  ASSERT_EQ(list.tableInterface()->rowCount(), 3) << "the tick has searched";
  EXPECT_EQ(list.tableInterface()->columnDescription(1), "");
  EXPECT_EQ(list.tableInterface()->cellAt(0, 1)->text(QAccessible::Name), "Major");

  EXPECT_EQ(box.text(QAccessible::Description), help);
  hand_->ChooseRow(0);
  EXPECT_EQ(box.text(QAccessible::Description), "In the chosen scale. " + help);
  EXPECT_EQ(other.text(QAccessible::Description), help);
  hand_->TakeChoiceBack();
  EXPECT_EQ(box.text(QAccessible::Description), help);
}

TEST_F(Accessibility, RootIsATextThatFollowsTheChoice) {
  Open();
  QAccessibleInterface& root = Spoken("pmRoot");
  EXPECT_EQ(root.textInterface()->text(0, -1), "C");
  EXPECT_TRUE(root.state().expandable);
  EXPECT_FALSE(root.state().expanded);
  root.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_TRUE(root.state().expanded);
  ASSERT_EQ(root.childCount(), 1);
  EXPECT_EQ(root.child(0)->childCount(), 12);
  EXPECT_EQ(root.indexOfChild(root.child(0)), 0);
  for (const auto* other : {&root, static_cast<QAccessibleInterface*>(nullptr)}) {
    EXPECT_EQ(root.indexOfChild(other), -1);
  }
  root.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_FALSE(root.state().expanded);
  hand_->ChooseRoot(4);
  EXPECT_EQ(root.text(QAccessible::Value), "C# / Db");
  QAccessibleTextInterface& text = *root.textInterface();
  EXPECT_EQ(text.text(0, text.characterCount()), "C# / Db");
  EXPECT_EQ(text.text(1, 2), "#");
  EXPECT_EQ(text.text(0, 0), "");
  int ends[] = {-1, -1, -1, -1};
  EXPECT_EQ(text.attributes(0, &ends[0], &ends[1]), "");
  text.selection(0, &ends[2], &ends[3]);
  EXPECT_THAT(ends, ElementsAre(0, 7, 0, 0)) << "one run of letters, none selected";
  EXPECT_EQ(text.selectionCount(), 0);
  EXPECT_EQ(text.cursorPosition(), 0);
  EXPECT_EQ(text.offsetAtPoint({}), -1);
}

}  // namespace
