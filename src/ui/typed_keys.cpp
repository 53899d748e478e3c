#include "ui/typed_keys.h"

#include <QKeyEvent>

#include "gestures/card_typing.h"
#include "ui/hand_slot.h"

namespace holdem {

bool EnterTypedCard(const QKeyEvent& event, const QWidget* focused) {
  if (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
  if (event.key() == Qt::Key_Backspace) {
    TakeLastCardBack();
    return true;
  }
  if (event.text().size() != 1) return false;
  const auto* const slot = dynamic_cast<const HandSlot*>(focused);
  TypeCharacter(event.text().front().toLatin1(), slot != nullptr ? slot->spot.slot : kNoSlot);
  return true;
}

}  // namespace holdem
