// The keys that enter cards, wherever the keyboard is in the main and the deck window.
#pragma once

class QKeyEvent;
class QWidget;

namespace holdem {

// False when the key is no character; any other ends the waiting of a rank for its suit. `focused`
// has the keyboard; a slot takes the card itself.
bool EnterTypedCard(const QKeyEvent& event, const QWidget* focused);

}  // namespace holdem
