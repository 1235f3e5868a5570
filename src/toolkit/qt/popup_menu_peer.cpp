#include "toolkit/qt/popup_menu_peer.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "toolkit/qt/guarded.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

using framework::Change;

namespace {

/// A QComboBox whose letters do not move the row of the list that is not open: a screen reader
/// would follow them into it.
class Popup final : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool letter = !event->text().isEmpty() && event->text().at(0).isLetter();
    const QSignalBlocker still(letter ? view()->selectionModel() : nullptr);
    QComboBox::keyPressEvent(event);
  }
};

}  // namespace

PopupMenuPeer::PopupMenuPeer(const framework::Ref<framework::PopupMenu>& menu, QWidget* content)
    : ControlPeer(menu, new Popup(content)),
      menu_(menu),
      widget_(static_cast<QComboBox*>(&Widget())) {
  Connect(widget_, &QComboBox::activated, Context(), [this](int row) {
    if (row == menu_->ListIndex()) return;
    menu_->Choose(row);
    TellOutcome(widget_->currentText());
  });
}

void PopupMenuPeer::Title(const QString&, ControlPeer& label) {
  // A screen reader takes the chosen entry for the name, but knows the label that belongs to it.
  static_cast<QLabel&>(label.Widget()).setBuddy(widget_);
}

int PopupMenuPeer::WantedWidth() const {
  QStyleOptionComboBox option;
  option.initFrom(widget_);
  const int room =
      widget_->style()
          ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, widget_)
          .width();
  int widest = 0;
  for (int row = 0; row < widget_->count(); ++row) {
    widest = std::max(widest, widget_->fontMetrics().horizontalAdvance(widget_->itemText(row)));
  }
  constexpr int kMargins = 4;
  return widget_->width() - room + widest + kMargins;
}

void PopupMenuPeer::Show(Change what) {
  if (what == Change::Rows) {
    widget_->clear();
    const auto rows = menu_->Rows();
    for (const framework::String& row : rows._Items()) widget_->addItem(Shown(row));
    widget_->setMaxVisibleItems(widget_->count());
  }
  if (what == Change::Rows || what == Change::ListIndex) {
    widget_->setCurrentIndex(static_cast<int>(menu_->ListIndex()));
  }
}

}  // namespace toolkit::qt
