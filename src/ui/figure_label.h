// A figure of the results grid, the hand in words or the advice. A screen reader can ask it at any
// time what it shows; that it has changed is announced only when ResultsView asks for it, once the
// figures are settled.
#pragma once

#include <QLabel>

#include "ui/described.h"

namespace holdem {

class FigureLabel : public QLabel, public Described {
 public:
  // `words` says what it shows, `meaning` what that means.
  FigureLabel(QWidget* parent, std::function<std::string()> words,
              std::function<std::string()> meaning);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace holdem
