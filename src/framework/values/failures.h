#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <string_view>
#include <type_traits>

#include "framework/values/array.h"
#include "framework/values/string.h"
#include "framework/values/type_name.h"

namespace framework {

/// One place in the program at the moment of a raising.
struct StackFrame {
  const void* Address = nullptr;
  String Name;  ///< empty where the place has no public name
};

/// Base of all failures, which are thrown by value. A guard names the class that it takes; nothing
/// in the program returns an error code. Beside its texts a failure takes no memory: one that tells
/// of memory refused must not ask for more.
class RuntimeException {
 public:
  RuntimeException() = default;
  explicit RuntimeException(String message) : message_(std::move(message)) {}
  RuntimeException(const RuntimeException&) = default;
  RuntimeException& operator=(const RuntimeException&) = default;
  virtual ~RuntimeException() = default;

  /// The stack at the raising, innermost place first; empty before that, and where the system
  /// cannot tell.
  virtual Array<StackFrame> CallStack() const;
  /// The same, as names; an unnamed place is an empty text.
  virtual Array<String> Stack() const;
  /// The class of the failure itself, not of the reference to it: "IOException".
  virtual std::string_view ClassName() const noexcept { return TypeName<RuntimeException>(); }
  /// Raises this failure, of whatever class a reference knows it, and notes the stack.
  [[noreturn]] virtual void _Raise() const { RaiseAs(*this); }

  std::int64_t ErrorNumber() const noexcept { return error_number_; }
  void ErrorNumber(std::int64_t value) noexcept { error_number_ = value; }
  /// Empty unless the raiser set it.
  const String& Message() const noexcept { return message_; }
  void Message(String value) noexcept { message_ = std::move(value); }
  const String& Reason() const noexcept { return reason_; }
  void Reason(String value) noexcept { reason_ = std::move(value); }

 protected:
  template <class Self>
  [[noreturn]] static void RaiseAs(Self failure) {
    failure.NoteStack();
    throw failure;
  }

 private:
  void NoteStack() noexcept;

  std::array<void*, 64> addresses_{};
  std::size_t depth_ = 0;
  String message_;
  String reason_;
  std::int64_t error_number_ = 0;
};

/// What a class of the family adds to its base: its name, and that it is raised whole. Without it
/// a class is raised as its base.
template <class Self, class Base = RuntimeException>
class Failure : public Base {
 public:
  using Base::Base;
  std::string_view ClassName() const noexcept override { return TypeName<Self>(); }
  [[noreturn]] void _Raise() const override { Base::RaiseAs(static_cast<const Self&>(*this)); }
};

// clang-format off
struct NilObjectException : Failure<NilObjectException> { using Failure::Failure; };
struct OutOfBoundsException : Failure<OutOfBoundsException> { using Failure::Failure; };
struct IOException : Failure<IOException> { using Failure::Failure; };
struct IllegalCastException : Failure<IllegalCastException> { using Failure::Failure; };
struct TypeMismatchException : Failure<TypeMismatchException> { using Failure::Failure; };
struct FunctionNotFoundException : Failure<FunctionNotFoundException> { using Failure::Failure; };
struct StackOverflowException : Failure<StackOverflowException> { using Failure::Failure; };
struct UnsupportedFormatException : Failure<UnsupportedFormatException> { using Failure::Failure; };
struct OutOfMemoryException : Failure<OutOfMemoryException> { using Failure::Failure; };
struct KeyNotFoundException : Failure<KeyNotFoundException> { using Failure::Failure; };
struct PlatformNotSupportedException : Failure<PlatformNotSupportedException> { using Failure::Failure; };
struct UnsupportedOperationException : Failure<UnsupportedOperationException> { using Failure::Failure; };
struct ServiceNotAvailableException : Failure<ServiceNotAvailableException> { using Failure::Failure; };
struct MenuHasParentException : Failure<MenuHasParentException> { using Failure::Failure; };
struct InvalidParentException : Failure<InvalidParentException> { using Failure::Failure; };
struct ThreadAlreadyRunningException : Failure<ThreadAlreadyRunningException> { using Failure::Failure; };
/// Ends a thread. No failure: the application-level handling drops it.
struct ThreadEndException : Failure<ThreadEndException> { using Failure::Failure; };
/// Ends the application. No failure: the application-level handling drops it.
struct EndException : Failure<EndException> { using Failure::Failure; };
struct LogicException : Failure<LogicException> { using Failure::Failure; };
struct InvalidArgumentException : Failure<InvalidArgumentException, LogicException> { using Failure::Failure; };
struct IteratorException : Failure<IteratorException, LogicException> { using Failure::Failure; };
// clang-format on

/// A user-interface operation was called off the main thread. Message says so.
struct ThreadAccessingUIException : Failure<ThreadAccessingUIException> {
  ThreadAccessingUIException();
};

/// A failure of the system's own object runtime.
class ObjCException : public Failure<ObjCException> {
 public:
  explicit ObjCException(const void* handle) : handle_(handle) {}
  /// The runtime's own exception object. It stays the runtime's.
  const void* handle() const noexcept { return handle_; }

 private:
  const void* handle_;
};

/// Raises a failure. Control does not come back.
[[noreturn]] inline void RuntimeRaiseException(const RuntimeException& exception) {
  exception._Raise();
  __builtin_unreachable();  // GCC forgets of a virtual function that it does not return
}

/// Raises a failure again that was taken: the same object, with its class and its stack.
[[noreturn]] void RuntimeReraiseException(const std::exception_ptr& exception);

/// The class test of a guard: true for the class itself and for its subclasses.
template <class Class>
bool RuntimeObjectIsa(const RuntimeException& exception) {
  if constexpr (std::is_same_v<Class, RuntimeException>) {
    return true;
  } else {
    return dynamic_cast<const Class*>(&exception) != nullptr;
  }
}

}  // namespace framework
