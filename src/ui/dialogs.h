// Dialogs that keep the user from the other windows, but not from closing them. Qt refuses to close
// a window that a modal dialog blocks, so no dialog is modal for Qt, and the program itself holds
// back mouse and keys (docs/decisions/dialogs-not-modal.md).
#pragma once

#include <QDialog>
#include <QObject>
#include <vector>

namespace holdem {

inline std::vector<QDialog*> openDialogs;  // the newest last; written by Dialogs alone

// Whether the newest open dialog keeps the user from this object. Only controls and actions are
// ever held back.
bool IsHeldBack(const QObject& object);

// A filter on the application. While dialogs are open, only the newest gets mouse and keyboard, and
// it comes to the front whenever the user presses or activates another window.
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
