#pragma once

#include "framework/controls/control.h"

namespace framework {

/// A text that the user only reads.
class Label : public RectControl {
 public:
  static constexpr std::int64_t kLeft = 0;    ///< a TextAlign
  static constexpr std::int64_t kCentre = 1;  ///< a TextAlign

  const ClassInfo& _Class() const override { return kClass; }
  static const ClassInfo kClass;

  Property<bool> MultiLine{*this, Change::Look};
  Property<bool> Selectable{*this, Change::Look};
  Property<String, Guard::UI> Text{*this, Change::Text};
  Property<std::int64_t> TextAlign{*this, Change::Look};
  /// Black stands for the platform's text colour.
  Property<Color> TextColor{*this, Change::Look};
  /// What is read out to someone who cannot see the label; empty for the text as it stands.
  virtual String _Spoken() const { return {}; }
};

}  // namespace framework
