// The X11 desktop against real windows, made without a toolkit by X clients of the test: under the
// window manager, and on a display of the test's own without one.

#include "platform/x11/x11_desktop.h"

#include <gtest/gtest.h>
#include <xcb/shape.h>

#include <QProcess>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <climits>
#include <map>
#include <random>
#include <thread>

namespace holdem {
namespace {

using namespace std::chrono_literals;
using Handles = std::vector<WindowHandle>;

template <typename Condition>
bool Until(Condition condition) {
  for (const auto end = std::chrono::steady_clock::now() + 5s; !condition();) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(500us);
  }
  return true;
}

// No two of a window's pixels are alike.
PixelColor Drawn(int x, int y) {
  return static_cast<PixelColor>((x * 5 & 0xFF) | (y * 7 & 0xFF) << 8 | (x / 16 + y) << 16);
}

using Rect = std::array<int, 4>;  // left, top, right, bottom
std::optional<Rect> AsRect(const std::optional<PixelArea>& area) {
  if (!area) return std::nullopt;
  return Rect{area->left, area->top, area->right, area->bottom};
}

template <typename Reply>
struct Owned : std::unique_ptr<Reply, void (*)(void*)> {
  explicit Owned(Reply* reply) : std::unique_ptr<Reply, void (*)(void*)>(reply, std::free) {}
};

struct Look {
  bool popup = false;  // no business of the window manager's
  bool inputOnly = false;
  xcb_window_t parent = 0;
  int border = 0;
  std::string wmClass{"dialog\0#32770\0", 14};
};

// A program with windows; they die with it.
class Client {
 public:
  explicit Client(const std::string& display)
      : c(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)),
        screen(*xcb_setup_roots_iterator(xcb_get_setup(c)).data) {}
  ~Client() { xcb_disconnect(c); }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  void Sync() {
    Owned<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
  }
  xcb_atom_t Atom(std::string_view name) {
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        c, xcb_intern_atom(c, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    return reply->atom;
  }
  void Set(xcb_window_t window, xcb_atom_t name, std::string_view text) {
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, name, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
    Sync();
  }
  void Set(xcb_window_t window, xcb_atom_t name, const std::vector<std::uint32_t>& numbers) {
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, window, name, XCB_ATOM_CARDINAL, 32,
                        static_cast<std::uint32_t>(numbers.size()), numbers.data());
    Sync();
  }
  std::vector<std::uint32_t> Get(xcb_window_t window, std::string_view name) {
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        c, xcb_get_property(c, 0, window, Atom(name), XCB_ATOM_ANY, 0, 1000), nullptr));
    if (!reply || reply->format != 32) return {};
    const auto* const values = static_cast<std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
  }

  // Filled by the server itself, at once, whenever it comes into sight.
  xcb_window_t Make(int x, int y, int width, int height, const Look& look = {}) {
    const xcb_window_t window = xcb_generate_id(c);
    const xcb_window_t parent = look.parent != 0 ? look.parent : screen.root;
    if (look.inputOnly) {
      const std::uint32_t popup = 1;
      xcb_create_window(c, 0, window, parent, S(x), S(y), U(width), U(height), 0,
                        XCB_WINDOW_CLASS_INPUT_ONLY, 0, XCB_CW_OVERRIDE_REDIRECT, &popup);
      return window;
    }
    std::vector<PixelColor> pixels;
    for (int row = 0; row < height; ++row) {
      for (int column = 0; column < width; ++column) {
        const PixelColor bgr = Drawn(column, row);
        pixels.push_back((bgr & 0xFF) << 16 | (bgr & 0xFF00) | (bgr >> 16 & 0xFF));
      }
    }
    const xcb_pixmap_t picture = xcb_generate_id(c);
    const xcb_gcontext_t gc = xcb_generate_id(c);
    xcb_create_pixmap(c, screen.root_depth, picture, screen.root, U(width), U(height));
    xcb_create_gc(c, gc, picture, 0, nullptr);
    if (screen.root_depth == 24) {
      xcb_put_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, picture, gc, U(width), U(height), 0, 0, 0, 24,
                    static_cast<std::uint32_t>(4 * pixels.size()),
                    reinterpret_cast<const std::uint8_t*>(pixels.data()));
    }
    const std::uint32_t values[] = {picture, look.popup};
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window, parent, S(x), S(y), U(width), U(height),
                      U(look.border), XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXMAP | XCB_CW_OVERRIDE_REDIRECT, values);
    Set(window, XCB_ATOM_WM_CLASS, look.wmClass);
    return window;
  }
  void Map(xcb_window_t window) {
    xcb_map_window(c, window);
    Sync();
  }
  void Configure(xcb_window_t window, std::uint16_t mask, std::initializer_list<int> values) {
    xcb_configure_window(c, window, mask, std::data(values));
    Sync();
  }
  void MoveTo(xcb_window_t window, int x, int y) {
    Configure(window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, {x, y});
  }
  void Raise(xcb_window_t window) {
    Configure(window, XCB_CONFIG_WINDOW_STACK_MODE, {XCB_STACK_MODE_ABOVE});
  }

  static std::int16_t S(int value) { return static_cast<std::int16_t>(value); }
  static std::uint16_t U(int value) { return static_cast<std::uint16_t>(value); }

  xcb_connection_t* const c;
  const xcb_screen_t& screen;
};

// A display without a window manager.
class Xvfb {
 public:
  explicit Xvfb(const char* depth = "24") {
    server.setStandardErrorFile(QProcess::nullDevice());
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", QString("1280x1024x") + depth,
                          "-nolisten", "tcp", "-terminate"});
    while (!name.ends_with('\n') && server.waitForReadyRead()) {
      name += server.readAllStandardOutput().toStdString();
    }
    name = ":" + name.substr(0, name.find('\n'));
    keeper = xcb_connect(name.c_str(), nullptr);
  }
  ~Xvfb() {
    Kill();
    xcb_disconnect(keeper);
  }
  void Kill() {
    server.kill();
    server.waitForFinished();
  }

  QProcess server;
  xcb_connection_t* keeper;  // with the last client the server ends, also when the test crashes
  std::string name;
};

void ExpectGone(X11Desktop& desktop, WindowHandle window) {
  EXPECT_EQ(desktop.Caption(window), "");
  EXPECT_EQ(desktop.ClassName(window), "");
  EXPECT_EQ(desktop.ProcessId(window), 0u);
  EXPECT_FALSE(desktop.OuterRectangle(window));
  EXPECT_FALSE(desktop.Read(window, std::array{PixelArea{0, 0, 9, 9}}));
  desktop.SetMainWindow(window);
  EXPECT_EQ(desktop.CaptionBarHeight(), 0);
}

// With and without a window manager.
class X11DesktopTest : public testing::TestWithParam<bool> {
 protected:
  static void TearDownTestSuite() { plain.reset(); }

  static std::string DisplayName() {
    if (GetParam()) return "";
    if (!plain) plain = std::make_unique<Xvfb>();
    return plain->name;
  }

  xcb_window_t Show(Client& of, xcb_window_t window) {
    of.Map(window);
    EXPECT_TRUE(Until([&] { return Outer(window).has_value(); }));
    return window;
  }
  xcb_window_t Show(int x, int y, int width, int height, const Look& look = {}) {
    const auto window = Show(client, client.Make(x, y, width, height, look));
    Move(window, x, y);  // window managers place new windows elsewhere
    return window;
  }
  void Move(xcb_window_t window, int x, int y) {
    client.MoveTo(window, x, y);
    EXPECT_TRUE(Until([&] {
      const auto outer = Outer(window);
      return outer && (*outer)[0] == x && (*outer)[1] == y;
    }));
  }
  void Raise(xcb_window_t window, const std::vector<xcb_window_t>& among) {
    client.Raise(window);
    EXPECT_TRUE(Until([&] { return Stacking(among).front() == window; }));
  }

  // Of a window without its frame and border, on the screen.
  std::optional<Rect> Contents(xcb_window_t window) {
    const Owned<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(client.c, xcb_get_geometry(client.c, window), nullptr));
    const Owned<xcb_translate_coordinates_reply_t> at(xcb_translate_coordinates_reply(
        client.c, xcb_translate_coordinates(client.c, window, client.screen.root, 0, 0), nullptr));
    if (!size || !at) return std::nullopt;
    return Rect{at->dst_x, at->dst_y, at->dst_x + size->width, at->dst_y + size->height};
  }

  // By what the window manager says of the frame's borders; nothing while it is not shown, or not
  // yet framed.
  std::optional<Rect> Outer(xcb_window_t window) {
    const Owned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        client.c, xcb_get_window_attributes(client.c, window), nullptr));
    if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE) return std::nullopt;
    const Owned<xcb_get_geometry_reply_t> size(
        xcb_get_geometry_reply(client.c, xcb_get_geometry(client.c, window), nullptr));
    const auto contents = Contents(window);
    if (!size || !contents) return std::nullopt;
    std::vector<std::uint32_t> extents(4, size->border_width);
    if (GetParam() && !attributes->override_redirect) {
      extents = client.Get(window, "_NET_FRAME_EXTENTS");
      if (extents.size() != 4 || extents[2] == 0) return std::nullopt;
      if (client.Get(window, "WM_STATE").empty()) return std::nullopt;
    }
    const auto [left, top, right, bottom] = *contents;
    return Rect{left - static_cast<int>(extents[0]), top - static_cast<int>(extents[2]),
                right + static_cast<int>(extents[1]), bottom + static_cast<int>(extents[3])};
  }

  // From top to bottom, as the window manager says or the display.
  Handles Stacking(const std::vector<xcb_window_t>& among) {
    std::vector<std::uint32_t> windows;
    if (GetParam()) {
      windows = client.Get(client.screen.root, "_NET_CLIENT_LIST_STACKING");
    } else {
      const Owned<xcb_query_tree_reply_t> tree(
          xcb_query_tree_reply(client.c, xcb_query_tree(client.c, client.screen.root), nullptr));
      const auto* const children = xcb_query_tree_children(tree.get());
      windows.assign(children, children + xcb_query_tree_children_length(tree.get()));
    }
    return Among(Handles(windows.rbegin(), windows.rend()), among);
  }
  static Handles Among(Handles all, const std::vector<xcb_window_t>& among) {
    std::erase_if(all, [&](WindowHandle window) {
      return std::find(among.begin(), among.end(), window) == among.end();
    });
    return all;
  }
  Handles At(std::vector<PixelPoint> points) { return desktop.WindowsAt(points); }

  // Of a whole window and ten pixels around it: how many pixels of its contents are as drawn, how
  // many are not, and how many pixels in all cannot be read.
  struct Count {
    int right = 0, wrong = 0, unreadable = 0;
    bool operator==(const Count&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Count& count) {
      return out << count.right << '/' << count.wrong << '/' << count.unreadable;
    }
  };
  static std::array<PixelArea, 3> Areas(const Rect& outer) {
    const int width = outer[2] - outer[0];
    const int height = outer[3] - outer[1];
    const int middle = height / 2;
    return {PixelArea{-10, -10, width + 10, middle}, PixelArea{-10, middle, 3, height + 10},
            PixelArea{3, middle, width + 10, height + 10}};
  }
  static Count CountPixels(const std::vector<Capture>& captures, const PixelArea& inner) {
    Count count;
    for (const Capture& capture : captures) {
      for (int y = capture.area.top; y < capture.area.bottom; ++y) {
        for (int x = capture.area.left; x < capture.area.right; ++x) {
          const PixelColor pixel = capture.At(x, y);
          if (pixel == kUnreadable) {
            ++count.unreadable;
          } else if (x >= inner.left && x < inner.right && y >= inner.top && y < inner.bottom) {
            ++(pixel == Drawn(x - inner.left, y - inner.top) ? count.right : count.wrong);
          }
        }
      }
    }
    return count;
  }
  // Where in its frame a window's contents lie.
  PixelArea Inner(xcb_window_t window) {
    const Rect outer = *Outer(window);
    const auto [left, top, right, bottom] = *Contents(window);
    return {left - outer[0], top - outer[1], right - outer[0], bottom - outer[1]};
  }

  static inline std::unique_ptr<Xvfb> plain;
  Client client{DisplayName()};
  X11Desktop desktop{DisplayName().empty() ? nullptr : DisplayName().c_str()};
};

INSTANTIATE_TEST_SUITE_P(, X11DesktopTest, testing::Bool(), [](const auto& managed) {
  return managed.param ? "UnderAWindowManager" : "WithoutAWindowManager";
});

TEST_P(X11DesktopTest, RectangleStackingAndHits) {
  const auto a = Show(100, 100, 300, 200, {.border = GetParam() ? 0 : 4});
  const auto b = Show(300, 200, 300, 200, {.wmClass = std::string("x\0Afx:1", 7)});
  const auto child = client.Make(10, 10, 50, 50, {.parent = a});
  client.Map(child);
  for (const auto window : {a, b}) {
    EXPECT_EQ(AsRect(desktop.OuterRectangle(window)), Outer(window));
    EXPECT_EQ(desktop.Parent(window), 0);
  }
  const Rect outer = *Outer(a);
  EXPECT_EQ(outer[0], 100);
  EXPECT_EQ(outer[1], 100);
  EXPECT_GT(outer[3] - outer[1], 200);

  const PixelPoint common = {350, 250};
  for (const auto top : {a, b, a}) {
    Raise(top, {a, b});
    EXPECT_EQ(Among(desktop.TopLevelWindows(), {a, b}), Stacking({a, b}));
    EXPECT_EQ(At({common, {outer[0] + 50, outer[1] + 2}, {150, 150}, {590, 390}, {900, 900}}),
              (Handles{top, a, a, b, 0}));
  }
  // A popup covers, an invisible one too; neither is taken for a table.
  const auto popup = Show(340, 240, 40, 40, {.popup = true});
  const auto invisible = client.Make(200, 200, 10, 10, {.inputOnly = true});
  client.Map(invisible);
  EXPECT_EQ(At({common, {205, 205}}), (Handles{popup, invisible}));
  EXPECT_EQ(Among(desktop.TopLevelWindows(), {a, b, popup, child}), (Handles{popup, a, b}));
  EXPECT_EQ(AsRect(desktop.OuterRectangle(popup)), (Rect{340, 240, 380, 280}));

  // Off the screen there is nothing, though windows reach there.
  Move(b, 1100, 900);
  EXPECT_EQ(At({{1279, 1000}, {1280, 1000}, {1200, 1023}, {1200, 1024}}), (Handles{b, 0, b, 0}));
  EXPECT_EQ(At({{-1, 150}, {INT_MIN, INT_MAX}, {65536 + 150, 150}}), (Handles{0, 0, 0}));
  EXPECT_EQ(At({}), Handles{});

  // Not shown is gone; shown again is back.
  if (GetParam()) {
    QProcess::execute("xdotool", {"windowminimize", QString::number(a)});
  } else {
    xcb_unmap_window(client.c, a);
    client.Sync();
  }
  EXPECT_TRUE(Until([&] { return !Outer(a); }));
  EXPECT_FALSE(desktop.OuterRectangle(a));
  EXPECT_FALSE(desktop.Read(a, std::array{PixelArea{0, 0, 1, 1}}));
  EXPECT_EQ(Among(desktop.TopLevelWindows(), {a, b, popup}), (Handles{popup, b}));
  EXPECT_EQ(At({{150, 150}}), Handles{0});
  Show(client, a);
  // Not at once, as window managers let windows grow.
  EXPECT_TRUE(Until([&] { return AsRect(desktop.OuterRectangle(a)) == outer; }));
  EXPECT_FALSE(desktop.OuterRectangle(client.screen.root));
}

TEST_P(X11DesktopTest, HolesInAWindowLetThrough) {
  const auto below = Show(100, 100, 200, 200);
  const auto above = Show(100, 100, 200, 200, {.popup = true});
  const PixelPoint point = {150, 180};
  EXPECT_EQ(At({point}), Handles{above});
  const xcb_rectangle_t half = {100, 0, 100, 200};
  for (const xcb_shape_kind_t kind : {XCB_SHAPE_SK_INPUT, XCB_SHAPE_SK_BOUNDING}) {
    xcb_shape_rectangles(client.c, XCB_SHAPE_SO_SET, kind, 0, above, 0, 0, 1, &half);
    client.Sync();
    EXPECT_EQ(At({point, {250, 180}}), (Handles{below, above})) << int{kind};
    xcb_shape_mask(client.c, XCB_SHAPE_SO_SET, kind, above, 0, 0, XCB_NONE);
    client.Sync();
  }
}

// As other window managers frame: with a window between, or several clients in one frame.
TEST_P(X11DesktopTest, OtherFrames) {
  const auto frame = Show(100, 100, 300, 200, {.popup = true});
  const auto between = client.Make(5, 20, 280, 170, {.parent = frame});
  std::map<std::string, xcb_window_t> tabs;
  for (const char* const name : {"behind", "seen", "hidden"}) {  // from bottom to top
    tabs[name] = client.Make(0, 0, 280, 170, {.parent = between});
    client.Set(tabs[name], client.Atom("WM_STATE"), std::vector<std::uint32_t>{1, 0});
    if (std::string_view(name) != "hidden") client.Map(tabs[name]);
  }
  client.Map(between);
  const WindowHandle seen = tabs["seen"];
  EXPECT_EQ(At({{102, 102}, {200, 200}, {399, 299}}), (Handles{seen, seen, seen}));
  EXPECT_EQ(Among(desktop.TopLevelWindows(), {frame, between, tabs["behind"], tabs["seen"]}),
            Handles{seen});
  EXPECT_EQ(AsRect(desktop.OuterRectangle(seen)), (Rect{100, 100, 400, 300}));
  EXPECT_FALSE(desktop.OuterRectangle(tabs["hidden"]));
  const auto read = desktop.Read(seen, std::array{PixelArea{5, 20, 6, 21}});
  ASSERT_TRUE(read);
  EXPECT_EQ(read->front().pixels, std::vector<PixelColor>{Drawn(0, 0)});
}

TEST_P(X11DesktopTest, PixelsAreThoseDrawn) {
  const auto window = Show(100, 100, 60, 40);
  constexpr int kRightPixels = 60 * 40;
  const struct {
    int x, y;
    bool whole;
  } places[] = {{100, 100, true}, {0, 0, true}, {-30, 100, false}, {1250, 1000, false}};
  for (const auto& place : places) {
    SCOPED_TRACE(testing::Message() << place.x << ' ' << place.y);
    Move(window, place.x, place.y);
    const Rect outer = *Outer(window);
    const PixelArea inner = Inner(window);
    const auto areas = Areas(outer);
    const auto before = desktop.bytesCaptured;
    const auto read = desktop.Read(window, areas);
    ASSERT_TRUE(read);
    int all = 0;
    for (std::size_t i = 0; i < areas.size(); ++i) {
      EXPECT_EQ(AsRect((*read)[i].area), AsRect(areas[i]));
      all += areas[i].Width() * areas[i].Height();
    }
    const auto part = [](const Rect& r) {  // of it lies on the screen
      return std::max(0, std::min(r[2], 1280) - std::max(r[0], 0)) *
             std::max(0, std::min(r[3], 1024) - std::max(r[1], 0));
    };
    const int shown = part(outer);
    const int right = part({outer[0] + inner.left, outer[1] + inner.top, outer[0] + inner.right,
                            outer[1] + inner.bottom});
    EXPECT_EQ(CountPixels(*read, inner), (Count{right, 0, all - shown}));
    EXPECT_EQ(desktop.bytesCaptured - before, 4 * shown);
    EXPECT_EQ(right == kRightPixels, place.whole);
  }
  // Wholly outside, empty, inverted, and beyond all bounds.
  const auto read = desktop.Read(
      window, std::array{PixelArea{-9, -9, 0, 0}, PixelArea{5, 5, 5, 9}, PixelArea{9, 9, 1, 1},
                         PixelArea{INT_MAX - 2, INT_MIN, INT_MAX, INT_MIN + 1}});
  ASSERT_TRUE(read);
  EXPECT_EQ((*read)[0].pixels, std::vector<PixelColor>(81, kUnreadable));
  EXPECT_TRUE((*read)[1].pixels.empty());
  EXPECT_TRUE((*read)[2].pixels.empty());
  EXPECT_EQ((*read)[3].pixels, std::vector<PixelColor>(2, kUnreadable));
  EXPECT_EQ(desktop.Read(window, {})->size(), 0u);
}

TEST_P(X11DesktopTest, TextsAndProcess) {
  const auto window = Show(100, 100, 60, 40);
  const xcb_atom_t utf8Name = client.Atom("_NET_WM_NAME");
  const xcb_atom_t pid = client.Atom("_NET_WM_PID");
  EXPECT_EQ(desktop.Caption(window), "");
  EXPECT_EQ(desktop.ProcessId(window), 0u);
  const std::string odd = "\xFF\x80 \"NL  Hold'em\"\n\x01\xE2\x82";
  const std::string endless(5000, 'x');
  for (const std::string& name : {std::string("Table"), odd, endless, std::string()}) {
    client.Set(window, XCB_ATOM_WM_NAME, name);
    EXPECT_EQ(desktop.Caption(window), name.substr(0, 259));
  }
  client.Set(window, XCB_ATOM_WM_NAME, "plain");
  for (const std::string& name : {std::string("5 \xE2\x82\xAC"), odd, endless}) {
    client.Set(window, utf8Name, name);
    EXPECT_EQ(desktop.Caption(window), name.substr(0, 259));
  }
  client.Set(window, utf8Name, std::vector<std::uint32_t>{0x41424344});  // no text
  EXPECT_EQ(desktop.Caption(window), "plain");

  const std::pair<std::string, std::string> classes[] = {
      {std::string("dialog\0#32770\0", 14), "#32770"},
      {std::string("\0Afx:1", 6), "Afx:1"},
      {endless.substr(0, 1000) + '\0' + endless, endless.substr(0, 259)},
      {endless, ""},
      {"no class", ""},
      {"", ""}};
  for (const auto& [property, name] : classes) {
    client.Set(window, XCB_ATOM_WM_CLASS, property);
    EXPECT_EQ(desktop.ClassName(window), name);
  }
  client.Set(window, pid, {4000000000u});
  EXPECT_EQ(desktop.ProcessId(window), 4000000000u);
  client.Set(window, pid, "1234");  // no number
  EXPECT_EQ(desktop.ProcessId(window), 0u);

  for (const WindowHandle none : {WindowHandle{0}, WindowHandle{0x7FFFFFFF}}) {
    ExpectGone(desktop, none);
  }
}

TEST_P(X11DesktopTest, CaptionBarHeight) {
  EXPECT_EQ(desktop.CaptionBarHeight(), 0);
  const auto window = Show(100, 100, 60, 40);
  desktop.SetMainWindow(window);
  EXPECT_EQ(desktop.CaptionBarHeight(), Inner(window).top);
  EXPECT_EQ(desktop.CaptionBarHeight() > 0, GetParam());
  for (const std::uint32_t nonsense : {1001u, 0xFFFFFFFFu}) {
    client.Set(window, client.Atom("_NET_FRAME_EXTENTS"), {1, 2, nonsense, 3});
    EXPECT_EQ(desktop.CaptionBarHeight(), 0);
  }
}

// What is read of a dying or moving window is all its own, or nothing.
TEST_P(X11DesktopTest, WindowsDieAtAnyMoment) {
  std::mt19937 random(4);
  int captures = 0;
  int diedInAPass = 0;
  auto aPass = 1000us;
  // Without a window manager the frame is ours, and outlives the window.
  const auto frame = GetParam() ? 0 : Show(200, 200, 100, 90, {.popup = true});
  for (int death = 0; death < 300; ++death) {
    auto program = std::make_unique<Client>(DisplayName());
    const auto window = program->Make(5, 20, 80, 60, {.parent = frame});
    if (!GetParam()) client.Set(window, client.Atom("WM_STATE"), std::vector<std::uint32_t>{1, 0});
    Show(*program, window);
    const Rect outer = *Outer(GetParam() ? window : frame);
    const PixelArea inner = GetParam() ? Inner(window) : PixelArea{5, 20, 85, 80};
    const auto areas = Areas(outer);
    const std::vector<PixelPoint> points(20, {outer[0] + 40, outer[1] + 40});
    std::thread killer([&, wait = aPass * (random() % 256) / 64] {
      std::this_thread::sleep_for(wait);
      switch (death % 4) {
        case 0: xcb_kill_client(client.c, window); break;
        case 1: xcb_destroy_window(client.c, window); break;
        case 2: xcb_unmap_window(client.c, window); break;
        case 3: program.reset(); break;
      }
      xcb_flush(client.c);
    });
    for (bool dead = false; !dead;) {
      const auto start = std::chrono::steady_clock::now();
      const auto all = desktop.TopLevelWindows();
      const auto hits = desktop.WindowsAt(points);
      EXPECT_EQ(hits.size(), 20u);
      const std::string className = desktop.ClassName(window);
      EXPECT_TRUE(className == "#32770" || className.empty());
      EXPECT_EQ(desktop.Caption(window), "");
      EXPECT_EQ(desktop.ProcessId(window), 0u);
      const auto rectangle = desktop.OuterRectangle(window);
      EXPECT_TRUE(!rectangle || AsRect(rectangle) == outer);
      const auto read = desktop.Read(window, areas);
      if (read) {
        ++captures;
        const Count count = CountPixels(*read, inner);
        EXPECT_EQ(count.right, 80 * 60) << count;
        aPass = std::chrono::duration_cast<std::chrono::microseconds>(
            std::chrono::steady_clock::now() - start);
      }
      dead = !read;
      diedInAPass += dead && Among(all, {window}) == Handles{window};
    }
    killer.join();
    EXPECT_FALSE(desktop.OuterRectangle(window));
    EXPECT_EQ(Among(desktop.TopLevelWindows(), {window}), Handles{});
    EXPECT_NE(At({points.front()}).front(), window);
  }
  EXPECT_GT(captures, 100);
  EXPECT_GT(diedInAPass, 100);
}

TEST_P(X11DesktopTest, AWindowOnTheMoveIsReadRightOrNotAtAll) {
  const auto window = Show(0, 200, 80, 60);
  const PixelArea inner = Inner(window);
  const auto areas = Areas(*Outer(window));
  std::atomic<bool> enough = false;
  std::thread mover([&] {
    for (int i = 0; !enough; ++i) {
      client.MoveTo(window, i % 1000, 200 + i % 500);
      std::this_thread::sleep_for(std::chrono::microseconds(i * 1237 % 1500));
    }
  });
  int captures = 0;
  int misses = 0;
  EXPECT_TRUE(Until([&] {
    const auto read = desktop.Read(window, areas);
    if (read) {
      const Count count = CountPixels(*read, inner);
      EXPECT_EQ(count.right, 80 * 60) << count;
    }
    ++(read ? captures : misses);
    return captures == 1000;
  }));
  EXPECT_LT(misses, 40);  // a single attempt misses more often
  enough = true;
  mover.join();
}

TEST_P(X11DesktopTest, CostOfATick) {
  const auto window = Show(100, 100, 800, 560);
  desktop.roundTrips = 0;
  desktop.bytesCaptured = 0;
  std::vector<PixelPoint> points;
  for (int i = 0; i < 20; ++i) points.push_back({150 + 30 * i, 200 + 10 * i});
  EXPECT_EQ(desktop.WindowsAt(points), Handles(20, window));
  EXPECT_TRUE(desktop.OuterRectangle(window));
  std::vector<PixelArea> areas;  // seven cards' grids
  for (int i = 0; i < 7; ++i) areas.push_back({100 + 40 * i, 200, 115 + 40 * i, 236});
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(desktop.Read(window, areas));
  EXPECT_EQ(desktop.roundTrips, GetParam() ? 3 + 2 + 5 * 3 : 2 + 1 + 5 * 2);
  EXPECT_EQ(desktop.bytesCaptured, 5 * 7 * 15 * 36 * 4);
  std::printf("%d round trips, %d bytes\n", static_cast<int>(desktop.roundTrips),
              static_cast<int>(desktop.bytesCaptured));
  // A menu over the table costs no more than a look at its insides, which may be deep.
  xcb_window_t inside = Show(150, 200, 20, 20, {.popup = true});
  for (int i = 0; i < 9; ++i) {
    inside = client.Make(0, 0, 20, 20, {.parent = inside});
    client.Map(inside);
  }
  desktop.roundTrips = 0;
  EXPECT_NE(desktop.WindowsAt(points).front(), window);
  EXPECT_LE(desktop.roundTrips, 5);
  desktop.roundTrips = 0;
  desktop.TopLevelWindows();
  EXPECT_LE(desktop.roundTrips, 5);
}

void ExpectNothing(X11Desktop& desktop, WindowHandle window) {
  ExpectGone(desktop, window);
  EXPECT_EQ(desktop.TopLevelWindows(), Handles{});
  EXPECT_EQ(desktop.WindowsAt(std::array{PixelPoint{5, 5}, PixelPoint{6, 6}}), (Handles{0, 0}));
}

TEST(X11DesktopDisplayTest, LostAndNever) {
  Xvfb display;
  Client client(display.name);
  const auto window = client.Make(0, 0, 50, 50);
  client.Map(window);
  X11Desktop desktop(display.name.c_str());
  EXPECT_EQ(desktop.TopLevelWindows(), Handles{window});
  display.Kill();
  ExpectNothing(desktop, window);

  X11Desktop never(":99999");
  ExpectNothing(never, window);
}

TEST(X11DesktopDisplayTest, OtherDepthsCannotBeRead) {
  for (const char* const depth : {"8", "16", "30"}) {
    SCOPED_TRACE(depth);
    Xvfb display(depth);
    Client client(display.name);
    ASSERT_EQ(std::to_string(client.screen.root_depth), depth);
    const auto window = client.Make(0, 0, 50, 50);
    client.Map(window);
    X11Desktop desktop(display.name.c_str());
    const auto read = desktop.Read(window, std::array{PixelArea{0, 0, 9, 9}});
    ASSERT_TRUE(read);
    EXPECT_EQ(read->front().pixels, std::vector<PixelColor>(81, kUnreadable));
    EXPECT_EQ(desktop.OuterRectangle(window)->right, 50);
  }
}

TEST(X11DesktopDisplayTest, EveryOrderOfBytes) {
  const std::uint8_t bytes[] = {0x11, 0x22, 0x33, 0x44};
  const struct {
    PixelFormat format;
    PixelColor pixel;
  } cases[] = {{{true, false, 16, 8, 0}, 0x112233},
               {{true, false, 0, 8, 16}, 0x332211},
               {{true, true, 16, 8, 0}, 0x443322},
               {{true, true, 24, 16, 8}, 0x332211}};
  for (const auto& c : cases) EXPECT_EQ(c.format.Decode(bytes), c.pixel);
}

}  // namespace
}  // namespace holdem
