#include "words/in_words.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <span>
#include <sstream>

#include "autoread/setup_wizard.h"
#include "cards/description.h"
#include "figures/percent_text.h"
#include "gestures/seat_gestures.h"
#include "state/advice_values.h"
#include "state/analysis.h"
#include "state/results.h"
#include "state/seats.h"
#include "state/slots.h"
#include "state/wizard.h"

namespace holdem {
namespace {

constexpr std::array<const char*, kRiverSlot + 1> kSlotNames = {
    "First hole card",  "Second hole card", "",     "",     "", "", "First flop card",
    "Second flop card", "Third flop card",  "Turn", "River"};
constexpr std::array<const char*, FoldedRiver + 1> kStateNames = {
    "empty", "in", "folded", "folded on the flop", "folded on the turn", "folded on the river"};

// A percentage without the blank that stands before it in the grid.
std::string Trimmed(const std::string& figure) { return figure.substr(figure.starts_with(' ')); }

// As "As Kd"; empty without a card.
std::string InShorthand(std::span<const Slot> of) {
  std::string cards;
  for (const Slot slot : of) {
    if (!slots.IsFilled(slot)) continue;
    if (!cards.empty()) cards += ' ';
    cards += CardInShorthand(slots.picHand[slot]);
  }
  return cards;
}

}  // namespace

std::string SeatInWords(Seat seat) {
  std::string words = "Seat " + std::to_string(seat) + ": ";
  const SeatState state = seats.SeatStates[seat];
  const bool streetShown = seats.WatchFoldDepth || !IsFolded(state);
  words += seat == seats.MySeat ? "yours" : kStateNames[streetShown ? state : FoldedPreFlop];
  const ButtonMarks& marks = seats.Marks;
  if (seat == marks.dealer) words += ", dealer button";
  if (seat == marks.smallBlind) words += ", small blind";
  if (seat == marks.bigBlind) words += ", big blind";
  return words;
}

std::string SeatTip(Seat seat) {
  const bool isIn = seats.SeatStates[seat] == In;
  if (seat == seats.MySeat)
    return SeatInWords(seat) + "\nRight-click: menu, with the dealer button";
  std::string tip = SeatInWords(seat);
  if (MayPlayOrFold(seat)) tip += isIn ? "\nClick: folds" : "\nClick: is in";
  if (isIn && MayBeVacated(seat)) tip += "; double-click: empty";
  return tip + "\nRight-click: menu";
}

std::string SeatKeys(Seat seat) {
  if (seat == seats.MySeat) return "Menu key: the dealer button.";
  std::string keys;
  if (MayPlayOrFold(seat))
    keys += seats.SeatStates[seat] == In ? "Space: folds. " : "Space: is in. ";
  if (seats.SeatStates[seat] != Empty && MayBeVacated(seat)) keys += "Delete: empty. ";
  return keys + "Menu key: more.";
}

std::string SlotInWords(Slot slot) {
  const std::string name = std::string(kSlotNames[slot]) + ": ";
  if (slots.IsFilled(slot)) return name + CardInWords(slots.picHand[slot]);
  return name + (slot == slots.TypedSlot ? TypedInWords() : "empty");
}

std::string TypedInWords() {
  return (slots.TypedRank == 'T' ? "10" : std::string(1, slots.TypedRank)) + "_";
}

std::string SlotTip(Slot slot) {
  return SlotInWords(slot) + (slots.IsFilled(slot) ? "\nRight-click: back to the deck"
                                                   : "\nDouble-click: a random card");
}

std::string SlotKeys(Slot slot) {
  if (slots.IsFilled(slot)) return "Delete: back to the deck.";
  return "Rank and suit letters: that card. Space: a random card.";
}

std::string DeckCardInWords(Card card) {
  const std::string words = CardInWords(card) + ", in the deck";
  const int row = results.OutRows[card];
  return row == kNoOut ? words : words + ", an out for " + lbllbl[row];
}

std::string DeckCardTip(Card card) {
  return results.OutRows[card] == kNoOut ? std::string() : DeckCardInWords(card);
}

std::string ScoreInWords() {
  return results.lblCurrentScore.empty() ? "No hand yet" : results.lblCurrentScore;
}

std::string AdviceInWords() { return results.lblAdvice.empty() ? "No advice" : results.lblAdvice; }

std::string MeterInWords() {
  if (advice.MeterScore == kNoScore) return "Hand meter: empty";
  const double share = (std::clamp(advice.MeterScore, -1.0, 2.0) + 1) / 3;
  return "Hand meter: " + std::to_string(RoundHalfEven(100 * share)) +
         " on a scale from 0, fold, to 100, raise";
}

std::string WizardSeatInWords(Seat seat) {
  std::string name = "Seat " + std::to_string(seat);
  if (wizard.ChosenDealer == 0) return name;
  switch (MarkOfSeat(seat)) {
    case SeatMark::Face: return name + ": yours";
    case SeatMark::Button: return name + ": dealer button";
    case SeatMark::FaceAndButton: return name + ": yours, dealer button";
    case SeatMark::Ticked: return name + ": occupied";
    case SeatMark::Unticked: return name + ": empty";
  }
  return name;
}

std::string WizardSeatTip(Seat seat) {
  std::string tip = WizardSeatInWords(seat);
  if (!CanClickWizardSeat(seat)) return tip;
  if (wizard.ChosenSeat == 0) return tip + "\nClick: you sit here";
  if (wizard.ChosenDealer == 0) return tip + "\nClick: the button is here";
  return tip + (wizard.Present[seat] ? "\nClick: empty" : "\nClick: occupied");
}

std::string TableInWords() {
  std::ostringstream text;
  text << "Hand: " << InShorthand(kHoleSlots) << "\nBoard: " << InShorthand(kBoardSlots)
       << "\nPlayers: " << analysis.PlayerCount << ", folded: " << analysis.FoldedCount << "\n\n"
       << std::left << std::setw(16) << "" << std::setw(10) << "Me"
       << "Another player\n";
  for (int row = 0; row < kResultRows; ++row) {
    text << std::setw(16) << lbllbl[row] << std::setw(10) << Trimmed(results.lblMe[row])
         << Trimmed(results.lblThem[row]) << "\n";
  }
  text << "\n" << results.lblCurrentScore << "\n" << results.lblAdvice << "\n";
  return text.str();
}

Answer AnswerInWords() {
  std::string chance = Trimmed(results.lblMe[kWinSplitRow]);
  if (chance.ends_with('%'))
    chance = "win or split " + chance.replace(chance.size() - 1, 1, " percent");
  return {results.lblCurrentScore, chance, results.lblAdvice};
}

std::string News(const Answer& before, const Answer& now) {
  std::string sentence;
  bool isNew = false;
  for (std::size_t part = 0; part < now.size(); ++part) {
    if (now[part].empty()) continue;
    isNew |= now[part] != before[part];
    if (!sentence.empty()) sentence += ", ";
    sentence += now[part];
  }
  return isNew ? sentence : std::string();
}

std::string CellInWords(const std::string& whose, int row, const std::string& text) {
  return whose + ", " + lbllbl[row] + ": " + (text.empty() ? "no figure" : Trimmed(text));
}

}  // namespace holdem
