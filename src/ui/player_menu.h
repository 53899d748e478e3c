// The menu of a seat: who sits there, whether he has folded, the dealer button.
#pragma once

#include <QMenu>
#include <array>

#include "state/seats.h"

namespace holdem {

class PlayerMenu : public QMenu {
 public:
  explicit PlayerMenu(QWidget* parent);

  // For the seat that the control stands for.
  void OpenAt(Seat seat, const QWidget& control);

 private:
  QAction* mnuIn_ = nullptr;
  std::array<QAction*, FoldedRiver + 1> mnuFold_{};  // by folded state
  QAction* mnuEmpty_ = nullptr;
  QAction* mnuMe_ = nullptr;
  QAction* mnuDealer_ = nullptr;
};

}  // namespace holdem
