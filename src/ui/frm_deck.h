// The deck window: every card that lies in no slot, to be clicked or dragged.
#pragma once

#include <QWidget>
#include <array>
#include <span>

#include "cards/card.h"
#include "state/results.h"
#include "ui/card_drag.h"

namespace holdem {

// Can be neither closed nor minimised by itself while the program runs.
class frmDeck : public QWidget {
 public:
  frmDeck(QWidget* owner, CardDrag& drag);

  void ShowDeck();

  // To its outer size; a frame that is too thick for that does not cover the cards.
  void ResizeToDesign();

  // The keyboard goes to the card that had it last, at first to the one at the top left.
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
