// A library to preload: of the requests for memory by operator new that a program makes while it
// has a handler for refusals, it grants as many as REFUSE_AFTER says, and no more.

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> left = [] {
  const char* const text = std::getenv("REFUSE_AFTER");
  return text == nullptr ? 0 : std::atol(text);
}();

}  // namespace

void* operator new(std::size_t size) {
  const std::new_handler handler = std::get_new_handler();
  while (handler != nullptr && --left < 0) handler();
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
