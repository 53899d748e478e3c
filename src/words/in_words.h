// What the windows show as pictures, in words. Screen readers say it, and tooltips begin with it.
#pragma once

#include <array>
#include <string>

#include "cards/card.h"
#include "state/seats.h"
#include "state/slots.h"

namespace holdem {

std::string SeatInWords(Seat seat);
std::string SlotInWords(Slot slot);
std::string TypedInWords();  // the rank that waits for its suit, as "10_"
std::string DeckCardInWords(Card card);
std::string ScoreInWords();
std::string AdviceInWords();
std::string MeterInWords();
std::string WizardSeatInWords(Seat seat);

// What the keys do now on the seat or slot that has the keyboard.
std::string SeatKeys(Seat seat);
std::string SlotKeys(Slot slot);

// The tooltips: the words above, and what the mouse does there. DeckCardTip is empty for a card
// that is no out.
std::string SeatTip(Seat seat);
std::string SlotTip(Slot slot);
std::string WizardSeatTip(Seat seat);
std::string DeckCardTip(Card card);

// Hand, board, figures and advice, as lines of text for the clipboard.
std::string TableInWords();

// What a player waits for: the hand in words, the chance and the advice, empty where there is none.
using Answer = std::array<std::string, 3>;
Answer AnswerInWords();

// The answer as one sentence; empty when no part of it is new.
std::string News(const Answer& before, const Answer& now);

// A cell of the results grid: whose it is, its row, its text.
std::string CellInWords(const std::string& whose, int row, const std::string& text);

}  // namespace holdem
