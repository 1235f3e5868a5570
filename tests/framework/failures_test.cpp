#include <gmock/gmock.h>

#include <thread>

#include "framework/msg_box.h"
#include "framework/runtime.h"
#include "framework/timer.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class Failures : public testing::Test {
 protected:
  Failures() {
    RuntimeInit();
    RuntimePerformInitializers({});
  }
  ~Failures() override {
    RuntimePerformFinalizers();
    RuntimeExit();
  }
  toolkit::memory::MemoryToolkit toolkit_;
};

/// An application that has a handler for what no one took.
class Careful final : public Application {
 public:
  bool takes = true;

 protected:
  bool Event_UnhandledException(const RuntimeException&) override { return takes; }
};

TEST_F(Failures, GuardTakesItsClassAndSubclassesAlone) {
  EXPECT_TRUE(RuntimeObjectIsa<RuntimeException>(InvalidArgumentException()));
  EXPECT_TRUE(RuntimeObjectIsa<LogicException>(InvalidArgumentException()));
  EXPECT_FALSE(RuntimeObjectIsa<IOException>(InvalidArgumentException()));
  EXPECT_THROW(RuntimeRaiseException(IteratorException()), LogicException);
}

TEST_F(Failures, ReraisedFailureIsTheSameOne) {
  std::exception_ptr taken;
  std::int64_t depth = 0;
  try {
    IOException failure("message");
    failure.ErrorNumber(5);
    RuntimeRaiseException(failure);
  } catch (const RuntimeException& failure) {
    depth = failure.Stack().LastIndex();
    taken = std::current_exception();
  }
  try {
    RuntimeReraiseException(taken);
    FAIL();
  } catch (const IOException& failure) {
    EXPECT_GT(depth, 3);
    EXPECT_EQ(failure.Stack().LastIndex(), depth);
    EXPECT_EQ(failure.ErrorNumber(), 5);
    EXPECT_EQ(failure.ClassName(), "IOException");
  }
}

TEST_F(Failures, ExceptionFunctionGivesAFailureBackAsAValue) {
  const auto run = [](void (*work)(void*)) {
    return _CallFunctionWithExceptionHandling(work, nullptr);
  };
  EXPECT_EQ(run([](void*) {}), nullptr);
  EXPECT_NE(run([](void*) { RuntimeRaiseException(IOException()); }), nullptr);
  EXPECT_THROW(run([](void*) { throw 1; }), int);
}

TEST_F(Failures, ApplicationLevelHandlingReportsWhatNoOneTook) {
  const auto run = &Application::_CallFunctionWithExceptionHandling;
  run([] {});
  run([] { RuntimeRaiseException(EndException()); });
  run([] { RuntimeRaiseException(ThreadEndException()); });
  EXPECT_THAT(toolkit_.Lines(), IsEmpty());
  run([] { RuntimeRaiseException(KeyNotFoundException("which")); });
  run([] { throw std::bad_alloc(); });
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("failure KeyNotFoundException: which (error number 0)",
                                            StartsWith("failure OutOfMemoryException")));
  EXPECT_THROW(run([] { throw 1; }), int);
}

TEST_F(Failures, HandlerOfTheApplicationComesBeforeTheLastResort) {
  const auto app = RuntimeNewObject<Careful>();
  _RuntimeRegisterAppObject(app);
  Application::_CallFunctionWithExceptionHandling([] { RuntimeRaiseException(IOException()); });
  EXPECT_THAT(toolkit_.Lines(), IsEmpty());
  app->takes = false;
  Application::_CallFunctionWithExceptionHandling([] { RuntimeRaiseException(IOException()); });
  EXPECT_THAT(toolkit_.Lines(), ElementsAre(StartsWith("failure IOException")));
}

TEST_F(Failures, UserInterfaceGuardRefusesOtherThreadsOnceThereIsAnApplication) {
  std::string message;
  const auto elsewhere = [&] {
    try {
      MsgBox("text");
    } catch (const ThreadAccessingUIException& failure) {
      message = std::string(failure.Message());
    }
  };
  std::thread(elsewhere).join();
  EXPECT_EQ(message, "") << "no application object is registered yet";
  _RuntimeRegisterAppObject(RuntimeNewObject<Application>());
  MsgBox("text");
  std::thread(elsewhere).join();
  EXPECT_THAT(message,
              StartsWith("A thread has attempted to manipulate a user interface element."));
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("message text", "message text"));
}

TEST_F(Failures, WhatAnEventLetsThroughEndsTheRunLoopAndIsRaisedBehindIt) {
  toolkit_.Post([] { _RunEvent([] { throw 1; }); });
  toolkit_.Post([this] { toolkit_.Log("never"); });
  EXPECT_THROW(_RuntimeRun(), int);
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("run", "quit"));
}

TEST_F(Failures, DeferredCallRunsOnceFromTheLoopAndItsFailureIsReported) {
  int calls = 0;
  Timer::CallLater(0, [&] {
    ++calls;
    IOException failure;
    failure.ErrorNumber(5);
    RuntimeRaiseException(failure);
  });
  EXPECT_EQ(calls, 0);
  toolkit_.Run();
  toolkit_.Run();
  EXPECT_EQ(calls, 1);
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("run", "failure IOException (error number 5)", "run"));
}

}  // namespace
