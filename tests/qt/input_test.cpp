#include <QAction>
#include <QTimer>

#include "qt/qt_hand.h"
#include "toolkit/qt/menu_builder.h"

// What each key and each mouse button does.

namespace {

using namespace framework;
using namespace support;

using Input = OnScreen;

TEST_F(Input, TabGoesDownTheLeftColumnThenTheRight) {
  Open();
  std::string order;
  for (int i = 0; i < 18; ++i) {
    order += QApplication::focusWidget()->objectName().toStdString() + " ";
    QtHand::Press(*QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order,
            "pmRoot cbOther cbRinL cbScale0 cbScale1 cbScale2 cbScale3 cbScale4 cbScale5 cbScale6 "
            "cbScale7 cbScale8 cbScale9 cbScale10 cbScale11 lbExact lbContaining pmRoot ");
}

TEST_F(Input, ArrowKeysGoUpAndDownInOneSetOfBoxesAndNowhereElse) {
  Open();
  const auto after = [](const char* first, Qt::Key key, int times) {
    Find(first).setFocus();
    while (times-- > 0) QtHand::Press(*QApplication::focusWidget(), key);
    return QApplication::focusWidget()->objectName().toStdString();
  };
  EXPECT_EQ(after("cbScale0", Qt::Key_Down, 3), "cbScale3");
  EXPECT_EQ(after("cbScale0", Qt::Key_Down, 15), "cbScale11");
  EXPECT_EQ(after("cbScale11", Qt::Key_Up, 4), "cbScale7");
  EXPECT_EQ(after("cbScale3", Qt::Key_Up, 7), "cbScale0");
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}) {
    EXPECT_EQ(after("cbOther", key, 1), "cbOther");
    EXPECT_EQ(after("cbRinL", key, 1), "cbRinL");
  }
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) {
    EXPECT_EQ(after("cbScale4", key, 1), "cbScale4");
  }
  EXPECT_EQ(window_->pmRoot()->ListIndex(), 3);
}

TEST_F(Input, RowsAreChosenByKeysAndLetGoByMouse) {
  Open();
  hand_->TickOther();
  const auto row_after = [&](Qt::Key key) {
    QtHand::Press(List(), key);
    return window_->lbContaining()->ListIndex();
  };
  List().setFocus();
  EXPECT_EQ(row_after(Qt::Key_Down), 0);
  EXPECT_EQ(row_after(Qt::Key_Down), 1);
  EXPECT_EQ(row_after(Qt::Key_End), 47);
  EXPECT_LT(row_after(Qt::Key_PageUp), 45);
  EXPECT_EQ(row_after(Qt::Key_Home), 0);
  EXPECT_GT(row_after(Qt::Key_PageDown), 2);
  for (const Qt::Key arrow : {Qt::Key_Up, Qt::Key_Down}) {
    hand_->ChooseRow(2);
    QtHand::ClickRow("lbContaining", 2, Qt::ControlModifier);
    EXPECT_EQ(window_->lbContaining()->ListIndex(), -1) << "with the Ctrl key";
    EXPECT_EQ(row_after(arrow), 2) << "where the focus is";
  }
  hand_->TakeChoiceBack();
  EXPECT_EQ(row_after(Qt::Key_End), 47) << "with none chosen before";
  hand_->TickOther();
  hand_->ChooseRow(2);
  QtHand::Click(*List().viewport(), List().viewport()->rect().bottomLeft());
  EXPECT_EQ(window_->lbContaining()->ListIndex(), -1) << "beside the rows";
  window_->lbContaining()->Select(1);
  hand_->ExpectMirrored(*window_);
}

TEST_F(Input, OnlyTheMainButtonDoesAnything) {
  Open();
  hand_->Tick(0);
  hand_->ChooseRow(0);
  QApplication::setDoubleClickInterval(1);  // a popup that has just opened takes no click
  auto& popup = Find<QComboBox>("pmRoot");
  const QPoint row = Place(1, 1).center();
  const QPoint beside = List().viewport()->rect().bottomLeft();
  for (const auto button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
    SCOPED_TRACE(button);
    for (const QPoint& place : {row, beside}) {
      QTest::mouseClick(List().viewport(), button, {}, place);
      QTest::mouseDClick(List().viewport(), button, {}, place);
      EXPECT_EQ(window_->lbContaining()->ListIndex(), 0);
    }
    QTest::mouseClick(&Find("cbScale2"), button, {}, {8, 8});
    QTest::mouseClick(&popup, button);
    EXPECT_FALSE(popup.view()->isVisible());
    popup.showPopup();
    QWidget& rows = *popup.view()->viewport();
    const QPoint last = popup.view()->visualRect(popup.model()->index(11, 0)).center();
    QTest::mouseMove(&rows, last);
    QTest::qWait(10);
    QTest::mouseClick(&rows, button, {}, last);
    EXPECT_TRUE(popup.view()->isVisible());
    QTest::mouseClick(Native().windowHandle(), button, {},
                      List().viewport()->mapTo(&Native(), row));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !popup.view()->isVisible(); })) << "it lets go";
    EXPECT_EQ(window_->pmRoot()->ListIndex(), 3);
    EXPECT_EQ(window_->lbContaining()->ListIndex(), 0);
  }
  EXPECT_FALSE(window_->cbScale(2)->Value());
}

TEST_F(Input, RootMenuShowsAllItsRowsInAnyStyle) {
  toolkit_.before_the_window = [] { QApplication::setStyle(QStringLiteral("windows")); };
  Open();
  auto& popup = Find<QComboBox>("pmRoot");
  popup.showPopup();
  const QRect last = popup.view()->visualRect(popup.model()->index(11, 0));
  EXPECT_TRUE(popup.view()->viewport()->rect().contains(last));
  popup.hidePopup();
  hand_->ChooseRoot(2);
  window_->pmRoot()->InitialValue("do\rre\rmi");
  EXPECT_EQ(popup.currentText(), "mi") << "the third, as before";
}

TEST_F(Input, MenusAreHiddenAndDisabledAsTheirItemsAre) {
  Open();
  const auto bar = RuntimeNewObject<framework::MenuBar>();
  const auto shown = RuntimeNewObject<MenuItem>();
  shown->Visible(true);
  shown->Append(RuntimeNewObject<MenuItem>());
  bar->Append(shown);
  bar->Append(RuntimeNewObject<MenuItem>());
  QMenuBar native;
  toolkit::qt::BuildMenuBar(*bar, native);
  const auto titles = native.actions();
  EXPECT_TRUE(titles[0]->isVisible());
  EXPECT_FALSE(titles[0]->isEnabled());
  EXPECT_FALSE(titles[0]->menu()->actions()[0]->isVisible());
  EXPECT_FALSE(titles[1]->isVisible());
}

TEST_F(Input, EntriesThatDoSomethingAreEnabledAndClosingEndsTheRun) {
  Open();
  QString enabled;
  int lines = 0;
  for (const QAction* const action : Native().findChildren<QAction*>()) {
    if (action->isEnabled()) enabled += action->objectName();
    lines += action->isSeparator() && action->isVisible();
  }
  EXPECT_EQ(enabled, "FileQuit");
  EXPECT_EQ(lines, 2);
  QTimer::singleShot(0, [] { Native().close(); });
  _RuntimeRun();
}

}  // namespace
