#pragma once

#include <concepts>
#include <string_view>
#include <utility>

#include "framework/values/object.h"
#include "framework/values/type_name.h"

namespace framework {

/// Raises a NilObjectException whose message names the class of the reference.
[[noreturn]] void RaiseNilObjectException(std::string_view class_name);

/// A counted reference to an object, or nil. A use of a nil one raises NilObjectException.
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  explicit Ref(T* object) noexcept : object_(object) { Retain(); }
  Ref(const Ref& other) noexcept : object_(other.object_) { Retain(); }
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <std::derived_from<T> U>
  Ref(const Ref<U>& other) noexcept : object_(other.Get()) {
    Retain();
  }
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ref() {
    if (object_ != nullptr) static_cast<Object*>(object_)->Release();
  }

  T* operator->() const { return &**this; }
  T& operator*() const {
    if (object_ == nullptr) RaiseNilObjectException(TypeName<T>());
    return *object_;
  }

  explicit operator bool() const noexcept { return object_ != nullptr; }
  T* Get() const noexcept { return object_; }

  friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.object_ == b.object_; }

 private:
  void Retain() const noexcept {
    if (object_ != nullptr) static_cast<Object*>(object_)->Retain();
  }

  T* object_ = nullptr;
};

/// Allocates an object. What the class has of its own to do at birth, its Constructor, is the
/// caller's next call.
template <std::derived_from<Object> T, class... Arguments>
Ref<T> RuntimeNewObject(Arguments&&... arguments) {
  return Ref<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace framework
