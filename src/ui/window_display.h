// The Display port over the program's real windows.
#pragma once

#include <QMessageBox>
#include <chrono>

#include "platform/display.h"
#include "ui/form1.h"
#include "ui/frm_deck.h"

namespace holdem {

class WindowDisplay : public Display {
 public:
  // Neither window is owned; both outlive the display.
  WindowDisplay(Form1& form1, frmDeck& deckWindow);

  void ShowSeats() override { form1_.ShowSeats(); }
  void ShowSlot(Slot slot) override { form1_.ShowSlot(slot); }
  void ShowDeck() override { deckWindow_.ShowDeck(); }
  void ShowResults() override;
  void ShowMeter() override { form1_.ShowMeter(); }
  void ShowAutoRead() override { form1_.ShowAutoRead(); }
  void ShowSettings() override { form1_.ShowSettings(); }
  void Yield() override;
  bool IsMainWindowMinimised() override { return form1_.isMinimized(); }
  void AskSeat() override;
  void ShowMessage(const std::string& text) override;

 private:
  Form1& form1_;
  frmDeck& deckWindow_;
  unsigned deals_ = 0;
  std::chrono::steady_clock::time_point rested_;  // since when no event has been handled
};

// A message with an OK button, shown already; deletes itself when it is closed.
QMessageBox* OpenMessage(QWidget* owner, const std::string& text);

}  // namespace holdem
