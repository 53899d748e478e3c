// The setup wizard's window as designed, in twips.
#pragma once

#include <array>

#include "platform/canvas.h"
#include "state/seats.h"

namespace holdem::wizard_layout {

inline constexpr Rect kWindow{0, 0, 4680, 4020};
inline constexpr Rect kTable{900, 1260, 2895, 1875};
inline constexpr Rect kTitle{360, 180, 4035, 495};
inline constexpr Rect kPrompt{1320, 1620, 2115, 1155};
inline constexpr Rect kBegin{3360, 3540, 1155, 375};
inline constexpr Rect kCancel{180, 3600, 795, 315};

// By seat 1..10, clockwise as on the main window.
inline constexpr std::array<Rect, kSeats + 1> kSeatButtons = {{{},
                                                               {2880, 780, 675, 435},
                                                               {3720, 1380, 675, 435},
                                                               {3900, 2160, 675, 435},
                                                               {3480, 2880, 675, 435},
                                                               {2520, 3240, 675, 435},
                                                               {1560, 3240, 675, 435},
                                                               {660, 2940, 675, 435},
                                                               {120, 2220, 675, 435},
                                                               {300, 1440, 675, 435},
                                                               {1080, 780, 675, 435}}};
inline constexpr double kLeftClosingUp = 2040;  // of the seat that closes up a table of nine

}  // namespace holdem::wizard_layout
