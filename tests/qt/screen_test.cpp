#include <QAction>
#include <QHeaderView>
#include <QMessageBox>
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

class Screen : public Behaviour<QtHand> {
 protected:
  /// Opens the window after a change to the looks of the system.
  void OpenWith(const std::function<void()>& change) {
    folder_.Write(library::kFileName, kFourScales);
    RuntimeInit();
    RuntimePerformInitializers({});
    shell::_EarlyStartup();
    _RunFrameworkInitialization([] {});
    change();
    window_ = window::wdwMain();
    hand_ = std::make_unique<QtHand>(toolkit_, *window_);
  }
  QWidget& WidgetOf(const Control& control) {
    std::string name(control.Name());
    if (control.Index() != Control::kNoIndex) name += std::to_string(control.Index());
    return Find(name.c_str());
  }
  std::vector<Ref<RectControl>> AllControls() const {
    std::vector<Ref<RectControl>> controls;
    for (const auto& control : window_->_Controls()) {
      controls.push_back(RuntimeCheckCast<RectControl>(control));
    }
    return controls;
  }
};

TEST_F(Screen, EveryControlStandsAtItsPlaceWithItsHelp) {
  Open();
  EXPECT_EQ(Native().centralWidget()->size(), QSize(615, 605));
  EXPECT_EQ(Native().windowTitle(), "Orrel Pitchsieve");
  for (const auto& control : AllControls()) {
    const QWidget& widget = WidgetOf(*control);
    SCOPED_TRACE(widget.objectName().toStdString());
    EXPECT_EQ(widget.pos(),
              QPoint(static_cast<int>(control->Left()), static_cast<int>(control->Top())));
    EXPECT_EQ(widget.height(), control->Height());
    if (dynamic_cast<Listbox*>(control.Get()) != nullptr || !control->Visible()) {
      EXPECT_EQ(widget.width(), control->Width());
    } else {
      EXPECT_GE(widget.width(), control->Width());
      EXPECT_GE(widget.width(),
                dynamic_cast<PopupMenu*>(control.Get()) ? 80 : widget.sizeHint().width());
    }
    EXPECT_EQ(widget.isVisible(), control->Visible());
    EXPECT_EQ(widget.accessibleDescription().toStdString(), Text(control->HelpTag()));
    EXPECT_EQ(widget.toolTip().isEmpty(), control->HelpTag().View().empty());
  }
  EXPECT_TRUE(Find("cbRinL").toolTip().contains("only  scales where"));
  EXPECT_TRUE(Find("cbRinL").toolTip().contains("pre-wrap"));
}

TEST_F(Screen, NothingMovesWhenTheWindowIsResized) {
  Open();
  for (const QSize size : {QSize(64, 64), QSize(1200, 1000)}) {
    Native().resize(size);
    QApplication::processEvents();
    EXPECT_EQ(Native().width(), size.width());
    for (const auto& control : AllControls()) {
      EXPECT_EQ(WidgetOf(*control).pos(),
                QPoint(static_cast<int>(control->Left()), static_cast<int>(control->Top())));
    }
    EXPECT_EQ(Find("lbExact").size(), QSize(387, 95));
  }
}

TEST_F(Screen, StarIsWholeAndGreenInItsStrip) {
  Open();
  hand_->Tick(0);
  hand_->ChooseRow(0);
  const QImage star = Find("lbStar0").grab().toImage();
  const QColor ground = star.pixelColor(0, 0);
  QRect ink;
  for (int y = 0; y < star.height(); ++y) {
    for (int x = 0; x < star.width(); ++x) {
      if (star.pixelColor(x, y) != ground) ink |= QRect(x, y, 1, 1);
    }
  }
  EXPECT_EQ(star.size(), QSize(15, 20));
  EXPECT_GE(ink.width(), 10) << "large";
  EXPECT_TRUE(QRect(0, 1, 15, 18).contains(ink)) << "whole";
  EXPECT_LE(std::abs(ink.center().y() - 9), 1) << "at its row";
  EXPECT_EQ(star.pixelColor(ink.center()), QColor(0, 129, 0));
}

TEST_F(Screen, LargerLettersFitTheSamePlaces) {
  QFont font;
  OpenWith([&] {
    font = QApplication::font();
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() * 1.4);
    QApplication::setFont(larger);
  });
  for (const char* const name : {"cbOther", "cbRinL", "cbScale1", "Label4"}) {
    const QWidget& widget = Find(name);
    EXPECT_GE(widget.width(), widget.sizeHint().width()) << name;
    EXPECT_LT(widget.geometry().right(), Find("lbExact").x()) << name;
  }
  EXPECT_GT(Find("pmRoot").width(), 80);
  QApplication::setFont(font);
}

TEST_F(Screen, BoxesHaveOutlinesOnABlackGround) {
  OpenWith([] {
    QApplication::setPalette(
        QPalette(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::black));
  });
  Find("cbOther").setFocus();
  for (const char* const name : {"cbScale0", "lbExact", "pmRoot"}) {
    const QImage picture = Find(name).grab().toImage();
    int light = 0;
    for (int y = 0; y < picture.height(); ++y) {
      light += picture.pixelColor(0, y).lightness() > 100 ? 1 : 0;
    }
    EXPECT_GE(light, 10) << name;
  }
  QApplication::setPalette(QPalette());
}

TEST_F(Screen, TabGoesDownTheLeftColumnThenTheRight) {
  Open();
  std::vector<std::string> order;
  for (int i = 0; i < 17; ++i) {
    order.push_back(QApplication::focusWidget()->objectName().toStdString());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_THAT(order,
              ElementsAre("pmRoot", "cbOther", "cbRinL", "cbScale0", "cbScale1", "cbScale2",
                          "cbScale3", "cbScale4", "cbScale5", "cbScale6", "cbScale7", "cbScale8",
                          "cbScale9", "cbScale10", "cbScale11", "lbExact", "lbContaining"));
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "pmRoot") << "and round again";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "lbContaining") << "and back";
}

TEST_F(Screen, ListsAreBareTablesThatAnEventRefreshesOnce) {
  Open();
  auto& list = Find<QTableView>("lbContaining");
  const QSignalSpy refreshed(list.model(), &QAbstractItemModel::modelReset);
  hand_->TickOther();
  EXPECT_EQ(refreshed.count(), 1);
  EXPECT_EQ(list.model()->rowCount(), 48);
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.verticalScrollBar()->isVisible(); }));
  const int width = list.viewport()->width();
  const int percents[] = {35, 50, 15};
  for (int column = 0; column < 3; ++column) {
    EXPECT_EQ(list.columnWidth(column), width * percents[column] / 100);
    EXPECT_EQ(Find<QTableView>("lbExact").columnWidth(column), list.columnWidth(column));
  }
  EXPECT_EQ(list.model()->columnCount(), 3);
  EXPECT_FALSE(list.horizontalScrollBar()->isVisible());
  EXPECT_FALSE(Find<QTableView>("lbExact").verticalScrollBar()->isVisible());
  EXPECT_FALSE(list.horizontalHeader()->isVisible());
  EXPECT_FALSE(list.showGrid());
}

TEST_F(Screen, ListIsChosenFromByKeysAndLetGoByMouse) {
  Open();
  hand_->Tick(0);
  auto& list = Find<QTableView>("lbContaining");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(window_->lbContaining()->ListIndex(), 0);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(window_->lbContaining()->ListIndex(), 1);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.viewport()->rect().bottomLeft());
  EXPECT_EQ(window_->lbContaining()->ListIndex(), -1) << "beside the rows";
  hand_->ChooseRow(2);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                    list.visualRect(list.model()->index(2, 0)).center());
  EXPECT_EQ(window_->lbContaining()->ListIndex(), -1) << "with the Ctrl key";
  hand_->ChooseRow(2);
  hand_->Tick(2);
  EXPECT_FALSE(list.selectionModel()->hasSelection());
}

TEST_F(Screen, LongListIsGoneThroughByKeys) {
  Open();
  hand_->TickOther();
  auto& list = Find<QTableView>("lbContaining");
  const auto row_after = [&](Qt::Key key) {
    QTest::keyClick(&list, key);
    return window_->lbContaining()->ListIndex();
  };
  EXPECT_EQ(row_after(Qt::Key_End), 47);
  EXPECT_THAT(row_after(Qt::Key_PageUp), testing::AllOf(testing::Gt(20), testing::Lt(45)));
  EXPECT_EQ(row_after(Qt::Key_Home), 0);
  EXPECT_THAT(row_after(Qt::Key_PageDown), testing::AllOf(testing::Gt(2), testing::Lt(27)));
}

TEST_F(Screen, MenusOpenByTheirLetters) {
  Open();
  for (const auto& [key, menu] : {std::pair(Qt::Key_F, "FileMenu"), {Qt::Key_E, "EditMenu"}}) {
    QTest::keyClick(&Native(), key, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr) << menu;
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), menu);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  }
}

TEST_F(Screen, RootIsChosenByItsLetter) {
  Open();
  QTest::keyClick(&Find("pmRoot"), Qt::Key_F);
  EXPECT_EQ(Text(window_->cbScale(0)->Caption()), "F");
  EXPECT_EQ(Text(window_->lbValue()->Text()), "0") << "and the pass has run";
}

TEST_F(Screen, BytesThatAreNoTextShowAsSuch) {
  Open("a\nb\n\xFF&,&S\xC3,TRUE,,,,,,,,,,,");
  hand_->Tick(0);
  const auto* const model = Find<QTableView>("lbExact").model();
  EXPECT_EQ(model->index(0, 0).data().toString(), QString::fromUtf8("\uFFFD&"));
  EXPECT_EQ(model->index(0, 1).data().toString(), QString::fromUtf8("&S\uFFFD"));
}

/// An application that has a handler for the event, and notes what led to it.
class Watcher final : public Application {
 public:
  void _MacOSNotificationReceived(const String& name) override {
    name_ = Text(name);
    Application::_MacOSNotificationReceived(name);
  }
  std::vector<std::string> heard;

 protected:
  void Event_AppearanceChanged() override { heard.push_back(name_); }

 private:
  std::string name_;
};

TEST_F(Screen, ChangeOfThePaletteIsToldOnceAndLeavesTheStateAlone) {
  Open();
  hand_->Tick(0);
  hand_->ChooseRow(1);
  const auto watcher = RuntimeNewObject<Watcher>();
  const auto set = [](QPalette::ColorRole role, const QColor& color) {
    QPalette palette = QApplication::palette();
    palette.setColor(role, color);
    QApplication::setPalette(palette);
  };
  // Waits for a further notification, and then for one too many.
  const auto hears = [&](std::size_t count) {
    const bool enough = QTest::qWaitFor([&] { return watcher->heard.size() >= count; });
    QTest::qWait(20);
    return enough && watcher->heard.size() == count;
  };
  const QPalette before = QApplication::palette();
  set(QPalette::Window, Qt::black);
  set(QPalette::WindowText, Qt::white);
  EXPECT_TRUE(hears(1));
  set(QPalette::Highlight, Qt::red);
  EXPECT_TRUE(hears(2));
  EXPECT_THAT(watcher->heard, ElementsAre(_MacOSDistributedNotifications::kThemeChanged,
                                          _MacOSDistributedNotifications::kColorsChanged));
  QApplication::setPalette(before);
  EXPECT_TRUE(hears(3));
  EXPECT_EQ(window_->lbContaining()->ListIndex(), 1);
  EXPECT_TRUE(Find<QTableView>("lbContaining").selectionModel()->isRowSelected(1, {}));
  EXPECT_EQ(Stars(), "101101011010");
  EXPECT_TRUE(Find<QCheckBox>("cbScale0").isChecked());
}

TEST_F(Screen, QuitEndsTheRunAndEditHasNothingToDo) {
  Open();
  for (const char* const name :
       {"EditUndo", "EditCut", "EditCopy", "EditPaste", "EditClear", "EditSelectAll"}) {
    EXPECT_FALSE(Find<QAction>(name).isEnabled()) << name;
  }
  QTimer::singleShot(0, [] { QTest::keyClick(&Native(), Qt::Key_Q, Qt::ControlModifier); });
  _RuntimeRun();
  QTimer::singleShot(0, [] { Find<QAction>("FileQuit").trigger(); });
  _RuntimeRun();
  QTimer::singleShot(0, [] { Native().close(); });
  _RuntimeRun();
}

TEST_F(Screen, MessageWaitsForTheUserAndTheProgramGoesOn) {
  std::filesystem::create_directory(folder_.Path(library::kFileName));
  QString told;
  QTimer waiting;
  waiting.callOnTimeout([&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    told = box->text();
    box->accept();
  });
  RuntimeInit();
  RuntimePerformInitializers({});
  shell::_EarlyStartup();
  _RunFrameworkInitialization([] {});
  waiting.start(10);
  window_ = window::wdwMain();
  EXPECT_EQ(told, "Error accessing file.");
  EXPECT_TRUE(Native().isVisible());
}

}  // namespace
