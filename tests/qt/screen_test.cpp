#include <QLabel>
#include <QTranslator>

#include "qt/qt_hand.h"
#include "support/monkey.h"

// The program on the real widgets: what stands where in its window, and how it looks.

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;

TEST(RandomClicksOnScreen, AgreeWithTheOracleAndTheScreenFollows) { Monkey<QtHand>::Play(200); }

using Screen = OnScreen;

TEST_F(Screen, EveryControlStandsAtItsPlaceAndStaysThere) {
  Open();
  EXPECT_EQ(Native().windowTitle().toStdString(), Text(window_->Title()));
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

/// A desktop's own translations for a language that is written from the right.
class FromTheRight final : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* text, const char*, int) const override {
    return qstrcmp(text, "QT_LAYOUT_DIRECTION") == 0 ? QStringLiteral("RTL") : QString();
  }
};

TEST_F(Screen, IsLaidOutFromTheLeftInAnyLanguage) {
  FromTheRight translations;
  toolkit_.before_the_window = [&] { QApplication::installTranslator(&translations); };
  Open();
  EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
  EXPECT_FALSE(Find("pmRoot").isRightToLeft());
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
  const int stretch = Find("pmRoot").font().stretch();
  EXPECT_TRUE(stretch > 60 && stretch < 100) << "condensed: " << stretch;
}

TEST_F(Screen, CaptionRunsOnAsFarAsItsNeighbour) {
  Open();
  QWidget& box = Find("cbOther");
  const auto other = window_->cbOther();
  other->Caption(std::string(100, 'm'));
  EXPECT_EQ(box.x() + box.width() + 4, Find("lbExact").x());
  EXPECT_EQ(box.font().stretch(), 60) << "condensed, and cut";
  other->Caption("m");
  EXPECT_EQ(box.width(), other->Width());
  EXPECT_EQ(box.font().stretch(), 100);
  other->Caption(std::string(15, 'm'));
  other->Bold(true);
  EXPECT_LE(box.sizeHint().width(), box.width()) << "bold letters are wider";
  window_->Label4()->Text("Notes");
  EXPECT_EQ(Find<QLabel>("Label4").text(), "Notes");
}

TEST_F(Screen, LabelChangesItsLookWhereItStands) {
  Open();
  const auto label = window_->Label4();
  QWidget& widget = Find("Label4");
  label->TextAlign(Label::kCentre);
  label->TextColor(Color{200, 0, 0});
  label->Bold(true);
  label->Italic(true);
  EXPECT_TRUE(widget.font().italic());
  QImage picture = widget.grab().toImage();
  EXPECT_GE(Count(picture, QColor(200, 0, 0)), 5);
  EXPECT_LE(std::abs(Ink(picture).center().x() - widget.width() / 2), 3);
  label->TextAlign(Label::kLeft);
  label->TextSize(30);
  label->Text("i");
  picture = widget.grab().toImage();
  EXPECT_LE(Ink(picture).right(), widget.width() / 3)
      << "the ink is centred of a centred text alone";
}

TEST_F(Screen, ControlsMadeLateComeOnIt) {
  Open();
  const auto star = window_->__New<window::lbStarClass>();
  star->Constructor();
  star->Top(window_->cbScale(0)->Top() - 10);  // its middle is level with the box's upper edge
  star->Visible(true);
  QWidget& label = *Native().findChildren<QWidget*>("lbStar0").back();
  const auto ink_of_star = [&label] { return Ink(label.grab().toImage()); };
  QApplication::processEvents();
  const QRect ink = ink_of_star();
  const CountOfPaintings paintings(label);
  const auto box = window_->__New<window::cbScaleClass>();
  box->Constructor();
  QApplication::processEvents();
  EXPECT_EQ(paintings.count, 1);
  EXPECT_EQ(ink_of_star().size(), ink.size()) << "whole";
  EXPECT_EQ(ink_of_star().bottom(), label.height() - 1) << "as low as its frame allows";
  Find("cbScale0").setFocus();
  QtHand::Press(Find("cbScale0"), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "cbScale0") << "the second of that name";
  EXPECT_NE(QApplication::focusWidget(), &Find("cbScale0"));
}

TEST_F(Screen, StarIsWholeAndGreenInItsStrip) {
  Open();
  hand_->Tick(0);
  hand_->ChooseRow(0);
  for (const char* const member : {"0", "5"}) {
    QWidget& label = Find("lbStar" + std::string(member));
    const QRect box = Find("cbScale" + std::string(member)).geometry();
    const QImage star = label.grab().toImage();
    const QRect ink = Ink(star);
    EXPECT_GE(ink.width(), 10) << "large";
    EXPECT_TRUE(QRect(0, 1, 15, 19).contains(ink)) << "whole";
    EXPECT_LE(std::abs(label.y() + ink.center().y() - box.center().y()), 1) << "level with its box";
    EXPECT_GE(Count(star, QColor(0, 129, 0)), 5) << "whatever the font draws at the very middle";
  }
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
  QEvent theme(QEvent::ThemeChange);
  QApplication::sendEvent(&Native(), &theme);
  QApplication::processEvents();
  EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 200)
      << "no desktop says that it is dark";
}

}  // namespace
