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

// The connection to the X server; null on any other window system.
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

// Keys that act again and again while they are held.
bool OnlyMoves(int key) {
  return IsOneOf(key, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Tab,
                 Qt::Key_Backtab);
}

constexpr bool IsDigit(int key) { return key >= Qt::Key_0 && key <= Qt::Key_9; }
constexpr bool IsLetter(int key) { return key >= Qt::Key_A && key <= Qt::Key_Z; }

// What the key counts as. A digit counts with or without Shift, and on the keypad too.
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

// The controls that can be used now, in the window itself and not in those that it owns.
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
    case QEvent::ApplicationStateChange: down_ = 0; break;  // the release may go to another program
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

// Qt sends each press first to the window on the screen, then to the control with the keyboard and
// to what that lies in. The first tells whether the key is held, the others what it does.
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

// Only the key pressed last can repeat. If its release went to another program, the next key that
// is pressed replaces it. Shift and its like never repeat, so they do not count.
bool Keyboard::IsHeld(const QObject& receiver, const QKeyEvent& press) {
  const quint32 key = press.nativeScanCode();
  const bool known = receiver.isWindowType() && key != 0 && !IsModifier(press.key());
  return (known && std::exchange(down_, key) == key) || IsOfARepeat(press);
}

bool Keyboard::IsOfARepeat(const QKeyEvent& event) const {
  return !releasesAreReal_ && event.isAutoRepeat();
}

}  // namespace holdem
