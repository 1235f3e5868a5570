#include <QAccessible>

#include "qt/qt_hand.h"

// What a screen reader is told, as far as it shows inside the process.

namespace {

using namespace support;
using testing::ElementsAre;

class Accessibility : public OnScreen {
 protected:
  static QAccessibleInterface& Spoken(const std::string& name) {
    return *QAccessible::queryAccessibleInterface(&Find(name));
  }
  /// The note boxes whose description tells of a star.
  static std::vector<int> StarsTold() {
    std::vector<int> stars;
    for (int i = 0; i < 12; ++i) {
      const QString told = Spoken("cbScale" + std::to_string(i)).text(QAccessible::Description);
      if (told.startsWith("In the chosen scale. Select which")) stars.push_back(i);
    }
    return stars;
  }
};

TEST_F(Accessibility, ControlsSayWhatTheyAreAndTakeATickWithoutAClick) {
  Open();
  QAccessibleInterface& box = Spoken("cbScale4");
  EXPECT_EQ(box.text(QAccessible::Name), "E");
  box.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  QApplication::processEvents();

  const auto labels = Spoken("pmRoot").relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0].first->text(QAccessible::Name), "Root Note");

  QAccessibleInterface& list = Spoken("lbContaining");
  EXPECT_EQ(list.text(QAccessible::Name), "Containing All Notes");
  ASSERT_EQ(list.tableInterface()->rowCount(), 3) << "the tick has searched";
  EXPECT_EQ(list.tableInterface()->columnDescription(1), "");
  EXPECT_EQ(list.tableInterface()->cellAt(0, 1)->text(QAccessible::Name), "Major");
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

TEST_F(Accessibility, StarIsToldWithItsBoxAsLongAsItShows) {
  Open();
  hand_->Tick(0);
  EXPECT_THAT(StarsTold(), ElementsAre());
  EXPECT_TRUE(Spoken("lbStar2").state().invisible);
  hand_->ChooseRow(0);
  EXPECT_THAT(StarsTold(), ElementsAre(0, 2, 4, 5, 7, 9, 11));
  hand_->TakeChoiceBack();
  EXPECT_THAT(StarsTold(), ElementsAre());
}

}  // namespace
