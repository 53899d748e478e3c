// The whole program without its windows: the user, the timers and the other programs do whatever a
// script says, also in the middle of a run and while the wizard asks. The windows' part in it -
// what can be clicked when - is kept as they do it. Throws when a promise is broken.
#pragma once

#include <limits>
#include <span>

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "autoread/watcher.h"
#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "fakes/fake_ports.h"
#include "gestures/card_gestures.h"
#include "gestures/card_typing.h"
#include "gestures/seat_gestures.h"
#include "gestures/settings_gestures.h"
#include "table/blink.h"
#include "table/history.h"
#include "table/refresh.h"

namespace holdem::fuzz {

#define HOLDS(promise) \
  ((promise) ? void()  \
             : throw std::runtime_error(__FILE__ ":" + std::to_string(__LINE__) + ": " #promise))

using Bytes = std::span<const std::uint8_t>;

// All that a pass works out, and what it works on.
inline auto State() {
  return std::tuple(results, analysis, deck, simulation, advice, seats, slots);
}

struct Session : FakeWorld {
  // Where no other program has windows, the rules of the table hold more strictly.
  Session(bool withTables, Bytes script) : script_(script), withTables_(withTables) {
    display.atYield = [this](int) { Yielded(); };
    display.atAskSeat = [this] { Asked(); };
    // Windows come, change and die between any two looks at the screen.
    desktop.beforeCall = [this] {
      if (Rarely(64)) ChangeDesktop();
    };
    clock.now = run.LastChangeTicks = run.LastCalcTicks = std::numeric_limits<std::int32_t>::max();
    RunAnalysis();  // as the main window loads
  }

  // Until the script or the program ends; the refresh timer is late at times.
  void Play() {
    while (!script_.empty() && !run.Ending) {
      Act();
      if (!Rarely(4)) WorkOff();
    }
    WorkOff();
  }

 private:
  int Any(int n) {  // 0..n-1, n up to 256
    if (script_.empty()) return 0;
    const int byte = script_.front();
    script_ = script_.subspan(1);
    return byte % n;
  }
  bool Rarely(int n) { return Any(n) == n - 1; }
  Seat AnySeat() { return 1 + Any(kSeats); }
  Slot AnySlot() { return kSlotOrder[Any(7)]; }
  Slot AnyTarget() { return Any(2) == 0 ? AnySlot() : kNoSlot; }
  Card AnyCard() { return static_cast<Card>(1 + Any(kCardCount)); }

  // One event that the windows would let happen now.
  void Act() {
    Advance(Any(3));
    if (Rarely(5)) return OthersAct();
    wizard.Open ? AnswerWizard() : UseKeyboardOrMouse();
  }
  void OthersAct() {
    switch (Any(8)) {
      case 0: return CheckRefresh();
      case 1: return Blink(true);
      case 2: return Advance((Any(256) - 128) * 256);
      case 3: display.minimised = Rarely(4); return;
      case 4: return CloseSetup(wizard.Open && WatchWizard());
      case 5: return ChangeDesktop();
      default: return Rarely(100) ? End() : Watch();
    }
  }
  // With a card in the air the mouse can only drop it.
  void UseKeyboardOrMouse() {
    switch (Any(slots.CardInTheAir ? 9 : 24)) {
      case 0: return NewHand();
      case 1: return SetNineSeats(Any(2) == 1);
      case 2: return SetWatchFoldDepth(Any(2) == 1);
      case 3: return Any(3) == 0 ? RepeatGesture() : TakeBackGesture();
      case 4: return TakeLastCardBack();
      case 5: return TypeCharacter("a3456789tjqk10sdch"[Any(18)], AnyTarget());
      case 9: return RefreshTable(true);  // resizes the window
      case 10: return ChooseLevelPre(Any(3));
      case 11: return ChooseLevelPost(Any(3));
      case 12: return PressSeat(AnySeat());
      case 13: return DoubleClickSeat(AnySeat());
      case 14: OpenSeatMenu(AnySeat()); return ChooseMe();
      case 15: return OpenSeatMenu(AnySeat()).mnuDealer.enabled ? ChooseDealer() : ChooseIn();
      case 16: return RightPressSlot(AnySlot());
      case 17: return Open(true);
      case 18: return DoubleClickSlot(AnySlot());
      default: return Any(3) == 0 || slots.CardInTheAir ? DragCard() : ClickDeckCard(AnyCard());
    }
  }

  // The refresh timer ticks until nothing is left to be done; then everything must be in order, and
  // the figures those of a fresh pass on the same cards from the same generator. Once the program
  // is ending, nothing may have changed since.
  void WorkOff() {
    while (!run.Ending && !run.Settled()) CheckRefresh();
    if (run.Ending) return HOLDS(std::pair(State(), display.shown) == atEnd_);
    HOLDS(!run.AbortRequested && !run.RecalcNeeded && !autoRead.Ticking);
    CheckCardsAndSeats();
    const auto before = State();
    if (analysis.CurrentStreet >= Flop) generator = atStart_;
    const bool lit = results.lblAdviceLit;  // the advice blinks
    analysis = {}, deck = {}, results = {};
    undisturbed_ = true;
    Recalculate();
    undisturbed_ = false;
    results.lblAdviceLit = lit;
    HOLDS(State() == before);
  }

  // The clock, which may wrap.
  void Advance(int milliseconds) {
    clock.now = static_cast<std::int32_t>(std::int64_t{clock.now} + milliseconds);
  }
  // Here the program lets others act.
  void Yielded() {
    HOLDS(run.Calculating && results.lblAdvice == kThinking);
    if (undisturbed_ || run.Ending) return;
    Advance(Any(3));
    if (Rarely(autoRead.Ticking ? 6 : 16)) Act();  // the yields of a tick are few
    if (simulation == SimulationTallies{}) atStart_ = generator;
  }
  void End() {
    run.Ending = true;
    CloseWizard();
    atEnd_ = std::pair(State(), display.shown);
  }
  void Watch() {
    const bool mayNot = autoRead.Ticking || display.minimised || wizard.Open || slots.CardInTheAir;
    const auto before = std::pair(State(), autoRead.WatchCycle);
    WatchTable();
    HOLDS(!mayNot || std::pair(State(), autoRead.WatchCycle) == before);
  }
  // The watcher waits for the wizard to close.
  void Asked() {
    HOLDS(!wizard.Open && !run.Ending);
    Open(false);
    while (wizard.Open && !run.Ending) Act();
  }
  void Open(bool byUser) {
    setUp_ = byUser;
    slots.CardInTheAir = false;  // a dialog ends a drag
    OpenWizard();
  }
  void AnswerWizard() {
    if (Any(4) > 0) return;  // the user takes a while
    const int answer = Any(8);
    if (answer == 7) return CloseSetup(FinishWizard());
    CloseSetup(answer == 6 ? CanCancelWizard() : ClickWizardSeat(AnySeat()));
  }
  void CloseSetup(bool closes) {
    if (!closes) return;
    CloseWizard();
    if (setUp_) SeatsChanged();  // the watcher goes on by itself
  }

  // The user takes a card up, or drops it, perhaps over nothing.
  void DragCard() {
    const CardSpot place{.slot = AnyTarget(), .deckCard = AnyCard()};
    slots.CardInTheAir = !slots.CardInTheAir;
    if (!slots.CardInTheAir) return Rarely(4) ? void() : DropCard(taken_, inTheAir_, place);
    taken_ = place;
    inTheAir_ = place.slot == kNoSlot ? place.deckCard : slots.picHand[place.slot];
    slots.CardInTheAir = inTheAir_ != kNoCard;
  }

  // Other programs' windows come and go, and a hand goes on there, not always by the rules.
  void ChangeDesktop() {
    if (!withTables_) return;
    auto& windows = desktop.windows;
    const int x = Any(200) * 4, y = Any(140) * 4, seat = 1 + Any(kSeats);
    switch (Any(12)) {
      case 0: return windows.clear();
      case 1: desktop.captionBarHeight = Rarely(3) ? Any(60) : 26; return;
      case 2: windows.insert(windows.begin(), {5, "", "", {x, y, x + 300, y + 200}}); return;
      case 3: table_ = {.layout = 1 + Any(kLayouts), .heroSeat = seat}; break;
      case 4: table_.hole = {AnyCard(), AnyCard()}; break;
      case 5: table_.buttonSeat = seat; break;
      case 6: table_.hole = {}; break;
      case 7: table_.looks[seat] = static_cast<table_client::SeatLook>(Any(3)); break;
      default: table_.board[seat % 5] = Rarely(4) ? kNoCard : AnyCard();
    }
    windows = {TableWindow(table_, 77 + static_cast<WindowHandle>(table_.layout) % 2)};
    if (Rarely(8)) windows[0].outer = {x - 400, y - 300, x + 400, y + 280};
    if (Rarely(8)) windows[0].caption = "Lobby";
    while (Rarely(2)) windows[0].changed[{x + Any(16), y + Any(32)}] = 0x10101u * Any(256);
  }

  void CheckCardsAndSeats() {
    for (const int slot : kSlotOrder) {
      const Card card = slots.picHand[slot];
      HOLDS(card == kNoCard || withTables_ || std::ranges::count(slots.picHand, card) == 1);
      HOLDS(card == kNoCard || (slot != slots.MarkedSlot && slot != slots.TypedSlot));
    }
    HOLDS(seats.MySeat >= 1 && seats.DealerSeat >= (withTables_ ? 0 : 1));
    HOLDS(seats.Exists(6) || (!seats.IsOccupied(6) && seats.DealerSeat != 6));
    HOLDS(display.messages.empty());
  }

  Bytes script_;  // of the choices still to be made; when it is used up, each is the first
  bool withTables_;
  table_client::Table table_{.heroSeat = 3, .buttonSeat = 7};  // another program's
  CardSpot taken_;  // where the card in the air came from
  Card inTheAir_ = kNoCard;
  bool setUp_ = false;  // the wizard is open by the user's wish
  bool undisturbed_ = false;
  RandomGenerator atStart_;                                         // of the last simulation
  std::pair<decltype(State()), std::map<std::string, int>> atEnd_;  // as it began
};

}  // namespace holdem::fuzz
