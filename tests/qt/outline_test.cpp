#include <QScreen>
#include <QScrollBar>

#include "qt/qt_hand.h"

// The lines around lists and boxes, and around what has the focus.

namespace {

using namespace support;

using Outlines = OnScreen;

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
      const QPoint corner = Find(name).mapTo(&Native(), QPoint());
      const QPoint end = Find(name).rect().bottomRight() + corner + QPoint(1, 1);
      const QRect frame((scale * QPointF(corner)).toPoint(),
                        (scale * QPointF(end)).toPoint() - QPoint(1, 1));
      const auto at = [&](int way) {
        return picture.pixelColor(frame.topLeft() + way * QPoint(1, 1));
      };
      const int thick = static_cast<int>(scale);
      const QColor line = at(0);
      EXPECT_NE(line, at(-1));
      EXPECT_EQ(line, at(thick - 1));
      EXPECT_NE(line, at(thick));
      EXPECT_EQ(at(thick), at(thick + 2)) << "the ground, up to the line";
      for (const QRect& side : QRegion(frame) - frame.adjusted(1, 1, -1, -1)) {
        EXPECT_EQ(Count(picture.copy(side), line), side.width() * side.height());
      }
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
  EXPECT_LT(grey_at_the_left(*List().verticalScrollBar()), 10);
  Find("pmRoot").setFocus();
  EXPECT_LT(grey_at_the_left(Find("pmRoot")), 10) << "which the focus has a line of its own for";
}

TEST_F(Outlines, FocusIsALineAroundAListAndAroundACaption) {
  Open();
  const auto highlighted = [](const char* name) {
    return Count(Find(name).grab().toImage(), QApplication::palette().color(QPalette::Highlight));
  };
  const auto names = {"cbOther", "lbExact"};
  for (const char* const name : names) {
    EXPECT_EQ(highlighted(name), 0) << name;
    Find(name).setFocus();
    EXPECT_GE(highlighted(name), 200) << name;
  }
  EXPECT_EQ(highlighted("lbExact"), 2 * (385 + 93) - 4) << "one point thick";
  QApplication::processEvents();
  const CountOfPaintings paintings(*List("lbExact").viewport());
  for (const char* const name : names) {
    Find(name).setFocus();
    QApplication::processEvents();
  }
  EXPECT_EQ(paintings.count, 2);

  hand_->TickOther();
  List().setFocus();
  QApplication::processEvents();
  List().verticalScrollBar()->setValue(5);
  QApplication::processEvents();
  const QRect place(List().mapTo(&Native(), QPoint()), List().size());
  const QPixmap screen = Native().screen()->grabWindow(Native().winId());
  EXPECT_EQ(screen.copy(place).toImage(), Native().grab(place).toImage())
      << "the line does not scroll";
}

}  // namespace
