#include "reference/literal_table.h"

#include <vector>

namespace holdem::literal {
namespace {

int After(int seat) { return seat == 10 ? 1 : seat + 1; }

}  // namespace

// The user sits at the table whatever is known of the seat.
bool Table::IsTaken(int seat) const {
  return seat == seats.MySeat || seats.SeatStates[seat] != Empty;
}

void Table::Redraw() {
  if (seats.SeatCount == 9) {
    seats.SeatStates[6] = Empty;
    if (seats.MySeat == 6) seats.MySeat = 5;
    if (seats.DealerSeat == 6) seats.DealerSeat = 5;
  }
  const int button = seats.DealerSeat;
  if (button == 0) return;  // not seen: the marks stay
  std::vector<int> others;
  for (int seat = After(button); seat != button; seat = After(seat)) {
    if (seats.SeatStates[seat] != Empty) others.push_back(seat);
  }
  if (others.empty()) seats.Marks = {button, 0, 0};
  if (others.size() == 1) seats.Marks = {button, button, others[0]};
  if (others.size() > 1) seats.Marks = {button, others[0], others[1]};
}

void Table::SeatsChange() {
  Redraw();
  pass = "calculated";
}

void Table::Press(int seat) {
  if (seat == seats.MySeat) return;
  if (seat == 6 && seats.SeatCount == 9) return;  // by a key: there is no such seat
  SeatState& state = seats.SeatStates[seat];
  if (state != In) {
    state = In;
  } else if (street == Flop) {
    state = FoldedFlop;
  } else if (street == Turn) {
    state = FoldedTurn;
  } else if (street == River) {
    state = FoldedRiver;
  } else {
    state = FoldedPreFlop;
  }
  SeatsChange();
}

void Table::Vacate(int seat) {
  int players = 0;
  for (int each = 1; each <= 10; ++each) players += IsTaken(each);
  if (seat == seats.MySeat || players <= 2) return;
  seats.SeatStates[seat] = Empty;
  if (seats.DealerSeat == seat) MoveButton();
  SeatsChange();
}

void Table::Fold(SeatState folded) {
  if (seats.MenuSeat == seats.MySeat) return;
  seats.SeatStates[seats.MenuSeat] = folded;
  SeatsChange();
}

void Table::SitDown() {
  if (seats.MenuSeat == seats.MySeat) return;
  seats.SeatStates[seats.MySeat] = In;
  seats.SeatStates[seats.MenuSeat] = In;
  seats.MySeat = seats.AutoReadSeat = seats.MenuSeat;
  SeatsChange();
}

void Table::GiveButton() {
  if (seats.MenuSeat == seats.DealerSeat) return;
  seats.DealerSeat = seats.MenuSeat;
  SeatsChange();
}

void Table::MoveButton() {
  seats.DealerSeat = After(seats.DealerSeat);
  while (!IsTaken(seats.DealerSeat)) seats.DealerSeat = After(seats.DealerSeat);
}

void Table::ChooseSeatCount(int count) {
  seats.SeatCount = count;
  SeatsChange();
}

void Table::NewHand() {
  cards = {};
  for (SeatState& state : seats.SeatStates) {
    if (!followed && state != Empty) state = In;  // the user's own as well
  }
  if (!followed) MoveButton();
  SeatsChange();
}

std::string Table::Menu(int seat) {
  seats.MenuSeat = seat;
  const SeatState state = seats.SeatStates[seat];
  const bool mine = seat == seats.MySeat;
  const auto item = [](std::string caption, bool enabled, bool ticked) {
    return caption + (enabled ? "" : " off") + (enabled && ticked ? " ticked" : "") + ", ";
  };
  std::string menu = item("In", !mine, state == In);
  if (seats.WatchFoldDepth) {
    menu += item("Folded Pre-Flop", !mine, state == FoldedPreFlop);
    menu += item("Folded Flop", !mine, state == FoldedFlop);
    menu += item("Folded Turn", !mine, state == FoldedTurn);
    menu += item("Folded River", !mine, state == FoldedRiver);
  } else {
    menu += item("Folded", !mine, state >= FoldedPreFlop);
  }
  menu += item("Empty Seat", !mine, state == Empty) + item("Me", !mine, false);
  return menu + item("Dealer", state != Empty, seat == seats.DealerSeat);
}

bool Table::Lies(Card card) const {
  for (const Card held : cards) {
    if (held == card) return true;
  }
  return false;
}

void Table::PutIn(int slot, Card card) {
  if (cards[slot] != kNoCard || Lies(card)) return;
  cards[slot] = card;
  pass = "calculated";
}

void Table::TakeOut(int slot) {
  if (cards[slot] == kNoCard) return;
  cards[slot] = kNoCard;
  pass = "calculated";
}

void Table::Click(Card card) {
  for (const int slot : {0, 1, 6, 7, 8, 9, 10}) {
    if (cards[slot] == kNoCard) return PutIn(slot, card);
  }
}

void Table::Drop(int source, Card card, int target) {
  const bool there = source == kNoSlot ? !Lies(card) : cards[source] == card;
  if (!there) return;  // it has gone from there meanwhile
  if (target == kNoSlot) return TakeOut(source);
  if (cards[target] != kNoCard) {
    pass = "redone";
    return;
  }
  if (source != kNoSlot) TakeOut(source);
  PutIn(target, card);
}

}  // namespace holdem::literal
