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

void AddEntry(const Ref<MenuItem>& item, QMenu& menu) {
  if (item->Text() == std::string_view("-")) {
    menu.addSeparator();
    return;
  }
  QAction* const action = menu.addAction(Shown(item->Text()));
  action->setObjectName(Shown(item->Name()));
  action->setShortcut(Shortcut(*item));
  action->setEnabled(item->Enabled());
  action->setVisible(item->Visible());
  Connect(action, &QAction::triggered, &menu, [item] { item->Choose(); });
}

}  // namespace

void BuildMenuBar(MenuBar& bar, QMenuBar& native) {
  bar._DisableEntirely();
  bar._SelfEnable();
  const auto titles = bar._Children();
  for (std::int64_t i = 0; i <= titles.LastIndex(); ++i) {
    QMenu* const menu = native.addMenu(Shown(titles[i]->Text()));
    menu->setObjectName(Shown(titles[i]->Name()));
    menu->menuAction()->setEnabled(titles[i]->Enabled());
    menu->menuAction()->setVisible(titles[i]->Visible());
    const auto entries = titles[i]->_Children();
    for (std::int64_t k = 0; k <= entries.LastIndex(); ++k) AddEntry(entries[k], *menu);
  }
}

}  // namespace toolkit::qt
