#include "fuzz/session.h"

#include <sstream>

#include "advice/hole_table.h"
#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "autoread/watcher.h"
#include "cards/hand.h"
#include "engine/analysis_pass.h"
#include "engine/simulation.h"
#include "fakes/table_window.h"
#include "gestures/settings_gestures.h"
#include "reference/literal_evaluator.h"
#include "table/card_slots.h"
#include "table/refresh.h"

namespace holdem::fuzz {
namespace {

using table_client::SeatLook;

constexpr WindowHandle kTable = 77;
constexpr WindowHandle kCover = 5;

int Occupied() {
  int occupied = 0;
  for (int seat = 1; seat <= kSeats; ++seat) occupied += seats.IsOccupied(seat);
  return occupied;
}

bool HasDouble(std::vector<Card> cards) {
  std::erase(cards, kNoCard);
  std::ranges::sort(cards);
  return std::ranges::adjacent_find(cards) != cards.end();
}

std::vector<Card> CardsInSlots() { return {slots.picHand.begin(), slots.picHand.end()}; }

// All that a pass works out, whatever was there before.
std::string Figures() {
  std::ostringstream text;
  text << std::hexfloat;
  for (int row = 0; row < 9; ++row)
    text << results.lblMe[row] << "|" << results.lblThem[row] << "\n";
  text << results.lblAdvice << "\n" << results.lblCurrentScore << "\n" << advice.MeterScore << "\n";
  for (const int row : results.OutRows) text << row << " ";
  const auto& a = analysis;
  for (const int number :
       {a.EmptyBoardSlots, a.FoldedCount, a.PlayerCount, a.MyTablePosition, a.MyLivePosition,
        a.PositionPercent, +a.IsSmallBlind, +a.IsBigBlind, +a.CurrentStreet}) {
    text << number << " ";
  }
  for (const int folds : a.FoldsByStreet) text << folds << " ";
  text << "\n" << a.MyHandValue << " " << deck.free << "\n";
  if (a.CurrentStreet < Flop) return text.str();
  for (const PlayerTally& tally : simulation.SimTally) {
    text << tally.deals << " " << tally.wins << " " << tally.splits << ":";
    for (const int category : tally.categories) text << " " << category;
    text << "\n";
  }
  for (const int category : simulation.OpponentCategoryTally) text << category << " ";
  return text.str();
}

}  // namespace

Session::Session(Mode mode, Bytes script) : mode_(mode), script_(script) {
  LoadTableLayouts();
  if (modHole::HoleOddsMax[1] == 0) modHole::LoadHoleTable();
  settings.DealsPerRun = 12;
  display.atYield = [this](int) { Yielded(); };
  display.atAskSeat = [this] { Asked(); };
  atMoment = [this] {
    if (script_.Rarely(16)) Do(AnyEvent());
  };
  // Windows come, change and die between any two looks at the screen.
  desktop.beforeCall = [this] {
    if (mode_ == Mode::Auto && script_.Rarely(64)) ChangeDesktop();
  };
  RunAnalysis();  // as the main window loads
}

void Session::Play() {
  WorkOff();
  while (!script_.Ended() && !run.Ending) {
    const int before = Occupied();
    fewestSeats_ = mode_ == Mode::Manual ? std::min(before, 2) : 1;
    Do(AnyEvent());
    WorkOff();
  }
}

void Session::Moment() {
  if (undisturbed_ || run.Ending) return;
  clock.now += script_.Any(3);
  atMoment();
}

void Session::Yielded() {
  HOLDS(!yielding_);  // no pass within a pass
  HOLDS(run.Calculating);
  yielding_ = true;
  Moment();
  yielding_ = false;
  if (simulation == SimulationTallies{}) atStart_ = generator;
}

// The watcher waits for the wizard to close.
void Session::Asked() {
  HOLDS(!wizard.Open && !run.Ending);
  slots.CardInTheAir = false;
  OpenWizard();
  while (wizard.Open && !run.Ending) {
    Moment();
    if (!wizard.Open || run.Ending) break;
    Do(script_.Ended() || script_.Rarely(4) ? Event::WizardSeat : Event::WatchWizard);
  }
  CloseWizard();
}

int Session::AnySeat() {
  const int seat = 1 + script_.Any(kSeats);
  return seats.SeatCount == 9 && seat == 6 ? 5 : seat;  // seat 6 is hidden
}

// Gestures that make a hand are more frequent, and an end comes seldom.
Event Session::AnyEvent() {
  if (script_.Rarely(3)) return script_.Rarely(2) ? Event::ClickCard : Event::DoubleClickSlot;
  const int event = script_.Any(kEvents + 6);
  if (event >= kEvents) return event % 2 == 0 ? Event::Watch : Event::Desktop;
  if (static_cast<Event>(event) == Event::End && !script_.Rarely(100)) return Event::PressSeat;
  return static_cast<Event>(event);
}

void Session::Do(Event event) {
  if (run.Ending) return;
  clock.now += script_.Any(3);
  if (event >= Event::Refresh) return ByOthers(event);
  if (wizard.Open) return ByWizard(event);
  // The mouse is busy, the keyboard is not.
  const bool byKeyboard = event >= Event::NewHand && event <= Event::FoldDepth;
  if (slots.CardInTheAir && event != Event::DropCard && !byKeyboard) return;
  gestures += ByUser(event);
}

bool Session::ByUser(Event event) {
  const bool yes = script_.Any(2) == 1;
  switch (event) {
    case Event::DoubleClickSeat:
    case Event::PressSeat: {
      const int seat = AnySeat();
      PressSeat(seat);
      if (event == Event::DoubleClickSeat && !run.Ending) DoubleClickSeat(seat);
      return true;
    }
    case Event::OpenMenu: menu_ = OpenSeatMenu(AnySeat()); return true;
    case Event::ChooseItem: ChooseItem(); return true;
    case Event::NewHand: NewHand(); return true;
    case Event::NineSeats:
      if (yes) fewestSeats_ = 1;
      SetNineSeats(yes);
      return true;
    case Event::FoldDepth: SetWatchFoldDepth(yes); return true;
    case Event::LevelPre: ChooseLevelPre(script_.Any(3)); return true;
    case Event::LevelPost: ChooseLevelPost(script_.Any(3)); return true;
    case Event::Speed:
      ChooseSpeed(script_.Any(3));
      settings.DealsPerRun = 12 + settings.Speed;  // enough to tell one from another
      return true;
    case Event::Resize: RefreshTable(true); return true;
    case Event::TakeCard: TakeCard(); return true;
    case Event::DropCard:
      if (!slots.CardInTheAir) TakeCard();
      Drop();
      return true;
    case Event::ClickCard: {  // perhaps once more, when it has gone already
      const Card card = AnyCard();
      DropCard({.deckCard = card}, card, {.deckCard = card});
      return true;
    }
    case Event::RightPressSlot: RightPressSlot(AnySlot()); return true;
    case Event::DoubleClickSlot: DoubleClickSlot(AnySlot()); return true;
    case Event::Setup:
      setUp_ = true;
      slots.CardInTheAir = false;
      OpenWizard();
      return true;
    default: return false;
  }
}

// As it stood when the menu was opened; the table may have changed since.
void Session::ChooseItem() {
  if (seats.MenuSeat == 0) return;
  const int folded = FoldedPreFlop + script_.Any(4);
  switch (script_.Any(5)) {
    case 0: return menu_.mnuIn.enabled ? ChooseIn() : void();
    case 1: {
      const MenuItem& item = menu_.mnuFold[folded];
      return item.visible && item.enabled ? ChooseFold(static_cast<SeatState>(folded)) : void();
    }
    case 2: return menu_.mnuEmpty.enabled ? ChooseEmpty() : void();
    case 3: return menu_.mnuMe.enabled ? ChooseMe() : void();
    default: return menu_.mnuDealer.enabled ? ChooseDealer() : void();
  }
}

void Session::TakeCard() {
  const int slot = AnySlot();
  const Card card = AnyCard();
  const bool fromSlot = script_.Any(2) == 0;
  if (fromSlot && !slots.IsFilled(slot)) return;
  slots.CardInTheAir = true;
  taken_ = fromSlot ? CardPlace{.slot = slot} : CardPlace{.deckCard = card};
  inTheAir_ = fromSlot ? slots.picHand[slot] : card;
}

void Session::Drop() {
  if (!slots.CardInTheAir) return;
  slots.CardInTheAir = false;
  const int place = script_.Any(4);
  if (place == 0) return;  // over nothing
  const Card under = place == 1 ? inTheAir_ : AnyCard();
  DropCard(taken_, inTheAir_,
           place == 3 ? CardPlace{.slot = AnySlot()} : CardPlace{.deckCard = under});
}

void Session::ByWizard(Event event) {
  const auto close = [&](bool closes) {
    if (closes) CloseSetup();
  };
  if (event == Event::WizardBegin && CanFinishWizard()) {
    fewestSeats_ = 1;  // the hidden button of a table of nine may be the second
    return close(FinishWizard());
  }
  if (event == Event::WizardCancel) return close(CanCancelWizard());
  if (event <= Event::WizardSeat) close(ClickWizardSeat(AnySeat()));
}

void Session::CloseSetup() {
  CloseWizard();
  if (!setUp_) return;  // the watcher goes on by itself
  setUp_ = false;
  SeatsChanged();
}

void Session::ByOthers(Event event) {
  switch (event) {
    case Event::Refresh: return CheckRefresh();
    case Event::Blink: return Blink();
    case Event::Watch: return WatchTable();
    case Event::WatchWizard:
      if (wizard.Open && WatchWizard()) CloseSetup();
      return;
    case Event::Clock:  // forwards or backwards
      clock.now += script_.Word() - 0x8000;
      return;
    case Event::Minimise: display.minimised = script_.Rarely(4); return;
    case Event::Desktop:
      if (mode_ == Mode::Auto) ChangeDesktop();
      return;
    default: return End();
  }
}

void Session::Show() {
  std::vector<Card> cards(table_.board.begin(), table_.board.end());
  cards.insert(cards.end(), table_.hole.begin(), table_.hole.end());
  misread_ |= HasDouble(cards);
  desktop.windows = {TableWindow(table_, kTable + static_cast<WindowHandle>(table_.layout) % 2)};
}

// The hand goes on at the table, not always by the rules.
void Session::PlayOn() {
  const int seat = 1 + script_.Any(kSeats);
  switch (script_.Any(6)) {
    case 0:
      table_ = {.layout = 1 + script_.Any(kLayouts), .heroSeat = seat, .buttonSeat = 1};
      break;
    case 1:
      table_.hole = {AnyCard(), AnyCard()};
      table_.board = {};
      table_.looks.fill(SeatLook::In);
      break;
    case 2: table_.hole = {}; break;
    case 3:
      table_.board[static_cast<std::size_t>(script_.Any(5))] =
          script_.Rarely(4) ? kNoCard : AnyCard();
      break;
    case 4:
      table_.looks[static_cast<std::size_t>(seat)] = static_cast<SeatLook>(script_.Any(3));
      break;
    default: table_.buttonSeat = script_.Any(kSeats + 1);
  }
  Show();
}

void Session::ChangeDesktop() {
  auto& windows = desktop.windows;
  const int change = script_.Any(16);
  if (change == 0) return windows.clear();
  if (change > 6 || windows.empty()) return PlayOn();
  FakeWindow& front = windows.front();
  const int x = script_.Any(200) * 4;
  const int y = script_.Any(140) * 4;
  if (change == 1 && windows.size() < 4) {
    windows.insert(windows.begin(), {.handle = kCover, .outer = {x, y, x + 300, y + 200}});
  } else if (change == 2) {
    std::erase_if(windows, [](const FakeWindow& window) { return window.handle == kCover; });
  } else if (change == 3) {
    front.caption = script_.Any(2) == 0 ? "Lobby" : script_.Text(20);
  } else if (change == 4) {  // the window moves, perhaps off the screen
    const int width = front.outer.Width();
    const int height = front.outer.Height();
    front.outer = {x - 400, y - 300, x - 400 + width, y - 300 + height};
  } else if (change == 5) {
    autoRead.CaptionAdjust = script_.Rarely(3) ? script_.Any(60) - 30 : 0;
  } else if (front.outer.Width() == 800) {  // noise over the cards
    misread_ = true;
    for (int lines = script_.Any(100); lines > 0 && !script_.Ended(); --lines) {
      PixelColor* const first = &front.At(script_.Any(256) * 3, script_.Any(256) * 2);
      std::fill_n(first, script_.Any(30), script_.Any(2) == 0 ? 0 : 0x10101u * script_.Byte());
    }
  }
}

void Session::End() {
  run.Ending = true;
  CloseWizard();
  atEnd_ = Everything();
}

std::string Session::Everything() const {
  std::ostringstream text;
  text << Figures() << results.lblAdviceLit << autoRead.lblMessage << autoRead.WatchedWindow;
  for (const SeatState state : seats.SeatStates) text << " " << state;
  for (const Card card : slots.picHand) text << " " << card;
  for (const int number :
       {seats.MySeat, seats.DealerSeat, seats.SeatCount, +seats.WatchFoldDepth, seats.AutoReadSeat,
        settings.LevelPre, settings.LevelPost, settings.Speed, +slots.BlinkPhase, slots.MarkedSlot,
        display.seatsShown, display.resultsShown, display.autoReadShown, display.settingsShown,
        static_cast<int>(display.slotsShown.size()), static_cast<int>(store.writes.size())}) {
    text << " " << number;
  }
  return text.str();
}

void Session::WorkOff() {
  while (!run.Ending && IsLater(run.LastChangeTicks, run.LastCalcTicks)) CheckRefresh();
  if (run.Ending) {
    HOLDS(Everything() == atEnd_);
    return;
  }
  HOLDS(!run.Calculating && !run.AbortRequested && !run.RecalcNeeded && !autoRead.Ticking);
  CheckTable();
  CheckFigures();
  CheckAgainstAFreshPass();
}

void Session::CheckTable() {
  for (const Card card : slots.picHand) HOLDS(card == kNoCard || IsRealCard(card));
  HOLDS(misread_ || !HasDouble(CardsInSlots()));
  HOLDS(seats.MySeat >= 1 && seats.MySeat <= kSeats);
  HOLDS(seats.DealerSeat >= (mode_ == Mode::Manual ? 1 : 0) && seats.DealerSeat <= kSeats);
  HOLDS(seats.SeatCount == 9 || seats.SeatCount == 10);
  HOLDS(Occupied() >= fewestSeats_);
  if (seats.SeatCount == 9) {
    HOLDS(seats.SeatStates[6] == Empty && seats.MySeat != 6 && seats.DealerSeat != 6);
  }
  HOLDS(slots.MarkedSlot == kNoSlot || !slots.IsFilled(slots.MarkedSlot));
  HOLDS(autoRead.WatchCycle >= 0 && autoRead.WatchCycle <= 3);
  HOLDS(!autoRead.Following() || (autoRead.TableLayout >= 1 && autoRead.TableLayout <= kLayouts));
  HOLDS(display.messages.empty());
}

// By a fresh look at the seats and slots.
void Session::CheckFigures() {
  Hand hand;
  int board = 0;
  for (const int slot : kSlotOrder) {
    if (!slots.IsFilled(slot)) continue;
    hand.entries[++hand.count].card = slots.picHand[slot];
    board += slot >= 6;
  }
  FillHand(hand, hand.count);
  int folded = 0;
  for (const SeatState state : seats.SeatStates) folded += state >= FoldedPreFlop;
  Street street = NoStreet;
  if (slots.IsFilled(0) && slots.IsFilled(1)) {
    const bool flop = slots.IsFilled(6) && slots.IsFilled(7) && slots.IsFilled(8);
    const bool early = slots.IsFilled(10) && !slots.IsFilled(9);
    if (board == 0) street = PreFlop;
    if (flop && !early && Occupied() - folded > 1) street = static_cast<Street>(board - 1);
  }
  HOLDS(analysis.CurrentStreet == street);
  HOLDS(analysis.PlayerCount == Occupied() && analysis.FoldedCount == folded);
  HOLDS(analysis.MyTablePosition >= 1 && analysis.MyTablePosition <= Occupied());
  HOLDS(analysis.PositionPercent >= 0 && analysis.PositionPercent <= 100);
  HOLDS(results.lblAdvice != kThinking);
  for (int i = 1; i <= hand.count; ++i) HOLDS(deck.DeckUsed(hand.entries[i].card));
  if (!HasDouble(CardsInSlots())) {
    HOLDS(analysis.MyHandValue == literal::EvaluateHand(hand, false));
    HOLDS(deck.CardsLeft() == 52 - hand.count);
  }
  if (street != PreFlop) HOLDS(results.lblMe[kWinSplitRow].empty() == (street == NoStreet));
  if (street < Flop) return;
  ++calculated;
  const int row = static_cast<int>(analysis.MyHandValue) - 1;
  const char* mark = street == River ? kFinal : kCurrent;
  for (int i = 0; i < kCategoryRows; ++i) HOLDS((results.lblMe[i] == mark) == (i == row));
  HOLDS(simulation.SimTally[1].deals >= 12);  // it was not stopped
}

void Session::CheckAgainstAFreshPass() {
  const std::string shown = Figures();
  const int deals = settings.DealsPerRun;
  if (analysis.CurrentStreet >= Flop) {
    settings.DealsPerRun = simulation.SimTally[1].deals;
    generator = atStart_;
  }
  const bool lit = results.lblAdviceLit;
  analysis = {};
  results = {.lblAdviceLit = lit};
  simulation = {};
  deck = {};
  advice = {.StartOpponents = advice.StartOpponents};  // stays as the flop found it
  undisturbed_ = true;
  Recalculate();
  undisturbed_ = false;
  settings.DealsPerRun = deals;
  HOLDS(Figures() == shown);
}

int FuzzProgram(Bytes bytes) {
  Script script(bytes);
  const auto mode = script.Any(4) == 0 ? Session::Mode::Manual : Session::Mode::Auto;
  Session session(mode, bytes.subspan(std::min<std::size_t>(bytes.size(), 1)));
  session.Play();
  return session.gestures;
}

}  // namespace holdem::fuzz
