// Menus that pop up from the controls of the main window.
#pragma once

#include <QMenu>
#include <functional>

namespace holdem {

// Owned by the menu.
QAction* AddItem(QMenu& menu, const QString& name, const QString& caption,
                 std::function<void()> action);

// At the mouse, or below the control when it was opened by the keyboard. Returns at once.
void PopUp(QMenu& menu, const QWidget& control);

}  // namespace holdem
