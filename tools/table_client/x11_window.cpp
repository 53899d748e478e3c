#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <thread>

#include "table_window.h"

namespace holdem::table_client {
namespace {

using namespace std::chrono_literals;

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, FreeReply>;

template <typename Reply>
Owned<Reply> Own(Reply* reply) {
  return Owned<Reply>(reply);
}

// A window's frame as the window manager has made it; the window itself when there is none.
struct Frame {
  Size outer;
  Point client;  // its corner in the frame
  bool operator==(const Frame& other) const {
    return outer.width == other.outer.width && outer.height == other.outer.height &&
           client.x == other.client.x && client.y == other.client.y;
  }
};

class X11Window final : public TableWindow {
 public:
  X11Window(int layout, const std::string& caption, std::optional<Point> position) {
    connection_.reset(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection_.get()) != 0) throw std::runtime_error("no X display");
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
    CheckPixelFormat();
    Create(layout, caption, position);
    xcb_map_window(connection_.get(), window_);
    FitFrame(layout, position);
  }

  std::uintptr_t Id() const override { return window_; }

  void SetCaption(const std::string& caption) override {
    SetText(XCB_ATOM_WM_NAME, XCB_ATOM_STRING, caption);
    SetText(Atom("_NET_WM_NAME"), Atom("UTF8_STRING"), caption);
    Settle();
  }

  // The picture becomes the window's background, so the server alone repaints what was covered, and
  // a reader sees the whole old picture or the whole new one.
  void Show(const Picture& picture) override {
    xcb_connection_t* const c = connection_.get();
    const Picture part = Part(picture, {frame_.client.x, kDrawnCaption}, client_);
    const xcb_pixmap_t pixmap = xcb_generate_id(c);
    const auto width = static_cast<std::uint16_t>(client_.width);
    xcb_create_pixmap(c, screen_->root_depth, pixmap, window_, width,
                      static_cast<std::uint16_t>(client_.height));
    const xcb_gcontext_t gc = xcb_generate_id(c);
    xcb_create_gc(c, gc, pixmap, 0, nullptr);
    const int rowsAtOnce = std::max(
        1, static_cast<int>(xcb_get_maximum_request_length(c) - 16) / std::max(client_.width, 1));
    for (int y = 0; y < client_.height; y += rowsAtOnce) {
      const int rows = std::min(rowsAtOnce, client_.height - y);
      xcb_put_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, gc, width,
                    static_cast<std::uint16_t>(rows), 0, static_cast<std::int16_t>(y), 0,
                    screen_->root_depth, static_cast<std::uint32_t>(rows * client_.width * 4),
                    reinterpret_cast<const std::uint8_t*>(&part.pixels[part.Index(0, y)]));
    }
    xcb_change_window_attributes(c, window_, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(c, 0, window_, 0, 0, 0, 0);
    xcb_free_gc(c, gc);
    xcb_free_pixmap(c, pixmap);
    Settle();
  }

  bool Pump() override {
    while (const auto event = Own(xcb_poll_for_event(connection_.get()))) {
      const int type = event->response_type & 0x7F;
      if (type == XCB_DESTROY_NOTIFY) return false;
      if (type != XCB_CLIENT_MESSAGE) continue;
      const auto* const message = reinterpret_cast<xcb_client_message_event_t*>(event.get());
      if (message->data.data32[0] == deleteWindow_) return false;
    }
    return xcb_connection_has_error(connection_.get()) == 0;
  }

 private:
  void CheckPixelFormat() const {
    const xcb_setup_t* const setup = xcb_get_setup(connection_.get());
    for (auto i = xcb_setup_pixmap_formats_iterator(setup); i.rem > 0; xcb_format_next(&i)) {
      if (i.data->depth == screen_->root_depth && i.data->depth >= 24 &&
          i.data->bits_per_pixel == 32) {
        return;
      }
    }
    throw std::runtime_error("the screen has no true colours");
  }

  xcb_atom_t Atom(std::string_view name) const {
    const auto reply = Own(xcb_intern_atom_reply(
        connection_.get(),
        xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  }

  void SetText(xcb_atom_t property, xcb_atom_t type, std::string_view text) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, property, type, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
  }
  void SetNumbers(xcb_atom_t property, xcb_atom_t type, const std::vector<std::uint32_t>& numbers) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, property, type, 32,
                        static_cast<std::uint32_t>(numbers.size()), numbers.data());
  }

  // The window can't be resized. Neither can its frame be told to the pixel before it is there, so
  // the size is set once more then.
  void SetClientSize(Size size, std::optional<Point> position) {
    client_ = size;
    const auto width = static_cast<std::uint32_t>(size.width);
    const auto height = static_cast<std::uint32_t>(size.height);
    std::vector<std::uint32_t> hints(18);
    hints[0] = 16 | 32 | (position ? 1 : 0);  // smallest size, largest size, the user's position
    hints[5] = hints[7] = width;
    hints[6] = hints[8] = height;
    SetNumbers(XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, hints);
    xcb_configure_window(connection_.get(), window_,
                         XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         std::array{width, height}.data());
  }

  void Create(int layout, const std::string& caption, std::optional<Point> position) {
    xcb_connection_t* const c = connection_.get();
    const Size outer = OuterSize(layout, kDrawnCaption);
    const Point at = position.value_or(Point{0, 0});
    window_ = xcb_generate_id(c);
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window_, screen_->root,
                      static_cast<std::int16_t>(at.x), static_cast<std::int16_t>(at.y),
                      static_cast<std::uint16_t>(outer.width),
                      static_cast<std::uint16_t>(outer.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      screen_->root_visual, XCB_CW_EVENT_MASK, &events);
    SetText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING,
            std::string("table") + '\0' + WindowClass(layout) + '\0');
    SetCaption(caption);
    std::array<char, 256> host{};
    gethostname(host.data(), host.size() - 1);
    SetText(XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, host.data());
    SetNumbers(Atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, {static_cast<std::uint32_t>(getpid())});
    deleteWindow_ = Atom("WM_DELETE_WINDOW");
    SetNumbers(Atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, {deleteWindow_});
    SetClientSize(outer, position);
  }

  // Left, right, top, bottom, as the window manager tells; nothing when it tells nothing.
  std::optional<std::array<int, 4>> FrameExtents() const {
    const auto property = Own(xcb_get_property_reply(
        connection_.get(),
        xcb_get_property(connection_.get(), 0, window_, Atom("_NET_FRAME_EXTENTS"),
                         XCB_ATOM_CARDINAL, 0, 4),
        nullptr));
    if (!property || property->format != 32 || property->value_len != 4) return std::nullopt;
    std::array<int, 4> extents{};
    std::memcpy(extents.data(), xcb_get_property_value(property.get()), sizeof extents);
    return extents;
  }

  // Of what is to be seen of it: the frame window may have a shadow or a margin besides. Also finds
  // the window that is the frame.
  std::optional<Frame> MeasureFrame(xcb_window_t& outermost) const {
    xcb_connection_t* const c = connection_.get();
    outermost = window_;
    for (;;) {
      const auto tree = Own(xcb_query_tree_reply(c, xcb_query_tree(c, outermost), nullptr));
      if (!tree) return std::nullopt;
      if (tree->parent == screen_->root || tree->parent == XCB_NONE) break;
      outermost = tree->parent;
    }
    const auto inner = Own(xcb_get_geometry_reply(c, xcb_get_geometry(c, window_), nullptr));
    if (const auto extents = FrameExtents(); inner && extents) {
      const auto [left, right, top, bottom] = *extents;
      return Frame{{inner->width + left + right, inner->height + top + bottom}, {left, top}};
    }
    const auto frame = Own(xcb_get_geometry_reply(c, xcb_get_geometry(c, outermost), nullptr));
    const auto client = Own(xcb_translate_coordinates_reply(
        c, xcb_translate_coordinates(c, window_, screen_->root, 0, 0), nullptr));
    if (!frame || !client) return std::nullopt;
    return Frame{{frame->width + 2 * frame->border_width, frame->height + 2 * frame->border_width},
                 {client->dst_x - frame->x, client->dst_y - frame->y}};
  }

  bool HasWindowManager() const {
    xcb_connection_t* const c = connection_.get();
    const auto root = Own(
        xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, screen_->root), nullptr));
    return root && (root->all_event_masks & XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT) != 0;
  }

  // What a client has above it in its frame is taken for its caption bar.
  void FitFrame(int layout, std::optional<Point> position) {
    std::optional<Frame> before;
    int unchanged = 0;  // looks in a row; a window manager takes its time to make the frame
    const bool managed = HasWindowManager();
    const auto start = std::chrono::steady_clock::now();
    for (auto waited = 0ns; waited < 15s; waited = std::chrono::steady_clock::now() - start) {
      std::this_thread::sleep_for(20ms);
      xcb_window_t outermost = window_;
      const std::optional<Frame> now = MeasureFrame(outermost);
      if (!now) break;
      // A few window managers draw no frame at all.
      const bool mayCome = managed && outermost == window_ && waited < 5s;
      unchanged = now == before && !mayCome ? unchanged + 1 : 0;
      before = now;
      if (unchanged < 10) continue;
      frame_ = *now;
      const Size wanted = OuterSize(layout, frame_.client.y);
      const Size off = {wanted.width - now->outer.width, wanted.height - now->outer.height};
      if (off.width == 0 && off.height == 0) return;
      SetClientSize({client_.width + off.width, client_.height + off.height}, position);
      unchanged = 0;
    }
    throw std::runtime_error("the window manager does not let the window have its size");
  }

  // Waits until the server has done all that it was asked for.
  void Settle() {
    Own(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()),
                                  nullptr));
  }

  struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
  };
  std::unique_ptr<xcb_connection_t, Disconnect> connection_;
  xcb_screen_t* screen_ = nullptr;
  xcb_window_t window_ = XCB_NONE;
  xcb_atom_t deleteWindow_ = XCB_NONE;
  Size client_{};
  Frame frame_{};
};

}  // namespace

std::unique_ptr<TableWindow> OpenTableWindow(const WindowWanted& wanted) {
  return std::make_unique<X11Window>(wanted.layout, wanted.caption, wanted.position);
}

}  // namespace holdem::table_client
