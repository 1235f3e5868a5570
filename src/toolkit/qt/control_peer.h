#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "framework/controls/control.h"

namespace toolkit::qt {

/// The native counterpart of a control. The widget belongs to the native window; the peer ties the
/// two together and lives no longer than the window's peer.
class ControlPeer : public framework::Peer {
 public:
  ControlPeer(const framework::Ref<framework::RectControl>& control, QWidget* widget);
  ControlPeer(const ControlPeer&) = delete;
  ControlPeer& operator=(const ControlPeer&) = delete;
  ~ControlPeer() override;

  framework::RectControl& Control() const { return *control_; }
  QWidget& Widget() const { return *widget_; }

  /// Brings the widget to the control's whole state.
  void Build();
  void Changed(framework::Change what) override;

  /// The name that a screen reader speaks: the text of the label above, for a control that shows no
  /// caption of its own.
  virtual void Title(const QString& title, class ControlPeer& label);

  /// What a screen reader says of the control before its help: the text of the label at its left,
  /// or nothing while that does not show.
  void Remark(const QString& remark);

 protected:
  /// Shows what is special to the kind of control; called for each change, and at first.
  virtual void Show(framework::Change what) = 0;
  /// The width that the widget needs to show its text whole; 0 for a widget that has no say.
  virtual int WantedWidth() const { return 0; }
  /// Tells a screen reader, once the event is over and the lists show their rows, what has come of
  /// an input: news of the control itself, which may be empty, and how many rows each list has.
  void TellOutcome(const QString& news);
  /// Whether the widget may be longer than the frame, to the right, for its text's sake.
  virtual bool MayRunOn() const { return true; }
  /// The context of every connection to the peer: none outlives it, though the widget does.
  QObject* Context() { return &context_; }

 private:
  void Place();
  void Look();
  void Describe();

  framework::Ref<framework::RectControl> control_;
  QPointer<QWidget> widget_;
  QString remark_;
  QObject context_;
};

/// The name of the control's widget: "pmRoot", "cbScale11".
QString ObjectName(const framework::RectControl& control);

/// The peer of a control, by its class, with its widget in the given content area.
std::unique_ptr<ControlPeer> MakePeer(const framework::Ref<framework::RectControl>& control,
                                      QWidget* content);

}  // namespace toolkit::qt
