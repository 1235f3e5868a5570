#include "framework/notifications.h"

#include <gmock/gmock.h>

#include "framework/local_object_runtime.h"
#include "framework/runtime.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace framework::_MacOSDistributedNotifications;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// What all clients of a test heard, in order: "name of the client: first word of the
/// notification".
std::vector<std::string> heard;

class Client final : public iNotify {
 public:
  explicit Client(std::string name) : name_(std::move(name)) { Register(*this); }
  void _MacOSNotificationReceived(const String& name) override {
    heard.push_back(name_ + " " + std::string(name));
    if (does) does();
  }
  std::function<void()> does;

 private:
  std::string name_;
};

Ref<Client> Make(const char* name) { return RuntimeNewObject<Client>(name); }

const std::string kTheme = kThemeChanged;
const std::string kColors = kColorsChanged;

class Notifications : public testing::Test {
 protected:
  Notifications() {
    heard.clear();
    RuntimeInit();
    RuntimePerformInitializers({});
  }
  ~Notifications() override {
    RuntimePerformFinalizers();
    RuntimeExit();
  }
  toolkit::memory::MemoryToolkit toolkit_;
};

TEST_F(Notifications, ReachClientsInOrderFromTheLoopOneAfterTheOther) {
  const auto a = Make("a");
  const auto b = Make("b");
  _PostNotification(kThemeChanged);
  _PostNotification(kColorsChanged);
  _PostNotification("");
  _PostNotification("SomethingElse");
  EXPECT_THAT(heard, IsEmpty()) << "no client runs inside the delivery";
  toolkit_.Run();
  EXPECT_THAT(heard, ElementsAre("a " + kTheme, "b " + kTheme, "a " + kColors, "b " + kColors));
}

TEST_F(Notifications, ComeTwiceToAClientThatRegisteredTwice) {
  const auto a = Make("a");
  Register(*a);
  _PostNotification(kThemeChanged);
  toolkit_.Run();
  EXPECT_THAT(heard, SizeIs(2));
}

TEST_F(Notifications, StepOverAClientThatDiedAndReachOneThatCameMeanwhile) {
  auto a = Make("a");
  const auto b = Make("b");
  Ref<Client> late;
  b->does = [&] {
    if (!late) late = Make("late");
  };
  _PostNotification(kThemeChanged);
  a = nullptr;
  toolkit_.Run();
  EXPECT_THAT(heard, ElementsAre("b " + kTheme, "late " + kTheme));
}

TEST_F(Notifications, StayAtTheHeadWhenAClientFails) {
  const auto a = Make("a");
  const auto b = Make("b");
  const auto c = Make("c");
  b->does = [&] {
    b->does = nullptr;
    RuntimeRaiseException(IOException());
  };
  _PostNotification(kThemeChanged);
  toolkit_.Run();
  EXPECT_THAT(heard, ElementsAre("a " + kTheme, "b " + kTheme));
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("run", StartsWith("failure IOException")));
  heard.clear();
  _PostNotification(kColorsChanged);
  toolkit_.Run();
  EXPECT_THAT(heard, ElementsAre("a " + kTheme, "b " + kTheme, "c " + kTheme, "a " + kColors,
                                 "b " + kColors, "c " + kColors));
}

TEST_F(Notifications, OfABurstAreAllServedByTheFirstRun) {
  const auto a = Make("a");
  std::size_t served_by_first = 0;
  _PostNotification(kThemeChanged);
  toolkit_.Post([&] { served_by_first = heard.size(); });
  for (int i = 1; i < 10'000; ++i) _PostNotification(kThemeChanged);
  toolkit_.Run();
  EXPECT_EQ(served_by_first, 10'000U);
  EXPECT_THAT(heard, SizeIs(10'000));
}

class Watching final : public Application {
 public:
  int changes = 0;

 protected:
  void Event_AppearanceChanged() override { ++changes; }
};

TEST_F(Notifications, RaiseTheEventOfAnApplicationForTheTwoNamesAlone) {
  const auto app = RuntimeNewObject<Watching>();
  const auto silent = RuntimeNewObject<Application>();
  _PostNotification(kThemeChanged);
  _PostNotification(kColorsChanged);
  toolkit_.Run();
  app->_MacOSNotificationReceived("SomethingElse");
  EXPECT_EQ(toolkit_.Lines().back(), "run") << "the one without a handler is silent";
  EXPECT_EQ(app->changes, 2);
}

/// A runtime that refuses, and notes what it was asked.
class Refusing final : public ObjectRuntime {
 public:
  Refusing(std::string refuses, std::vector<std::string>& asked)
      : refuses_(std::move(refuses)), asked_(asked) {}

  Ptr NSSelectorFromString(const String& text) override { return Answer("selector", text); }
  Ptr NSClassFromString(const String& name) override { return Answer("class", name); }
  Ptr objc_allocateClassPair(Ptr, const String& name) override {
    EXPECT_EQ(name.View().size(), 31U);
    return Answer("allocate");
  }
  void objc_registerClassPair(Ptr) override { Answer("register"); }
  bool class_addMethod(Ptr, Ptr, Implementation, const String& types) override {
    return Answer("add", types) != nullptr;
  }
  Ptr alloc(Ptr) override { return Answer("alloc"); }
  Ptr init(Ptr) override { return Answer("init"); }
  Ptr defaultCenter(Ptr) override { return Answer("center"); }
  void addObserver_selector_name_object(Ptr, Ptr, Ptr, const String& name, Ptr object) override {
    EXPECT_EQ(object, nullptr);
    Answer("observe", name);
  }
  String name(Ptr) override { return {}; }

 private:
  Ptr Answer(const std::string& what, const String& detail = {}) {
    asked_.push_back(what + (detail.View().empty() ? "" : " ") + std::string(detail));
    return what == refuses_ ? nullptr : this;
  }
  std::string refuses_;
  std::vector<std::string>& asked_;
};

TEST_F(Notifications, SetTheirObserverUpStepByStep) {
  std::vector<std::string> asked;
  ObjectRuntime::_Set(std::make_unique<Refusing>("nothing", asked));
  const auto a = Make("a");
  const auto b = Make("b");
  EXPECT_THAT(asked,
              ElementsAre("selector gotCalled:", "class NSObject", "allocate", "register",
                          "add v@:@", "alloc", "init", "class NSDistributedNotificationCenter",
                          "center", "observe " + kTheme, "observe " + kColors));
}

TEST_F(Notifications, AreDoneWithoutWhereTheSystemHasNone) {
  std::vector<std::string> asked;
  ObjectRuntime::_Set(std::make_unique<Refusing>("allocate", asked));
  const auto a = Make("a");
  EXPECT_EQ(asked.back(), "allocate");
  asked.clear();
  const auto b = Make("b");
  EXPECT_EQ(asked.back(), "allocate") << "the next one asks again";
  ObjectRuntime::_Set(nullptr);
  const auto c = Make("c");
  _PostNotification(kThemeChanged);
  toolkit_.Run();
  EXPECT_THAT(heard, ElementsAre("c " + kTheme)) << "the first two were not added";
}

TEST_F(Notifications, GoOnBehindARefusedMethodWithoutAskingAgain) {
  std::vector<std::string> asked;
  ObjectRuntime::_Set(std::make_unique<Refusing>("add", asked));
  const auto a = Make("a");
  EXPECT_EQ(asked.back(), "add v@:@");
  asked.clear();
  const auto b = Make("b");
  EXPECT_THAT(asked, ElementsAre("selector gotCalled:", "alloc", "init",
                                 "class NSDistributedNotificationCenter", "center",
                                 "observe " + kTheme, "observe " + kColors));
}

}  // namespace
