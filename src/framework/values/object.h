#pragma once

#include <cstddef>
#include <cstdint>

namespace framework {

/// Base of everything that is shared by reference. It counts its references, is deleted with the
/// last of them, and empties its weak references then. The counts belong to the main thread: an
/// object is never shared between threads.
class Object {
 public:
  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  Object(Object&&) = delete;
  Object& operator=(Object&&) = delete;
  virtual ~Object();

 private:
  template <class T>
  friend class Ref;
  friend class WeakRef;

  /// What the weak references to one object share; it outlives the object as long as one is left.
  struct WeakLink {
    Object* object;
    std::size_t holders;
  };

  void Retain() noexcept { ++references_; }
  void Release() noexcept {
    if (--references_ == 0) Go();
  }
  /// Empties the weak references before any destructor, so that none can reach the object through
  /// them.
  void Go() noexcept;
  WeakLink& Link();
  void ForgetWeakReferences() noexcept;

  WeakLink* link_ = nullptr;
  std::uint32_t references_ = 0;
};

}  // namespace framework
