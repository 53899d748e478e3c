// The keyboard, before any window has it: which keys count as which on the keyboards of other
// languages, that a key acts once however long it is held, and the keys that mean the same wherever
// the keyboard is. Qt's own shortcuts are never asked: they do not know where a key is, come a
// moment late, and not while a menu is open.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <functional>

namespace holdem {

template <typename... Keys>
bool IsOneOf(int key, Keys... keys) {
  return ((key == keys) || ...);
}

// The keys of a window are the shortcuts of its actions and what is underlined on its buttons and
// frames; a tool window has those of its owner. Enter on a button does what Space does, but in a
// dialog, where it means the default button.
class Keyboard : public QObject {
 public:
  // `quit` is what Ctrl+Q does, whatever is open.
  explicit Keyboard(std::function<void()> quit);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool Press(QObject& receiver, const QKeyEvent& press);
  bool IsHeld(const QObject& receiver, const QKeyEvent& press);
  bool IsOfARepeat(const QKeyEvent& event) const;  // as Qt has it, where that can be trusted

  const std::function<void()> quit_;
  const bool releasesAreReal_;  // else Qt knows which are of a key that is held
  quint32 down_ = 0;  // the key pressed last, as the window system counts it, until its release
};

}  // namespace holdem
