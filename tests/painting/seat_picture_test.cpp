#include "painting/seat_picture.h"

#include "fakes/fake_ports.h"
#include "fakes/recording_canvas.h"

namespace holdem {
namespace {

using SeatPictureTest = ProgramTest;

constexpr Size kSize{1095, 615};

TEST_F(SeatPictureTest, ImageAndStreetLabel) {
  const struct {
    SeatState state;
    bool watchFoldDepth;
    Picture image;
    const char* label;  // null for none
  } kCases[] = {
      {Empty, true, Picture::SeatEmpty, nullptr},
      {In, true, Picture::SeatIn, nullptr},
      {FoldedPreFlop, false, Picture::SeatFolded, nullptr},
      {FoldedPreFlop, true, Picture::SeatFolded, "PreFlop"},
      {FoldedFlop, true, Picture::SeatFolded, "Flop"},
      {FoldedTurn, true, Picture::SeatFolded, "Turn"},
      {FoldedRiver, true, Picture::SeatFolded, "River"},
  };
  for (const auto& expected : kCases) {
    SCOPED_TRACE(expected.state);
    seats.SeatStates[7] = expected.state;
    seats.WatchFoldDepth = expected.watchFoldDepth;
    RecordingCanvas canvas(kSize, kSize);
    DrawSeat(canvas, 7);
    ASSERT_EQ(canvas.pictures.size(), 1U);
    EXPECT_EQ(canvas.pictures[0].picture, expected.image);
    EXPECT_EQ(canvas.pictures[0].box, (Rect{0, 0, 1095, 615}));
    ASSERT_EQ(canvas.texts.size(), expected.label == nullptr ? 0U : 1U);
    if (expected.label == nullptr) continue;
    const auto& label = canvas.texts[0];
    EXPECT_EQ(label.text, expected.label);
    EXPECT_EQ(label.font, (Font{FontFamily::SmallFonts, 7, false}));
    // Centred by its width in the main window's own font of 8 points.
    EXPECT_DOUBLE_EQ(label.x, (1095 - static_cast<double>(label.text.size()) * 80) / 2);
    EXPECT_EQ(label.y, 0);
  }
}

TEST_F(SeatPictureTest, TheUsersSeatIsDrawnAsSuchWhateverItsState) {
  seats.WatchFoldDepth = true;
  for (const SeatState state : {Empty, In, FoldedTurn}) {
    seats.SeatStates[seats.MySeat] = state;
    RecordingCanvas canvas(kSize, kSize);
    DrawSeat(canvas, seats.MySeat);
    ASSERT_EQ(canvas.pictures.size(), 1U);
    EXPECT_EQ(canvas.pictures[0].picture, Picture::SeatMe);
    EXPECT_TRUE(canvas.texts.empty());
  }
}

TEST_F(SeatPictureTest, EmptySeatsStayBlankWhileATableIsFollowed) {
  seats.SeatStates[4] = Empty;
  autoRead.WatchedWindow = 77;
  RecordingCanvas canvas(kSize, kSize);
  DrawSeat(canvas, 4);
  EXPECT_EQ(canvas.clears, 1);
  EXPECT_TRUE(canvas.pictures.empty());
}

}  // namespace
}  // namespace holdem
