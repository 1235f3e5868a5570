#pragma once

#include "framework/values/ref.h"

namespace framework {

/// A reference that keeps nothing alive: Value is nil once the object has gone.
class WeakRef final : public Object {
 public:
  /// A reference to nil gives a WeakRef that is empty from the start.
  explicit WeakRef(const Ref<Object>& object) : WeakRef(object.Get()) {}
  explicit WeakRef(Object* object);
  ~WeakRef() override;

  Ref<Object> Value() const;

 private:
  Object::WeakLink* link_ = nullptr;
};

}  // namespace framework
