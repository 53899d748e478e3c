// The results grid and the other result texts of the main window, as they stand on the screen.
// Written by: engine/ advice/ table/blink
#pragma once

#include <array>
#include <string>

#include "cards/card.h"

namespace holdem {

inline constexpr int kResultRows = 9;
inline constexpr int kCategoryRows = 8;
inline constexpr int kWinSplitRow = 8;

// Row r of 0..7 shows the hand category r + 1, since a high card has no row; row 8 is the chance to
// win or split. lbllbl holds the titles; like lblMe and lblThem it has the name of the labels that
// show it.
inline constexpr std::array<const char*, kResultRows> lbllbl = {
    "Pair",       "Two Pair",    "3 of a kind",    "Straight", "Flush",
    "Full House", "4 of a kind", "Straight Flush", "Win/Split"};

inline constexpr const char* kThinking = "Thinking...";
// On the row of the category that the user holds, while cards are to come and when all are known.
inline constexpr const char* kCurrent = "Current";
inline constexpr const char* kFinal = "Final";

// By card code: the row of the hand that an unseen card would make, or kNoOut.
using RowByCard = std::array<int, kCardCount + 1>;
inline constexpr int kNoOut = -1;

constexpr RowByCard NoOuts() {
  RowByCard rows{};
  rows.fill(kNoOut);
  return rows;
}

struct Results {
  std::array<std::string, kResultRows> lblMe;    // the user's column
  std::array<std::string, kResultRows> lblThem;  // the best other player's column
  std::string lblAdvice;
  bool lblAdviceLit = true;      // it blinks
  std::string lblCurrentScore;   // the user's current hand in words
  RowByCard OutRows = NoOuts();  // the markers in the deck window, in the colours of their rows

  bool operator==(const Results&) const = default;
};

inline Results results;

}  // namespace holdem
