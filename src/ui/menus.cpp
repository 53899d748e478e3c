#include "ui/menus.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QStyleHints>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "ui/dialogs.h"

namespace holdem {

QAction* AddItem(QMenu& menu, const QString& name, const QString& text,
                 std::function<void()> action) {
  QAction* const item = menu.addAction(text);
  item->setObjectName(name);
  QObject::connect(item, &QAction::triggered, item, [item, action = std::move(action)] {
    if (!IsHeldBack(*item)) action();  // a screen reader may ask for it at any time
  });
  return item;
}

void PopUp(QMenu& menu, const QWidget& control) {
  menu.popup(control.underMouse() ? QCursor::pos()
                                  : control.mapToGlobal(control.rect().bottomLeft()));
}

MenuPresses::MenuPresses() { qApp->installEventFilter(this); }

bool MenuPresses::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
  if (!object->isWidgetType() || (!press && type != QEvent::MouseButtonRelease)) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  const bool onMenu = qobject_cast<const QMenu*>(object) != nullptr;
  if (!press) return onMenu && std::exchange(taken_, false);
  taken_ = onMenu && BelongsToTheLast(mouse);
  if (taken_ || !onMenu) {
    button_ = mouse.button();
    time_ = mouse.timestamp();
    if (!onMenu) point_ = mouse.globalPosition().toPoint();
  }
  return taken_;
}

bool MenuPresses::BelongsToTheLast(const QMouseEvent& press) const {
  const QStyleHints& hints = *QGuiApplication::styleHints();
  const QPoint way = press.globalPosition().toPoint() - point_;
  return press.button() == button_ &&
         press.timestamp() - time_ < static_cast<quint64>(hints.mouseDoubleClickInterval()) &&
         std::max(std::abs(way.x()), std::abs(way.y())) <= hints.mouseDoubleClickDistance();
}

}  // namespace holdem
