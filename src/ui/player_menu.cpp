#include "ui/player_menu.h"

#include <QAction>
#include <algorithm>

#include "gestures/seat_gestures.h"
#include "ui/labels.h"
#include "ui/menus.h"

namespace holdem {
namespace {

void Prepare(QAction& action, const MenuItem& item) {
  action.setVisible(item.visible);
  action.setEnabled(item.enabled);
  action.setCheckable(item.checked);
  action.setChecked(item.checked);
  if (item.text.empty()) return;
  const QString text = QtText(item.text);
  const qsizetype street = text.indexOf("Pre-Flop");
  action.setText(QString(text).insert(std::max<qsizetype>(street, 0), '&'));
}

}  // namespace

PlayerMenu::PlayerMenu(QWidget* parent) : QMenu(parent) {
  setObjectName("mnuPlayer");
  mnuIn_ = AddItem(*this, "mnuIn", "&In", &ChooseIn);
  constexpr std::array<const char*, FoldedRiver + 1> kFoldTexts = {
      "", "", "&Folded", "Folded &Flop", "Folded &Turn", "Folded &River"};
  for (int folded = FoldedPreFlop; folded <= FoldedRiver; ++folded) {
    mnuFold_[folded] = AddItem(*this, Indexed("mnuFold", folded), kFoldTexts[folded],
                               [folded] { ChooseFold(static_cast<SeatState>(folded)); });
  }
  mnuEmpty_ = AddItem(*this, "mnuEmpty", "&Empty Seat", &ChooseEmpty);
  mnuMe_ = AddItem(*this, "mnuMe", "&Me", &ChooseMe);
  mnuDealer_ = AddItem(*this, "mnuDealer", "&Dealer", &ChooseDealer);
}

void PlayerMenu::OpenAt(Seat seat, const QWidget& control) {
  const SeatMenu menu = OpenSeatMenu(seat);
  Prepare(*mnuIn_, menu.mnuIn);
  for (int folded = FoldedPreFlop; folded <= FoldedRiver; ++folded) {
    Prepare(*mnuFold_[folded], menu.mnuFold[folded]);
  }
  Prepare(*mnuEmpty_, menu.mnuEmpty);
  Prepare(*mnuMe_, menu.mnuMe);
  Prepare(*mnuDealer_, menu.mnuDealer);
  PopUp(*this, control);
}

}  // namespace holdem
