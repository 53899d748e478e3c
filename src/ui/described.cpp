#include "ui/described.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QToolTip>
#include <utility>

#include "ui/dialogs.h"
#include "ui/radio_menu.h"

namespace holdem {
namespace {

class DescribedInterface : public QAccessibleWidget {
 public:
  DescribedInterface(QWidget* widget, const Described& described)
      : QAccessibleWidget(widget,
                          described.onActivate ? QAccessible::Button : QAccessible::StaticText),
        described_(described) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return QString::fromStdString(described_.inWords());
    if (kind != QAccessible::Description || !described_.keys) return QAccessibleWidget::text(kind);
    return QString::fromStdString(described_.keys());
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

QAccessibleInterface* Describe(const QString&, QObject* object) {
  const auto* const described = dynamic_cast<Described*>(object);
  if (described == nullptr || !described->inWords) return DescribeRadioMenu(object);
  return new DescribedInterface(static_cast<QWidget*>(object), *described);
}

}  // namespace

void InstallDescriptions() {
  QAccessible::installFactory(&Describe);
  tellScreenReaders = [](QWidget& control) {
    QAccessibleEvent change(&control, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&change);
  };
}

void Described::AnnounceChange(bool worthSaying) {
  const std::string words = inWords();
  const bool changed = std::exchange(announced_, words) != words;
  auto* const control = dynamic_cast<QWidget*>(this);
  if (changed && worthSaying && control != nullptr) tellScreenReaders(*control);
}

bool Described::ShowTip(QWidget& control, QEvent& event) const {
  if (event.type() != QEvent::ToolTip || !tip) return false;
  QToolTip::showText(static_cast<QHelpEvent&>(event).globalPos(), QString::fromStdString(tip()),
                     &control);
  return true;
}

}  // namespace holdem
