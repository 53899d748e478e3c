// What each gesture makes of a table, told in the words of the rules: who is in, where the button
// and the blinds stand, which card lies where. Tables by chance are held against it.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "gestures/card_gestures.h"
#include "state/seats.h"
#include "state/slots.h"

namespace holdem::literal {

struct Table {
  Seats seats;
  decltype(Slots::picHand) cards{};
  bool followed = false;  // by Auto Read
  Street street = NoStreet;
  std::string pass = "no pass";  // what the gesture has set off

  int Players() const {
    int players = 0;
    for (int seat = 1; seat <= 10; ++seat) players += seats.IsOccupied(seat);
    return players;
  }

  void Redraw() {
    if (seats.SeatCount == 9) {
      seats.SeatStates[6] = Empty;
      if (seats.MySeat == 6) seats.MySeat = 5, seats.SeatStates[5] = In;
      if (seats.DealerSeat == 6) seats.DealerSeat = 5;
    }
    const int button = seats.DealerSeat;
    seats.Marks.dealer = button;
    if (button == 0) return;  // not seen: the blinds' marks stay
    std::vector<int> others;
    for (int seat = NextSeat(button); seat != button; seat = NextSeat(seat))
      if (seats.SeatStates[seat] != Empty) others.push_back(seat);
    if (others.empty()) seats.Marks = {button, 0, 0};
    if (others.size() == 1) seats.Marks = {button, button, others[0]};
    if (others.size() > 1) seats.Marks = {button, others[0], others[1]};
  }
  void SeatsChange() {
    Redraw();
    pass = "calculated";
  }
  void SetState(int seat, SeatState state) {
    if (seat == seats.MySeat) return;
    if (followed && seats.SeatStates[seat] == Empty) return;  // who sits down, the table tells
    seats.SeatStates[seat] = state;
    SeatsChange();
  }
  void Press(int seat) {
    const SeatState folds[] = {FoldedPreFlop, FoldedPreFlop, FoldedFlop, FoldedTurn, FoldedRiver};
    if (seat == 6 && seats.SeatCount == 9) return;  // by a key: there is no such seat
    SetState(seat, seats.SeatStates[seat] == In ? folds[street] : In);
  }
  void Vacate(int seat) {  // from the menu, or by a double-click's second press
    if (seat == seats.MySeat || Players() <= 2) return;
    seats.SeatStates[seat] = Empty;
    if (seats.DealerSeat == seat) MoveButton();
    SeatsChange();
  }
  void SitDown(int seat) {
    if (seat == seats.MySeat) return;
    seats.SeatStates[seats.MySeat] = seats.SeatStates[seat] = In;
    seats.MySeat = seats.AutoReadSeat = seat;
    SeatsChange();
  }
  void GiveButton(int seat) {
    if (seat == seats.DealerSeat) return;
    seats.DealerSeat = seat;
    SeatsChange();
  }
  void MoveButton() {
    seats.DealerSeat = NextSeat(seats.DealerSeat);
    while (!seats.IsOccupied(seats.DealerSeat)) seats.DealerSeat = NextSeat(seats.DealerSeat);
  }
  void NewHand() {
    cards = {};
    for (SeatState& state : seats.SeatStates)
      if (!followed && state != Empty) state = In;  // the user's own as well
    if (!followed) MoveButton();
    SeatsChange();
  }

  bool Lies(Card card) const { return std::ranges::find(cards, card) != cards.end(); }
  void PutIn(int slot, Card card) {
    if (cards[slot] != kNoCard || Lies(card)) return;
    cards[slot] = card;
    pass = "calculated";
  }
  void TakeOut(int slot) {
    if (cards[slot] == kNoCard) return;
    cards[slot] = kNoCard;
    pass = "calculated";
  }
  void Click(Card card) {
    for (const int slot : {0, 1, 6, 7, 8, 9, 10})
      if (cards[slot] == kNoCard) return PutIn(slot, card);
  }
  void Drop(const CardSpot& from, Card card, const CardSpot& on) {
    const int source = from.slot, target = on.slot;  // kNoSlot in the deck
    if (source == kNoSlot && target == kNoSlot) return on.deckCard == card ? Click(card) : void();
    if (source == kNoSlot ? Lies(card) : cards[source] != card) return;  // it has gone meanwhile
    if (target == kNoSlot) return TakeOut(source);
    if (cards[target] != kNoCard) {
      const auto known = std::ranges::count_if(cards, [](Card held) { return held != kNoCard; });
      const bool preFlop = known == 2 && cards[0] != kNoCard && cards[1] != kNoCard;
      pass = preFlop && Players() > 1 ? "calculated" : "redone";  // before the flop always anew
      return;
    }
    if (source != kNoSlot) TakeOut(source);
    PutIn(target, card);
  }
};

}  // namespace holdem::literal
