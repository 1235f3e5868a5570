#include "framework/values/failures.h"

#include <dlfcn.h>
#if __has_include(<execinfo.h>)
#include <execinfo.h>
#endif

#include <span>
#include <string>

#include "framework/values/cast.h"

namespace framework {

namespace {

// In one piece, for whoever searches for what was shown.
// clang-format off
constexpr const char* kOffTheMainThread = "A thread has attempted to manipulate a user interface element. This can only be done from the application's main thread.";
// clang-format on

}  // namespace

void RuntimeException::NoteStack() noexcept {
#if __has_include(<execinfo.h>)
  depth_ =
      static_cast<std::size_t>(backtrace(addresses_.data(), static_cast<int>(addresses_.size())));
#endif
}

Array<StackFrame> RuntimeException::CallStack() const {
  auto frames = CreateArray<StackFrame>(-1);
  for (void* const address : std::span(addresses_).first(depth_)) {
    Dl_info symbol{};
    dladdr(address, &symbol);
    frames.Append(StackFrame{address, symbol.dli_sname});
  }
  return frames;
}

Array<String> RuntimeException::Stack() const {
  auto names = CreateArray<String>(-1);
  const auto frames = CallStack();
  for (std::int64_t i = 0; i <= frames.LastIndex(); ++i) names.Append(frames[i].Name);
  return names;
}

ThreadAccessingUIException::ThreadAccessingUIException() : Failure(kOffTheMainThread) {}

void RaiseNilObjectException(std::string_view class_name) {
  RuntimeRaiseException(NilObjectException(String("A nil reference was used: ", class_name)));
}

void RaiseOutOfBoundsException(std::int64_t index, std::int64_t last_index) {
  RuntimeRaiseException(OutOfBoundsException("Index " + std::to_string(index) +
                                             " is outside an array whose last index is " +
                                             std::to_string(last_index)));
}

void RaiseIllegalCastException(std::string_view class_name) {
  RuntimeRaiseException(IllegalCastException(String("The object is no ", class_name)));
}

void RuntimeReraiseException(const std::exception_ptr& exception) {
  std::rethrow_exception(exception);
}

}  // namespace framework
