// The colours of the results grid's row titles, by which the outs in the deck window are told too.
#pragma once

#include <array>

#include "platform/color.h"
#include "state/results.h"

namespace holdem {

inline constexpr std::array<Color, kResultRows> kRowColors = {{{224, 224, 224},
                                                               {192, 192, 192},
                                                               {255, 192, 128},
                                                               {128, 255, 128},
                                                               {128, 255, 255},
                                                               {128, 128, 255},
                                                               {255, 128, 255},
                                                               {255, 255, 0},
                                                               {255, 255, 255}}};
inline constexpr Color kRowTitleText{0, 0, 192};

}  // namespace holdem
