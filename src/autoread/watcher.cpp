#include "autoread/watcher.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <vector>

#include "autoread/layouts.h"
#include "autoread/mod_card_read.h"
#include "autoread/mod_windows.h"
#include "engine/run_protocol.h"
#include "platform/display.h"
#include "platform/ports.h"
#include "state/auto_read.h"
#include "state/run.h"
#include "state/seats.h"
#include "state/slots.h"
#include "state/wizard.h"
#include "table/card_slots.h"
#include "table/history.h"
#include "table/refresh.h"

namespace holdem {
namespace {

constexpr int kDiscoveryEvery = 3;  // ticks

// What a tick reads of the table, all of it before anything is written: a window that dies or is
// covered in between would otherwise read as a table without cards.
struct TableReading {
  int dealerSeat;
  std::vector<Card> hole;
  std::vector<Card> board;
  std::array<bool, kSeats + 1> holding;  // by seat 1..10
};

// A new button position counts only when two readings differ from the known one; the second is
// taken.
std::optional<int> ReadDealerSeat() {
  const auto first = modCardRead::FindDealerSeat();
  if (!first || *first == seats.DealerSeat) return first;
  return modCardRead::FindDealerSeat();
}

bool IsCovered() {
  return modWindows::IsTableObscured(autoRead.WatchedWindow, modWindows::Points::SeatsOfTable);
}

std::optional<TableReading> ReadTable() {
  const std::array<modCardRead::CardPosition, 7> positions = {{{seats.MySeat, 1},
                                                               {seats.MySeat, 2},
                                                               {kBoardSeat, 1},
                                                               {kBoardSeat, 2},
                                                               {kBoardSeat, 3},
                                                               {kBoardSeat, 4},
                                                               {kBoardSeat, 5}}};
  const auto dealerSeat = ReadDealerSeat();
  const auto cards = modCardRead::ReadCards(positions);
  const auto holding = modCardRead::SeatsHoldingCards();
  if (!dealerSeat || !cards || !holding || IsCovered()) return std::nullopt;
  return TableReading{.dealerSeat = *dealerSeat,
                      .hole = {cards->begin(), cards->begin() + 2},
                      .board = {cards->begin() + 2, cards->end()},
                      .holding = *holding};
}

// Each of these returns whether it changed something.

bool FollowDealer(int dealerSeat) {
  if (dealerSeat == seats.DealerSeat) return false;
  seats.DealerSeat = dealerSeat;
  return true;
}

bool FollowSlots(std::span<const int> places, const std::vector<Card>& cards) {
  bool changed = false;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (slots.picHand[places[i]] == cards[i]) continue;
    FillSlot(places[i], cards[i]);
    changed = true;
  }
  return changed;
}

bool FollowHand(const std::vector<Card>& hole) {
  const bool bothRead = hole[0] != kNoCard && hole[1] != kNoCard;
  const bool changed = bothRead != autoRead.InHand;
  if (changed) {
    autoRead.InHand = bothRead;
    if (bothRead) {
      seats.SeatStates.fill(Empty);
      seats.SeatStates[seats.MySeat] = In;
    } else {  // folded, or the hand is over
      seats.SeatStates[seats.MySeat] = FoldStateForStreet();
    }
  }
  autoRead.lblMessage = autoRead.InHand ? "You are active in this hand" : "Not actively in hand";
  return changed;
}

// A seat that shows no cards stays empty or folded when it was.
bool FollowOpponents(const std::array<bool, kSeats + 1>& holding) {
  bool changed = false;
  for (int seat = 1; seat <= kSeats; ++seat) {
    SeatState& state = seats.SeatStates[seat];
    if (seat == seats.MySeat || holding[seat] == (state == In)) continue;
    state = holding[seat] ? In : FoldStateForStreet();
    changed = true;
  }
  return changed;
}

bool FollowTable(const TableReading& reading) {
  bool changed = FollowDealer(reading.dealerSeat);
  changed |= FollowSlots(kHoleSlots, reading.hole);
  changed |= FollowHand(reading.hole);
  changed |= FollowSlots(kBoardSlots, reading.board);
  changed |= FollowOpponents(reading.holding);
  return changed;
}

// A tick that has yielded may come back to a program that is ending, to an open wizard or to a card
// in the air.
bool MustStop() { return run.Ending || wizard.Open; }
bool MustNotRead() { return MustStop() || slots.CardInTheAir; }

void TakeSeatCount() {
  const bool ofNine = LayoutOf(autoRead.TableLayout).ofNine;
  if (seats.IsOfNine() == ofNine) return;
  ForgetHistory();
  SetNineSeats(ofNine);
}

bool HasItsMarker(const WindowRecord& table) {
  return !LayoutOf(table.layout).hasMarker || modCardRead::HasLayout3Marker(table.windowHandle);
}

bool IsHoldemTable(const WindowRecord& table) {
  if (LayoutOf(table.layout).hasMarker) return modCardRead::HasLayout3Marker(table.windowHandle);
  std::string caption = table.caption;
  for (char& c : caption) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return modWindows::Matches(caption, "*hold'em*");
}

void BeginToFollow(const WindowRecord& table) {
  autoRead.CurrentTable = table;
  autoRead.WatchedWindow = table.windowHandle;
  const int known = autoRead.IsSeatConfirmed() ? autoRead.SeatConfirmedLayout : 0;
  if (known != 0 && modWindows::MayShow(table, known)) autoRead.CurrentTable.layout = known;
  autoRead.TableLayout = autoRead.CurrentTable.layout;
  autoRead.InHand = false;
  TakeSeatCount();
  if (MustStop()) return;
  if (autoRead.IsSeatConfirmed()) {
    seats.MySeat = seats.AutoReadSeat;
  } else {
    ports.display->AskSeat();
  }
}

bool Discover() {
  modWindows::FindTableWindows();
  const auto& candidates = autoRead.TableCandidates;
  const auto found =
      std::find_if(candidates.begin(), candidates.end(), [](const WindowRecord& table) {
        modWindows::MeasureCaption(table.windowHandle);
        return !modWindows::IsTableObscured(table.windowHandle, modWindows::Points::WholeWindow) &&
               IsHoldemTable(table);
      });
  if (found == candidates.end()) return false;
  BeginToFollow(*found);
  return autoRead.IsSeatConfirmed();  // not when the table went away over the question
}

bool IsTableReadable() {
  if (!autoRead.Following()) return autoRead.WatchCycle == 1 && Discover();
  modWindows::MeasureCaption(autoRead.WatchedWindow);
  return !IsCovered() && HasItsMarker(autoRead.CurrentTable) && !modWindows::HasAnotherLayout();
}

void ReturnToManualMode() {
  autoRead.lblMessage.clear();
  autoRead.WatchedWindow = 0;
}

void Tick() {
  const bool followed = autoRead.Following();
  const int mySeat = seats.MySeat;
  autoRead.WatchCycle = autoRead.WatchCycle % kDiscoveryEvery + 1;
  const bool readable = IsTableReadable();
  if (MustStop()) return;
  if (readable) TakeSeatCount();
  if (MustNotRead()) return;
  const auto reading = readable ? ReadTable() : std::nullopt;
  const bool changed = reading && FollowTable(*reading);
  if (!reading) ReturnToManualMode();
  ports.display->ShowAutoRead();
  if (changed || seats.MySeat != mySeat) {
    ForgetHistory();
    RefreshTable(false);
    MarkTableChanged();
  } else if (followed != autoRead.Following()) {
    ports.display->ShowSeats();  // empty seats look different
  }
}

}  // namespace

void WatchTable() {
  if (autoRead.Ticking || MustNotRead()) return;
  if (ports.display->IsMainWindowMinimised()) return;
  autoRead.Ticking = true;
  Tick();
  autoRead.Ticking = false;
}

}  // namespace holdem
