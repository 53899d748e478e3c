// A card slot of the main window: one of the user's hole cards or a board card.
#pragma once

#include "ui/card_drag.h"

namespace holdem {

class HandSlot : public CardBox {
 public:
  // By slot index. `drag` takes the card that is pressed and is not owned.
  HandSlot(QWidget* parent, Slot slot, CardDrag& drag);

  // The slot holds another card, or is marked or not.
  void ShowSlot();

 private:
  void Press(QMouseEvent& event, CardDrag& drag);
};

}  // namespace holdem
