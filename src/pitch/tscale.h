#pragma once

#include <cstdint>

#include "framework/values/array.h"
#include "framework/values/string.h"

namespace pitch {

/// One named scale of the library. Its Constructor fills it once; nothing changes it after that.
class TScale final : public framework::Object {
 public:
  /// Takes the fields of one line: bank, name, and for the twelve positions "TRUE" or anything
  /// else, which means that the note is not in the scale. More fields are ignored. Raises
  /// OutOfBoundsException at the first field that is missing.
  void Constructor(const framework::Array<framework::String>& fields);

  /// Whether the scale holds all notes of the mask and at least one more.
  bool ContainsAll(std::int64_t mask) const { return (notes_ & mask) == mask && notes_ != mask; }
  /// Whether the scale is exactly the notes of the mask. Never true together with ContainsAll.
  bool Equivalent(std::int64_t mask) const { return notes_ == mask; }
  /// "Common : Major : 2773".
  framework::String Print() const;

  const framework::String& Bank() const { return bank_; }
  /// The scale's mask, from 0 to 4095, measured from its own root.
  std::int64_t Notes() const { return notes_; }
  /// The scale's name.
  const framework::String& Scale() const { return scale_; }

 private:
  framework::String bank_;
  std::int64_t notes_ = 0;
  framework::String scale_;
};

/// A library: scales in the order of their file.
using Scales = framework::Array<framework::Ref<TScale>>;

}  // namespace pitch
