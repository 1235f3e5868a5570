#pragma once

#include "framework/controls/label.h"
#include "toolkit/web/control_peer.h"

namespace toolkit::web {

/// A text for a Label. It can be a remark on another control: then a screen reader says the one
/// with the other, as long as the label shows.
class LabelPeer final : public ControlPeer {
 public:
  LabelPeer(const framework::Ref<framework::Label>& label, const Element& content);

  const framework::Label& Mirrored() const { return *label_; }
  void RemarkOn(ControlPeer& other);

 protected:
  const char* Class() const override;
  void Show(framework::Change what) override;

 private:
  void TellRemark();

  framework::Ref<framework::Label> label_;
  ControlPeer* remarks_on_ = nullptr;
};

}  // namespace toolkit::web
