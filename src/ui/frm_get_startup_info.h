// The table setup wizard's window: a picture of the table on which the user answers by clicking
// seats. It shows what autoread/setup_wizard asks.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <array>

#include "state/seats.h"
#include "ui/seat_button.h"

namespace holdem {

class frmGetStartupInfo : public QDialog {
 public:
  // Begins the questions anew. Blocks its owner's windows while it is shown, centred over the
  // owner.
  explicit frmGetStartupInfo(QWidget* owner);

  // Escape, or closed by the window manager: only where the wizard can be cancelled.
  void reject() override;

  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void done(int result) override;

 private:
  void AddTable();
  void AddSeatButton(Seat seat);
  void AddCommands();

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
