// Whole numbers and percentages as the result labels show them.
#pragma once

#include <cmath>
#include <string>

namespace holdem {

// To the nearest whole number, halves to the even neighbour (the default rounding mode of the
// processor).
inline int RoundHalfEven(double value) { return static_cast<int>(std::lrint(value)); }

inline std::string PercentText(int percent) { return std::to_string(percent) + "%"; }

// With a blank in the place of the number's sign, as all figures of a simulation are written.
inline std::string BlankPercentText(int percent) { return " " + PercentText(percent); }

}  // namespace holdem
