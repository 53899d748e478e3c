// A card slot of the main window: one of the user's hole cards or a board card.
#pragma once

#include "ui/card_drag.h"

namespace holdem {

class HandSlot : public CardBox {
 public:
  // `drag`, which is not owned, takes over when the card is pressed.
  HandSlot(QWidget* parent, Slot slot, CardDrag& drag);

  // Called when the slot holds another card, or its "?" or typed rank has come or gone.
  void ShowSlot();

 private:
  void Press(QMouseEvent& event, CardDrag& drag);
};

}  // namespace holdem
