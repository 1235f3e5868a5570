#include <QAction>
#include <QBitmap>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

#include "qt/qt_hand.h"
#include "support/behaviour.h"
#include "support/monkey.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;

INSTANTIATE_TYPED_TEST_SUITE_P(OnQt, Behaviour, QtHand);

TEST(RandomClicksOnScreen, AgreeWithTheOracleAndTheScreenFollows) { Monkey<QtHand>::Play(200); }

using Screen = Behaviour<QtHand>;

TEST_F(Screen, EveryControlStandsAtItsPlaceAndStaysThere) {
  Open();
  EXPECT_EQ(Native().centralWidget()->size(), QSize(615, 605));
  for (const QSize size : {Native().size(), QSize(64, 64), QSize(1200, 1000)}) {
    Native().resize(size);
    QApplication::processEvents();
    EXPECT_EQ(Native().width(), size.width());
    for (const auto& each : window_->_Controls()) {
      const auto control = RuntimeCheckCast<RectControl>(each);
      const bool alone = control->Index() == Control::kNoIndex;
      const QWidget& widget =
          Find(Text(control->Name()) + (alone ? "" : std::to_string(control->Index())));
      SCOPED_TRACE(widget.objectName().toStdString());
      EXPECT_EQ(widget.x(), control->Left());
      EXPECT_EQ(widget.y(), control->Top());
      EXPECT_EQ(widget.height(), control->Height());
      EXPECT_EQ(widget.isVisible(), control->Visible());
      EXPECT_EQ(widget.accessibleDescription().toStdString(), Text(control->HelpTag()));
      EXPECT_EQ(widget.toolTip().isEmpty(), control->HelpTag().View().empty());
      EXPECT_GE(widget.width(), control->Width());
    }
    EXPECT_EQ(Find("lbExact").width(), 387);
  }
  EXPECT_TRUE(Find("cbRinL").toolTip().contains("pre-wrap"));
}

TEST_F(Screen, LargerLettersFitTheSamePlaces) {
  toolkit_.before_the_window = [] {
    QFont larger = QApplication::font();
    larger.setPointSizeF(larger.pointSizeF() * 1.4);
    QApplication::setFont(larger);
  };
  Open();
  for (const char* const name : {"cbOther", "cbRinL", "cbScale1", "Label4"}) {
    const QWidget& widget = Find(name);
    EXPECT_GE(widget.width(), widget.sizeHint().width()) << name;
    EXPECT_LT(widget.geometry().right(), Find("lbExact").x()) << name;
  }
  EXPECT_EQ(Find("pmRoot").size(), QSize(80, 20));
  EXPECT_LT(Find("pmRoot").font().stretch(), 100) << "condensed";
}

TEST_F(Screen, StarIsWholeAndGreenInItsStrip) {
  Open();
  hand_->Tick(0);
  hand_->ChooseRow(0);
  for (const char* const member : {"0", "5"}) {
    QWidget& label = Find("lbStar" + std::string(member));
    const QRect box = Find("cbScale" + std::string(member)).geometry();
    const QImage star = label.grab().toImage();
    const QImage mask = star.createMaskFromColor(star.pixel(0, 0), Qt::MaskInColor);
    const QRect ink = QRegion(QBitmap::fromImage(mask)).boundingRect();
    EXPECT_GE(ink.width(), 10) << "large";
    EXPECT_TRUE(QRect(0, 1, 15, 19).contains(ink)) << "whole";
    EXPECT_LE(std::abs(label.y() + ink.center().y() - box.center().y()), 1) << "level with its box";
    int green = 0;
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
      for (int x = ink.left(); x <= ink.right(); ++x) {
        green += star.pixelColor(x, y) == QColor(0, 129, 0);
      }
    }
    EXPECT_GE(green, 5) << "whatever the font draws at the very middle";
  }
}

/// Runs at fractional scales too.
TEST_F(Screen, ListsHaveAllFourLinesOfTheirFrame) {
  Open();
  hand_->TickOther();
  for (const bool dark : {false, true}) {
    if (dark) hand_->ChangeAppearance();
    const QImage picture = Native().grab().toImage();
    const double scale = picture.devicePixelRatio();
    for (const char* const name : {"lbExact", "lbContaining"}) {
      SCOPED_TRACE(name);
      const QPoint corner = Find(name).mapTo(&Native(), QPoint(0, 0));
      const int left = qRound(scale * corner.x());
      const int top = qRound(scale * corner.y());
      const int right = qRound(scale * (corner.x() + Find(name).width())) - 1;
      const int bottom = qRound(scale * (corner.y() + Find(name).height())) - 1;
      const QRgb line = picture.pixel(left, top);
      EXPECT_NE(line, picture.pixel(left - 1, top - 1));
      int missing = 0;
      for (int x = left; x <= right; ++x) {
        missing += (picture.pixel(x, top) != line) + (picture.pixel(x, bottom) != line);
      }
      for (int y = top; y <= bottom; ++y) {
        missing += (picture.pixel(left, y) != line) + (picture.pixel(right, y) != line);
      }
      EXPECT_EQ(missing, 0);
    }
  }
}

TEST_F(Screen, BoxesHaveOutlinesOnABlackGround) {
  Open();
  hand_->ChangeAppearance();
  Find("cbOther").setFocus();
  for (const char* const name : {"cbScale0", "lbExact", "pmRoot"}) {
    const QImage picture = Find(name).grab().toImage();
    int light = 0;
    for (int y = 0; y < picture.height(); ++y) light += picture.pixelColor(0, y).lightness() > 100;
    EXPECT_GE(light, 10) << name;
  }
}

TEST_F(Screen, TabGoesDownTheLeftColumnThenTheRight) {
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

TEST_F(Screen, ListsHaveThreeColumnsAndAreRefreshedOnce) {
  Open();
  auto& list = Find<QTableView>("lbContaining");
  const QSignalSpy refreshed(list.model(), &QAbstractItemModel::modelReset);
  hand_->TickOther();
  EXPECT_EQ(refreshed.count(), 1);
  EXPECT_EQ(list.model()->columnCount(), 3);
}

class CountOfPaintings final : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint;
    return false;
  }
  int count = 0;
};

TEST_F(Screen, ColumnsReachToTheFrameOrToTheScrollBar) {
  Open();
  auto& list = Find<QTableView>("lbContaining");
  auto& bar = *list.verticalScrollBar();
  const int beside_bar = 385 - bar.sizeHint().width();
  CountOfPaintings paintings;
  list.viewport()->installEventFilter(&paintings);
  for (const bool long_list : {true, false, true}) {
    paintings.count = 0;
    window_->lbContaining()->DeleteAllRows();
    for (int row = 0; row < (long_list ? 100 : 3); ++row) window_->lbContaining()->AddRow({"a"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.isVisible() == long_list; }));
    QTest::qWait(20);
    EXPECT_EQ(paintings.count, 1);
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(list.columnWidth(0), beside_bar * 35 / 100);
    EXPECT_EQ(list.columnWidth(1), beside_bar / 2);
    const int end = list.columnViewportPosition(2) + list.columnWidth(2);
    EXPECT_EQ(end, 385 - (long_list ? bar.width() : 0));
    const QRect row = list.visualRect(list.model()->index(1, 0));
    for (int y = row.top(); y <= row.bottom(); ++y) {
      for (const int x : {0, end - 1}) {
        hand_->ChooseRow(0);
        QtHand::Click(*list.viewport(), {x, y});
        EXPECT_EQ(window_->lbContaining()->ListIndex(), 1) << x << ", " << y;
      }
    }
  }
}

TEST_F(Screen, RowsAreChosenByKeysAndLetGoByMouse) {
  Open();
  hand_->TickOther();
  auto& list = Find<QTableView>("lbContaining");
  const auto row_after = [&](Qt::Key key) {
    QtHand::Press(list, key);
    return window_->lbContaining()->ListIndex();
  };
  list.setFocus();
  EXPECT_EQ(row_after(Qt::Key_Down), 0);
  EXPECT_EQ(row_after(Qt::Key_Down), 1);
  EXPECT_EQ(row_after(Qt::Key_End), 47);
  EXPECT_LT(row_after(Qt::Key_PageUp), 45);
  EXPECT_EQ(row_after(Qt::Key_Home), 0);
  EXPECT_GT(row_after(Qt::Key_PageDown), 2);
  hand_->ChooseRow(2);
  QtHand::ClickRow("lbContaining", 2, Qt::ControlModifier);
  EXPECT_EQ(window_->lbContaining()->ListIndex(), -1) << "with the Ctrl key";
  hand_->TickOther();
  hand_->ChooseRow(2);
  QtHand::Click(*list.viewport(), list.viewport()->rect().bottomLeft());
  EXPECT_EQ(window_->lbContaining()->ListIndex(), -1) << "beside the rows";
}

TEST_F(Screen, OnlyTheMainButtonDoesAnything) {
  Open();
  hand_->Tick(0);
  hand_->ChooseRow(0);
  QApplication::setDoubleClickInterval(1);  // a popup that has just opened takes no click
  auto& list = Find<QTableView>("lbContaining");
  auto& popup = Find<QComboBox>("pmRoot");
  const QPoint row = list.visualRect(list.model()->index(1, 1)).center();
  const QPoint beside = list.viewport()->rect().bottomLeft();
  for (const auto button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
    SCOPED_TRACE(button);
    for (const QPoint& place : {row, beside}) {
      QTest::mouseClick(list.viewport(), button, {}, place);
      QTest::mouseDClick(list.viewport(), button, {}, place);
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
    popup.hidePopup();
    QApplication::processEvents();
    EXPECT_EQ(window_->pmRoot()->ListIndex(), 3);
  }
  EXPECT_FALSE(window_->cbScale(2)->Value());
}

TEST_F(Screen, ArrowKeysGoUpAndDownInOneSetOfBoxesAndNowhereElse) {
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

TEST_F(Screen, MenusOpenByTheirLettersAndClosingEndsTheRun) {
  Open();
  std::vector<std::string> enabled;
  for (const Qt::Key key : {Qt::Key_F, Qt::Key_E}) {
    QtHand::Press(Native(), key, Qt::AltModifier);
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    for (const QAction* const action : menu->actions()) {
      const bool live = action->isEnabled() && !action->isSeparator();
      if (live) enabled.push_back(action->objectName().toStdString());
    }
    QtHand::Press(*menu, Qt::Key_Escape);
  }
  EXPECT_THAT(enabled, ElementsAre("FileQuit"));
  QTimer::singleShot(0, [] { Native().close(); });
  _RuntimeRun();
}

TEST_F(Screen, BytesThatAreNoTextShowAsSuch) {
  Open("a\nb\n\xFF&,&S\xC3,TRUE,,,,,,,,,,,");
  hand_->Tick(0);
  const auto* const model = Find<QTableView>("lbExact").model();
  EXPECT_EQ(model->index(0, 0).data().toString(), QString::fromUtf8("\uFFFD&"));
  EXPECT_EQ(model->index(0, 1).data().toString(), QString::fromUtf8("&S\uFFFD"));
}

/// An application that notes what the notification centre tells.
class Watcher final : public Application {
 public:
  void _MacOSNotificationReceived(const String& name) override { heard.push_back(Text(name)); }
  std::vector<std::string> heard;
};

TEST_F(Screen, ChangeOfThePaletteIsToldOnce) {
  Open();
  const auto watcher = RuntimeNewObject<Watcher>();
  hand_->ChangeAppearance();
  EXPECT_TRUE(QTest::qWaitFor([&] { return watcher->heard.size() == 1; }));
  QApplication::setPalette(QPalette(Qt::darkRed));
  EXPECT_TRUE(QTest::qWaitFor([&] { return watcher->heard.size() == 2; }));
  QTest::qWait(20);
  EXPECT_THAT(watcher->heard, ElementsAre(_MacOSDistributedNotifications::kThemeChanged,
                                          _MacOSDistributedNotifications::kColorsChanged));
}

}  // namespace
