// What the program has found out, on the main window: the results grid, the hand in words, the
// advice and its meter.
#pragma once

#include <QLabel>
#include <array>

#include "state/results.h"
#include "ui/controls.h"
#include "ui/picture_box.h"

namespace holdem {

class ResultsView {
 public:
  // Adds the controls to the main window, which owns them.
  explicit ResultsView(QWidget* form);

  // Redraw what the Display port says has changed.
  void ShowResults();
  void ShowMeter();

 private:
  void AddGridRow(QWidget* form, int row);

  std::array<ResultCell*, kResultRows> lblMe_{};
  std::array<ResultCell*, kResultRows> lblThem_{};
  QLabel* lblCurrentScore_ = nullptr;
  QLabel* lblAdvice_ = nullptr;
  PictureBox* picHandMeter_ = nullptr;
};

}  // namespace holdem
