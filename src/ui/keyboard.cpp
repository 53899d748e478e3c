#include "ui/keyboard.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QGroupBox>
#include <QKeySequence>
#include <utility>

#include "platform/native_keyboard.h"
#include "ui/dialogs.h"

namespace holdem {
namespace {

// Null but on an X server.
void* NativeDisplay() {
#if QT_CONFIG(xcb)
  if (auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>()) {
    return x11->connection();
  }
#endif
  return nullptr;
}

bool IsModifier(int key) {
  return IsOneOf(key, Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr);
}

// Keys that go on while they are held.
bool OnlyMoves(int key) {
  return IsOneOf(key, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Tab,
                 Qt::Key_Backtab);
}

constexpr bool IsDigit(int key) { return key >= Qt::Key_0 && key <= Qt::Key_9; }
constexpr bool IsLetter(int key) { return key >= Qt::Key_A && key <= Qt::Key_Z; }

// What the key counts as. A digit is one with Shift or without, and on the keypad.
QKeyCombination Meaning(const QKeyEvent& press) {
  int key = press.key();
  if (!IsDigit(key) && !IsLetter(key)) {
    const char latin =
        LatinOfKey({press.nativeScanCode(), press.nativeVirtualKey(), press.nativeModifiers()},
                   NativeDisplay());
    if (latin != 0) key = static_cast<unsigned char>(latin);
  }
  const auto unheeded = IsDigit(key) ? Qt::KeypadModifier | Qt::ShiftModifier : Qt::KeypadModifier;
  return QKeyCombination(press.modifiers() & ~unheeded, static_cast<Qt::Key>(key));
}

// In the window itself, not in another that it owns.
template <typename Control>
QList<Control*> ControlsIn(const QWidget& window) {
  QList<Control*> controls = window.findChildren<Control*>();
  controls.removeIf([&](const Control* control) {
    return control->window() != &window || !control->isVisible() || !control->isEnabled();
  });
  return controls;
}

bool Act(QWidget& receiver, const QKeySequence& keys) {
  QWidget* window = receiver.window();
  if (window->windowType() == Qt::Popup) return false;
  auto* const focused = qobject_cast<QAbstractButton*>(&receiver);
  const bool enter = keys == Qt::Key_Return || keys == Qt::Key_Enter;
  if (enter && focused != nullptr && qobject_cast<QDialog*>(window) == nullptr) {
    return focused->click(), true;
  }
  if (window->windowType() == Qt::Tool) window = window->parentWidget();
  for (QAction* const action : window->actions()) {
    if (action->shortcuts().contains(keys)) return action->trigger(), true;
  }
  for (auto* const button : ControlsIn<QAbstractButton>(*window)) {
    if (button->shortcut() == keys) return button->click(), true;
  }
  for (auto* const frame : ControlsIn<QGroupBox>(*window)) {
    if (QKeySequence::mnemonic(frame->title()) != keys) continue;
    for (auto* const choice : frame->findChildren<QAbstractButton*>()) {
      if (choice->focusPolicy() != Qt::TabFocus) continue;
      return choice->setFocus(Qt::ShortcutFocusReason), true;
    }
  }
  return false;
}

}  // namespace

Keyboard::Keyboard(std::function<void()> quit)
    : quit_(std::move(quit)), releasesAreReal_(TellWhatIsHeld(NativeDisplay())) {
  qApp->installEventFilter(this);
}

bool Keyboard::eventFilter(QObject* object, QEvent* event) {
  bool taken = false;
  switch (event->type()) {
    case QEvent::ApplicationStateChange: down_ = 0; break;  // its release may go elsewhere
    case QEvent::ShortcutOverride: taken = true; break;
    case QEvent::KeyRelease: {
      const auto& release = static_cast<const QKeyEvent&>(*event);
      if (release.nativeScanCode() == down_ && !IsOfARepeat(release)) down_ = 0;
      break;
    }
    case QEvent::KeyPress: taken = Press(*object, static_cast<const QKeyEvent&>(*event)); break;
    default: break;
  }
  if (taken) event->accept();
  return taken;
}

// Once for the window on the screen, then for the control with the keyboard and what that lies in.
bool Keyboard::Press(QObject& receiver, const QKeyEvent& press) {
  if (IsHeld(receiver, press) && !OnlyMoves(press.key())) return true;
  if (!receiver.isWidgetType()) return false;
  const QKeyCombination meaning = Meaning(press);
  if (meaning == (Qt::CTRL | Qt::Key_Q)) return quit_(), true;
  if (IsHeldBack(receiver)) return false;
  if (Act(static_cast<QWidget&>(receiver), meaning)) return true;
  if (meaning.key() == press.key()) return false;
  const QChar sign(static_cast<char16_t>(meaning.key()));
  QKeyEvent meant(press.type(), meaning.key(), meaning.keyboardModifiers(), sign.toLower());
  QCoreApplication::sendEvent(&receiver, &meant);
  return true;
}

// One key repeats at a time, the one pressed last; where its release went to another program, that
// ends with the next key. A key that helps another does not repeat.
bool Keyboard::IsHeld(const QObject& receiver, const QKeyEvent& press) {
  const quint32 key = press.nativeScanCode();
  const bool known = receiver.isWindowType() && key != 0 && !IsModifier(press.key());
  return (known && std::exchange(down_, key) == key) || IsOfARepeat(press);
}

bool Keyboard::IsOfARepeat(const QKeyEvent& event) const {
  return !releasesAreReal_ && event.isAutoRepeat();
}

}  // namespace holdem
