// The meter of the advice. Drawing its scale takes most of the time, and the scale changes only
// with the size and at the flop; so a picture of it is kept.
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
