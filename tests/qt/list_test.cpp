#include <QScrollBar>
#include <QSignalSpy>
#include <cmath>

#include "qt/qt_hand.h"
#include "toolkit/qt/text.h"

// How a list shows its rows and columns.

namespace {

using namespace support;

using Lists = OnScreen;

TEST_F(Lists, ListsHaveThreeColumnsAndAreRefreshedOnce) {
  Open();
  const QAbstractItemModel& model = *List().model();
  const QSignalSpy announced(&model, &QAbstractItemModel::modelAboutToBeReset);
  const QSignalSpy refreshed(&model, &QAbstractItemModel::modelReset);
  hand_->TickOther();
  EXPECT_EQ(announced.count(), 1);
  EXPECT_EQ(refreshed.count(), 1);
  EXPECT_EQ(model.columnCount(), 3);
  EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
  EXPECT_EQ(model.columnCount(model.index(0, 0)), 0);
  List().scrollToBottom();
  EXPECT_GT(List().rowAt(0), 0);
  hand_->Tick(0);
  EXPECT_EQ(List().verticalScrollBar()->value(), 0);
  window_->lbContaining()->Select(1);
  hand_->ExpectMirrored(*window_);
  ASSERT_GT(List().verticalScrollBar()->maximum(), 0);
  const int room = 385 - List().verticalScrollBar()->sizeHint().width();
  const CountOfPaintings paintings(*List().viewport());
  window_->lbContaining()->ColumnWidths("2%,0%,62%,36%");
  QApplication::processEvents();
  EXPECT_EQ(paintings.count, 1);
  EXPECT_EQ(List().columnWidth(0), room * 2 / 100);
  EXPECT_TRUE(List().isColumnHidden(1));
  EXPECT_EQ(List().columnWidth(2), room * 62 / 100);
  window_->lbContaining()->ColumnWidths("20%,20%,20%,20%,20%");
  EXPECT_EQ(model.columnCount(), 4) << "as many as it has";
  EXPECT_EQ(announced.count(), refreshed.count());
}

TEST_F(Lists, ColumnsReachToTheFrameOrToTheScrollBar) {
  Open();
  auto& bar = *List().verticalScrollBar();
  const int beside_bar = 385 - bar.sizeHint().width();
  CountOfPaintings paintings(*List().viewport());
  for (const bool long_list : {true, false, true}) {
    paintings.count = 0;
    window_->lbContaining()->DeleteAllRows();
    for (int row = 0; row < (long_list ? 100 : 3); ++row) window_->lbContaining()->AddRow({"a"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.isVisible() == long_list; }));
    QTest::qWait(20);
    EXPECT_EQ(paintings.count, 1);
    EXPECT_EQ(List().horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(List().columnWidth(0), beside_bar * 35 / 100);
    EXPECT_EQ(List().columnWidth(1), beside_bar / 2);
    const int end = List().columnViewportPosition(2) + List().columnWidth(2);
    EXPECT_EQ(end, 385 - (long_list ? bar.width() : 0));
    EXPECT_EQ(List().viewport()->geometry(), QRect(1, 1, end, 247)) << "and there are no headings";
    const QRect row = Place(1, 0);
    for (int y = row.top(); y <= row.bottom(); ++y) {
      for (const int x : {0, end - 1}) {
        hand_->ChooseRow(0);
        QtHand::Click(*List().viewport(), {x, y});
        EXPECT_EQ(window_->lbContaining()->ListIndex(), 1) << x << ", " << y;
      }
    }
  }
  const int hidden = bar.maximum();
  window_->lbContaining()->Height(100);
  EXPECT_GT(bar.maximum(), hidden) << "a lower list scrolls further";
}

TEST_F(Lists, BytesThatAreNoTextShowAsSuch) {
  Open("a\nb\n\xFF&,&S\xC3,TRUE,,,,,,,,,,,");
  hand_->Tick(0);
  const auto* const model = List("lbExact").model();
  EXPECT_EQ(model->index(0, 0).data().toString(), QString::fromUtf8("\uFFFD&"));
  EXPECT_EQ(model->index(0, 1).data().toString(), QString::fromUtf8("&S\uFFFD"));
}

TEST(BeginningOfAText, IsCutBetweenCharacters) {
  const framework::String text("a\u00E9\u20AC\U0001F3B5");  // of one, two, three and four bytes
  for (const auto& [most, bytes] : {std::pair(3U, 3), {4, 3}, {5, 3}, {6, 6}, {9, 6}, {10, 10}}) {
    EXPECT_EQ(toolkit::qt::Shown(text, most).toUtf8(), QByteArray(text.View().data(), bytes))
        << most;
  }
  EXPECT_EQ(toolkit::qt::Shown(framework::String(std::string(9, '\x80')), 5).size(), 2)
      << "no text";
}

TEST_F(Lists, TextWithLineBreaksStandsOnOneLine) {
  Open();
  const char* const names[] = {
      "do\u2028re\u2028mi",
      "do\nre\nmi",
      "do re mi",
      "marching marching marching marching marching marching",
      "marching\u00A0marching\u00A0marching\u00A0marching\u00A0marching\u00A0marching",
      "",
  };
  for (const char* const name : names) window_->lbContaining()->AddRow({"", name, ""});
  const auto picture = [&](int row) { return List().viewport()->grab(Place(row, 1)).toImage(); };
  EXPECT_EQ(picture(0), picture(2));
  EXPECT_EQ(picture(1), picture(2));
  EXPECT_EQ(picture(3), picture(4)) << "filled to its end, wherever a word ends";
  const QRect empty = Place(5, 0) | Place(5, 2);
  EXPECT_TRUE(Ink(List().viewport()->grab(empty).toImage()).isEmpty()) << "no grid";
  for (const float size : {0.F, 12.F, 13.F, 15.F, 30.F}) {
    window_->lbContaining()->TextSize(size);
    EXPECT_EQ(List().rowHeight(0), std::ceil(QFontMetricsF(List().font()).height())) << size;
  }
}

}  // namespace
