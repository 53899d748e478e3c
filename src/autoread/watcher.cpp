#include "autoread/watcher.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

#include "autoread/confirmed_tables.h"
#include "autoread/last_look.h"
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
#include "table/seat_rules.h"

namespace holdem {
namespace {

using modCardRead::TableReading;

constexpr int kDiscoveryEvery = 3;  // ticks

bool IsCovered() {
  return modWindows::IsTableObscured(autoRead.WatchedWindow, modWindows::Points::SeatsOfTable);
}

// Two things must be seen twice. A button that has moved is believed only when the look before
// showed it moved too. In layouts where cards move, a card is believed only when the look before
// showed it too: it may have been caught while it was drawn. In place of what is not believed stand
// the button as known, and no card.
TableReading WithoutWhatIsNew(TableReading reading, const TableReading& before) {
  if (before.dealerSeat == seats.DealerSeat) reading.dealerSeat = seats.DealerSeat;
  if (!LayoutOf(autoRead.TableLayout).cardsMove) return reading;
  for (std::size_t i = 0; i < reading.cards.size(); ++i) {
    if (reading.cards[i] != before.cards[i]) reading.cards[i] = kNoCard;
  }
  return reading;
}

// Takes everything from one look, the last, and before anything is written: a table that is
// cleared, closed or covered between two readings would look like another.
std::optional<TableReading> ReadTable() {
  constexpr int kMostLooks = 6;
  TableReading before{.dealerSeat = seats.DealerSeat};
  for (int look = 1;; ++look) {
    const auto now = modCardRead::LookAtTable();
    if (!now) return std::nullopt;
    const TableReading sure = WithoutWhatIsNew(*now, before);
    if (sure == *now || look == kMostLooks) return sure;
    before = *now;
  }
}

// Each of these returns whether it changed something.

bool FollowDealer(Seat dealerSeat) {
  return std::exchange(seats.DealerSeat, dealerSeat) != dealerSeat;
}

bool FollowSlots(std::span<const Slot> of, std::span<const Card> cards) {
  bool changed = false;
  for (std::size_t i = 0; i < of.size(); ++i) {
    if (slots.picHand[of[i]] == cards[i]) continue;
    FillSlot(of[i], cards[i]);
    changed = true;
  }
  return changed;
}

bool FollowHand(std::span<const Card> hole) {
  const bool bothRead = hole[0] != kNoCard && hole[1] != kNoCard;
  const bool changed = std::exchange(autoRead.InHand, bothRead) != bothRead;
  if (changed && bothRead) seats.SeatStates.fill(Empty);
  // Whoever is no longer in it has folded, or the hand is over.
  if (changed) seats.SeatStates[seats.MySeat] = bothRead ? In : FoldStateForStreet();
  autoRead.lblMessage = bothRead ? "You are active in this hand" : "Not actively in hand";
  return changed;
}

// An empty or folded seat that shows no cards stays what it is.
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
  const auto hole = std::span(reading.cards).first(2);
  const auto board = std::span(reading.cards).subspan(2);
  bool changed = FollowDealer(reading.dealerSeat);
  changed |= FollowSlots(kHoleSlots, hole);
  changed |= FollowHand(hole);
  changed |= FollowSlots(kBoardSlots, board);
  changed |= FollowOpponents(reading.holding);
  return changed;
}

// Asked whenever a tick may have yielded: it may come back to a program that is ending, to an open
// wizard or to a card in the air.
bool MustStop() { return run.Ending || wizard.Open; }
bool MustNotRead() { return MustStop() || slots.CardInTheAir; }

void TakeSeatCount() {
  const bool ofNine = LayoutOf(autoRead.TableLayout).ofNine;
  if (seats.IsOfNine() == ofNine) return;
  ForgetHistory();
  SetNineSeats(ofNine);
}

bool IsHoldemTable(const WindowRecord& table) {
  if (LayoutOf(table.layout).hasMarker) return modCardRead::HasLayout3Marker(table.windowHandle);
  return modWindows::SaysHoldem(table.caption);
}

// Nobody else writes these three; ReturnToManualMode ends it.
void Follow(const WindowRecord& table) {
  if (table.windowHandle != autoRead.CurrentTable.windowHandle) ForgetHistory();
  autoRead.CurrentTable = table;
  autoRead.WatchedWindow = table.windowHandle;
  autoRead.TableLayout = table.layout;
}

void BeginToFollow(WindowRecord table) {
  KeepSeat();
  Follow(table);
  if (const ConfirmedTable* const known = Confirmed()) {
    if (modWindows::MayShow(table, known->layout)) {
      table.layout = known->layout;
      Follow(table);
    }
    seats.AutoReadSeat = known->seat;
  }
  autoRead.InHand = false;
  TakeSeatCount();
  if (MustStop()) return;
  if (Confirmed() == nullptr) return ports.display->AskSeat();
  seats.MySeat = seats.AutoReadSeat;
}

bool Discover() {
  ForgetClosedTables();
  modWindows::FindTableWindows();
  const auto& candidates = autoRead.TableCandidates;
  const auto found = std::ranges::find_if(candidates, [](const WindowRecord& table) {
    modWindows::MeasureCaptionBar(table.windowHandle);
    return !modWindows::IsTableObscured(table.windowHandle, modWindows::Points::WholeWindow) &&
           IsHoldemTable(table);
  });
  if (found == candidates.end()) return false;
  BeginToFollow(*found);
  return Confirmed() != nullptr;  // false if the table went away while the user was asked
}

bool IsTableReadable() {
  if (!autoRead.Following() && (autoRead.WatchCycle != 1 || !Discover())) return false;
  if (MustStop()) return false;
  modWindows::MeasureCaptionBar(autoRead.WatchedWindow);
  return !IsCovered() && !modWindows::HasAnotherLayout();
}

void ReturnToManualMode() {
  if (autoRead.Following()) {
    ExplainLoss();
  } else if (autoRead.WatchCycle == 1) {
    ExplainDiscovery();
  }
  autoRead.lblMessage.clear();
  autoRead.WatchedWindow = 0;
}

// Whether the window followed is a table, whatever it was taken for before. If it is, it is
// followed as what it is now.
bool IsStillATable() {
  const auto table = modWindows::CollectWindow(autoRead.WatchedWindow);
  if (!table || table->layout == 0 || !IsHoldemTable(*table)) return false;
  if (table->layout != autoRead.TableLayout) autoRead.InHand = false;
  Follow(*table);
  return !IsCovered() && modCardRead::LookAtTable();
}

void Tick() {
  const bool followed = autoRead.Following();
  const Seat mySeat = seats.MySeat;
  autoRead.WatchCycle = autoRead.WatchCycle % kDiscoveryEvery + 1;
  const bool readable = IsTableReadable();
  if (MustStop()) return;
  if (readable) TakeSeatCount();
  if (MustNotRead()) return;
  auto reading = readable ? ReadTable() : std::nullopt;
  if (reading && IsCovered()) reading.reset();
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

void LookAgainAtTable() {
  if (!autoRead.Following()) return;
  const bool inATick = std::exchange(autoRead.Ticking, true);
  if (IsStillATable()) {
    TakeSeatCount();
  } else {
    ReturnToManualMode();
    ports.display->ShowAutoRead();
    ports.display->ShowSeats();
  }
  autoRead.Ticking = inATick;
}

}  // namespace holdem
