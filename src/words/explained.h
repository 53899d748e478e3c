// What the figures on the main window mean, in words and for what they are now. Tooltips show it,
// and screen readers say it when they are asked for a description.
#pragma once

#include <string>

namespace holdem {

// Cells of the results grid, by row; the last is the chance to win or split.
std::string ExplainMine(int row);
std::string ExplainTheirs(int row);
std::string ExplainTitle(int row);

std::string ExplainScore();
std::string ExplainAdvice();

// The price at which a call pays, for chances to win and to split of 0..1.
std::string PriceOfACall(double win, double split);

// What New Hand does now, or why it cannot be pressed.
std::string ExplainNewHand();

inline constexpr const char* kAboutMe = "How often you end with each hand";
inline constexpr const char* kAboutOthers =
    "How often the best of all other hands is each of these";
inline constexpr const char* kAboutFoldDepth =
    "Opponents who fold in the simulation do so on the street of the fold at the table,\n"
    "the weakest hand there first. Otherwise all fold before the flop, by two cards alone.\n"
    "Worth it when an opponent has folded after seeing the flop.";
inline constexpr const char* kAboutDealer =
    "Dealer button: acts last from the flop on.\nNew Hand moves it to the next player.";
inline constexpr const char* kAboutSmallBlind =
    "Small blind: has put in the smaller of the two bets that come before the cards";
inline constexpr const char* kAboutBigBlind =
    "Big blind: has put in the larger of the two bets that come before the cards";

}  // namespace holdem
