// The seats around the table: who sits where, who holds the button, who has folded when.
// Written by: table/ gestures/ autoread/ ui/program
#pragma once

#include <array>

#include "state/numbered.h"

namespace holdem {

// The street the known cards stand on; NoStreet when they fit none.
enum Street : int { NoStreet, PreFlop, Flop, Turn, River };

// A folded state is the street's code + 1.
enum SeatState : int { Empty, In, FoldedPreFlop, FoldedFlop, FoldedTurn, FoldedRiver };

inline constexpr int kSeats = 10;        // numbered 1..10, clockwise from the top right
using Seat = Numbered<struct SeatKind>;  // 0 for none

// A table of nine is one of ten without seat 6. Seat 5 moves to the middle of the gap, and takes
// the user or the button that was at seat 6.
inline constexpr Seat kSeatLeftOut = 6;
inline constexpr Seat kSeatClosingUp = 5;

constexpr bool IsFolded(SeatState state) { return state >= FoldedPreFlop; }

constexpr Seat NextSeat(Seat seat) { return seat % kSeats + 1; }

// The seats whose button spots carry the marks; 0 where there is none.
struct ButtonMarks {
  Seat dealer;
  Seat smallBlind;
  Seat bigBlind;

  bool operator==(const ButtonMarks&) const = default;
};

struct Seats {
  std::array<SeatState, kSeats + 1> SeatStates = {Empty, In, In, In, In, In,
                                                  In,    In, In, In, In};  // by seat 1..10
  Seat MySeat = 5;
  Seat DealerSeat = 3;          // 0 while Auto Read sees no button
  ButtonMarks Marks;            // as they are shown
  int SeatCount = 10;           // 9 or 10
  bool WatchFoldDepth = false;  // the street of each fold is tracked
  Seat AutoReadSeat;            // MySeat as last chosen by the user, kept for Auto Read
  Seat MenuSeat;                // where the seat menu was last opened

  bool IsOfNine() const { return SeatCount < kSeats; }
  bool Exists(Seat seat) const { return seat != kSeatLeftOut || !IsOfNine(); }

  // The user's seat counts as occupied, and as live, whatever its state.
  bool IsOccupied(Seat seat) const { return SeatStates[seat] != Empty || seat == MySeat; }
  bool IsLive(Seat seat) const { return SeatStates[seat] == In || seat == MySeat; }

  bool operator==(const Seats&) const = default;
};

inline Seats seats;

}  // namespace holdem
