#include "ui/window_display.h"

#include <QAbstractButton>
#include <QCoreApplication>

#include "ui/dialogs.h"
#include "ui/frm_get_startup_info.h"

namespace holdem {

WindowDisplay::WindowDisplay(Form1& form1, frmDeck& deckWindow)
    : form1_(form1), deckWindow_(deckWindow) {}

// Every run begins with this call, so the pause before the next look at the window system begins
// here too. Most runs end within it, and what they have blanked is never painted.
void WindowDisplay::ShowResults() {
  form1_.ShowResults();
  rested_ = std::chrono::steady_clock::now();
}

// A look at the window system takes as long as many deals, so there is one in 5 ms at most; nobody
// notices that a click waits so long. A look at the clock takes a part of a deal, so there is one
// in 16 deals.
void WindowDisplay::Yield() {
  using namespace std::chrono_literals;
  constexpr auto kPause = 5ms;
  constexpr int kDealsALook = 16;
  if (++deals_ % kDealsALook != 0) return;
  if (std::chrono::steady_clock::now() - rested_ < kPause) return;
  QCoreApplication::processEvents();
  rested_ = std::chrono::steady_clock::now();
}

void WindowDisplay::AskSeat() {
  frmGetStartupInfo wizardWindow(&form1_);
  ShowUntilClosed(wizardWindow);
}

void WindowDisplay::ShowMessage(const std::string& text) { OpenMessage(&form1_, text); }

QMessageBox* OpenMessage(QWidget* owner, const std::string& text) {
  auto* const message = new QMessageBox(QMessageBox::NoIcon, "Pellucor 4",
                                        QString::fromStdString(text), QMessageBox::Ok, owner);
  message->setObjectName("message");
  message->setTextFormat(Qt::PlainText);
  message->button(QMessageBox::Ok)->setIcon({});  // as in the About window
  message->setAttribute(Qt::WA_DeleteOnClose);
  message->setModal(false);  // Dialogs keeps the user from the other windows
  message->show();
  return message;
}

}  // namespace holdem
