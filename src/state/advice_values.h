// The figures behind the advice, before and after the flop.
// Written by: advice/ engine/simulation table/history
#pragma once

#include <array>

namespace holdem {

// On the score scale: no score, the meter shows no pointer.
inline constexpr double kNoScore = -10;

// Where one zone of the advice ends and the next begins; each zone has its own advice.
inline constexpr std::array<double, 4> kZoneBorders = {0, 0.5, 1.0, 1.5};
inline constexpr int kZones = kZoneBorders.size() + 1;

struct AdviceValues {
  int StartOpponents = 0;        // opponents dealt in, as the last pre-flop step found them
  float WinSplitChance = 0;      // the user's chance to win or split, 0..1
  double FairShare = 0;          // one over the number of players
  float LevelFactor = 0;         // how many fair shares are asked for
  double MeterThreshold = 0;     // LevelFactor x FairShare
  double MeterValue = 0;         // the advice score: -1 hopeless, 0 at the threshold, 2 certain
  double MeterScore = kNoScore;  // the score that the meter shows

  bool operator==(const AdviceValues&) const = default;
};

inline AdviceValues advice;

}  // namespace holdem
