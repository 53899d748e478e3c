// The whole program without its windows: the user, the timers and the other programs do whatever a
// script says, also in the middle of a run and while the wizard asks. The windows' part in it -
// what can be clicked when - is kept as they do it.
#pragma once

#include <functional>

#include "fakes/fake_ports.h"
#include "fuzz/fuzz.h"
#include "gestures/card_gestures.h"
#include "gestures/seat_gestures.h"
#include "table_client/table_picture.h"

namespace holdem::fuzz {

enum class Event {
  PressSeat,
  DoubleClickSeat,
  OpenMenu,
  ChooseItem,
  NewHand,
  NineSeats,
  FoldDepth,
  LevelPre,
  LevelPost,
  Speed,
  Resize,
  TakeCard,
  DropCard,
  ClickCard,
  RightPressSlot,
  DoubleClickSlot,
  Setup,
  WizardSeat,
  WizardBegin,
  WizardCancel,
  Refresh,
  Blink,
  Watch,
  WatchWizard,
  Clock,
  Minimise,
  Desktop,
  End
};
inline constexpr int kEvents = static_cast<int>(Event::End) + 1;

class Session : public FakeWorld {
 public:
  // Where no other program has windows, the rules of the table hold more strictly.
  enum class Mode { Manual, Auto };
  explicit Session(Mode mode, Bytes script = {});
  void Give(Bytes script) { script_ = Script(script); }

  // Until the script or the program ends; every event's changes are worked off and checked.
  void Play();

  // One event; nothing where the windows would not let it happen.
  void Do(Event event);

  // The refresh timer ticks until nothing is left to be done; then everything must be in order, and
  // the figures those of a fresh pass on the same cards from the same generator. Once the program
  // is ending, nothing may have changed since.
  void WorkOff();

  // Called wherever the program lets others act: at every yield and for every answer of the wizard.
  std::function<void()> atMoment;

  int gestures = 0;    // of the user
  int calculated = 0;  // times that simulated figures were checked

 private:
  int AnySeat();
  int AnySlot() { return kSlotOrder[script_.Any(7)]; }
  Card AnyCard() { return static_cast<Card>(1 + script_.Any(kCardCount)); }
  Event AnyEvent();
  void Moment();
  void Yielded();
  void Asked();
  bool ByUser(Event event);
  void ByWizard(Event event);
  void ByOthers(Event event);
  void ChooseItem();
  void TakeCard();
  void Drop();
  void PlayOn();
  void Show();
  void ChangeDesktop();
  void CloseSetup();
  void End();
  void CheckTable();
  void CheckFigures();
  void CheckAgainstAFreshPass();
  std::string Everything() const;

  Mode mode_;
  table_client::Table table_{.heroSeat = 3, .buttonSeat = 7};  // another program's
  Script script_;
  SeatMenu menu_;    // as it was opened
  CardPlace taken_;  // where the card in the air came from
  Card inTheAir_ = kNoCard;
  bool setUp_ = false;     // the wizard is open by the user's wish
  bool yielding_ = false;  // in a run
  bool undisturbed_ = false;
  bool misread_ = false;     // a table has been shown that has one card twice
  int fewestSeats_ = 2;      // that can be occupied
  RandomGenerator atStart_;  // of the last simulation
  std::string atEnd_;        // everything, as the program began to end
};

}  // namespace holdem::fuzz
