#include "painting/seat_picture.h"

#include "fakes/fake_ports.h"
#include "fakes/recording_canvas.h"

namespace holdem {
namespace {

using SeatPictureTest = ProgramTest;

// Seat 2 is the user's, drawn as such whatever its state; window 77 is a followed table.
TEST_F(SeatPictureTest, ImageAndStreetLabel) {
  const struct {
    int seat;
    SeatState state;
    bool watchFoldDepth;
    WindowHandle followed;
    std::vector<Picture> image;
    std::string label;
  } kCases[] = {{7, Empty, true, 0, {Picture::SeatEmpty}, ""},
                {7, Empty, true, 77, {}, ""},
                {7, In, true, 77, {Picture::SeatIn}, ""},
                {7, FoldedPreFlop, false, 0, {Picture::SeatFolded}, ""},
                {7, FoldedPreFlop, true, 0, {Picture::SeatFolded}, "PreFlop"},
                {7, FoldedFlop, true, 0, {Picture::SeatFolded}, "Flop"},
                {7, FoldedTurn, true, 0, {Picture::SeatFolded}, "Turn"},
                {7, FoldedRiver, true, 77, {Picture::SeatFolded}, "River"},
                {2, Empty, true, 77, {Picture::SeatMe}, ""},
                {2, In, true, 0, {Picture::SeatMe}, ""},
                {2, FoldedTurn, true, 0, {Picture::SeatMe}, ""}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(&c - kCases);
    seats.SeatStates[c.seat] = c.state;
    seats.WatchFoldDepth = c.watchFoldDepth;
    autoRead.WatchedWindow = c.followed;
    RecordingCanvas canvas({1065, 585}, {1095, 615});
    DrawSeat(canvas, c.seat);
    EXPECT_EQ(canvas.clears, 1);
    std::vector<Picture> pictures;
    for (const auto& [picture, box] : canvas.pictures) {
      pictures.push_back(picture);
      EXPECT_EQ(box, (Rect{0, 0, 1095, 615}));
    }
    EXPECT_EQ(pictures, c.image);
    ASSERT_EQ(canvas.texts.size(), c.label.empty() ? 0U : 1U);
    for (const auto& label : canvas.texts) {
      EXPECT_EQ(label.text, c.label);
      EXPECT_EQ(label.font, (Font{FontFamily::SmallFonts, 7, false}));
      // Centred by its width in the main window's own font of 8 points.
      EXPECT_DOUBLE_EQ(label.x, (1095 - static_cast<double>(label.text.size()) * 80) / 2);
      EXPECT_EQ(label.y, 0);
    }
  }
}

}  // namespace
}  // namespace holdem
