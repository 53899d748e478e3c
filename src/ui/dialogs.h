// Dialogs that keep the user from the other windows, but not from ending the program: the window
// system would not let a window be closed that a modal dialog blocks, so the program holds back
// mouse and keys itself.
#pragma once

#include <QDialog>
#include <QObject>
#include <vector>

namespace holdem {

inline std::vector<QDialog*> openDialogs;  // the newest last; Dialogs keeps it

// Whether the newest dialog keeps the user from the object: a control or an action.
bool IsHeldBack(const QObject& object);

// The program's dialogs are shown as if not modal; while one is open, the newest has mouse and
// keyboard, and is activated whenever another window would have been.
class Dialogs : public QObject {
 public:
  Dialogs();
  ~Dialogs() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Opened(QDialog* dialog);
};

// Shows the dialog and returns when it has closed.
void ShowUntilClosed(QDialog& dialog);

}  // namespace holdem
