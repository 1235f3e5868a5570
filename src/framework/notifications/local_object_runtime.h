#pragma once

#include <list>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "framework/notifications/object_runtime.h"

namespace framework {

/// The object runtime and notification centre where the system has none of the kind: classes with
/// methods, objects, and one centre that delivers what it is given. It has no inheritance, asks for
/// no registration, does not look whether a name is taken, and releases no object.
class LocalObjectRuntime final : public ObjectRuntime {
 public:
  LocalObjectRuntime();

  Ptr NSSelectorFromString(const String& text) override;
  Ptr NSClassFromString(const String& name) override;
  Ptr objc_allocateClassPair(Ptr superclass, const String& name) override;
  void objc_registerClassPair(Ptr the_class) override;
  bool class_addMethod(Ptr the_class, Ptr selector, Implementation implementation,
                       const String& types) override;
  Ptr alloc(Ptr the_class) override;
  Ptr init(Ptr object) override;
  Ptr defaultCenter(Ptr the_class) override;
  void addObserver_selector_name_object(Ptr center, Ptr observer, Ptr selector, const String& name,
                                        Ptr object) override;
  String name(Ptr notification) override;

  /// Delivers a notification to the observers of its name, in the order of their adding.
  void Post(const String& name);

 private:
  struct Class {
    std::string name;
    std::map<Ptr, Implementation> methods;
  };
  struct Instance {
    Class* its_class;
  };
  struct Observer {
    Instance* instance;
    Ptr selector;
    String name;
  };

  Class* FindClass(const String& name);

  std::set<std::string> selectors_;
  std::list<Class> classes_;
  std::list<Instance> instances_;
  std::vector<Observer> observers_;
};

/// Tells our own notification centre of something that has happened in the system. Where the system
/// has a centre of the kind, no one listens to ours.
void _PostNotification(const String& name);

/// Starts with a fresh LocalObjectRuntime, and makes it the current runtime.
void _StartObjectRuntime();

}  // namespace framework
