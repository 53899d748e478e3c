// The table setup wizard's questions: where the user sits, where the button is, which seats are
// empty. While a table is followed it asks only for the seat. The wizard's window shows what is
// said here.
#pragma once

#include <string>

#include "state/seats.h"

namespace holdem {

// Begins anew; the window is about to be shown.
void OpenWizard();

// What a seat's button shows, with the character that stands for it in the symbol font.
enum class SeatMark { Face, Button, FaceAndButton, Ticked, Unticked };
SeatMark MarkOfSeat(Seat seat);
std::string TextOf(SeatMark mark);  // UTF-8

std::string WizardTitle();
std::string WizardPrompt();
bool CanCancelWizard();
bool CanFinishWizard();  // all questions are answered

// Whether a click on that seat is taken as an answer now.
bool CanClickWizardSeat(Seat seat);

// Each of these returns whether the wizard is to close now.
bool ClickWizardSeat(Seat seat);
bool FinishWizard();  // writes the answers
bool WatchWizard();   // every 300 ms: the followed table may go away

// The window has closed, however it came about.
void CloseWizard();

}  // namespace holdem
