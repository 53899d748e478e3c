// The main window: the table with its seats and card slots, the results grid, the advice, the
// menus. It draws from the state and passes every gesture on to table/.
#pragma once

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QWidget>
#include <array>
#include <functional>

#include "gestures/card_typing.h"
#include "state/seats.h"
#include "ui/card_drag.h"
#include "ui/controls.h"
#include "ui/mod_resize.h"

namespace holdem {

class Form1 : public QWidget {
 public:
  explicit Form1(CardDrag& drag);

  // Redraw what the Display port says has changed.
  void ShowSeats();
  void ShowSlot(int slot);
  void ShowResults();
  void ShowMeter();
  void ShowSettings();
  void ShowAutoRead();

  void ResizeToDesign();

  // From now on a change of size scales the controls.
  void RecordDesign();

  std::function<void()> onEnd;  // File > Exit, or the window is closed
  std::function<void()> onAbout;
  std::function<void()> onSetup;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent*) override {}  // looks no different: nothing is painted anew
  void focusOutEvent(QFocusEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddTable();
  void AddSlots(CardDrag& drag);
  void AddMenus();
  void AddCommands();
  void AddAutoReadIndicator();
  void AddResults();
  void AddSeatMenu();
  void SetTabOrder();

  void ResizeControls();
  void PressSlot(const CardBox& box, QMouseEvent& event, CardDrag& drag);
  void ShowSeatMenu(int seat);
  void PlaceBlindMark(QLabel& mark, int seat);

  template <typename T>
  using BySeat = std::array<T*, kSeats + 1>;

  BySeat<PictureBox> picPlayer_{};
  BySeat<Shape> shpDlrButton_{};
  QLabel* lblSB_ = nullptr;
  QLabel* lblBB_ = nullptr;
  std::array<CardBox*, 11> picHand_{};  // by slot index
  WrappingCheckBox* chk9Pl_ = nullptr;
  WrappingCheckBox* chkFoldLevels_ = nullptr;
  QPushButton* cmdNewDeal_ = nullptr;
  QLabel* lblEyeBall_ = nullptr;
  QLabel* lblAutoOn_ = nullptr;
  QLabel* lblManual_ = nullptr;
  QLabel* lblMessage_ = nullptr;
  QLabel* lblCurrentScore_ = nullptr;
  QLabel* lblAdvice_ = nullptr;
  PictureBox* picHandMeter_ = nullptr;
  std::array<ResultCell*, 9> lblMe_{};
  std::array<ResultCell*, 9> lblThem_{};
  std::array<ClickLabel*, 3> lblAdvicePre_{};
  std::array<ClickLabel*, 3> lblAdvicePost_{};

  std::array<QAction*, 3> mnuSpeedChoice_{};
  QMenu mnuPlayer_;
  QAction* mnuIn_ = nullptr;
  std::array<QAction*, FoldedRiver + 1> mnuFold_{};  // by folded state
  QAction* mnuEmpty_ = nullptr;
  QAction* mnuMe_ = nullptr;
  QAction* mnuDealer_ = nullptr;

  CardTyping typing_;
  int typingSlot_ = kNoSlot;  // that had the focus at the last letter
  modResize::Design design_;
};

}  // namespace holdem
