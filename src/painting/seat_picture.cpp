#include "painting/seat_picture.h"

#include <array>

#include "state/auto_read.h"

namespace holdem {
namespace {

void PrintSeatLabel(Canvas& surface, SeatState folded) {
  constexpr std::array<const char*, FoldedRiver + 1> kStreetLabels = {"",     "",     "PreFlop",
                                                                      "Flop", "Turn", "River"};
  const char* const text = kStreetLabels[folded];
  // Centred by its width in the main window's own font.
  const double width = surface.TextSize(text, kMainWindowFont).width;
  surface.Text((surface.OuterSize().width - width) / 2, 0, text, {FontFamily::SmallFonts, 7},
               kBlack);
}

Picture SeatImage(Seat seat) {
  if (seat == seats.MySeat) return Picture::SeatMe;
  if (seats.SeatStates[seat] == Empty) return Picture::SeatEmpty;
  return seats.SeatStates[seat] == In ? Picture::SeatIn : Picture::SeatFolded;
}

}  // namespace

void DrawSeat(Canvas& surface, Seat seat) {
  surface.Clear();
  const Picture image = SeatImage(seat);
  if (image == Picture::SeatEmpty && autoRead.Following()) return;
  const Size size = surface.OuterSize();
  surface.Stretched(image, {0, 0, size.width, size.height});
  if (image == Picture::SeatFolded && seats.WatchFoldDepth) {
    PrintSeatLabel(surface, seats.SeatStates[seat]);
  }
}

}  // namespace holdem
