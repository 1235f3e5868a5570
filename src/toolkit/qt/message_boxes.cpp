#include "toolkit/qt/message_boxes.h"

#include <QApplication>
#include <algorithm>
#include <new>
#include <utility>

#include "toolkit/qt/guarded.h"
#include "toolkit/qt/room.h"

namespace toolkit::qt {

namespace {

/// What a box takes, with the fonts and the style that it may be the first to use.
constexpr std::size_t kRoomForABox = std::size_t{8} << 20;

}  // namespace

void MessageBoxes::Add(QMessageBox::Icon icon, const QString& text) {
  RunLater(this, [this, message = Message{icon, text}] {
    --on_the_way_;
    OrDrop([&] {
      if (std::ranges::find(waiting_, message) == waiting_.end()) waiting_.push_back(message);
      ShowNext();
    });
  });
  ++on_the_way_;
}

template <class Work>
void MessageBoxes::OrDrop(const Work& work) {
  try {
    work();
  } catch (const std::bad_alloc&) {
    waiting_.clear();
    delete box_;
  }
}

void MessageBoxes::WaitUntilRead() {
  while (on_the_way_ > 0 || !waiting_.empty() || box_ != nullptr) {
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

void MessageBoxes::ShowNext() {
  // Qt may not survive a refusal in the making of a box.
  if (!HasRoom(kRoomForABox)) waiting_.clear();
  if (box_ != nullptr || waiting_.empty()) return;
  const Message message = std::move(waiting_.front());
  waiting_.pop_front();
  box_ = new QMessageBox(message.icon, title_, message.text, QMessageBox::Ok,
                         QApplication::activeWindow());
  box_->setTextFormat(Qt::PlainText);
  Connect(box_.get(), &QMessageBox::finished, box_.get(), [this] { box_->deleteLater(); });
  Connect(box_.get(), &QObject::destroyed, this,
          [this] { RunLater(this, [this] { OrDrop([this] { ShowNext(); }); }); });
  box_->show();
}

}  // namespace toolkit::qt
