#pragma once

#include <QCheckBox>

#include "framework/controls/check_box.h"
#include "toolkit/qt/control_peer.h"

namespace toolkit::qt {

/// A QCheckBox for a CheckBox.
class CheckBoxPeer final : public ControlPeer {
 public:
  CheckBoxPeer(const framework::Ref<framework::CheckBox>& box, QWidget* content);

 protected:
  void Show(framework::Change what) override;
  int WantedWidth() const override { return widget_->sizeHint().width(); }

 private:
  framework::Ref<framework::CheckBox> box_;
  QCheckBox* widget_;
};

}  // namespace toolkit::qt
