#include "toolkit/memory/memory_toolkit.h"

#include <utility>

#include "framework/controls/window.h"

namespace toolkit::memory {

using namespace framework;

namespace {

std::string_view Spelt(Change what) {
  switch (what) {
    case Change::Frame:
      return "Frame";
    case Change::Look:
      return "Look";
    case Change::Caption:
      return "Caption";
    case Change::Text:
      return "Text";
    case Change::Visible:
      return "Visible";
    case Change::Value:
      return "Value";
    case Change::ListIndex:
      return "ListIndex";
    case Change::Rows:
      return "Rows";
  }
  return "";
}

/// Logs each change of one control: "cbScale(4).Caption".
class LoggingPeer final : public Peer {
 public:
  LoggingPeer(MemoryToolkit& toolkit, const Ref<RectControl>& control)
      : toolkit_(toolkit), control_(control) {
    control_->_SetPeer(this);
  }
  LoggingPeer(const LoggingPeer&) = delete;
  LoggingPeer& operator=(const LoggingPeer&) = delete;
  ~LoggingPeer() override { control_->_SetPeer(nullptr); }

  void Changed(Change what) override {
    std::string line(control_->Name());
    if (control_->Index() != Control::kNoIndex) {
      line.append("(").append(std::to_string(control_->Index())).append(")");
    }
    toolkit_.Log(line.append(".").append(Spelt(what)));
  }

 private:
  MemoryToolkit& toolkit_;
  Ref<RectControl> control_;
};

class LoggingWindowPeer final : public WindowPeer {
 public:
  LoggingWindowPeer(MemoryToolkit& toolkit, const Window& window) : toolkit_(toolkit) {
    for (const Ref<Control>& control : window._Controls()) {
      Added(RuntimeCheckCast<RectControl>(control));
    }
  }
  void Added(const Ref<RectControl>& control) override {
    peers_.push_back(std::make_unique<LoggingPeer>(toolkit_, control));
  }

 private:
  MemoryToolkit& toolkit_;
  std::vector<std::unique_ptr<LoggingPeer>> peers_;
};

}  // namespace

void MemoryToolkit::Initialise() { Log("initialise"); }

std::unique_ptr<WindowPeer> MemoryToolkit::Show(const Ref<Window>& window) {
  Log("show " + std::string(window->Title()));
  return std::make_unique<LoggingWindowPeer>(*this, *window);
}

void MemoryToolkit::Run() {
  Log("run");
  while (!quit_ && !queue_.empty()) {
    const auto work = std::move(queue_.front());
    queue_.pop_front();
    work();
  }
  quit_ = false;
}

void MemoryToolkit::Quit() {
  Log("quit");
  quit_ = true;
}

void MemoryToolkit::ShowMessage(const String& text) { Log("message " + std::string(text)); }

void MemoryToolkit::ReportFailure(std::string_view text) { Log("failure " + std::string(text)); }

void MemoryToolkit::WaitUntilRead() { Log("wait until read"); }

void MemoryToolkit::CallLater(std::int64_t, std::function<void()> work) { Post(std::move(work)); }

void MemoryToolkit::Log(std::string line) {
  log_.push_back(std::move(line));
  if (observer_) observer_(log_.back());
}

}  // namespace toolkit::memory
