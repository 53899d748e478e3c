// What the program has found out, on the main window: the results grid, the hand in words, the
// advice and its meter.
#pragma once

#include <array>

#include "state/results.h"
#include "ui/figure_label.h"
#include "ui/hand_meter.h"
#include "words/in_words.h"

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
  void Announce();

  // What a player waits for.
  std::array<FigureLabel*, 3> Figures() const {
    return {lblCurrentScore_, lblMe_[kWinSplitRow], lblAdvice_};
  }

  QWidget* const form_;
  Answer said_;  // the last one that was settled
  std::array<FigureLabel*, kResultRows> lblMe_{};
  std::array<FigureLabel*, kResultRows> lblThem_{};
  FigureLabel* lblCurrentScore_ = nullptr;
  FigureLabel* lblAdvice_ = nullptr;
  HandMeter* picHandMeter_ = nullptr;
};

}  // namespace holdem
