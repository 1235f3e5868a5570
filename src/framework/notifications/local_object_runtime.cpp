#include "framework/notifications/local_object_runtime.h"

#include <algorithm>

#include "framework/values/ref.h"

namespace framework {

namespace {

constexpr std::string_view kCenter = "NSDistributedNotificationCenter";

struct Runtimes {
  std::unique_ptr<LocalObjectRuntime> local;
  std::unique_ptr<ObjectRuntime> other;  ///< in use instead of the local one; mostly null
};

Runtimes& State() {
  static auto& state = *new Runtimes;
  return state;
}

}  // namespace

ObjectRuntime& ObjectRuntime::Current() {
  if (State().other != nullptr) return *State().other;
  if (State().local == nullptr) RaiseNilObjectException("ObjectRuntime");
  return *State().local;
}

void ObjectRuntime::_Set(std::unique_ptr<ObjectRuntime> runtime) {
  State().other = std::move(runtime);
}

void _StartObjectRuntime() { State() = {std::make_unique<LocalObjectRuntime>(), nullptr}; }

void _PostNotification(const String& name) {
  if (State().local != nullptr) State().local->Post(name);
}

LocalObjectRuntime::LocalObjectRuntime() : classes_{{"NSObject", {}}, {std::string(kCenter), {}}} {}

Ptr LocalObjectRuntime::NSSelectorFromString(const String& text) {
  return const_cast<std::string*>(&*selectors_.emplace(text.View()).first);
}

Ptr LocalObjectRuntime::NSClassFromString(const String& name) { return FindClass(name); }

Ptr LocalObjectRuntime::objc_allocateClassPair(Ptr, const String& name) {
  return &classes_.emplace_back(Class{std::string(name), {}});
}

void LocalObjectRuntime::objc_registerClassPair(Ptr) {}

bool LocalObjectRuntime::class_addMethod(Ptr the_class, Ptr selector, Implementation implementation,
                                         const String&) {
  return static_cast<Class*>(the_class)->methods.emplace(selector, implementation).second;
}

Ptr LocalObjectRuntime::alloc(Ptr the_class) {
  return &instances_.emplace_back(Instance{static_cast<Class*>(the_class)});
}

Ptr LocalObjectRuntime::init(Ptr object) { return object; }

Ptr LocalObjectRuntime::defaultCenter(Ptr the_class) {
  return the_class == FindClass(kCenter) ? &observers_ : nullptr;
}

void LocalObjectRuntime::addObserver_selector_name_object(Ptr center, Ptr observer, Ptr selector,
                                                          const String& name, Ptr) {
  static_cast<std::vector<Observer>*>(center)->push_back(
      {static_cast<Instance*>(observer), selector, name});
}

String LocalObjectRuntime::name(Ptr notification) { return *static_cast<String*>(notification); }

void LocalObjectRuntime::Post(const String& name) {
  String notification = name;
  for (const Observer& observer : std::vector(observers_)) {
    if (!Same(observer.name, name)) continue;
    const auto& methods = observer.instance->its_class->methods;
    const auto method = methods.find(observer.selector);
    if (method != methods.end())
      method->second(observer.instance, observer.selector, &notification);
  }
}

LocalObjectRuntime::Class* LocalObjectRuntime::FindClass(const String& name) {
  const auto found = std::find_if(classes_.begin(), classes_.end(),
                                  [&](const Class& known) { return known.name == name.View(); });
  return found == classes_.end() ? nullptr : &*found;
}

}  // namespace framework
