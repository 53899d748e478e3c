#include "ui/described.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QToolTip>
#include <utility>

#include "ui/button_interface.h"
#include "ui/dialogs.h"
#include "ui/radio_menu.h"
#include "ui/spoken.h"

namespace holdem {
namespace {

QAccessible::Role RoleOf(const Described& described) {
  if (dynamic_cast<const Notification*>(&described) != nullptr) return QAccessible::Notification;
  return described.onActivate ? QAccessible::Button : QAccessible::StaticText;
}

class DescribedInterface : public QAccessibleWidget {
 public:
  DescribedInterface(QWidget* widget, const Described& described)
      : QAccessibleWidget(widget, RoleOf(described)), described_(described) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return QString::fromStdString(described_.inWords());
    if (kind != QAccessible::Description || !described_.more) return QAccessibleWidget::text(kind);
    return QString::fromStdString(described_.more());
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (described_.onActivate) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (described_.onActivate && widget()->isEnabled() && !IsHeldBack(*widget())) {
      described_.onActivate();
    }
  }

 private:
  const Described& described_;
};

// True of the main window and the deck window. What a dialog is, Qt itself tells screen readers.
bool IsFrame(const QWidget& widget) {
  return widget.isWindow() &&
         (widget.windowType() == Qt::Window || widget.windowType() == Qt::Tool);
}

QAccessibleInterface* Describe(const QString&, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  if (const auto* const described = dynamic_cast<Described*>(object);
      described != nullptr && described->inWords) {
    return new DescribedInterface(widget, *described);
  }
  if (auto* const button = qobject_cast<QAbstractButton*>(object)) {
    return new ButtonInterface(*button);
  }
  if (widget != nullptr && IsFrame(*widget)) {
    return new QAccessibleWidget(widget, QAccessible::Window);
  }
  return DescribeRadioMenu(object);
}

}  // namespace

void InstallDescriptions() {
  QAccessible::installFactory(&Describe);
  tellScreenReaders = [](QWidget& control) {
    QAccessibleEvent change(&control, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&change);
  };
}

void Described::AnnounceChange() {
  const std::string words = inWords();
  const bool changed = std::exchange(announced_, words) != words;
  auto* const control = dynamic_cast<QWidget*>(this);
  if (changed && control != nullptr) tellScreenReaders(*control);
}

bool Described::ShowTip(QWidget& control, QEvent& event) const {
  if (event.type() != QEvent::ToolTip || !tip) return false;
  QToolTip::showText(static_cast<QHelpEvent&>(event).globalPos(), QString::fromStdString(tip()),
                     &control);
  return true;
}

}  // namespace holdem
