// A filter that sees every key before any window does. It finds out which Latin letter or digit a
// key counts as on the keyboards of other languages, lets a key act once however long it is held,
// and carries out the keys that mean the same in a whole window. Qt's own shortcuts are never used:
// they do not know where a key lies on the keyboard, act a moment late, and not at all while a menu
// is open.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <functional>

namespace holdem {

template <typename... Keys>
bool IsOneOf(int key, Keys... keys) {
  return ((key == keys) || ...);
}

// The keys of a window are the shortcuts of its actions and the underlined letters of its buttons
// and frames; a tool window, as the deck window, has those of its owner. Enter on a button does
// what Space does, but in a dialog it presses the default button.
class Keyboard : public QObject {
 public:
  // `quit` is what Ctrl+Q does, whatever is open.
  explicit Keyboard(std::function<void()> quit);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool Press(QObject& receiver, const QKeyEvent& press);
  bool IsHeld(const QObject& receiver, const QKeyEvent& press);
  bool IsOfARepeat(const QKeyEvent& event) const;  // as Qt says, where it must be asked

  const std::function<void()> quit_;
  const bool releasesAreReal_;  // none comes from a key that is still held
  quint32 down_ = 0;  // the key pressed last, as the window system counts it, until its release
};

}  // namespace holdem
