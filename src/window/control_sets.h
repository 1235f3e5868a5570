#pragma once

#include "framework/controls/check_box.h"
#include "framework/controls/label.h"

namespace window {

/// A member of the control set of the twelve note boxes.
class cbScaleClass final : public framework::CheckBox {
 public:
  const framework::ClassInfo& _Class() const override { return kClass; }
  static const framework::ClassInfo kClass;

  /// Makes a member of the set at run time: it takes the block of the set's first-made member, the
  /// set's handlers and the index 0.
  void Constructor() override;
  /// Makes the member with that index, which the window then files.
  void Constructor(std::int64_t index);
};

/// A member of the control set of the twelve stars.
class lbStarClass final : public framework::Label {
 public:
  const framework::ClassInfo& _Class() const override { return kClass; }
  static const framework::ClassInfo kClass;

  /// As for the boxes. The first-made star is number 9, so the new label stands at that star's
  /// place and is filed as 0 all the same.
  void Constructor() override;
  void Constructor(std::int64_t index);

  /// What the star means; "*" by itself says nothing.
  framework::String _Spoken() const override { return "In the chosen scale."; }
};

}  // namespace window
