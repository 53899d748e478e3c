#include "ui/button_interface.h"

#include "ui/dialogs.h"

namespace holdem {

ButtonInterface::ButtonInterface(QAbstractButton& button)
    : QAccessibleWidget(&button), button_(button) {}

QAccessible::Role ButtonInterface::role() const {
  if (!button_.isCheckable()) return QAccessible::Button;
  return button_.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
}

QAccessible::State ButtonInterface::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.checkable = button_.isCheckable();
  state.checked = button_.isChecked();
  state.pressed = button_.isDown();
  return state;
}

QString ButtonInterface::text(QAccessible::Text kind) const {
  const bool ownName = kind == QAccessible::Name && button_.accessibleName().isEmpty();
  if (ownName) return QString(button_.text()).remove('&');
  if (kind == QAccessible::Accelerator) return button_.shortcut().toString();
  return QAccessibleWidget::text(kind);
}

const QString& ButtonInterface::Action() const {
  return button_.isCheckable() ? toggleAction() : pressAction();
}

QStringList ButtonInterface::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (button_.isEnabled()) names.prepend(Action());
  return names;
}

void ButtonInterface::doAction(const QString& name) {
  if (name != Action()) return QAccessibleWidget::doAction(name);
  if (!IsHeldBack(button_)) button_.click();
}

QStringList ButtonInterface::keyBindingsForAction(const QString& name) const {
  if (name != Action() || button_.shortcut().isEmpty()) return {};
  return {button_.shortcut().toString()};
}

}  // namespace holdem
