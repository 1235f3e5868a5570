#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace framework {

/// Room for the objects of a class that has thousands of them: they lie side by side, with nothing
/// between them, in the order in which they are made. Room that was given back is the first to be
/// taken again; none goes back to the system before the pool.
template <class T>
class Pool {
 public:
  /// Room for one object. Raises std::bad_alloc.
  void* Take() {
    if (free_ != nullptr) return std::exchange(free_, free_->next);
    if (taken_ == kCount) {
      blocks_.push_back(std::make_unique_for_overwrite<Room[]>(kCount));
      taken_ = 0;
    }
    return &blocks_.back()[taken_++];
  }
  void GiveBack(void* room) noexcept {
    auto* const given = static_cast<Room*>(room);
    given->next = std::exchange(free_, given);
  }

 private:
  union Room {
    Room* next;
    alignas(T) std::array<std::byte, sizeof(T)> object;
  };
  static constexpr std::size_t kCount = 65536 / sizeof(Room);

  std::vector<std::unique_ptr<Room[]>> blocks_;
  std::size_t taken_ = kCount;  ///< how many of the last block have been taken at least once
  Room* free_ = nullptr;        ///< given back last, and from there on the others
};

}  // namespace framework
