// The table setup wizard's window: a picture of the table on which the user answers by clicking
// seats. It shows what autoread/setup_wizard asks.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <array>

#include "autoread/setup_wizard.h"
#include "state/seats.h"
#include "ui/described.h"

namespace holdem {

// A seat's button. Its text is the character of a symbol font; the sign is drawn, since not every
// system has that font.
class SeatButton : public QPushButton, public Described {
 public:
  using QPushButton::QPushButton;

  void SetMark(SeatMark mark);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  SeatMark mark_ = SeatMark::Face;
};

class frmGetStartupInfo : public QDialog {
 public:
  // Begins the questions anew. Blocks its owner's windows while it is shown, centred over the
  // owner.
  explicit frmGetStartupInfo(QWidget* owner);

  // Escape, or closed by the window manager: only where the wizard can be cancelled.
  void reject() override;

  void done(int result) override;

 private:
  void ShowQuestion();
  void CloseWhen(bool finished);

  QLabel* Label2_ = nullptr;  // the title
  QLabel* Label1_ = nullptr;  // the prompt
  std::array<SeatButton*, kSeats + 1> cmdHere_{};
  QPushButton* cmdDone_ = nullptr;
  QPushButton* Command1_ = nullptr;  // cancels
  QTimer tmrWatchWindow_;
};

}  // namespace holdem
