#include "support/running.h"

namespace {

using namespace framework;
using testing::ElementsAre;
using testing::StartsWith;

using Failures = support::Running;

/// An application that takes one class of failures, with its subclasses.
class Careful final : public Application {
  bool Event_UnhandledException(const RuntimeException& failure) override {
    EXPECT_GT(failure.Stack().LastIndex(), 3) << "it knows its way";
    return RuntimeObjectIsa<LogicException>(failure);
  }
};

TEST_F(Failures, AreReportedWhenNoOneTookThem) {
  EXPECT_EQ(Reported([] { RuntimeRaiseException(EndException()); }), "");
  EXPECT_EQ(Reported([] { RuntimeRaiseException(ThreadEndException()); }), "");
  EXPECT_EQ(Reported([] { RuntimeRaiseException(KeyNotFoundException("which")); }),
            "failure KeyNotFoundException: which (error number 0)");
  EXPECT_THAT(Reported([] { throw std::bad_alloc(); }), StartsWith("failure OutOfMemoryException"));
  _RuntimeRegisterAppObject(RuntimeNewObject<Careful>());
  EXPECT_EQ(Reported([] { RuntimeRaiseException(InvalidArgumentException()); }), "");
  EXPECT_THAT(Reported([] { RuntimeRaiseException(IOException()); }),
              StartsWith("failure IOException"));
}

TEST_F(Failures, WithTooLongAMessageAreToldWithAsMuchOfItAsFits) {
  const std::string fits(961, 'x');
  const std::pair<std::string, std::string> messages[] = {
      {fits, fits},
      {fits + "x", fits},
      {fits.substr(1) + "é", fits.substr(1)},
      {fits.substr(2) + "éx", fits.substr(2) + "é"},
      {std::string(2000, '\x80'), ""},
  };
  for (const auto& each : messages) {
    EXPECT_EQ(Reported([&] { RuntimeRaiseException(KeyNotFoundException(each.first)); }),
              "failure KeyNotFoundException: " + each.second + " (error number 0)");
  }
}

TEST_F(Failures, TravelWholeAndKnowWhereTheyWereRaised) {
  const InvalidArgumentException made("which");
  const RuntimeException& known_by_its_base = made;
  EXPECT_LT(made.CallStack().LastIndex(), 0);
  EXPECT_THROW(RuntimeRaiseException(ThreadAccessingUIException()), ThreadAccessingUIException);
  try {
    RuntimeRaiseException(known_by_its_base);
  } catch (const InvalidArgumentException& raised) {
    EXPECT_EQ(raised.Message().View(), "which");
    EXPECT_GT(raised.CallStack().LastIndex(), 3);
    const Array<String> stack = raised.Stack();
    EXPECT_EQ(stack.LastIndex(), raised.CallStack().LastIndex());
    const std::vector<std::string> names(stack._Items().begin(), stack._Items().end());
    EXPECT_THAT(names, testing::Contains(testing::Not("")));
    return;
  }
  FAIL() << "it was raised as another";
}

TEST_F(Failures, OfOtherKindsEndTheRunLoopAndAreRaisedBehindIt) {
  toolkit_.Post([] { _RunEvent([] { throw 1; }); });
  toolkit_.Post([this] { toolkit_.Log("never"); });
  EXPECT_THROW(_RuntimeRun(), int);
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("run", "quit"));
}

}  // namespace
