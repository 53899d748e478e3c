#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <stdexcept>

#include "cover_windows.h"

namespace holdem::cover_client {
namespace {

// They place themselves, as menus and tooltips do.
class X11Covers : public CoverWindows {
 public:
  X11Covers() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) throw std::runtime_error("no X display");
  }
  ~X11Covers() override { xcb_disconnect(connection_); }
  X11Covers(const X11Covers&) = delete;
  X11Covers& operator=(const X11Covers&) = delete;

  void Show(const Covers& covers, WindowHandle table) override {
    for (const xcb_window_t window : windows_) xcb_destroy_window(connection_, window);
    windows_.clear();
    for (const Cover& cover : covers) windows_.push_back(Open(cover, table));
    std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  }

 private:
  xcb_window_t Open(const Cover& cover, WindowHandle table) {
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    const xcb_window_t window = xcb_generate_id(connection_);
    const PixelColor bgr = cover.color;
    const std::uint32_t values[] = {(bgr & 0xFF) << 16 | (bgr & 0xFF00) | bgr >> 16, 1};
    xcb_create_window(
        connection_, XCB_COPY_FROM_PARENT, window, screen->root,
        static_cast<std::int16_t>(cover.area.left), static_cast<std::int16_t>(cover.area.top),
        static_cast<std::uint16_t>(cover.area.Width()),
        static_cast<std::uint16_t>(cover.area.Height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        screen->root_visual, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    if (!cover.takesMouse) {
      xcb_shape_rectangles(connection_, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, 0, window, 0, 0, 0,
                           nullptr);
    }
    if (cover.owned) {
      const auto owner = static_cast<xcb_window_t>(table);
      xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_TRANSIENT_FOR,
                          XCB_ATOM_WINDOW, 32, 1, &owner);
    }
    xcb_map_window(connection_, window);
    return window;
  }

  xcb_connection_t* connection_;
  std::vector<xcb_window_t> windows_;
};

}  // namespace

std::unique_ptr<CoverWindows> MakeCoverWindows() { return std::make_unique<X11Covers>(); }

}  // namespace holdem::cover_client
