#include "ui/menus.h"

#include <QAction>
#include <QCursor>
#include <utility>

namespace holdem {

QAction* AddItem(QMenu& menu, const QString& name, const QString& caption,
                 std::function<void()> action) {
  QAction* const item = menu.addAction(caption);
  item->setObjectName(name);
  QObject::connect(item, &QAction::triggered, item, [action = std::move(action)] { action(); });
  return item;
}

void PopUp(QMenu& menu, const QWidget& control) {
  menu.popup(control.underMouse() ? QCursor::pos()
                                  : control.mapToGlobal(control.rect().bottomLeft()));
}

}  // namespace holdem
