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

// No menu takes a press that belongs to the double-click which opened it.
class MenuPresses : public QObject {
 public:
  MenuPresses();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool BelongsToTheLast(const QMouseEvent& press) const;

  // The last press on anything else.
  Qt::MouseButton button_ = Qt::NoButton;
  quint64 time_ = 0;    // milliseconds, as the window system counts them
  QPoint point_;        // on the screen
  bool taken_ = false;  // a press that no menu has had: its release is still to come
};

}  // namespace holdem
