#include "autoread/setup_wizard.h"

#include <algorithm>

#include "autoread/confirmed_tables.h"
#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "autoread/mod_windows.h"
#include "platform/desktop.h"
#include "platform/ports.h"
#include "state/auto_read.h"
#include "state/seats.h"
#include "state/wizard.h"
#include "table/history.h"

namespace holdem {
namespace {

bool SeatChosen() { return wizard.ChosenSeat != 0; }
bool DealerChosen() { return wizard.ChosenDealer != 0; }

// Whether the seat can be switched between occupied and empty. The user's and the button's cannot
// be empty, nor can any more when only two are occupied. The seat that a table of nine does not
// show counts as occupied.
bool MayToggle(Seat seat) {
  if (seat == wizard.ChosenSeat || seat == wizard.ChosenDealer) return false;
  const auto notEmpty = std::count(wizard.Present.begin() + 1, wizard.Present.end(), true);
  return !wizard.Present[seat] || notEmpty > 2;
}

// Being covered does not count: the wizard itself may lie over the table.
bool IsTableGone() {
  const WindowHandle window = autoRead.WatchedWindow;
  if (!ports.desktop->OuterRectangle(window)) return true;
  if (ports.desktop->GetWindowCaption(window) != autoRead.CurrentTable.caption) return true;
  if (modWindows::HasAnotherLayout()) return true;
  return LayoutOf(autoRead.TableLayout).hasMarker && !modCardRead::HasLayout3Marker(window) &&
         !modWindows::IsTableObscured(window, modWindows::Points::WholeWindow) &&
         modWindows::IsInSight(window, std::array{modCardRead::Layout3MarkerArea()});
}

// Takes the answer, and closes the wizard. If the table has just turned out to be another, the
// answer was not given for it and is dropped.
bool ConfirmSeat(Seat seat) {
  if (modWindows::HasAnotherLayout()) return true;
  ForgetHistory();
  seats.MySeat = seats.AutoReadSeat = seat;
  Confirm();
  return true;
}

}  // namespace

void OpenWizard() { wizard = {.Open = true}; }

SeatMark MarkOfSeat(Seat seat) {
  if (!SeatChosen()) return SeatMark::Face;
  if (!DealerChosen()) return SeatMark::Button;
  const bool mine = seat == wizard.ChosenSeat;
  const bool dealer = seat == wizard.ChosenDealer;
  if (mine) return dealer ? SeatMark::FaceAndButton : SeatMark::Face;
  if (dealer) return SeatMark::Button;
  return wizard.Present[seat] ? SeatMark::Ticked : SeatMark::Unticked;
}

std::string TextOf(SeatMark mark) {
  switch (mark) {
    case SeatMark::Face: return "J";
    case SeatMark::Button: return "\u00A1";
    case SeatMark::FaceAndButton: return "J\u00A1";
    case SeatMark::Ticked: return "\u00FE";
    case SeatMark::Unticked: return "\u00A8";
  }
  return {};
}

std::string WizardTitle() { return autoRead.Following() ? "Table Detected" : "Table Setup Wizard"; }

std::string WizardPrompt() {
  if (!SeatChosen()) return "Where are you Sitting?";
  if (!DealerChosen()) return "Where is the dealer button?";
  return "Uncheck any empty seats and click \"Begin ->\"";
}

bool CanCancelWizard() { return !autoRead.Following(); }

bool CanFinishWizard() { return SeatChosen() && DealerChosen(); }

bool CanClickWizardSeat(Seat seat) { return !CanFinishWizard() || MayToggle(seat); }

bool ClickWizardSeat(Seat seat) {
  if (!SeatChosen()) {
    if (autoRead.Following()) return ConfirmSeat(seat);
    wizard.ChosenSeat = seat;
  } else if (!DealerChosen()) {
    wizard.ChosenDealer = seat;
  } else if (MayToggle(seat)) {
    wizard.Present[seat] = !wizard.Present[seat];
  }
  return false;
}

bool FinishWizard() {
  if (!CanFinishWizard()) return false;
  RememberTable();
  seats.MySeat = wizard.ChosenSeat;
  seats.DealerSeat = wizard.ChosenDealer;
  for (int seat = 1; seat <= kSeats; ++seat) {
    seats.SeatStates[seat] = wizard.Present[seat] ? In : Empty;
  }
  return true;
}

bool WatchWizard() {
  if (!autoRead.Following() || !IsTableGone()) return false;
  Withdraw();
  return true;
}

void CloseWizard() { wizard.Open = false; }

}  // namespace holdem
