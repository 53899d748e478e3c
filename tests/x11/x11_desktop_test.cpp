// The X11 desktop against real windows, made without a toolkit by X clients of the test: under the
// window manager, and on a display of the test's own without one.

#include "platform/x11/x11_desktop.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QProcess>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <climits>
#include <csignal>
#include <thread>

#include "platform/x11/pixel_format.h"

namespace holdem {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Handles = std::vector<WindowHandle>;

template <typename Condition>
bool Until(Condition condition) {
  for (const auto end = Clock::now() + 5s; !condition(); std::this_thread::sleep_for(500us)) {
    if (Clock::now() > end) return false;
  }
  return true;
}

// No two pixels of a small window are alike.
PixelColor Drawn(int x, int y) { return (x * 5 & 0xFF) | (y * 7 & 0xFF) << 8 | (x / 16 + y) << 16; }

struct Look {
  bool popup = false;  // no business of the window manager's
  xcb_window_t parent = 0;
  bool hidden = false;
  std::uint16_t border = 0;  // pixels wide
};

// A program with windows; they die with it.
class Client {
 public:
  explicit Client(const std::string& display)
      : c(xcb_connect(display.c_str(), nullptr)),
        screen(*xcb_setup_roots_iterator(xcb_get_setup(c)).data) {}
  ~Client() { xcb_disconnect(c); }

  template <typename Reply, typename Cookie>
  auto Await(Reply* (*wait)(xcb_connection_t*, Cookie, xcb_generic_error_t**), Cookie cookie) {
    return std::unique_ptr<Reply, void (*)(void*)>(wait(c, cookie, nullptr), std::free);
  }
  void Sync() { Await(xcb_get_input_focus_reply, xcb_get_input_focus(c)); }
  // A text, or numbers.
  template <typename Values = std::vector<std::uint32_t>>
  void Set(xcb_window_t window, std::string_view name, const Values& values) {
    const auto atom = Await(xcb_intern_atom_reply, xcb_intern_atom(c, 0, name.size(), name.data()));
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, atom->atom, XCB_ATOM_STRING,
                        8 * sizeof values[0], values.size(), values.data());
    Sync();
  }

  // Filled by the server itself, at once, whenever it comes into sight.
  xcb_window_t Make(int x, int y, int width, int height, const Look& look = {}) {
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < width * height; ++i) {
      const PixelColor bgr = Drawn(i % width, i / width);
      pixels.push_back((bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF));
    }
    const xcb_window_t window = xcb_generate_id(c);
    const xcb_pixmap_t picture = xcb_generate_id(c);
    const xcb_gcontext_t gc = xcb_generate_id(c);
    xcb_create_pixmap(c, screen.root_depth, picture, screen.root, width, height);
    xcb_create_gc(c, gc, picture, 0, nullptr);
    xcb_put_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, picture, gc, width, height, 0, 0, 0, 24,
                  4 * pixels.size(), reinterpret_cast<const std::uint8_t*>(pixels.data()));
    const std::uint32_t values[] = {picture, look.popup};
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window, look.parent ? look.parent : screen.root, x,
                      y, width, height, look.border, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT, values);
    Set(window, "WM_CLASS", std::string("dialog\0#32770\0", 14));
    if (!look.hidden) xcb_map_window(c, window);
    Sync();
    return window;
  }
  void MoveTo(xcb_window_t window, int x, int y) {
    const int values[] = {x, y};
    xcb_configure_window(c, window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values);
    Sync();
  }

  xcb_connection_t* const c;
  const xcb_screen_t& screen;
};

// A display without a window manager; it ends with the test.
struct Xvfb {
  explicit Xvfb(const char* depth = "24") {
    server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", QString("1280x1024x") + depth,
                          "-nolisten", "tcp", "-noreset"});
    while (!name.ends_with('\n') && server.waitForReadyRead()) name += server.readAll().data();
    name = ":" + name.substr(0, name.find('\n'));
  }
  ~Xvfb() { Kill(); }
  void Kill() { server.kill(), server.waitForFinished(); }

  QProcess server;
  std::string name;
};

void ExpectGone(X11Desktop& desktop, WindowHandle window) {
  EXPECT_EQ(desktop.Caption(window) + desktop.ClassName(window), "");
  EXPECT_EQ(desktop.ProcessId(window), 0u);
  EXPECT_FALSE(desktop.OuterRectangle(window));
  EXPECT_FALSE(desktop.Read(window, std::array{PixelArea{0, 0, 9, 9}}));
  EXPECT_EQ(desktop.CaptionBarHeight(window), 0);
}

// With and without a window manager.
class X11DesktopTest : public testing::TestWithParam<bool> {
 protected:
  struct Place {
    PixelArea outer, inner;  // on the screen; and its contents, in its frame
  };

  static std::string DisplayName() {
    static const Xvfb& plain = *new Xvfb;
    return GetParam() ? "" : plain.name;  // the first is that of the environment
  }

  // Nothing while the window is not shown.
  std::optional<Place> PlaceOf(xcb_window_t window) {
    const auto outer = desktop.OuterRectangle(window);
    const auto size = client.Await(xcb_get_geometry_reply, xcb_get_geometry(client.c, window));
    const auto root = client.screen.root;
    const auto at = client.Await(xcb_translate_coordinates_reply,
                                 xcb_translate_coordinates(client.c, window, root, 0, 0));
    if (!outer || !size || !at) return std::nullopt;
    const int left = at->dst_x - outer->left, top = at->dst_y - outer->top;
    return Place{*outer, {left, top, left + size->width, top + size->height}};
  }
  xcb_window_t Show(int x, int y, int width, int height, const Look& look = {}) {
    const auto window = client.Make(x, y, width, height, look);
    EXPECT_TRUE(Until([&] {
      const auto at = PlaceOf(window);
      return at && (at->inner.top > 4) == (GetParam() && !look.popup);  // it is framed
    }));
    Move(window, x, y);  // window managers place new windows elsewhere
    return window;
  }
  void Move(xcb_window_t window, int x, int y) {
    client.MoveTo(window, x, y);
    EXPECT_TRUE(Until([&] {
      const auto outer = PlaceOf(window).value().outer;
      return outer.left == x && outer.top == y;
    }));
  }

  Handles Listed(const Handles& among) {
    Handles all = desktop.TopLevelWindows();
    std::erase_if(all, [&](auto window) { return std::ranges::count(among, window) == 0; });
    return all;
  }
  Handles At(std::vector<PixelPoint> points) { return desktop.WindowsAt(points, 0); }

  // Reads a window and ten pixels around it. How many pixels are wrong; nothing when it is gone.
  std::optional<int> WrongPixels(xcb_window_t window, const Place& at) {
    const PixelArea whole = {0, 0, at.outer.Width(), at.outer.Height()};
    const auto read =
        desktop.Read(window, std::array{PixelArea{-10, -10, whole.right + 10, whole.bottom + 10}});
    if (!read) return std::nullopt;
    const int left = -at.outer.left, top = -at.outer.top;
    const PixelArea screen = {left, top, left + 1280, top + 1024};
    int wrong = 0;
    for (int y = -10; y < whole.bottom + 10; ++y) {
      for (int x = -10; x < whole.right + 10; ++x) {
        const PixelColor pixel = read->front().At(x, y);
        const bool seen = at.inner.Contains({x, y}) && screen.Contains({x, y});
        wrong += pixel != (seen ? Drawn(x - at.inner.left, y - at.inner.top) : kUnreadable);
      }
    }
    return wrong;
  }

  Client client{DisplayName()};
  X11Desktop desktop{DisplayName().c_str()};
};

INSTANTIATE_TEST_SUITE_P(UnderAWindowManager, X11DesktopTest, testing::Bool());

TEST_P(X11DesktopTest, RectanglesStackingAndHits) {
  const auto a = Show(100, 100, 300, 200);
  const auto b = Show(300, 200, 300, 200);
  const auto child = client.Make(10, 10, 50, 50, {.parent = a});
  for (const auto top : {a, b, a}) {
    const int above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(client.c, top, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    xcb_flush(client.c);
    EXPECT_TRUE(Until([&] { return At({{350, 250}}) == Handles{top}; }));
    EXPECT_EQ(Listed({a, b, child}), (Handles{top, top == a ? b : a}));
    EXPECT_EQ(At({{150, 102}, {150, 150}, {590, 390}, {900, 900}}), (Handles{a, a, b, 0}));
  }
  const auto popup = Show(340, 240, 40, 40, {.popup = true});
  EXPECT_EQ(At({{350, 250}}), Handles{popup});
  EXPECT_EQ(Listed({a, b, popup}), (Handles{popup, a, b}));

  // Off the screen there is nothing, though windows reach there.
  Move(b, 1100, 900);
  EXPECT_EQ(At({{1279, 1023}, {1280, 1000}, {1200, 1024}}), (Handles{b, 0, 0}));
  EXPECT_EQ(At({{-1, 150}, {65536 + 150, 150}}), (Handles{0, 0}));

  // Not shown is gone.
  xcb_unmap_window(client.c, a);
  xcb_flush(client.c);
  EXPECT_TRUE(Until([&] { return !desktop.OuterRectangle(a); }));
  EXPECT_EQ(Listed({a, b, popup}), (Handles{popup, b}));
}

// As other window managers frame: with a window between, or several clients in one frame.
TEST_P(X11DesktopTest, OtherFrames) {
  const auto frame = Show(100, 100, 300, 200, {.popup = true});
  const auto between = client.Make(5, 20, 280, 170, {.parent = frame});
  const auto behind = client.Make(0, 0, 280, 170, {.parent = between});
  const auto seen = client.Make(0, 0, 280, 170, {.parent = between});
  const auto hidden = client.Make(0, 0, 280, 170, {.parent = between, .hidden = true});
  for (const auto tab : {behind, seen, hidden}) client.Set(tab, "WM_STATE", {1, 0});
  EXPECT_EQ(At({{102, 102}, {399, 299}}), (Handles{seen, seen}));
  EXPECT_EQ(Listed({frame, between, behind, seen}), Handles{seen});
  EXPECT_EQ(desktop.OuterRectangle(seen).value().bottom, 300);
  EXPECT_FALSE(desktop.OuterRectangle(hidden));
}

TEST_P(X11DesktopTest, PixelsAreThoseDrawn) {
  const auto window = Show(100, 100, 60, 40);
  for (const auto& [x, y] : {PixelPoint{100, 100}, {0, 0}, {-30, 100}, {1250, 1000}}) {
    Move(window, x, y);
    EXPECT_EQ(WrongPixels(window, *PlaceOf(window)), 0) << x << ' ' << y;
  }
  const auto bordered = Show(300, 100, 60, 40, {.popup = true, .border = 3});
  EXPECT_EQ(PlaceOf(bordered)->outer, (PixelArea{300, 100, 366, 146}));
  EXPECT_EQ(WrongPixels(bordered, *PlaceOf(bordered)), 0);
  // Wholly outside, empty, inverted, and beyond all bounds.
  const auto read = desktop.Read(
      window, std::array{PixelArea{-9, -9, 0, 0}, PixelArea{5, 5, 5, 9}, PixelArea{9, 9, 1, 1},
                         PixelArea{INT_MAX - 2, INT_MIN, INT_MAX, INT_MIN + 1}});
  EXPECT_EQ(read.value()[0].pixels, std::vector(81, kUnreadable));
  EXPECT_EQ(read.value()[1].pixels.size() + read.value()[2].pixels.size(), 0u);
  EXPECT_EQ(read.value()[3].pixels, std::vector(2, kUnreadable));
}

TEST_P(X11DesktopTest, TextsAndNumbers) {
  const auto window = Show(100, 100, 60, 40);
  const std::string odd = "\xFF\x80 \"NL  Hold'em\"\n\x01\xE2\x82";
  const std::string endless(5000, 'x');
  for (const std::string property : {"WM_NAME", "_NET_WM_NAME"}) {
    for (const std::string& name : {std::string(), endless, odd}) {
      client.Set(window, property, name);
      EXPECT_EQ(desktop.Caption(window), name.substr(0, 259));
    }
  }
  client.Set(window, "_NET_WM_NAME", {0x41424344});  // no text
  client.Set(window, "WM_NAME", std::string("plain"));
  EXPECT_EQ(desktop.Caption(window), "plain");

  for (std::string property : {"dialog|#32770|", "|#32770", "#32770"}) {
    const std::string name = property[0] == '#' ? "" : "#32770";
    std::ranges::replace(property, '|', '\0');
    client.Set(window, "WM_CLASS", property);
    EXPECT_EQ(desktop.ClassName(window), name);
  }
  client.Set(window, "_NET_WM_PID", {4000000000u});
  EXPECT_EQ(desktop.ProcessId(window), 4000000000u);

  EXPECT_EQ(desktop.CaptionBarHeight(window) > 4, GetParam());
  // What is said of the frame counts, unless that cannot be; whatever the frame window measures.
  const auto framed = PlaceOf(window)->outer;
  client.Set(window, "_NET_FRAME_EXTENTS", {1, 2, 0xFFFFFFFF, 3});
  EXPECT_EQ(desktop.OuterRectangle(window), framed);
  client.Set(window, "_NET_FRAME_EXTENTS", {1, 2, 37, 3});
  EXPECT_EQ(desktop.CaptionBarHeight(window), 37);
  EXPECT_EQ(desktop.OuterRectangle(window)->Width(), 63);
  EXPECT_EQ(PlaceOf(window)->inner, (PixelArea{1, 37, 61, 77}));
  for (const WindowHandle none : {0, 0x7FFFFFFF}) ExpectGone(desktop, none);
}

// What is read of a moving or dying window is all its own, or nothing.
TEST_P(X11DesktopTest, WindowsMoveAndDieAtAnyMoment) {
  int captures = 0, misses = 0;
  for (int death = 0; death < 60; ++death) {
    const auto window = Show(5, 20, 80, 60);
    const Place at = PlaceOf(window).value();
    std::atomic<bool> dead = false;
    std::thread mover([&] {
      for (int i = death; i < death + 50; ++i) {
        client.MoveTo(window, i * 10, 200 + i);
        std::this_thread::sleep_for(std::chrono::microseconds(i * 1237 % 1500));
      }
      dead = true;
      death % 2 ? xcb_destroy_window(client.c, window) : xcb_unmap_window(client.c, window);
      client.Sync();
    });
    for (std::optional<int> wrong = 0; wrong || !dead;) {
      EXPECT_EQ(At({{5, 5}, {400, 300}}).size(), 2u);
      wrong = WrongPixels(window, at);
      EXPECT_EQ(wrong.value_or(0), 0);
      if (!dead) ++(wrong ? captures : misses);
    }
    mover.join();
    EXPECT_EQ(Listed({window}), Handles{});
  }
  EXPECT_GT(captures, 1000);
  EXPECT_LT(misses * 25, captures);  // a single attempt misses more often
}

TEST_P(X11DesktopTest, CostOfATick) {
  const auto window = Show(100, 100, 800, 560);
  desktop.roundTrips = desktop.bytesCaptured = 0;
  EXPECT_EQ(At(std::vector<PixelPoint>(20, {150, 200})), Handles(20, window));
  EXPECT_TRUE(desktop.OuterRectangle(window));
  const std::vector<PixelArea> areas(7, {100, 200, 115, 236});  // seven cards' grids
  EXPECT_TRUE(desktop.Read(window, areas));
  EXPECT_EQ(desktop.roundTrips, GetParam() ? 3 + 1 + 2 : 2 + 1 + 2);
  EXPECT_EQ(desktop.bytesCaptured, 7 * 15 * 36 * 4);
}

TEST(X11DesktopDisplayTest, OfOtherDepthsOrLost) {
  const std::tuple<const char*, std::uint32_t, PixelColor> depths[] = {
      {"8", 0, kUnreadable},  // by number in a table of colours
      {"16", 0x8641, 0x08CA84},
      {"30", 0x3FF80000, 0x0080FF}};
  for (const auto& [depth, pixel, color] : depths) {
    Xvfb display(depth);
    Client client(display.name);
    const auto window = client.Make(0, 0, 50, 50);
    xcb_change_window_attributes(client.c, window, XCB_CW_BACK_PIXEL, &pixel);
    xcb_clear_area(client.c, 0, window, 0, 0, 0, 0);
    client.Sync();
    X11Desktop desktop(display.name.c_str()), never(":99999");
    EXPECT_EQ(desktop.TopLevelWindows(), Handles{window});
    const auto read = desktop.Read(window, std::array{PixelArea{1, 1, 4, 3}});
    ASSERT_EQ(read.has_value(), color != kUnreadable) << depth;
    EXPECT_TRUE(!read || read->front().pixels == std::vector(6, color)) << depth;
    display.Kill();
    for (X11Desktop* const lost : {&desktop, &never}) {
      ExpectGone(*lost, window);
      EXPECT_EQ(lost->TopLevelWindows(), Handles{});
      EXPECT_EQ(lost->WindowsAt(std::array{PixelPoint{5, 5}}, 0), Handles{0});
    }
  }
  const std::uint8_t bytes[] = {0x11, 0x22, 0x33, 0x44};
  EXPECT_EQ((PixelFormat{4, 4, false, 0xFF0000, 0xFF00, 0xFF}.Decode(bytes)), 0x112233u);
  EXPECT_EQ((PixelFormat{4, 4, true, 0xFF000000, 0xFF0000, 0xFF00}.Decode(bytes)), 0x332211u);
}

}  // namespace
}  // namespace holdem
