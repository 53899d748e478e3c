// What the program asks of its own windows. They draw from the state; these calls say what has
// changed.
#pragma once

#include <string>

namespace holdem {

class Display {
 public:
  virtual ~Display() = default;

  virtual void
  ShowSeats() = 0;  // seats, button, blinds, nine or ten of them, place of the hole cards
  virtual void ShowSlot(int slot) = 0;  // by slot index
  virtual void ShowDeck() = 0;          // which cards lie in the deck window, and their markers
  virtual void ShowResults() = 0;       // the results grid, the hand in words, the advice
  virtual void ShowMeter() = 0;
  virtual void ShowSettings() = 0;  // level frames, speed, fold depth

  // Lets pending clicks, drags and timers run once. Anything but `run`'s own flags may have changed
  // afterwards, and the program may be ending.
  virtual void Yield() = 0;

  // A message with an OK button. Returns at once.
  virtual void ShowMessage(const std::string& text) = 0;
};

}  // namespace holdem
