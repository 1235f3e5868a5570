#pragma once

#include <memory>

#include "framework/values/string.h"

namespace framework {

/// A handle of the system's object runtime, opaque to everyone else; null for none.
using Ptr = void*;

/// The operations of the system's object runtime and notification centre that a program uses to
/// hear of notifications, under their own names.
class ObjectRuntime {
 public:
  /// A method as the runtime calls it: the receiver, the selector, the message's one argument.
  using Implementation = void (*)(Ptr receiver, Ptr selector, Ptr argument);

  virtual ~ObjectRuntime() = default;

  /// The runtime in use: LocalObjectRuntime, unless another was set.
  static ObjectRuntime& Current();
  /// Puts another in its place, until the next start of the framework's runtime.
  static void _Set(std::unique_ptr<ObjectRuntime> runtime);

  virtual Ptr NSSelectorFromString(const String& text) = 0;
  /// Null for a class that is not known.
  virtual Ptr NSClassFromString(const String& name) = 0;
  /// A new class without extra bytes, not usable yet; null when there can be none of that name.
  virtual Ptr objc_allocateClassPair(Ptr superclass, const String& name) = 0;
  virtual void objc_registerClassPair(Ptr the_class) = 0;
  /// False when the class does not take the method.
  virtual bool class_addMethod(Ptr the_class, Ptr selector, Implementation implementation,
                               const String& types) = 0;
  // Messages.
  virtual Ptr alloc(Ptr the_class) = 0;
  virtual Ptr init(Ptr object) = 0;
  virtual Ptr defaultCenter(Ptr the_class) = 0;
  /// A null object means: from any sender.
  virtual void addObserver_selector_name_object(Ptr center, Ptr observer, Ptr selector,
                                                const String& name, Ptr object) = 0;
  virtual String name(Ptr notification) = 0;
};

}  // namespace framework
