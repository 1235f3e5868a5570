#pragma once

#include <QLabel>

#include "framework/label.h"
#include "toolkit/qt/control_peer.h"

namespace toolkit::qt {

/// A QLabel for a Label.
class LabelPeer final : public ControlPeer {
 public:
  LabelPeer(const framework::Ref<framework::Label>& label, QWidget* content);

 protected:
  void Show(framework::Change what) override;
  int WantedWidth() const override;

 private:
  framework::Ref<framework::Label> label_;
  QLabel* widget_;
};

}  // namespace toolkit::qt
