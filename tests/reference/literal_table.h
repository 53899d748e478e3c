// What each gesture makes of a table, told in the words of the rules: who is in, where the button
// and the blinds stand, which card lies where, what the seat menu shows. Tables by chance are held
// against it.
#pragma once

#include <string>

#include "state/seats.h"
#include "state/slots.h"

namespace holdem::literal {

struct Table {
  Seats seats;
  decltype(Slots::picHand) cards{};
  bool followed = false;  // by Auto Read
  Street street = NoStreet;
  std::string pass = "no pass";  // what the gesture has set off

  void Press(int seat);
  void Vacate(int seat);  // also by a double-click's second press
  void Fold(SeatState folded);
  void SitDown();  // "Me"
  void GiveButton();
  void MoveButton();
  void ChooseSeatCount(int count);
  void NewHand();
  void Redraw();
  void SeatsChange();
  // Item by item: its caption, "off" when it cannot be chosen, "ticked".
  std::string Menu(int seat);

  void Click(Card card);
  void Drop(int source, Card card,
            int target);  // from one slot to another, either kNoSlot: the deck
  void TakeOut(int slot);
  void PutIn(int slot, Card card);

  bool IsTaken(int seat) const;
  bool Lies(Card card) const;  // in some slot
};

}  // namespace holdem::literal
