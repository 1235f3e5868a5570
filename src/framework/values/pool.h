#pragma once

#include <sanitizer/asan_interface.h>

#include <array>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace framework {

/// Room for the objects of a class that has thousands of them: side by side, with nothing between
/// them. Fresh room lies in the order in which it is taken; what was given back last is taken again
/// first, and none goes back to the system before the pool.
template <class T>
class Pool {
 public:
  /// Room for one object. Raises std::bad_alloc.
  void* Take() {
    if (free_ != nullptr) {
      ASAN_UNPOISON_MEMORY_REGION(free_, sizeof(Room));
      return std::exchange(free_, free_->next);
    }
    if (taken_ == kCount) {
      blocks_.push_back(std::make_unique_for_overwrite<Room[]>(kCount));
      taken_ = 0;
    }
    return &blocks_.back()[taken_++];
  }
  void GiveBack(void* room) noexcept {
    auto* const given = static_cast<Room*>(room);
    given->next = std::exchange(free_, given);
    ASAN_POISON_MEMORY_REGION(given, sizeof(Room));
  }

 private:
  union Room {
    Room* next;
    alignas(T) std::array<std::byte, sizeof(T)> object;
  };
  static constexpr std::size_t kCount = 65536 / sizeof(Room);
  static_assert(kCount > 0);

  std::vector<std::unique_ptr<Room[]>> blocks_;
  std::size_t taken_ = kCount;  ///< how many of the last block have been taken at least once
  Room* free_ = nullptr;        ///< given back last, and from there on the others
};

}  // namespace framework
