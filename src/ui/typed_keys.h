// The keys that enter cards, wherever the keyboard is in the main and the deck window.
#pragma once

class QKeyEvent;
class QWidget;

namespace holdem {

// Enters what the key types; Backspace takes the last card back. False, with nothing done, for a
// key that types no character. `focused` is the control with the keyboard: an empty slot takes the
// card itself.
bool EnterTypedCard(const QKeyEvent& event, const QWidget* focused);

}  // namespace holdem
