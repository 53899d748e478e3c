// Menus that pop up from the controls of the main window.
#pragma once

#include <QMenu>
#include <QPoint>
#include <functional>

namespace holdem {

// Owned by the menu.
QAction* AddItem(QMenu& menu, const QString& name, const QString& text,
                 std::function<void()> action);

// At the mouse, or below the control when it was opened by the keyboard. Returns at once.
void PopUp(QMenu& menu, const QWidget& control);

// A filter on the application. When the first press of a double-click opens a menu, the second
// would choose one of its items; so that press is dropped, and its release.
class MenuPresses : public QObject {
 public:
  MenuPresses();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool BelongsToTheLast(const QMouseEvent& press) const;

  // The last press that was not on a menu. A press that was dropped counts too, but not its point.
  Qt::MouseButton button_ = Qt::NoButton;
  quint64 time_ = 0;    // milliseconds, as the window system counts them
  QPoint point_;        // on the screen
  bool taken_ = false;  // a press was dropped, and its release is to come
};

}  // namespace holdem
