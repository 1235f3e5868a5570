#include "framework/controls/block.h"

#include <algorithm>
#include <string>

#include "framework/values/failures.h"

namespace framework {

BlockReader::BlockReader(const Block& block, std::string_view class_name)
    : bytes_(block.bytes), end_(block.length + 1), class_name_(class_name) {}

std::string_view BlockReader::Key() {
  key_ = {};
  const auto* const begin = bytes_ + offset_;
  const auto* const blank = std::find(begin, bytes_ + end_, ' ');
  if (blank == bytes_ + end_) Refuse("a key without an end");
  key_ = {reinterpret_cast<const char*>(begin), static_cast<std::size_t>(blank - begin)};
  offset_ += key_.size() + 1;
  return key_;
}

void BlockReader::Refuse(std::string_view why) const {
  std::string text("Description block of ");
  text.append(class_name_).append(", key \"").append(key_).append("\", offset ");
  text.append(std::to_string(offset_)).append(": ").append(why);
  RuntimeRaiseException(UnsupportedFormatException(text));
}

const unsigned char* BlockReader::Take(std::size_t count) {
  if (count > end_ - offset_) Refuse("the value runs past the end");
  const auto* const bytes = bytes_ + offset_;
  offset_ += count;
  return bytes;
}

std::uint64_t BlockReader::Integer(std::size_t bytes) {
  const auto* const first = Take(bytes);
  std::uint64_t value = 0;
  for (std::size_t i = bytes; i-- > 0;) value = value << 8 | first[i];
  return value;
}

String BlockReader::Text() {
  const auto size = static_cast<std::size_t>(Integer(4));
  return std::string_view(reinterpret_cast<const char*>(Take(size)), size);
}

float BlockReader::Float() {
  return __builtin_bit_cast(float, static_cast<std::uint32_t>(Integer(4)));
}

Color BlockReader::Colour() {
  const auto* const bytes = Take(4);
  return {bytes[0], bytes[1], bytes[2], bytes[3]};
}

void _SetProperties(Component& object, const Block& block) {
  BlockReader reader(block, object._Class().name);
  while (!reader.AtEnd()) {
    const PropertyInfo* const property = object._Class().FindProperty(reader.Key());
    if (property == nullptr) reader.Refuse("no such property");
    property->apply(object, reader);
  }
}

}  // namespace framework
