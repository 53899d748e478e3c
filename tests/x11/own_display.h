// A display of a test's own, without a window manager.
#pragma once

#include <sys/prctl.h>
#include <xcb/xcb.h>

#include <QProcess>
#include <csignal>
#include <string_view>
#include <vector>

#include "platform/desktop.h"

namespace holdem {

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
    Kill();
  }
  void Kill() { server.kill(), server.waitForFinished(); }

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
    xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(c, asked, nullptr);
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    return atom;
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

}  // namespace holdem
