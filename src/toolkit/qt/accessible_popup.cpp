#include "toolkit/qt/accessible_popup.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>

namespace toolkit::qt {

namespace {

/// A QComboBox as Qt itself tells it, and its chosen entry as a text that cannot be edited.
class AccessiblePopup final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit AccessiblePopup(QComboBox* popup)
      : QAccessibleWidget(popup, QAccessible::ComboBox), popup_(popup) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text what) const override {
    const bool chosen = what == QAccessible::Name || what == QAccessible::Value;
    return chosen ? popup_->currentText() : QAccessibleWidget::text(what);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = popup_->view()->isVisible();
    return state;
  }

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(popup_->view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && child->object() == popup_->view() ? 0 : -1;
  }

  QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
  void doAction(const QString&) override {
    if (popup_->view()->isVisible()) return popup_->hidePopup();
    popup_->showPopup();
  }

  QString text(int start, int end) const override {
    return popup_->currentText().mid(start, end < 0 ? -1 : end - start);
  }
  int characterCount() const override { return static_cast<int>(popup_->currentText().size()); }
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }
  // Nothing in the text can be selected or pointed at.
  int selectionCount() const override { return 0; }
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}

 private:
  QComboBox* popup_;
};

}  // namespace

void TellPopupsAsText() {
  QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
    auto* const popup = qobject_cast<QComboBox*>(object);
    return popup == nullptr ? nullptr : new AccessiblePopup(popup);
  });
}

}  // namespace toolkit::qt
