// Puts windows over a followed table at random, in memory or on the desktop that is there, and
// prints what Auto Read has made of it. For tools/covers.
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <thread>

#include "autoread/layouts.h"
#include "autoread/setup_wizard.h"
#include "autoread/watcher.h"
#include "cover_windows.h"
#include "fake_covers.h"
#include "fakes/fake_ports.h"
#include "platform/native_desktop.h"
#include "table_client/play.h"

namespace holdem::cover_client {
namespace {

#ifdef _WIN32
constexpr auto OpenPipe = _popen;
constexpr auto ClosePipe = _pclose;
constexpr const char* kClient = "\"Z:" TABLE_CLIENT "\" >NUL";
#else
constexpr auto OpenPipe = popen;
constexpr auto ClosePipe = pclose;
constexpr const char* kClient = "'" TABLE_CLIENT "' >/dev/null";
#endif

constexpr const char* kHand[] = {"hand hero=3 cards=AS,KD button=7 seats=1,2,5,8,9",
                                 "flop 2C 7D TH", "fold 5", "turn QS", "river 9H"};

struct World : FakeWorld {
  World() {
    display.atAskSeat = [] { ClickWizardSeat(3); };
  }
};

Tally CoverInMemory(int layout, int placements, std::minstd_rand& random) {
  World world;
  table_client::Table table{.layout = layout};
  for (const char* const line : kHand) {
    table_client::Play(table, line);
    world.desktop.windows = {TableWindow(table, 77)};
    WatchTable();
  }
  return CoverTable(placements, random, Over(world.desktop));
}

// Ticks until it holds.
void Await(const char* what, const std::function<bool()>& holds) {
  for (int tries = 0; !holds(); ++tries) {
    if (tries == 1000) throw std::runtime_error(what);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    WatchTable();
  }
}

Tally CoverOnDesktop(int layout, int placements, std::minstd_rand& random) {
  World world;
  const auto desktop = MakeNativeDesktop();
  ports.desktop = desktop.get();
  const auto windows = MakeCoverWindows();
  const auto script = (std::filesystem::temp_directory_path() / "covered_hand.txt").string();
  std::ofstream hand(script);
  for (const char* const line : kHand) hand << line << '\n';
  hand.close();
  const std::string command = std::string(kClient) + " --wait-for-go --position 90,60 --layout " +
                              std::to_string(layout) + " --script " + script;
  FILE* const client = OpenPipe(command.c_str(), "w");
  if (client == nullptr) throw std::runtime_error("no table client");
  for (std::size_t line = 0; line < std::size(kHand); ++line) {
    std::fputs("\n", client);
    std::fflush(client);
  }
  Await("the table is not followed", [] { return slots.IsFilled(10); });
  const Tally tally = CoverTable(placements, random, [&](const Covers& covers) {
    windows->Show(covers, autoRead.CurrentTable.windowHandle);
  });
  ClosePipe(client);  // it ends with its input
  Await("the table does not go", [] { return !autoRead.Following(); });
  return tally;
}

int Main(std::string_view where, int placements) try {
  Tally all;
  std::minstd_rand random(1);
  for (int layout = 1; layout <= kLayouts; ++layout) {
    all.Add(where == "memory" ? CoverInMemory(layout, placements, random)
                              : CoverOnDesktop(layout, placements, random));
  }
  std::printf("%10d %7d %8d %6d %7d %9d %6d\n", all.placements, all.wrong, all.emptied, all.seats,
              all.manual, all.harmless, all.kept);
  const bool well = all.wrong + all.emptied + all.seats == 0 && all.kept == all.harmless;
  return well ? EXIT_SUCCESS : EXIT_FAILURE;
} catch (const std::exception& wrong) {
  std::fprintf(stderr, "cover_client: %s\n", wrong.what());
  return EXIT_FAILURE;
}

}  // namespace
}  // namespace holdem::cover_client

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: cover_client memory|desktop PLACEMENTS_A_LAYOUT\n", stderr);
    return 2;
  }
  return holdem::cover_client::Main(argv[1], std::atoi(argv[2]));
}
