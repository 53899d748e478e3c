// A menu of which one item is chosen. A screen reader hears of radio buttons, which Qt's own menus
// do not call their items.
#pragma once

#include <QAccessible>
#include <QMenu>

namespace holdem {

class RadioMenu : public QMenu {
 public:
  using QMenu::QMenu;
};

// For QAccessible: what is said of such a menu or of one of its items; nothing of anything else.
QAccessibleInterface* DescribeRadioMenu(QObject* object);

}  // namespace holdem
