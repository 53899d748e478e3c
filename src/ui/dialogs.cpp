#include "ui/dialogs.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QShortcut>
#include <algorithm>

namespace holdem {
namespace {

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin: return true;
    default: return false;
  }
}

}  // namespace

Dialogs::Dialogs() { qApp->installEventFilter(this); }

bool Dialogs::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  if (auto* const dialog = qobject_cast<QDialog*>(object); dialog && !event->spontaneous()) {
    if (type == QEvent::Show) Opened(dialog);
    if (type == QEvent::Hide) std::erase(open_, dialog);
  }
  if (open_.empty() || !IsHeldBack(*object)) return false;
  if (type == QEvent::MouseButtonPress || type == QEvent::WindowActivate) {
    open_.back()->raise();
    open_.back()->activateWindow();
  }
  return IsInput(type);
}

void Dialogs::Opened(QDialog* dialog) {
  while (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
  open_.push_back(dialog);
}

// All but the newest dialog, and the commands that stand above all windows.
bool Dialogs::IsHeldBack(const QObject& object) const {
  const auto* const action = qobject_cast<const QAction*>(&object);
  if (action != nullptr) return action->shortcutContext() != Qt::ApplicationShortcut;
  if (object.isWindowType()) return false;  // its widgets are asked
  for (const QObject* owner = &object; owner != nullptr; owner = owner->parent()) {
    if (owner == open_.back()) return false;
  }
  return object.isWidgetType() || qobject_cast<const QShortcut*>(&object) != nullptr;
}

void ShowUntilClosed(QDialog& dialog) {
  QEventLoop closed;
  QObject::connect(&dialog, &QDialog::finished, &closed, &QEventLoop::quit);
  dialog.show();
  closed.exec();
}

}  // namespace holdem
