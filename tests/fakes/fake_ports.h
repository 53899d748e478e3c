// Scriptable stand-ins for everything outside the core, and the fixture of every test of
// process-wide state: it begins in a known world, writes seats and cards as text, and sees what a
// gesture has set off.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <set>

#include "cards/deck.h"
#include "cards/random.h"
#include "fakes/approved.h"
#include "fakes/fake_desktop.h"
#include "platform/clock.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "reference/card_text.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/auto_read.h"
#include "state/history.h"
#include "state/results.h"
#include "state/run.h"
#include "state/screen.h"
#include "state/settings.h"
#include "state/slots.h"
#include "state/wizard.h"

namespace holdem {

// How hard the heavy tests work: under a sanitizer, which slows everything, a twentieth will do.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif

constexpr int Effort(int count) { return kSanitized ? count / 20 : count; }

// The kinds of tables that a sweep has met, each with how often; it fails when one is rare. Of each
// fact: what is so, in how many ways it can be - or not and so - and in which it is; -1 for none.
using Kinds = std::map<std::string, int>;
inline void Meet(Kinds& kinds, const std::vector<std::tuple<std::string, int, int>>& facts) {
  for (const auto& [fact, ways, is] : facts)
    for (int way = 0; way < ways; ++way) kinds[fact + " " + std::to_string(way)] += way == is;
}

struct FakeDisplay : Display {
  void ShowSeats() override { ++shown["seats"]; }
  void ShowSlot(Slot slot) override { ++shown["slot " + std::to_string(slot)]; }
  void ShowDeck() override { ++shown["deck"]; }
  void ShowResults() override { ++shown["results"]; }
  void ShowMeter() override { ++shown["meter"]; }
  void ShowAutoRead() override { ++shown["auto read"]; }
  void ShowSettings() override { ++shown["settings"]; }
  void Yield() override {
    ++yields;
    if (atYield) atYield(yields);
  }
  bool IsMainWindowMinimised() override { return minimised; }
  void AskSeat() override {
    ++shown["wizard"];
    if (atAskSeat) atAskSeat();
  }
  void ShowMessage(const std::string& text) override { messages.push_back(text); }

  std::map<std::string, int> shown;  // how often
  int yields = 0;
  std::function<void(int yield)> atYield;  // the user's hand in the middle of a run; yields from 1
  std::function<void()> atAskSeat;         // the user's hand in the wizard
  bool minimised = false;
  std::vector<std::string> messages;
};

struct FakeSettingsStore : SettingsStore {
  std::string Read(const std::string& key) override { return texts[key]; }
  void Write(const std::string& key, const std::string& text) override {
    writes.push_back(key + "=" + text);
    texts[key] = text;
  }

  std::map<std::string, std::string> texts;
  std::vector<std::string> writes;
};

// With the separators of the system.
inline std::string Path(std::filesystem::path path) { return path.make_preferred().string(); }

struct FakeShell : Shell {
  std::string ProgramFolder() override { return folder; }
  bool Exists(const std::string& path) override { return existing.contains(path); }
  void Open(const std::string& path) override { opened.push_back(path); }

  std::string folder = Path("/opt/pellucor");
  std::set<std::string> existing;
  std::vector<std::string> opened;
};

struct FakeClock : Clock {
  std::int32_t Milliseconds() override { return now; }

  std::int32_t now = 1000;  // cranked by hand
};

// The state of a program whose windows have just been shown - user on seat 2, button on seat 1, ten
// seats in, no cards, all that it knows from its start loaded - and the fakes around it.
struct FakeWorld {
  FakeWorld() {
    seats = {.MySeat = 2, .DealerSeat = 1};
    slots = {.DeckShown = true};
    run = {};
    analysis = {};
    advice = {};
    results = {};
    history = {};
    settings = {.DealsPerRun = 12};
    autoRead = {};
    screenState = {};
    wizard = {};
    deck = {};
    generator.Seed(1);
    ports = {&display, &store, &shell, &clock, &desktop};
  }
  ~FakeWorld() { ports = {}; }

  // A table of layout 1, followed; its window is 77.
  void FollowATable() {
    desktop.windows = {{.handle = 77, .caption = "Table", .outer = {0, 0, 800, 562}}};
    autoRead.CurrentTable = {0, 77, "#32770", "Table", 800, 562, 1};
    autoRead.WatchedWindow = 77;
    autoRead.TableLayout = 1;
  }

  FakeDisplay display;
  FakeSettingsStore store;
  FakeShell shell;
  FakeClock clock;
  FakeDesktop desktop;
};

inline constexpr const char* kFlopHand = "AS 9D 2C 5H KH";
inline constexpr const char* kTurnHand = "AS 9D 2C 5H KH 7S";
inline constexpr const char* kRiverHand = "AS 9D 2C 5H KH 7S JD";

struct ProgramTest : testing::Test, FakeWorld {
  // Cards for the slots in the order of filling; "--" leaves one empty.
  static decltype(Slots::picHand) SlotsOf(const std::string& cards) {
    decltype(Slots::picHand) held{};
    const std::vector<Card> all = CardsOf(cards);
    for (std::size_t i = 0; i < all.size(); ++i) held[kSlotOrder.at(i)] = all[i];
    return held;
  }
  static void Put(const std::string& cards) { slots.picHand = SlotsOf(cards); }

  static std::string Cards(const decltype(Slots::picHand)& held = slots.picHand) {
    std::string cards;
    for (const int slot : kSlotOrder) cards += (cards.empty() ? "" : " ") + TextOf(held[slot]);
    return cards;
  }

  // Seats 1..10 ('.' empty, 'i' in, '2' to '5' folded), the user's seat, the button, as in
  // ".i3iiiiiii 2 1".
  static void PutSeats(const std::string& text) {
    std::string states;
    int me = 0, button = 0;
    std::istringstream(text) >> states >> me >> button;
    seats.MySeat = me;
    seats.DealerSeat = button;
    for (int seat = 1; seat <= kSeats; ++seat)
      seats.SeatStates[seat] = SeatState(std::string(".i2345").find(states.at(seat - 1)));
  }
  static std::string Seating(const Seats& at = seats) {
    std::string text;
    for (int seat = 1; seat <= kSeats; ++seat) text += ".i2345"[at.SeatStates[seat]];
    return text + " " + std::to_string(at.MySeat) + " " + std::to_string(at.DealerSeat);
  }

  int Random(int below) { return static_cast<int>(random() % below); }

  // Every sixth table or so is heads-up; the button is often the user's.
  void PutRandomTable() {
    const int taken = Random(5);  // of five
    for (SeatState& state : seats.SeatStates)
      state = Random(5) < taken ? SeatState{std::max<int>(In, Random(9) - 3)} : Empty;
    const int other = 1 + Random(kSeats);
    seats.MySeat = 1 + (other + Random(kSeats - 1)) % kSeats;
    if (Random(6) > 0) seats.SeatStates[other] = Random(6) == 0 ? FoldedFlop : In;
    seats.SeatStates[0] = Empty;
    seats.SeatStates[seats.MySeat] = SeatState{Random(6)};
    seats.DealerSeat = std::array<Seat, 3>{seats.MySeat, other, Random(kSeats + 1)}[Random(3)];
  }

  // Half of the time few ranks and two suits: pairs, straights and flushes, in the hand and on the
  // board.
  void PutRandomCards() {
    const bool few = Random(2) == 0;
    const int count = std::array{0, 1, 2, 2, 2, 2, 2, 3, 4, 5, 5, 6, 6, 7}[Random(14)];
    deck = {};
    slots.picHand = {};
    for (int i = 0; i < count; ++i) {
      Card card = DealRandomCard();
      while (few && (RankOf(card) % 12 > 6 || SuitOf(card) > 2)) card = DealRandomCard();
      if (Random(20) != 0) slots.picHand[kSlotOrder[i]] = card;
    }
  }

  // What a gesture sets off: no pass, a pass that redoes the figures, or one that calculates anew.
  enum Reaction { Nothing, Redone, Calculated };

  template <typename Gesture>
  Reaction ReactionTo(Gesture gesture) {
    run.RecalcNeeded = false;
    run.LastCalcTicks = run.LastChangeTicks + 1;
    results.lblMe[8] = "old";
    gesture();
    if (run.LastCalcTicks != run.LastChangeTicks) return Nothing;
    return results.lblMe[8] == "old" ? Redone : Calculated;
  }

  std::minstd_rand random;
};

}  // namespace holdem
