#pragma once

#include "framework/controls/check_box.h"
#include "toolkit/web/control_peer.h"

namespace toolkit::web {

/// A check box with its caption, both in a label element, for a CheckBox.
class CheckBoxPeer final : public ControlPeer {
 public:
  CheckBoxPeer(const framework::Ref<framework::CheckBox>& box, const Element& content);

 protected:
  const char* Class() const override { return "box"; }
  void Show(framework::Change what) override;
  Element& Active() override { return input_; }
  void Title(const std::string&) override {}

 private:
  framework::Ref<framework::CheckBox> box_;
  Element input_;
  Element caption_;
};

}  // namespace toolkit::web
