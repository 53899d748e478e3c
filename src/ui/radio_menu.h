// A menu of which one item is chosen. It tells screen readers that its items are radio buttons,
// which menus of Qt do not.
#pragma once

#include <QAccessible>
#include <QMenu>

namespace holdem {

class RadioMenu : public QMenu {
 public:
  using QMenu::QMenu;
};

// For QAccessible: what is said of such a menu or of one of its items; null for any other object.
QAccessibleInterface* DescribeRadioMenu(QObject* object);

}  // namespace holdem
