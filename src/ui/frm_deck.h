// The deck window: every card that lies in no slot, to be clicked or dragged.
#pragma once

#include <QWidget>
#include <array>
#include <span>

#include "cards/card.h"
#include "state/results.h"
#include "ui/card_drag.h"

namespace holdem {

// While the program runs, the user can neither close it nor minimise it without the main window.
class frmDeck : public QWidget {
 public:
  frmDeck(QWidget* owner, CardDrag& drag);

  void ShowDeck();

  // Gives the window its designed size, which includes the frame. Where the frame is thicker than
  // designed, the window becomes larger, so that all cards can be seen.
  void ResizeToDesign();

  // Gives the keyboard to the card that had it last, at first to the one at the top left.
  void TakeKeyboard();

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void SetTabOrder();
  std::span<CardBox* const> Cards() const { return std::span(picDeck_).subspan(1); }
  CardBox* NearestTo(const CardBox& going) const;

  std::array<CardBox*, kCardCount + 1> picDeck_{};  // by card code
  CardBox* keyboardCard_ = nullptr;  // has the keyboard, or had it last; lies in the deck
  RowByCard shownOuts_ = NoOuts();   // so that only what changed is painted
};

}  // namespace holdem
