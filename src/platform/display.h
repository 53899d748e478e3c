// What the program asks of its own windows. They draw from the state; these calls say what has
// changed. They are plain calls, not signals of a window system: the core knows none, a call has
// done its work when it returns, and a test sees each of them.
#pragma once

#include <string>

#include "state/slots.h"

namespace holdem {

class Display {
 public:
  virtual ~Display() = default;

  virtual void ShowSeats() = 0;  // nine or ten, the button, the blinds, where your cards are
  virtual void ShowSlot(Slot slot) = 0;
  virtual void ShowDeck() = 0;     // which cards lie in the deck window, and their markers
  virtual void ShowResults() = 0;  // the results grid, the hand in words, the advice
  virtual void ShowMeter() = 0;
  virtual void ShowAutoRead() = 0;  // whether a table is followed, and the hand message
  virtual void ShowSettings() = 0;  // level frames, speed, fold depth

  // Called before every deal of a run. Lets pending clicks, drags and timers act, but looks for
  // them only every few milliseconds; most calls return at once. Afterwards any state may have
  // changed, and the program may be ending.
  virtual void Yield() = 0;

  virtual bool IsMainWindowMinimised() = 0;

  // Opens the setup wizard and returns when it has closed; the program may be ending then.
  virtual void AskSeat() = 0;

  // A message with an OK button. Returns at once.
  virtual void ShowMessage(const std::string& text) = 0;
};

}  // namespace holdem
