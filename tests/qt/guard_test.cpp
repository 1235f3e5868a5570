#include <sys/resource.h>

#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <new>
#include <thread>

#include "framework/events/msg_box.h"
#include "framework/events/timer.h"
#include "qt/qt_hand.h"

namespace {

using namespace framework;
using namespace support;
using testing::Contains;
using testing::HasSubstr;

/// The box that the user is shown; null while there is none.
QMessageBox* Box() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

/// Waits for a box, reads it and dismisses it.
std::string Read() {
  if (!QTest::qWaitFor([] { return Box() != nullptr; })) return "no box";
  const QPointer<QMessageBox> box = Box();
  const std::string text = box->text().toStdString();
  box->accept();
  EXPECT_TRUE(QTest::qWaitFor([&box] { return box == nullptr; }));
  return text;
}

using Guarded = OnScreen;

TEST_F(Guarded, TextsAreToldOneAfterTheOtherWhateverAskedForThem) {
  MsgBox("before there is a screen");
  ProgramOn::Open("a\nb\nshort");
  EXPECT_TRUE(Native().isVisible()) << "nothing waits for the user";
  for (int twice = 0; twice < 2; ++twice) toolkit_.ReportFailure("a failure");
  std::thread([this] { toolkit_.ReportFailure("of another thread"); }).join();
  EXPECT_EQ(Read(), "before there is a screen");
  EXPECT_THAT(Read(), HasSubstr("OutOfBoundsException"));
  EXPECT_EQ(Read(), "a failure") << "which is told once, as it waits";
  EXPECT_EQ(Read(), "of another thread");
  QApplication::processEvents();
  EXPECT_EQ(Box(), nullptr);
}

class WithFailures : public OnScreen,
                     public testing::WithParamInterface<std::vector<const char*>> {};

TEST_P(WithFailures, WhatEndsTheProgramIsReadFirst) {
  folder_.Write(library::kFileName, kFourScales);
  std::vector<std::string> told;
  QTimer reader;
  QObject::connect(&reader, &QTimer::timeout, [&told] {
    if (Box() == nullptr) return;
    told.push_back(Box()->text().toStdString());
    Box()->accept();
  });
  toolkit_.before_the_window = [&reader] {
    reader.start(20);
    // Before the loop, and so before its end, has begun.
    for (const char* const text : GetParam()) _RunEvent([text] { throw std::runtime_error(text); });
  };
  EXPECT_EQ(shell::main(), 1);
  EXPECT_EQ(told.size(), GetParam().size());
  for (const char* const text : GetParam()) EXPECT_THAT(told, Contains(HasSubstr(text)));
}

using Texts = std::vector<const char*>;
INSTANTIATE_TEST_SUITE_P(Guarded, WithFailures,
                         testing::Values(Texts{"odd"}, Texts{"odd", "even"}));

/// From now on each operation on the user interface fails, as if it came from another thread; or it
/// does not any more.
void LetOperationsFail(bool fail) {
  fail ? std::thread(&_StartRunLoop).join() : _StartRunLoop();
  _SetRunLoopApplication(getAppObject().Get());
}

TEST_F(Guarded, NothingIsThrownThroughTheToolkit) {
  Open();
  hand_->Tick(0);
  const QAbstractItemModel& model = *List().model();
  const std::tuple<const char*, std::function<void()>, std::function<void()>> calls[] = {
      {"a tick", {}, [&] { hand_->Tick(4); }},
      {"a root", {}, [] { QtHand::Press(Find("pmRoot"), Qt::Key_Down); }},
      {"a row", {}, [&] { hand_->ChooseRow(0); }},
      {"an answer", {}, [&] { EXPECT_FALSE(model.index(0, 0).data().isValid()); }},
      {"a menu", {}, [] { Native().findChild<QAction*>("FileQuit")->trigger(); }},
      {"a refresh", [&] { window_->lbExact()->AddRow({"a"}); }, {}},
      {"a timer", [] { Timer::CallLater(0, [] { MsgBox("late"); }); }, {}},
  };
  for (const auto& [name, before, call] : calls) {
    SCOPED_TRACE(name);
    if (before) before();
    LetOperationsFail(true);
    if (call) call();
    QApplication::processEvents();
    LetOperationsFail(false);
    EXPECT_THAT(Read(), HasSubstr("ThreadAccessingUIException"));
    while (QTest::qWaitFor([] { return Box() != nullptr; }, 50)) Read();
  }
}

/// Refuses one message box memory as it is shown.
struct NoBox : QObject {
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Polish || !qobject_cast<QMessageBox*>(object)) return false;
    qApp->removeEventFilter(this);
    throw std::bad_alloc();
  }
} no_box;
void RefuseABox(bool refuse) {
  refuse ? qApp->installEventFilter(&no_box) : qApp->removeEventFilter(&no_box);
}

/// Leaves no room for another mapping of memory.
void RefuseRoom(bool refuse) {
  rlimit room{};
  getrlimit(RLIMIT_AS, &room);
  room.rlim_cur = refuse ? 1 : room.rlim_max;
  setrlimit(RLIMIT_AS, &room);
}

TEST_F(Guarded, WithoutMemoryForABoxTheLineIsAll) {
  Open();
  for (const auto refuse : {&RefuseABox, &RefuseRoom}) {
    testing::internal::CaptureStderr();
    toolkit_.ReportFailure("a failure");
    refuse(true);
    QCoreApplication::sendPostedEvents();
    refuse(false);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Orrel Pitchsieve: a failure\n");
    EXPECT_EQ(Box(), nullptr);
  }
  toolkit_.ReportFailure("a failure");
  EXPECT_EQ(Read(), "a failure") << "which is told again";
  for (const char* const text : {"one", "two", "three"}) toolkit_.ReportFailure(text);
  ASSERT_TRUE(QTest::qWaitFor([] { return Box() != nullptr; }));
  RefuseABox(true);
  EXPECT_EQ(Read(), "one");
  QApplication::processEvents();
  EXPECT_EQ(Box(), nullptr) << "what waits behind a box that is refused is given up with it";
}

}  // namespace
