// What following a table costs an X server.
#include "native/follow_table_test.h"
#include "platform/x11/x11_desktop.h"

namespace holdem {
namespace {

TEST_F(FollowTableTest, TheCostOfATick) {
  const auto& x11 = static_cast<X11Desktop&>(*ports.desktop);
  program->findChild<QTimer*>("tmrAutoWatcher")->stop();
  for (int layout = 1; layout <= kLayouts; ++layout) {
    seatToChoose = 2;
    TableClient client(Table(layout, 2, 3, 1));
    for (int state = 0; state < 4; ++state) client.Next();  // with cards on the board
    // The windows of one client after another have the same handle.
    autoRead = {};
    WatchTable();
    ASSERT_TRUE(autoRead.Following());
    const auto trips = x11.roundTrips;
    const auto bytes = x11.bytesCaptured;
    WatchTable();
    std::printf("layout %d: %d round trips, %d bytes captured a tick\n", layout,
                static_cast<int>(x11.roundTrips - trips),
                static_cast<int>(x11.bytesCaptured - bytes));
    EXPECT_LE(x11.roundTrips - trips, 60);
    EXPECT_LE(x11.bytesCaptured - bytes, 200'000);
  }
}

}  // namespace
}  // namespace holdem
