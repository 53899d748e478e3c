// The fixture of everything that happens at the table: seats and slots written as text, and a look
// at what a gesture has set off.
#pragma once

#include <sstream>

#include "fakes/fake_ports.h"
#include "reference/card_text.h"

namespace holdem {

inline constexpr const char* kFlopHand = "AS 9D 2C 5H KH";
inline constexpr const char* kTurnHand = "AS 9D 2C 5H KH 7S";
inline constexpr const char* kRiverHand = "AS 9D 2C 5H KH 7S JD";

class TableTest : public ProgramTest {
 protected:
  TableTest() { settings.DealsPerRun = 12; }

  using SlotCards = decltype(Slots::picHand);

  // Cards for the slots in the order of filling; "--" leaves one empty.
  static SlotCards SlotsOf(const std::string& cards) {
    SlotCards held{};
    std::istringstream words(cards);
    std::string word;
    for (int i = 0; words >> word; ++i) {
      if (word != "--") held[kSlotOrder.at(i)] = CardsOf(word).at(0);
    }
    return held;
  }
  static void Put(const std::string& cards) { slots.picHand = SlotsOf(cards); }

  // Seats 1..10 ('.' empty, 'i' in, '2' to '5' folded), the user's seat, the button, as in
  // ".i3iiiiiii 2 1".
  static void Seat(const std::string& text) {
    std::string states;
    std::istringstream(text) >> states >> seats.MySeat >> seats.DealerSeat;
    for (int seat = 1; seat <= kSeats; ++seat) {
      seats.SeatStates[seat] =
          static_cast<SeatState>(std::string(".i2345").find(states.at(seat - 1)));
    }
  }
  static std::string Seating() {
    std::string text;
    for (int seat = 1; seat <= kSeats; ++seat) text += ".i2345"[seats.SeatStates[seat]];
    return text + " " + std::to_string(seats.MySeat) + " " + std::to_string(seats.DealerSeat);
  }

  // What a gesture sets off: no pass, a pass that redoes the figures, or one that calculates anew.
  enum Reaction { Nothing, Redone, Calculated };

  template <typename Gesture>
  Reaction ReactionTo(Gesture gesture) {
    run.RecalcNeeded = false;
    run.LastCalcTicks = run.LastChangeTicks + 1;
    results.lblMe[8] = "old";
    gesture();
    if (run.LastCalcTicks != run.LastChangeTicks) return Nothing;
    return results.lblMe[8] == "old" ? Redone : Calculated;
  }
};

}  // namespace holdem
