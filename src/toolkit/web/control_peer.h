#pragma once

#include <memory>
#include <string>

#include "framework/controls/control.h"
#include "toolkit/web/element.h"

namespace toolkit::web {

/// The id of the control's element: its name, in a control set with a hyphen and the Index.
std::string IdOf(const framework::Control& control);

/// A control's counterpart on the page: an element at the control's frame.
class ControlPeer : public framework::Peer {
 public:
  ControlPeer(const framework::Ref<framework::RectControl>& control, const Element& content,
              const char* tag);
  ControlPeer(const ControlPeer&) = delete;
  ControlPeer& operator=(const ControlPeer&) = delete;
  ~ControlPeer() override;

  framework::RectControl& Control() const { return *control_; }
  Element& Outer() { return element_; }
  const std::string& Id() const { return id_; }

  /// Brings the element to the control's whole state.
  void Build();
  void Changed(framework::Change what) override;
  /// Shows what was left until the event is over. True when that was rows.
  virtual bool Refresh() { return false; }

  /// Names the control, for a screen reader, after the label with that id.
  virtual void Title(const std::string& label_id) {
    Active().Attribute("aria-labelledby", label_id);
  }
  /// What a screen reader says of the control before its help; empty for nothing.
  void Remark(const std::string& remark);

 protected:
  /// Shows what is special to the kind of control; called for each change, and at first.
  virtual void Show(framework::Change what) = 0;
  /// The class that the style sheet knows the kind of control by.
  virtual const char* Class() const = 0;
  /// What the user works with: the element at the frame, unless that only holds it.
  virtual Element& Active() { return element_; }

 private:
  void Place();
  void Look();
  void Describe();

  framework::Ref<framework::RectControl> control_;
  std::string id_;
  Element element_;
  std::string remark_;
};

/// The peer of a control, by its class, with its element in the given content area.
std::unique_ptr<ControlPeer> MakePeer(const framework::Ref<framework::RectControl>& control,
                                      const Element& content);

}  // namespace toolkit::web
