// The table on the main window: the seats, the dealer button and the blinds, the card slots.
#pragma once

#include <QLabel>
#include <array>

#include "state/seats.h"
#include "state/slots.h"
#include "ui/hand_slot.h"
#include "ui/player_menu.h"
#include "ui/shapes.h"

namespace holdem {

class TableView {
 public:
  // Adds the controls to the main window, which owns them. AddSlots is called once all other
  // controls of the window are made: the slots lie above all but the marks of button and blinds.
  explicit TableView(QWidget* form);
  void AddSlots(CardDrag& drag);

  // Redraw what the Display port says has changed.
  void ShowSeats();
  void ShowSlot(Slot slot) { picHand_[slot]->ShowSlot(); }

  void FocusFirstSlot() { picHand_[kHoleSlots[0]]->setFocus(Qt::OtherFocusReason); }

 private:
  void AddSeat(Seat seat);
  void FrameMySeat();
  void PlaceBlindMark(QLabel& mark, Seat seat);
  void GiveCardsTheMouse(QWidget& mark);

  template <typename T>
  using BySeat = std::array<T*, kSeats + 1>;

  QWidget* const form_;
  Shape* shpMySeat_ = nullptr;
  BySeat<PictureBox> picPlayer_{};
  BySeat<Shape> shpDlrButton_{};
  QLabel* lblSB_ = nullptr;
  QLabel* lblBB_ = nullptr;
  std::array<HandSlot*, kRiverSlot + 1> picHand_{};  // by slot index
  PlayerMenu& mnuPlayer_;
};

}  // namespace holdem
