#include "toolkit/qt/menu_builder.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>

#include "toolkit/qt/guarded.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

using namespace framework;

namespace {

QKeySequence Shortcut(const MenuItem& item) {
  // Ctrl is the platform's own command key: Qt turns it into Cmd where there is one.
  return Shown(item.KeyboardShortcut()).replace(QLatin1String("Cmd+"), QLatin1String("Ctrl+"));
}

void ShowAs(const MenuItem& item, QAction& action) {
  action.setEnabled(item.Enabled());
  action.setVisible(item.Visible());
}

void AddEntry(const Ref<MenuItem>& item, QMenu& menu) {
  if (item->Text() == std::string_view("-")) {
    menu.addSeparator();
    return;
  }
  QAction* const action = menu.addAction(Shown(item->Text()));
  action->setObjectName(Shown(item->Name()));
  action->setShortcut(Shortcut(*item));
  ShowAs(*item, *action);
  Connect(action, &QAction::triggered, &menu, [item] { item->Choose(); });
}

}  // namespace

void BuildMenuBar(MenuBar& bar, QMenuBar& native) {
  bar._DisableEntirely();
  bar._SelfEnable();
  const auto titles = bar._Children();
  for (const Ref<MenuItem>& title : titles._Items()) {
    QMenu* const menu = native.addMenu(Shown(title->Text()));
    ShowAs(*title, *menu->menuAction());
    const auto items = title->_Children();
    for (const Ref<MenuItem>& item : items._Items()) AddEntry(item, *menu);
  }
}

}  // namespace toolkit::qt
