#pragma once

#include <QLabel>

#include "framework/controls/label.h"
#include "toolkit/qt/control_peer.h"

namespace toolkit::qt {

/// A QLabel for a Label. It can be a remark on another control: then a screen reader says the one
/// with the other, as long as the label shows.
class LabelPeer final : public ControlPeer {
 public:
  LabelPeer(const framework::Ref<framework::Label>& label, QWidget* content);

  void RemarkOn(ControlPeer& other);

 protected:
  void Show(framework::Change what) override;
  int WantedWidth() const override;

 private:
  void TellRemark();

  framework::Ref<framework::Label> label_;
  QLabel* widget_;
  ControlPeer* remarks_on_ = nullptr;
};

}  // namespace toolkit::qt
