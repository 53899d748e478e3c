#include "ui/spoken.h"

#include <QAccessible>
#include <QTimer>

namespace holdem {
namespace {

using namespace std::chrono_literals;

void Speak(QWidget& window, const std::string& sentence) {
  if (!QAccessible::isActive()) return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(&window, QString::fromStdString(sentence));
#else
  constexpr auto kUntilHeard = 10s;
  auto* const notification = new Notification(&window, sentence);
  QTimer::singleShot(kUntilHeard, notification, &QObject::deleteLater);
  QAccessibleEvent event(notification, QAccessible::ObjectShow);
#endif
  QAccessible::updateAccessibility(&event);
}

}  // namespace

Notification::Notification(QWidget* window, const std::string& sentence) : QWidget(window) {
  inWords = [sentence] { return sentence; };
}

void InstallSpeech() { sayAloud = &Speak; }

}  // namespace holdem
