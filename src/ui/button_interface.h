// What screen readers are told of Qt's own buttons, and how they press one. Qt's own interface is
// not used, because it presses a button even while a dialog keeps the user from it.
#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace holdem {

class ButtonInterface : public QAccessibleWidget {
 public:
  explicit ButtonInterface(QAbstractButton& button);

  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString& name) const override;

 private:
  const QString& Action() const;  // what it does: toggle or press

  QAbstractButton& button_;
};

}  // namespace holdem
