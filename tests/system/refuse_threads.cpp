// A library to preload: of the threads that a program asks the system for, it grants as many as
// THREADS says, and no more.

#include <dlfcn.h>
#include <pthread.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>

extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                              void* (*work)(void*), void* argument) noexcept {
  static std::atomic<int> left = std::atoi(std::getenv("THREADS"));
  static auto* const granted =
      reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
  return --left < 0 ? EAGAIN : granted(thread, attributes, work, argument);
}
