#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace framework {

class BlockReader;
class Component;

/// A property that a description block can set: its declared name, and how its value is read from
/// the block, in the form of its declared type, and set.
struct PropertyInfo {
  std::string_view name;
  void (*apply)(Component& object, BlockReader& reader);
};

/// An event that a handler can be attached to: its place in the class's event table, and the text
/// form of the handler's arguments.
struct EventInfo {
  std::int64_t number;
  std::string_view signature;
};

/// What a class declares itself; the rest stands with its base.
struct ClassInfo {
  std::string_view name;
  const ClassInfo* base;  ///< nullptr at the root
  std::span<const PropertyInfo> properties;
  std::span<const EventInfo> events;

  /// The property of that name in any letter case, here or in a base; nullptr when there is none.
  const PropertyInfo* FindProperty(std::string_view property) const;
  /// The event of that number, here or in a base; nullptr when there is none.
  const EventInfo* FindEvent(std::int64_t number) const;
};

}  // namespace framework
