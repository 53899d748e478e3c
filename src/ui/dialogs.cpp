#include "ui/dialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QEventLoop>
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
    case QEvent::ContextMenu:
    case QEvent::TouchBegin: return true;
    default: return false;
  }
}

}  // namespace

bool IsHeldBack(const QObject& object) {
  if (openDialogs.empty()) return false;
  for (const QObject* owner = &object; owner != nullptr; owner = owner->parent()) {
    if (owner == openDialogs.back()) return false;
  }
  return object.isWidgetType() || qobject_cast<const QAction*>(&object) != nullptr;
}

Dialogs::Dialogs() { qApp->installEventFilter(this); }

Dialogs::~Dialogs() { openDialogs.clear(); }

bool Dialogs::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  if (auto* const dialog = qobject_cast<QDialog*>(object); dialog && !event->spontaneous()) {
    if (type == QEvent::Show) Opened(dialog);
    if (type == QEvent::Hide) std::erase(openDialogs, dialog);
  }
  if (!IsHeldBack(*object)) return false;
  if (type == QEvent::MouseButtonPress || type == QEvent::WindowActivate) {
    openDialogs.back()->raise();
    openDialogs.back()->activateWindow();
  }
  return IsInput(type);
}

void Dialogs::Opened(QDialog* dialog) {
  for (QWidget* const control : QApplication::allWidgets()) {  // its release will be held back
    if (auto* const button = qobject_cast<QAbstractButton*>(control)) button->setDown(false);
  }
  openDialogs.push_back(dialog);
}

void ShowUntilClosed(QDialog& dialog) {
  QEventLoop closed;
  QObject::connect(&dialog, &QDialog::finished, &closed, &QEventLoop::quit);
  dialog.show();
  closed.exec();
}

}  // namespace holdem
