#include "ui/described.h"

#include <QAccessibleWidget>
#include <QCursor>
#include <QToolTip>

namespace holdem {
namespace {

class DescribedInterface : public QAccessibleWidget {
 public:
  DescribedInterface(QWidget* widget, const Described& described)
      : QAccessibleWidget(widget,
                          described.onActivate ? QAccessible::Button : QAccessible::StaticText),
        described_(described) {}

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    return QString::fromStdString(described_.inWords());
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (described_.onActivate) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (described_.onActivate && widget()->isEnabled()) described_.onActivate();
  }

 private:
  const Described& described_;
};

QAccessibleInterface* Describe(const QString&, QObject* object) {
  const auto* const described = dynamic_cast<Described*>(object);
  if (described == nullptr || !described->inWords) return nullptr;
  return new DescribedInterface(static_cast<QWidget*>(object), *described);
}

}  // namespace

void InstallDescriptions() { QAccessible::installFactory(&Describe); }

void ShowDescription(QWidget& control, const Described& described) {
  const QString words = QString::fromStdString(described.inWords());
  const QString hint = control.accessibleDescription();
  QToolTip::showText(QCursor::pos(), hint.isEmpty() ? words : words + '\n' + hint, &control);
}

}  // namespace holdem
