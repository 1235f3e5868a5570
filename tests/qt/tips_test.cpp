#include <QHelpEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>

#include "qt/qt_hand.h"
#include "toolkit/qt/tool_tip.h"

// What the pointer is told, wherever it rests.

namespace {

using namespace support;

class Tips : public OnScreen {
 protected:
  /// The tip at a place of a widget; empty for none.
  static std::string At(QWidget& widget, const QPoint& place) {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent rest(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &rest);
    return QToolTip::text().toStdString();
  }
  /// The same, as the screen shows it, without the places where a word may be broken.
  static std::string ReadAt(QWidget& widget, const QPoint& place) {
    QTextDocument page;
    page.setHtml(QString::fromStdString(At(widget, place)));
    return page.toRawText().remove(QChar(0x200B)).toStdString();
  }
  /// How high the text of a picture is where it ends: a dot of an ellipsis is low.
  static int HeightOfTheEnd(const QImage& picture) {
    return Ink(picture.copy(Ink(picture).right(), 0, 1, picture.height())).height();
  }
  static QRect OfTip() {
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
      if (widget->inherits("QTipLabel") && widget->isVisible()) return widget->geometry();
    }
    return {};
  }
};

TEST_F(Tips, AreTheHelpOfTheListWhereNoCutCellLies) {
  Open();
  QWidget& viewport = *List().viewport();
  const std::string help = List().toolTip().toStdString();
  const QPoint places[] = {viewport.rect().center(), viewport.rect().topLeft(),
                           viewport.rect().topRight(), viewport.rect().bottomLeft()};
  for (const QPoint& place : places) EXPECT_EQ(At(viewport, place), help) << "an empty list";
  hand_->Tick(0);
  for (const QPoint& place : places) EXPECT_EQ(At(viewport, place), help) << "a few rows";
  EXPECT_EQ(At(List(), {0, 0}), help) << "the frame";
  hand_->TickOther();
  ASSERT_TRUE(QTest::qWaitFor([&] { return List().verticalScrollBar()->isVisible(); }));
  EXPECT_EQ(At(*List().verticalScrollBar(), {5, 5}), help) << "the scroll bar";
}

TEST_F(Tips, LeaveARootAloneInAFontOfTwentyPixelsToo) {
  toolkit_.before_the_window = [] {
    QFont larger = QApplication::font();
    larger.setPixelSize(20);
    QApplication::setFont(larger);
  };
  Open();
  for (int row = 0; row < 30; ++row) window_->lbContaining()->AddRow({"", "", "G# / Ab"});
  ASSERT_TRUE(QTest::qWaitFor([&] { return List().verticalScrollBar()->isVisible(); }));
  EXPECT_EQ(At(*List().viewport(), Place(1, 2).center()), List().toolTip().toStdString())
      << "it is not cut";
}

TEST_F(Tips, TellOfEachCellThatIsCut) {
  Open();
  const auto list = window_->lbContaining();
  list->HelpTag("");
  const std::string text = "lithe monks will jog for a fair quiz of black vowels";
  for (std::size_t end = 1; end < text.size(); ++end) {
    list->AddRow({"", "", text.substr(0, end) + "l"});
  }
  QApplication::processEvents();
  for (int row = 0; row < List().model()->rowCount(); ++row) {
    const QRect place = Place(row, 2);
    const int end = HeightOfTheEnd(List().viewport()->grab(place).toImage());
    if (!At(*List().viewport(), place.center()).empty()) {
      EXPECT_LT(end, 5) << "an ellipsis";
      EXPECT_GT(row, 5);
      return;
    }
    EXPECT_GT(end, 5) << row << " ends with an ellipsis";
  }
  FAIL() << "no cell is cut";
}

TEST_F(Tips, TellACutCellWholeAndPlainHoweverItIsWritten) {
  Open();
  QString letters;
  for (char16_t letter = 0; letter < 0x250; ++letter) letters += QChar(letter);
  letters.remove('\n').remove('\r');
  const QString texts[] = {
      QStringLiteral("<b>Q & A</b> &amp;  <br>").repeated(6),
      QString(900, 'W'),
      "x" + QString(1500, QChar(0xE9)),
      QStringLiteral("e\u0301 ").repeated(500),
      "x" + QStringLiteral("\U0001D11E").repeated(500),
      letters,
  };
  const auto list = window_->lbContaining();
  for (const QString& text : texts) list->AddRow({"", text.toStdString()});
  for (int row = 0; row < static_cast<int>(std::size(texts)); ++row) {
    EXPECT_EQ(ReadAt(*List().viewport(), Place(row, 1).center()), texts[row].toStdString());
    EXPECT_LT(OfTip().width(), 700) << "wrapped, row " << row;
    const QString shown = List().model()->index(row, 1).data().toString();
    EXPECT_TRUE(texts[row].startsWith(shown)) << "cut at a character, row " << row;
  }
}

TEST_F(Tips, BreakAWordOfMoreThanFortyLettersBetweenThem) {
  const QString gap(QChar(0x200B));
  const QString word(40, 'm');
  EXPECT_FALSE(toolkit::qt::ToolTip(word + " " + word).contains(gap));
  for (const QString& first : {word, word.chopped(1) + "\U0001D11E", word + "\u0301"}) {
    const QString tip = toolkit::qt::ToolTip(first + word + "m");
    EXPECT_TRUE(tip.contains(">" + first + gap + word + gap + "m<")) << tip.toStdString();
  }
}

TEST_F(Tips, AreNoHigherThanTheScreen) {
  Open();
  const QScreen& screen = *Native().screen();
  QFont larger = QToolTip::font();
  larger.setPixelSize(17);
  QToolTip::setFont(larger);
  QString high;
  for (QString more; !toolkit::qt::ToolTipWithin(screen, more).contains(QChar(0x2026));) {
    high = more;
    more += QStringLiteral("a\u2028");
  }
  const QString lines = QStringLiteral("a\u2028").repeated(10000);
  const auto list = window_->lbContaining();
  list->AddRow({std::string(1 << 20, 'm'), lines.toStdString(), high.toStdString()});
  for (const int column : {0, 1, 2}) {
    const std::string told = ReadAt(*List().viewport(), Place(0, column).center());
    EXPECT_LE(OfTip().height(), screen.size().height());
    EXPECT_GT(OfTip().height(), screen.size().height() / 2);
    EXPECT_LE(OfTip().width(), screen.size().width());
    EXPECT_EQ(told.ends_with("\u2026"), column < 2);
  }
  QToolTip::setFont(QApplication::font());
}

}  // namespace
