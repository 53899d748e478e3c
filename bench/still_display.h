// A display that shows nothing, and before which nobody sits.
#pragma once

#include "platform/display.h"

namespace holdem {

class StillDisplay : public Display {
 public:
  void ShowSeats() override {}
  void ShowSlot(Slot) override {}
  void ShowDeck() override {}
  void ShowResults() override {}
  void ShowMeter() override {}
  void ShowAutoRead() override {}
  void ShowSettings() override {}
  void Yield() override {}
  bool IsMainWindowMinimised() override { return false; }
  void AskSeat() override {}
  void ShowMessage(const std::string&) override {}
};

}  // namespace holdem
