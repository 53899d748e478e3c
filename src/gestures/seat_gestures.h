// What the user can do to a seat: press it, double-click it, choose from its menu. What the rules
// refuse is ignored silently. Every change redraws the table and runs the analysis pass.
#pragma once

#include <array>
#include <string>

#include "state/seats.h"

namespace holdem {

// Whether the user may say that whoever sits there is in or has folded. Not of themselves; and,
// while a table is followed, not of an empty seat, since the table itself shows who sits down.
bool MayPlayOrFold(Seat seat);

// Whether the seat may become empty: an opponent's, as long as two players are left.
bool MayBeVacated(Seat seat);

// What any mouse button but the right one does: an opponent who is in folds on the current street,
// any other is put in.
void PressSeat(Seat seat);

// Both empty an opponent's seat. The first press of a double-click has been a gesture of its own,
// which kept the table as it was; so a double-click keeps nothing, and both presses are taken back
// at once.
void EmptySeat(Seat seat);
void DoubleClickSeat(Seat seat);

// Whether the table has nine seats or ten.
void ChooseNineSeats(bool nineSeats);

struct MenuItem {
  bool visible = true;
  bool enabled = true;
  bool checked = false;
  std::string text;  // only where it varies
};

struct SeatMenu {
  MenuItem mnuIn;
  std::array<MenuItem, FoldedRiver + 1> mnuFold;  // by the folded state that it sets, 2..5
  MenuItem mnuEmpty;
  MenuItem mnuMe;
  MenuItem mnuDealer;
};

// Makes the seat the one that the menu acts on, and says how its items stand.
SeatMenu OpenSeatMenu(Seat seat);

// The menu's items, on seats.MenuSeat.
void ChooseIn();
void ChooseFold(SeatState folded);
void ChooseEmpty();
void ChooseMe();
void ChooseDealer();

}  // namespace holdem
