// The meter of the advice. Its scale changes only with its size and at the flop, and takes most of
// the time to draw: it is kept.
#pragma once

#include <QPixmap>

#include "ui/picture_box.h"

namespace holdem {

class HandMeter : public PictureBox {
 public:
  explicit HandMeter(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap scale_;
  bool scaleIsBeforeFlop_ = false;
};

}  // namespace holdem
