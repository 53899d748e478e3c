// The X11 desktop against real windows, made without a toolkit on a display of the test's own. It
// has no window manager: frames are the test's too. Those of real ones are met in tests/native/.

#include "platform/x11/x11_desktop.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <xcb/composite.h>
#include <xcb/shape.h>

#include <QProcess>
#include <atomic>
#include <csignal>
#include <thread>

#include "platform/x11/pixel_format.h"

namespace holdem {

namespace {

// A display, and a program with windows on it, each shown as soon as it is made and of one colour.
// All ends with the test.
struct OwnDisplay {
  explicit OwnDisplay(const char* depth = "24", std::uint32_t color = 0x123456) : pixel(color) {
    server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", QString("1280x1024x") + depth,
                          "-nolisten", "tcp", "-noreset"});
    while (!name.endsWith('\n') && server.waitForReadyRead()) name += server.readAll();
    name = ":" + name.trimmed();
    c = xcb_connect(name, nullptr);
    root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
  }
  ~OwnDisplay() {
    xcb_disconnect(c);
    server.kill(), server.waitForFinished();
  }

  // Comes back when the server has done what was asked of it.
  void Do(xcb_void_cookie_t) {
    std::free(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
  }
  xcb_window_t Make(const PixelArea& at, xcb_window_t parent = 0, std::uint16_t border = 0) {
    const xcb_window_t window = xcb_generate_id(c);
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window, parent == 0 ? root : parent, at.left, at.top,
                      at.Width(), at.Height(), border, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL, &pixel);
    Do(xcb_map_window(c, window));
    return window;
  }
  void Configure(xcb_window_t window, std::uint16_t what, const std::vector<int>& values) {
    Do(xcb_configure_window(c, window, what, values.data()));
  }
  void MoveTo(xcb_window_t window, int x, int y) {
    Configure(window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, {x, y});
  }
  xcb_atom_t Atom(std::string_view text) {
    const auto asked = xcb_intern_atom(c, 0, text.size(), text.data());
    return Owned<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(c, asked, nullptr))->atom;
  }
  // A text, or numbers.
  template <typename Values = std::vector<std::uint32_t>>
  void Set(xcb_window_t window, std::string_view property, const Values& values) {
    Do(xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, Atom(property), XCB_ATOM_STRING,
                           8 * sizeof values[0], values.size(), values.data()));
  }

  std::uint32_t pixel;
  QProcess server;
  QByteArray name;
  xcb_connection_t* c;
  xcb_window_t root;
};

using Handles = std::vector<WindowHandle>;

void ExpectGone(X11Desktop& desktop, WindowHandle window) {
  EXPECT_EQ(desktop.GetWindowCaption(window) + desktop.ClassName(window), "");
  EXPECT_EQ(desktop.ProcessId(window), 0u);
  EXPECT_FALSE(desktop.OuterRectangle(window) || desktop.Covers(window));
  EXPECT_FALSE(desktop.Read(window, std::array{PixelArea{0, 0, 9, 9}}));
  EXPECT_EQ(desktop.CaptionBarHeight(window), 0);
}

struct X11DesktopTest : testing::Test {
  Handles At(const std::vector<PixelPoint>& points) { return desktop.WindowsAt(points, 0); }

  // Reads a window and ten pixels around it. How many are wrong, when its contents lie so on the
  // screen; nothing when it is gone.
  std::optional<int> WrongPixels(xcb_window_t window, const PixelArea& outer,
                                 const PixelArea& inner) {
    const PixelArea area = {-10, -10, outer.Width() + 10, outer.Height() + 10};
    const auto read = desktop.Read(window, {&area, 1});
    if (!read) return std::nullopt;
    const PixelArea seen = inner.Intersected({0, 0, 1280, 1024}).Moved({-outer.left, -outer.top});
    int wrong = 0;
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x)
        wrong += read->front().At(x, y) != (seen.Contains({x, y}) ? 0x563412 : kUnreadable);
    }
    return wrong;
  }

  OwnDisplay display;
  X11Desktop desktop{display.name};
};

TEST_F(X11DesktopTest, StackingAndHits) {
  const auto a = display.Make({100, 100, 400, 300});
  const auto b = display.Make({300, 200, 600, 400});
  display.Make({10, 10, 60, 60}, a);
  for (const auto top : {a, b, a}) {
    display.Configure(top, XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_ABOVE});
    EXPECT_EQ(desktop.TopLevelWindows(), (Handles{top, top == a ? b : a}));
    EXPECT_EQ(At({{350, 250}, {102, 102}, {150, 150}, {590, 390}, {900, 900}}),
              (Handles{top, a, a, b, 0}));
  }
  // Off the screen there is nothing, though windows reach there.
  display.MoveTo(b, 1100, 900);
  display.MoveTo(a, -150, 900);
  EXPECT_EQ(At({{1279, 1023}, {1280, 1000}, {1200, 1024}}), (Handles{b, 0, 0}));
  EXPECT_EQ(At({{0, 1023}, {-1, 1000}, {65536 + 100, 1000}}), (Handles{a, 0, 0}));
}

// As window managers frame: perhaps with a window between, or several clients in one frame.
TEST_F(X11DesktopTest, Frames) {
  const PixelArea outer{100, 100, 170, 180}, inner{105, 120, 165, 160}, whole{0, 0, 60, 40};
  const auto frame = display.Make(outer);
  const auto between = display.Make({5, 20, 65, 60}, frame);
  const auto behind = display.Make(whole, between), seen = display.Make(whole, between),
             hidden = display.Make(whole, between);
  for (const auto tab : {behind, seen, hidden}) display.Set(tab, "WM_STATE", {1, 0});
  display.Do(xcb_unmap_window(display.c, hidden));
  EXPECT_EQ(At({{102, 102}, {169, 179}}), (Handles{seen, seen}));
  EXPECT_EQ(desktop.TopLevelWindows(), Handles{seen});

  EXPECT_EQ(desktop.OuterRectangle(seen), outer);
  EXPECT_EQ(desktop.CaptionBarHeight(seen), 20);
  for (const auto& [x, y] : {PixelPoint{0, 0}, {-100, -100}, {-130, 0}, {1150, 900}}) {
    display.MoveTo(frame, 100 + x, 100 + y);
    EXPECT_EQ(WrongPixels(seen, outer.Moved({x, y}), inner.Moved({x, y})), 0) << x << ' ' << y;
  }
  // What is said of the frame counts, unless that cannot be; whatever the frame window measures.
  display.MoveTo(frame, 100, 100);
  display.Set(seen, "_NET_FRAME_EXTENTS", {1, 2, 0xFFFFFFFF, 3});
  EXPECT_EQ(desktop.OuterRectangle(seen), outer);
  display.Set(seen, "_NET_FRAME_EXTENTS", {1, 2, 37, 3});
  EXPECT_EQ(desktop.CaptionBarHeight(seen), 37);
  EXPECT_EQ(WrongPixels(seen, {104, 83, 167, 163}, inner), 0);

  // The cost of a look at a table, and of being sure that it is in sight.
  desktop.roundTrips = 0;
  EXPECT_TRUE(desktop.Read(seen, std::vector<PixelArea>(38, {10, 40, 25, 76})));
  EXPECT_EQ(At(std::vector<PixelPoint>(20, {150, 150})), Handles(20, seen));
  EXPECT_TRUE(desktop.Covers(seen));
  EXPECT_EQ(desktop.roundTrips, 2 + 4 + 5);

  const auto bordered = display.Make({300, 100, 360, 140}, 0, 3);
  EXPECT_EQ(desktop.OuterRectangle(bordered), (PixelArea{300, 100, 366, 146}));
  EXPECT_EQ(WrongPixels(bordered, {300, 100, 366, 146}, {303, 103, 363, 143}), 0);
  const std::array areas = {PixelArea{-9, -9, 0, 0}, PixelArea{9, 9, 1, 1}};
  const auto read = desktop.Read(bordered, areas).value();  // wholly outside, and inverted
  EXPECT_EQ(read[0].pixels, std::vector(81, kUnreadable));
  EXPECT_TRUE(read[1].pixels.empty());
}

// What is seen over a window, in its frame and on the screen.
TEST_F(X11DesktopTest, Covers) {
  const auto frame = display.Make({100, 100, 300, 300});
  const auto table = display.Make({0, 20, 200, 200}, frame);
  display.Make({10, 30, 20, 40}, frame);
  display.Make({150, 150, 170, 160}, 0, 2);
  const auto shaped = display.Make({0, 0, 900, 900});
  const xcb_rectangle_t parts[] = {{300, 0, 5, 6}, {0, 300, 7, 8}};
  xcb_shape_rectangles(display.c, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, 0, shaped, 0, 0, 2,
                       parts);
  display.Do(xcb_unmap_window(display.c, display.Make({0, 0, 900, 900})));
  const auto root = display.root, inputOnly = xcb_generate_id(display.c);
  xcb_create_window(display.c, 0, inputOnly, root, 0, 0, 900, 900, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, 0, nullptr);
  display.Do(xcb_map_window(display.c, inputOnly));
  std::vector<PixelArea> seen = {
      {10, 30, 20, 40}, {50, 50, 74, 64}, {200, -100, 205, -94}, {-100, 200, -93, 208}};
  EXPECT_EQ(desktop.Covers(table), seen);
  // A compositor keeps the frame's picture apart.
  display.Do(xcb_composite_redirect_subwindows(display.c, root, XCB_COMPOSITE_REDIRECT_MANUAL));
  seen.resize(1);
  EXPECT_EQ(desktop.Covers(table), seen);
}

TEST_F(X11DesktopTest, TextsAndNumbers) {
  const auto window = display.Make({100, 100, 160, 140});
  const std::string odd = "\xFF\x80 \"NL  Hold'em\"\n\x01\xE2\x82";
  for (const std::string property : {"WM_NAME", "_NET_WM_NAME"}) {
    for (const std::string& name : {std::string(), std::string(5000, 'x'), odd}) {
      display.Set(window, property, name);
      EXPECT_EQ(desktop.GetWindowCaption(window), name.substr(0, 259));
    }
  }
  display.Set(window, "_NET_WM_NAME", {0x41424344});  // no text
  display.Set(window, "WM_NAME", std::string("plain"));
  EXPECT_EQ(desktop.GetWindowCaption(window), "plain");
  for (std::string property : {"dialog|#32770|", "|#32770", "#32770"}) {
    const std::string name = property[0] == '#' ? "" : "#32770";
    std::ranges::replace(property, '|', '\0');
    display.Set(window, "WM_CLASS", property);
    EXPECT_EQ(desktop.ClassName(window), name);
  }
  display.Set(window, "_NET_WM_PID", {4000000000u});
  EXPECT_EQ(desktop.ProcessId(window), 4000000000u);
  display.Set(window, "_NET_WM_STATE", {7, display.Atom("_NET_WM_STATE_HIDDEN")});
  display.Set(display.root, "_NET_CLIENT_LIST", {display.root, 0x7FFFFFFF, window});
  EXPECT_EQ(desktop.MinimisedWindows(), Handles{window});
  for (const WindowHandle none : {0, 0x7FFFFFFF}) ExpectGone(desktop, none);
}

TEST_F(X11DesktopTest, PanelsTakeTheirPartOfTheirOwnScreen) {
  const auto panel = display.Make({640, 0, 1280, 40}), dock = display.Make({0, 0, 60, 1024});
  display.Set(panel, "_NET_WM_STRUT_PARTIAL", {0, 0, 40, 0, 0, 0, 0, 0, 640, 1279, 0, 0});
  display.Set(dock, "_NET_WM_STRUT", {60, 0, 0, 0});
  display.Set(display.root, "_NET_WORKAREA", {60, 40, 1220, 900});  // of both
  EXPECT_EQ(desktop.FreeArea({0, 0, 640, 1024}), (PixelArea{60, 0, 640, 1024}));
  EXPECT_EQ(desktop.FreeArea({640, 0, 1280, 1024}), (PixelArea{640, 40, 1280, 1024}));
  EXPECT_EQ(desktop.FreeArea({0, 0, 1280, 1024}), (PixelArea{60, 40, 1280, 940}));
}

// What is read of a moving or dying window is all its own, or nothing.
TEST_F(X11DesktopTest, WindowsMoveAndDieAtAnyMoment) {
  const PixelArea place{5, 20, 85, 80};
  int captures = 0, misses = 0;
  for (int death = 0; death < 60; ++death) {
    const auto window = display.Make(place);
    std::atomic<bool> dead = false;
    std::thread mover([&] {
      for (int i = death; i < death + 50; ++i) {
        display.MoveTo(window, i * 10, 200 + i);
        std::this_thread::sleep_for(std::chrono::microseconds(i * 1237 % 1500));
      }
      dead = true;
      const auto end = death % 2 == 0 ? &xcb_destroy_window : &xcb_unmap_window;
      display.Do(end(display.c, window));
    });
    int afterDeath = 0;
    for (std::optional<int> wrong = 0; wrong || !dead; ++(wrong ? captures : misses)) {
      if (dead && ++afterDeath > 100'000) break;
      EXPECT_EQ(At({{5, 5}, {400, 300}}).size(), 2u);
      wrong = WrongPixels(window, place, place);
      EXPECT_EQ(wrong.value_or(0), 0);
    }
    mover.join();
    ASSERT_LT(afterDeath, 100'000) << "still read";
    EXPECT_EQ(desktop.TopLevelWindows(), Handles{});
  }
  EXPECT_GT(captures, 1000);
  EXPECT_LT((misses - 60) * 25, captures);  // a single attempt misses more often
}

// What is answered then, the sanitizers watch; and it must be an answer.
TEST_F(X11DesktopTest, ProgramsMaySayAnything) {
  const std::uint32_t numbers[] = {0, 1, 65535, 0x7FFFFFFF, 0xFFFFFFFF};
  const std::string texts[] = {"", {'\0'}, "a", {'a', '\0', 'b'}, std::string(65536, '\xE2')};
  const PixelArea place{100, 126, 900, 680};
  const auto window = display.Make(place);
  for (const char* const property :
       {"WM_CLASS", "WM_NAME", "_NET_WM_NAME", "_NET_WM_PID", "_NET_FRAME_EXTENTS", "WM_STATE",
        "_NET_WM_STATE", "_NET_CLIENT_LIST", "_NET_WORKAREA", "_NET_WM_STRUT_PARTIAL"}) {
    for (int kind = 0; kind < 15; ++kind) {
      for (const auto owner : {window, display.root}) {
        kind < 5
            ? display.Set(owner, property, texts[kind])
            : display.Set(owner, property, std::vector((kind - 5) * kind * 130, numbers[kind % 5]));
      }
      EXPECT_LE((desktop.GetWindowCaption(window) + desktop.ClassName(window)).size(), 2u * 259);
      desktop.ProcessId(window), desktop.MinimisedWindows(), desktop.FreeArea(place);
      EXPECT_TRUE(desktop.OuterRectangle(window) && desktop.Covers(window));
      EXPECT_EQ(At({{500, 300}}), Handles{window}) << property;
    }
  }
}

TEST(X11DesktopDisplayTest, OfAnotherDepthOrNone) {
  OwnDisplay display("16", 0x8641);
  const auto window = display.Make({0, 0, 50, 50});
  X11Desktop desktop(display.name), none(":99999");
  ExpectGone(none, window);
  EXPECT_EQ(none.TopLevelWindows(), Handles{});
  EXPECT_EQ(desktop.TopLevelWindows(), Handles{window});
  const auto read = desktop.Read(window, std::array{PixelArea{1, 1, 4, 3}}).value();
  EXPECT_EQ(read.front().pixels, std::vector<PixelColor>(6, 0x08CA84));
  const std::uint8_t bytes[] = {0x11, 0x22, 0x33, 0x44};
  EXPECT_EQ((PixelFormat{4, 4, false, 0xFF0000, 0xFF00, 0xFF}.Decode(bytes)), 0x112233u);
  EXPECT_EQ((PixelFormat{4, 4, true, 0xFF000000, 0xFF0000, 0xFF00}.Decode(bytes)), 0x332211u);
}

}  // namespace
}  // namespace holdem
