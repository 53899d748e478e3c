// A seat's button on the setup wizard's table. Its text is the character of a symbol font; the sign
// is drawn, since not every system has that font.
#pragma once

#include <QPushButton>

#include "autoread/setup_wizard.h"
#include "ui/described.h"

namespace holdem {

class SeatButton : public QPushButton, public Described {
 public:
  SeatButton(QWidget* parent, Seat seat);

  void SetMark(SeatMark mark);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  SeatMark mark_ = SeatMark::Face;
};

}  // namespace holdem
