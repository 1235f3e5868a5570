#include "framework/notifications/notifications.h"

#include "framework/notifications/local_object_runtime.h"
#include "support/running.h"

namespace {

using namespace framework;
using namespace framework::_MacOSDistributedNotifications;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

const std::string kTheme = kThemeChanged;
const std::string kColors = kColorsChanged;

struct Client final : iNotify {
  explicit Client(std::function<void(const String& name)> work) : handler(std::move(work)) {
    Register(*this);
  }
  void _MacOSNotificationReceived(const String& name) override { handler(name); }
  std::function<void(const String& name)> handler;
};

class Notifications : public support::Running {
 protected:
  /// A client that notes its name with each notification, and then does more.
  Ref<Client> Make(
      const std::string& name, const std::function<void()>& more = [] {}) {
    return RuntimeNewObject<Client>([this, name, more](const String& notification) {
      toolkit_.Log(name + " " + std::string(notification));
      more();
    });
  }
};

struct Watching final : Application {
  void Event_AppearanceChanged() override { ++changes; }
  int changes = 0;
};

TEST_F(Notifications, ReachClientsInOrderAllInOneEvent) {
  const auto a = Make("a");
  const auto app = RuntimeNewObject<Watching>();
  const auto b = Make("b");
  Register(*a);
  _PostNotification(kThemeChanged);
  toolkit_.Post([this] { toolkit_.Log("the next event"); });
  for (const char* const name : {kColorsChanged, "", "SomethingElse"}) _PostNotification(name);
  EXPECT_THAT(toolkit_.Lines(), IsEmpty()) << "no client runs inside the delivery";
  toolkit_.Run();
  EXPECT_THAT(toolkit_.Lines(),
              ElementsAre("run", "a " + kTheme, "b " + kTheme, "a " + kTheme, "a " + kColors,
                          "b " + kColors, "a " + kColors, "the next event"));
  EXPECT_EQ(app->changes, 2);
}

TEST_F(Notifications, StepOverAClientThatDiedAndReachOneThatCameMeanwhile) {
  Ref<Client> late;
  auto a = Make("a");
  const auto b = Make("b", [&] { late = Make("late"); });
  _PostNotification(kThemeChanged);
  a = nullptr;
  toolkit_.Run();
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("run", "b " + kTheme, "late " + kTheme));
  toolkit_.ClearLog();
  _PostNotification(kColorsChanged);
  toolkit_.Run();
  EXPECT_THAT(toolkit_.Lines(), ElementsAre("run", "b " + kColors, "late " + kColors));
}

TEST_F(Notifications, StayAtTheHeadWhenAClientFails) {
  bool fails = true;
  const auto a = Make("a", [&] {
    if (std::exchange(fails, false)) RuntimeRaiseException(IOException());
  });
  const auto b = Make("b");
  for (const char* const name : {kThemeChanged, kColorsChanged}) {
    _PostNotification(name);
    toolkit_.Run();
  }
  EXPECT_THAT(toolkit_.Lines(),
              ElementsAre("run", "a " + kTheme, StartsWith("failure IOException"), "run",
                          "a " + kTheme, "b " + kTheme, "a " + kColors, "b " + kColors));
}

/// A system that refuses one thing, and notes in the log what it is asked.
struct Refusing final : ObjectRuntime {
  explicit Refusing(toolkit::memory::MemoryToolkit& toolkit) : log(toolkit) {}

  Ptr NSSelectorFromString(const String&) override { return Answer("selector"); }
  Ptr NSClassFromString(const String&) override { return Answer("class"); }
  Ptr objc_allocateClassPair(Ptr, const String&) override { return Answer("allocate"); }
  void objc_registerClassPair(Ptr) override { Answer("register"); }
  bool class_addMethod(Ptr, Ptr, Implementation method, const String&) override {
    delivery = method;
    return Answer("add");
  }
  Ptr alloc(Ptr) override { return Answer("alloc"); }
  Ptr init(Ptr) override { return Answer("init"); }
  Ptr defaultCenter(Ptr) override { return Answer("center"); }
  void addObserver_selector_name_object(Ptr, Ptr, Ptr, const String& name, Ptr) override {
    Answer(std::string(name));
  }
  String name(Ptr) override { return "name"; }

  Ptr Answer(const std::string& question) {
    log.Log(question);
    return question == refused ? nullptr : this;
  }
  toolkit::memory::MemoryToolkit& log;
  std::string refused;
  Implementation delivery = nullptr;
};

TEST_F(Notifications, HaveTheirObserverSetUpStepByStepAsFarAsTheSystemGoes) {
  const auto asked_by_three_clients = [this](const char* refused) {
    RuntimePerformInitializers({});
    auto* const system = new Refusing(toolkit_);
    ObjectRuntime::_Set(std::unique_ptr<ObjectRuntime>(system));
    system->refused = refused;
    toolkit_.ClearLog();
    const auto a = Make("a");
    toolkit_.Log("again:");
    const auto b = Make("b");
    toolkit_.Log("at last:");
    system->refused = "";
    const auto c = Make("c");
    system->delivery(nullptr, nullptr, nullptr);
    toolkit_.Run();
    return toolkit_.Lines();
  };
  EXPECT_THAT(
      asked_by_three_clients("allocate"),
      ElementsAre("selector", "class", "allocate", "again:", "selector", "class", "allocate",
                  "at last:", "selector", "class", "allocate", "register", "add", "alloc", "init",
                  "class", "center", kTheme, kColors, "run", "c name"));
  EXPECT_THAT(asked_by_three_clients("add"),
              ElementsAre("selector", "class", "allocate", "register", "add", "again:", "selector",
                          "alloc", "init", "class", "center", kTheme, kColors, "at last:", "run",
                          "b name", "c name"));
}

}  // namespace
