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
  // Begins the questions anew, and stands over the middle of its owner. While it is shown, Dialogs
  // keeps the user from the other windows.
  explicit frmGetStartupInfo(QWidget* owner);

  // What Cancel, Escape and the window manager's close button call: closes the wizard only where it
  // may be cancelled, or when the program ends.
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
