#include <QScreen>
#include <QScrollBar>

#include "qt/qt_hand.h"
#include "support/behaviour.h"

// The lines around lists and boxes, and around what has the focus.

namespace {

using namespace support;

using Outlines = Behaviour<QtHand>;

/// At the scales that a screen may have, some of which divide points.
class AtEachScale : public Outlines, public testing::WithParamInterface<const char*> {
 protected:
  AtEachScale() { qputenv("QT_SCALE_FACTOR", GetParam()); }
  ~AtEachScale() override { qunsetenv("QT_SCALE_FACTOR"); }
};

INSTANTIATE_TEST_SUITE_P(Screen, AtEachScale, testing::Values("1", "1.25", "1.5", "1.75", "2"));

TEST_P(AtEachScale, ListsHaveAllFourLinesOfTheirFrame) {
  Open();
  hand_->TickOther();
  for (const bool dark : {false, true}) {
    if (dark) hand_->ChangeAppearance();
    const QImage picture = Native().grab().toImage();
    const double scale = picture.devicePixelRatio();
    EXPECT_EQ(scale, std::stod(GetParam()));
    for (const char* const name : {"lbExact", "lbContaining"}) {
      SCOPED_TRACE(name);
      const QPoint corner = Find(name).mapTo(&Native(), QPoint(0, 0));
      const int left = qRound(scale * corner.x());
      const int top = qRound(scale * corner.y());
      const int right = qRound(scale * (corner.x() + Find(name).width())) - 1;
      const int bottom = qRound(scale * (corner.y() + Find(name).height())) - 1;
      const QRgb line = picture.pixel(left, top);
      const int thick = static_cast<int>(scale);
      EXPECT_NE(line, picture.pixel(left - 1, top - 1));
      EXPECT_EQ(line, picture.pixel(left + thick - 1, top + thick - 1));
      const QRgb ground = picture.pixel(left + thick + 2, top + thick + 2);
      EXPECT_NE(line, ground);
      EXPECT_EQ(ground, picture.pixel(left + thick, top + thick)) << "up to the line";
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

TEST_P(AtEachScale, BoxesHaveOutlinesOnABlackGround) {
  Open();
  QWidget& box = Find("cbScale1");
  const auto caption = [&box] { return Ink(box.grab(box.rect().adjusted(20, 0, 0, 0)).toImage()); };
  const QRect in_light = caption();
  EXPECT_GT(in_light.width(), 30);
  EXPECT_GT(Ink(Find("pmRoot").grab().toImage()).width(), 70);
  hand_->ChangeAppearance();
  EXPECT_EQ(caption(), in_light) << "the outline moves nothing";
  hand_->TickOther();
  const auto grey_at_the_left = [](QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    int grey = 0;
    for (int y = 0; y < picture.height(); ++y) {
      const int lightness = picture.pixelColor(0, y).lightness();
      grey += lightness > 100 && lightness < 200;
    }
    return grey;
  };
  for (const char* const name : {"cbScale0", "lbExact", "pmRoot"}) {
    EXPECT_GE(grey_at_the_left(Find(name)), 10) << name;
  }
  EXPECT_LT(grey_at_the_left(*Find<QTableView>("lbContaining").verticalScrollBar()), 10);
  Find("pmRoot").setFocus();
  EXPECT_LT(grey_at_the_left(Find("pmRoot")), 10) << "which the focus has a line of its own for";
}

TEST_F(Outlines, FocusIsALineAroundAListAndAroundACaption) {
  Open();
  const QColor highlight = QApplication::palette().color(QPalette::Highlight);
  const auto highlighted = [&highlight](const char* name) {
    const QImage picture = Find(name).grab().toImage();
    int points = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) points += picture.pixelColor(x, y) == highlight;
    }
    return points;
  };
  for (const char* const name : {"lbExact", "cbOther"}) {
    EXPECT_EQ(highlighted(name), 0) << name;
    Find(name).setFocus();
    EXPECT_GE(highlighted(name), 200) << name;
  }
  Find("lbExact").setFocus();
  EXPECT_EQ(highlighted("lbExact"), 2 * (385 + 93) - 4) << "one point thick";
  Find("cbOther").setFocus();
  QApplication::processEvents();
  const CountOfPaintings paintings(*Find<QTableView>("lbExact").viewport());
  for (const char* const name : {"lbExact", "cbOther"}) {
    Find(name).setFocus();
    QApplication::processEvents();
  }
  EXPECT_EQ(paintings.count, 2);

  hand_->TickOther();
  auto& list = Find<QTableView>("lbContaining");
  list.setFocus();
  QApplication::processEvents();
  list.verticalScrollBar()->setValue(5);
  QApplication::processEvents();
  const QRect place(list.mapTo(&Native(), QPoint()), list.size());
  const QPixmap screen = Native().screen()->grabWindow(Native().winId());
  EXPECT_EQ(screen.copy(place).toImage(), Native().grab(place).toImage())
      << "the line does not scroll";
}

}  // namespace
