// The results grid and the other result texts of the main window, as they stand on the screen.
#pragma once

#include <array>
#include <string>

#include "cards/card.h"
#include "state/color.h"

namespace holdem {

struct ResultRow {
  const char* caption;
  Color color;
};

// Rows 0..7 stand for the hand category one above; row 8 is the chance to win or split.
inline constexpr std::array<ResultRow, 9> lbllbl = {{{"Pair", {224, 224, 224}},
                                                     {"Two Pair", {192, 192, 192}},
                                                     {"3 of a kind", {255, 192, 128}},
                                                     {"Straight", {128, 255, 128}},
                                                     {"Flush", {128, 255, 255}},
                                                     {"Full House", {128, 128, 255}},
                                                     {"4 of a kind", {255, 128, 255}},
                                                     {"Straight Flush", {255, 255, 0}},
                                                     {"Win/Split", {255, 255, 255}}}};
inline constexpr Color kResultRowText{0, 0, 192};
inline constexpr int kCategoryRows = 8;
inline constexpr int kWinSplitRow = 8;

inline constexpr const char* kThinking = "Thinking...";
inline constexpr const char* kCurrent =
    "Current";                                  // on the row of the category that the user holds
inline constexpr const char* kFinal = "Final";  // likewise, with all cards known

// By card code: the row of the hand that an unseen card would make, or kNoOut.
using RowByCard = std::array<int, kCardCount + 1>;
inline constexpr int kNoOut = -1;

constexpr RowByCard NoOuts() {
  RowByCard rows{};
  rows.fill(kNoOut);
  return rows;
}

struct Results {
  std::array<std::string, 9> lblMe;    // the user's column
  std::array<std::string, 9> lblThem;  // the best other player's column
  std::string lblAdvice;
  Color lblAdviceColor = kWhite;  // blinks between white and the table green
  std::string lblCurrentScore;    // the user's current hand in words
  RowByCard OutRows = NoOuts();   // the markers in the deck window, in the colours of their rows

  bool operator==(const Results&) const = default;
};

inline Results results;

}  // namespace holdem
