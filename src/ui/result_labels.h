// The labels of the results: figures, and the titles of the grid's rows.
#pragma once

#include <QLabel>

#include "ui/described.h"

namespace holdem {

// A figure or a result in words. It says what it shows when it is asked, and what has changed only
// when it is told to.
class FigureLabel : public QLabel, public Described {
 public:
  // What it shows in words, and what that means.
  FigureLabel(QWidget* parent, std::function<std::string()> words,
              std::function<std::string()> meaning);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

// The title of a row of the results grid, with the sign of the cards that would make it.
class RowTitle : public QLabel {
 public:
  RowTitle(QWidget* parent, int row);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  const int row_;
};

}  // namespace holdem
