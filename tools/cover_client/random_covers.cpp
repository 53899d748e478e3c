#include "random_covers.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <thread>

#include "autoread/watcher.h"
#include "platform/ports.h"
#include "state/auto_read.h"
#include "state/seats.h"
#include "state/slots.h"

namespace holdem::cover_client {
namespace {

constexpr int kTicks = 4;  // one of which looks for tables, if the table has been lost

// Passes everything on, and keeps what the table was asked for.
class Overheard : public Desktop {
 public:
  explicit Overheard(Desktop& desktop) : desktop_(desktop) { ports.desktop = this; }
  ~Overheard() override { ports.desktop = &desktop_; }
  Overheard(const Overheard&) = delete;
  Overheard& operator=(const Overheard&) = delete;

  std::vector<PixelArea> areas;    // from the table's corner
  std::vector<PixelPoint> points;  // of the screen

  std::vector<WindowHandle> TopLevelWindows() override { return desktop_.TopLevelWindows(); }
  std::string ClassName(WindowHandle window) override { return desktop_.ClassName(window); }
  std::string GetWindowCaption(WindowHandle window) override {
    return desktop_.GetWindowCaption(window);
  }
  std::uint32_t ProcessId(WindowHandle window) override { return desktop_.ProcessId(window); }
  std::optional<PixelArea> OuterRectangle(WindowHandle window) override {
    return desktop_.OuterRectangle(window);
  }
  std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> asked,
                                      WindowHandle measuredBy) override {
    points.assign(asked.begin(), asked.end());
    return desktop_.WindowsAt(asked, measuredBy);
  }
  WindowHandle Parent(WindowHandle window) override { return desktop_.Parent(window); }
  std::optional<std::vector<Capture>> Read(WindowHandle window,
                                           std::span<const PixelArea> asked) override {
    areas.assign(asked.begin(), asked.end());
    return desktop_.Read(window, asked);
  }
  std::optional<std::vector<PixelArea>> Covers(WindowHandle window) override {
    return desktop_.Covers(window);
  }
  std::vector<WindowHandle> MinimisedWindows() override { return desktop_.MinimisedWindows(); }
  int CaptionBarHeight(WindowHandle window) override { return desktop_.CaptionBarHeight(window); }
  PixelArea FreeArea(const PixelArea& screen) override { return desktop_.FreeArea(screen); }

 private:
  Desktop& desktop_;
};

class Placements {
 public:
  Placements(std::minstd_rand& random, const std::function<void(const Covers&)>& show)
      : random_(random), show_(show), desktop_(*ports.desktop) {
    WatchTable();
    table_ = ports.desktop->OuterRectangle(autoRead.WatchedWindow).value();
    areas_ = desktop_.areas;
    points_ = desktop_.points;
    picture_ = Picture();
    autoRead_ = autoRead;
    seats_ = seats;
    slots_ = slots;
  }

  void Try(Tally& tally) {
    const Covers covers = AnyCovers();
    show_(covers);
    bool followed = true;
    bool wrong = false;
    bool emptied = false;
    for (int tick = 0; tick < kTicks; ++tick) {
      WatchTable();
      followed = followed && autoRead.Following();
      for (std::size_t slot = 0; slot < slots.picHand.size(); ++slot) {
        if (slots.picHand[slot] == slots_.picHand[slot]) continue;
        (slots.picHand[slot] == kNoCard ? emptied : wrong) = true;
      }
    }
    const bool harmless = std::ranges::none_of(covers, [&](const Cover& c) { return Matters(c); });
    tally.Add({.placements = 1,
               .wrong = wrong,
               .emptied = emptied,
               .seats = seats != seats_,
               .manual = !followed,
               .harmless = harmless,
               .kept = harmless && followed});
    show_({});
    WaitForPicture();
    autoRead = autoRead_;
    seats = seats_;
    slots = slots_;
  }

 private:
  int Any(int least, int most) {
    return least + static_cast<int>(random_() % static_cast<unsigned>(most - least + 1));
  }
  bool Rarely(int oneIn) { return Any(1, oneIn) == 1; }

  Cover AnyCover() {
    int width = Any(3, 400);
    int height = Any(3, 400);
    switch (Any(0, 3)) {
      case 0: width = Any(40, 200), height = Any(10, 25); break;  // a tooltip
      case 1: width = Any(1, 6); break;                           // bars
      case 2: height = Any(1, 6); break;
      default: break;
    }
    const int left = Any(table_.left - width + 1, table_.right - 1);
    const int top = Any(table_.top - height + 1, table_.bottom - 1);
    constexpr PixelColor kColors[] = {0, 0xFFFFFF, 0x0000FF, 0x105A20, 0xE1FFFF};
    return {.area = {left, top, left + width, top + height},
            .takesMouse = !Rarely(3),
            .owned = Rarely(3),
            .color = kColors[Any(0, 4)]};
  }

  Covers AnyCovers() {
    Covers covers(static_cast<std::size_t>(Rarely(3) ? Any(2, 4) : 1));
    for (Cover& cover : covers) cover = AnyCover();
    return covers;
  }

  bool Matters(const Cover& cover) const {
    const PixelArea inWindow = cover.area.Moved({-table_.left, -table_.top});
    return std::ranges::any_of(areas_, [&](const PixelArea& a) { return a.Touches(inWindow); }) ||
           std::ranges::any_of(points_, [&](PixelPoint p) { return cover.area.Contains(p); });
  }

  std::vector<std::vector<PixelColor>> Picture() {
    std::vector<std::vector<PixelColor>> picture;
    const auto captures = ports.desktop->Read(autoRead.CurrentTable.windowHandle, areas_);
    for (const Capture& capture : captures.value()) picture.push_back(capture.pixels);
    return picture;
  }

  // The table's program may have to paint it anew.
  void WaitForPicture() {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(10);
    while (Picture() != picture_) {
      if (Clock::now() > end) throw std::runtime_error("the table does not come back");
      show_({});
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
  }

  std::minstd_rand& random_;
  const std::function<void(const Covers&)>& show_;
  Overheard desktop_;
  PixelArea table_;
  std::vector<PixelArea> areas_;
  std::vector<PixelPoint> points_;
  std::vector<std::vector<PixelColor>> picture_;
  AutoRead autoRead_;
  Seats seats_;
  Slots slots_;
};

}  // namespace

void Tally::Add(const Tally& other) {
  placements += other.placements;
  wrong += other.wrong;
  emptied += other.emptied;
  seats += other.seats;
  manual += other.manual;
  harmless += other.harmless;
  kept += other.kept;
}

Tally CoverTable(int placements, std::minstd_rand& random,
                 const std::function<void(const Covers&)>& show) {
  Placements table(random, show);
  Tally tally;
  for (int i = 0; i < placements; ++i) table.Try(tally);
  return tally;
}

}  // namespace holdem::cover_client
