// A figure or a result in words. It says what it shows when it is asked, and what has changed only
// when it is told to.
#pragma once

#include <QLabel>

#include "ui/described.h"

namespace holdem {

class FigureLabel : public QLabel, public Described {
 public:
  // What it shows in words, and what that means.
  FigureLabel(QWidget* parent, std::function<std::string()> words,
              std::function<std::string()> meaning);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace holdem
