#include "ui/radio_menu.h"

#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QAction>

#include "ui/dialogs.h"

namespace holdem {
namespace {

class RadioItem : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  RadioItem(QMenu& menu, QAction& action)
      : QAccessibleObject(&action), menu_(menu), action_(action) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&menu_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QAccessible::Role role() const override { return QAccessible::RadioButton; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.checkable = state.focusable = true;
    state.checked = action_.isChecked();
    state.focused = menu_.activeAction() == &action_;
    state.invisible = !menu_.isVisible();
    return state;
  }
  QRect rect() const override {
    return menu_.actionGeometry(&action_).translated(menu_.mapToGlobal(QPoint()));
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? action_.text().remove('&') : QString();
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction() && !IsHeldBack(action_)) action_.trigger();
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QMenu& menu_;
  QAction& action_;
};

class RadioMenuInterface : public QAccessibleWidget {
 public:
  explicit RadioMenuInterface(QMenu& menu)
      : QAccessibleWidget(&menu, QAccessible::PopupMenu), menu_(menu) {}

  int childCount() const override { return static_cast<int>(menu_.actions().size()); }
  QAccessibleInterface* child(int index) const override {
    return QAccessible::queryAccessibleInterface(menu_.actions().value(index));
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(menu_.actions().indexOf(qobject_cast<QAction*>(child->object())));
  }

 private:
  QMenu& menu_;
};

}  // namespace

QAccessibleInterface* DescribeRadioMenu(QObject* object) {
  if (auto* const menu = dynamic_cast<RadioMenu*>(object)) return new RadioMenuInterface(*menu);
  auto* const action = qobject_cast<QAction*>(object);
  auto* const menu = action != nullptr ? dynamic_cast<RadioMenu*>(action->parent()) : nullptr;
  return menu != nullptr ? new RadioItem(*menu, *action) : nullptr;
}

}  // namespace holdem
