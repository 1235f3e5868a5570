#include <QAccessible>

#include "qt/qt_hand.h"
#include "support/behaviour.h"

// What a screen reader is told, as far as it shows inside the process.

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;

class Accessibility : public Behaviour<QtHand> {
 protected:
  static QAccessibleInterface& Spoken(const std::string& name) {
    return *QAccessible::queryAccessibleInterface(&Find(name.c_str()));
  }
  static std::string Told(const std::string& name, QAccessible::Text what) {
    return Spoken(name).text(what).toStdString();
  }
  /// The note boxes whose description tells of a star.
  static std::vector<int> StarsTold() {
    std::vector<int> stars;
    for (int i = 0; i < 12; ++i) {
      const auto description = Told("cbScale" + std::to_string(i), QAccessible::Description);
      EXPECT_THAT(description,
                  testing::EndsWith("Select which pitch classes must appear in the scale."));
      if (description.starts_with("In the chosen scale. ")) stars.push_back(i);
    }
    return stars;
  }
};

TEST_F(Accessibility, BoxesSayCaptionHelpAndState) {
  Open();
  hand_->ChooseRoot(4);
  std::vector<std::pair<std::string, const CheckBox*>> boxes = {
      {"cbOther", window_->cbOther().Get()}, {"cbRinL", window_->cbRinL().Get()}};
  for (int i = 0; i < 12; ++i) {
    boxes.emplace_back("cbScale" + std::to_string(i), window_->cbScale(i).Get());
  }
  for (const auto& [name, box] : boxes) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Spoken(name).role(), QAccessible::CheckBox);
    EXPECT_EQ(Told(name, QAccessible::Name), Text(box->Caption()));
    EXPECT_EQ(Told(name, QAccessible::Description), Text(box->HelpTag()));
    for (const bool ticked : {true, false}) {
      Spoken(name).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
      EXPECT_EQ(Spoken(name).state().checked, ticked);
      EXPECT_EQ(box->Value(), ticked);
    }
  }
}

TEST_F(Accessibility, RootMenuSaysItsTitleAndItsValue) {
  Open();
  QAccessibleInterface& popup = Spoken("pmRoot");
  EXPECT_EQ(popup.role(), QAccessible::ComboBox);
  EXPECT_EQ(Told("pmRoot", QAccessible::Value), "C");
  const auto labels = popup.relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0].first->text(QAccessible::Name), "Root Note");
}

TEST_F(Accessibility, ListsAreTablesOfThreeColumnsWithoutHeadings) {
  Open();
  for (const int i : {0, 4, 7}) hand_->Tick(i);
  for (const auto& [name, title, row] : {std::tuple("lbExact", "Exact Match", "Triad"),
                                         {"lbContaining", "Containing All Notes", "Major"}}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Spoken(name).role(), QAccessible::Table);
    EXPECT_EQ(Told(name, QAccessible::Name), title);
    QAccessibleTableInterface& table = *Spoken(name).tableInterface();
    ASSERT_EQ(table.rowCount(), 1);
    ASSERT_EQ(table.columnCount(), 3);
    EXPECT_EQ(table.cellAt(0, 1)->text(QAccessible::Name), row);
    EXPECT_EQ(table.cellAt(0, 2)->text(QAccessible::Name), "C");
    EXPECT_EQ(table.columnDescription(1), "");
  }
}

TEST_F(Accessibility, StarIsToldWithItsBoxAsLongAsItShows) {
  Open();
  for (const int i : {0, 4, 7}) hand_->Tick(i);
  EXPECT_THAT(StarsTold(), ElementsAre());
  hand_->ChooseRow(0);
  EXPECT_THAT(StarsTold(), ElementsAre(0, 2, 4, 5, 7, 9, 11));
  EXPECT_EQ(Told("lbStar2", QAccessible::Name), "In the chosen scale.");
  hand_->TakeChoiceBack();
  EXPECT_THAT(StarsTold(), ElementsAre());
}

TEST_F(Accessibility, HiddenLabelsAreNotAnnounced) {
  Open();
  for (const char* const name : {"lbStar0", "lbStar11", "lbValue", "lbScale"}) {
    EXPECT_TRUE(Spoken(name).state().invisible) << name;
  }
  EXPECT_FALSE(Spoken("Label1").state().invisible);
}

}  // namespace
