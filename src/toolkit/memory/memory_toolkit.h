#pragma once

#include <deque>
#include <string>
#include <vector>

#include "framework/events/toolkit.h"

namespace toolkit::memory {

/// A toolkit without a screen. It keeps an ordered log of what it was told, and its event loop runs
/// a queue until that is empty.
class MemoryToolkit final : public framework::Toolkit {
 public:
  void Initialise() override;
  std::unique_ptr<framework::WindowPeer> Show(
      const framework::Ref<framework::Window>& window) override;
  void Run() override;
  void Quit() override;
  void ShowMessage(const framework::String& text) override;
  void ReportFailure(std::string_view text) override;
  void WaitUntilRead() override;
  void CallLater(std::int64_t delay_ms, std::function<void()> work) override;

  /// Puts something to do into the queue, behind what stands there; the delay of a CallLater is
  /// ignored.
  void Post(std::function<void()> work) { queue_.push_back(std::move(work)); }
  /// Called with each line as it comes into the log.
  void Observe(std::function<void(const std::string&)> observer) {
    observer_ = std::move(observer);
  }
  void Log(std::string line);
  const std::vector<std::string>& Lines() const { return log_; }
  /// Forgets what the log holds so far.
  void ClearLog() { log_.clear(); }

 private:
  std::vector<std::string> log_;
  std::deque<std::function<void()>> queue_;
  std::function<void(const std::string&)> observer_;
  bool quit_ = false;
};

}  // namespace toolkit::memory
