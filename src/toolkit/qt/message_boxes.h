#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <atomic>
#include <deque>

namespace toolkit::qt {

/// Tells the user texts, each in a box, the next once he has read the one before. The boxes come
/// from the event loop: whoever has something to tell does not wait. A text that waits already does
/// not wait twice.
class MessageBoxes final : public QObject {
 public:
  /// The title stands over each box. There need be no application yet.
  explicit MessageBoxes(QString title) : title_(std::move(title)) {}
  ~MessageBoxes() override { delete box_; }

  /// To be called on any thread.
  void Add(QMessageBox::Icon icon, const QString& text);
  /// Runs the event loop until everything has been read.
  void WaitUntilRead();

 private:
  struct Message {
    QMessageBox::Icon icon;
    QString text;
    friend bool operator==(const Message&, const Message&) = default;
  };

  void ShowNext();
  /// Does the work, or without memory for it drops what waits: what is told stands on stderr, and
  /// to tell of the refusal too would never end.
  template <class Work>
  void OrDrop(const Work& work);

  QString title_;
  std::atomic<int> on_the_way_ = 0;  ///< from where they were added to the event loop
  std::deque<Message> waiting_;
  QPointer<QMessageBox> box_;  ///< which is being read
};

}  // namespace toolkit::qt
