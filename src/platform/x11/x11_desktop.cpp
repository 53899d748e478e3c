#include "platform/x11/x11_desktop.h"

#include <xcb/composite.h>
#include <xcb/shape.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <string_view>

namespace holdem {
namespace {

constexpr std::size_t kLongestText = 259;
constexpr std::uint32_t kPropertyWords = 1024;  // of 4 bytes; the most that is read of one property
// Window managers put one or two windows around an application's own; one more to be safe.
constexpr int kDeepestClient = 3;
constexpr std::uint32_t kWidestFrame = 1000;  // pixels; any program may set the property
constexpr std::uint32_t kFarthest = 0x7FFF;   // likewise; the edge of the largest desktop

xcb_window_t Id(WindowHandle window) { return static_cast<xcb_window_t>(window); }

PixelArea OuterArea(const xcb_get_geometry_reply_t& geometry) {
  return {geometry.x, geometry.y, geometry.x + geometry.width + 2 * geometry.border_width,
          geometry.y + geometry.height + 2 * geometry.border_width};
}

// Nothing when there is no such text.
std::optional<std::string_view> Text(const xcb_get_property_reply_t* property) {
  if (property == nullptr || property->format != 8) return std::nullopt;
  return std::string_view(static_cast<const char*>(xcb_get_property_value(property)),
                          static_cast<std::size_t>(xcb_get_property_value_length(property)));
}

// Those of the reply, which owns them; none when the property holds no numbers.
std::span<const std::uint32_t> Numbers(const xcb_get_property_reply_t* property) {
  if (property == nullptr || property->format != 32) return {};
  return {static_cast<const std::uint32_t*>(xcb_get_property_value(property)), property->value_len};
}

// What a panel takes of the whole desktop, at its left, right, top and bottom edge: how deep, and,
// where that is told, from where to where along the edge.
std::array<PixelArea, 4> Taken(const xcb_get_property_reply_t* strut, const PixelArea& desktop) {
  const auto numbers = Numbers(strut);
  std::array<int, 12> at{};
  const std::size_t told =
      numbers.size() >= at.size() ? at.size() : std::min<std::size_t>(numbers.size(), 4);
  for (std::size_t i = 0; i < at.size(); ++i) {
    const bool isEnd = i >= 4 && i % 2 == 1;
    const std::uint32_t number = i < told ? numbers[i] : isEnd ? kFarthest : 0;
    at[i] = static_cast<int>(std::min(number, kFarthest));
  }
  const int right = desktop.right;
  const int bottom = desktop.bottom;
  return {{{0, at[4], at[0], at[5] + 1},
           {right - at[1], at[6], right, at[7] + 1},
           {at[8], 0, at[9] + 1, at[2]},
           {at[10], bottom - at[3], at[11] + 1, bottom}}};
}

const xcb_screen_t* FindScreen(const xcb_setup_t& setup, int number) {
  auto screens = xcb_setup_roots_iterator(&setup);
  while (screens.rem > 1 && number-- > 0) xcb_screen_next(&screens);
  return screens.data;
}

// The area with the frame that the window manager tells of; nothing where it tells of none, or of
// one that makes no sense.
std::optional<PixelArea> Grown(const PixelArea& area, const xcb_get_property_reply_t* extents) {
  const auto numbers = Numbers(extents);  // left, right, top, bottom
  if (numbers.size() != 4 || std::ranges::max(numbers) > kWidestFrame) return {};
  const std::vector<int> by(numbers.begin(), numbers.end());
  return PixelArea{area.left - by[0], area.top - by[2], area.right + by[1], area.bottom + by[3]};
}

}  // namespace

X11Desktop::X11Desktop(const char* display) {
  int number = 0;
  connection_ = xcb_connect(display, &number);
  // Without a display the connection stands, but every request on it fails.
  const xcb_setup_t* const setup = xcb_get_setup(connection_);
  const xcb_screen_t* const screen = setup == nullptr ? nullptr : FindScreen(*setup, number);
  if (screen == nullptr) return;
  root_ = screen->root;

  struct NamedAtom {
    std::string_view name;
    xcb_atom_t& atom;
  };
  const std::array<NamedAtom, 10> atoms = {{{"WM_STATE", wmState_},
                                            {"_NET_WM_NAME", netWmName_},
                                            {"_NET_WM_PID", netWmPid_},
                                            {"_NET_FRAME_EXTENTS", netFrameExtents_},
                                            {"_NET_CLIENT_LIST", netClientList_},
                                            {"_NET_WM_STATE", netWmState_},
                                            {"_NET_WM_STATE_HIDDEN", netWmStateHidden_},
                                            {"_NET_WORKAREA", netWorkArea_},
                                            {"_NET_WM_STRUT", netWmStrut_},
                                            {"_NET_WM_STRUT_PARTIAL", netWmStrutPartial_}}};
  std::vector<xcb_intern_atom_cookie_t> cookies;
  for (const auto& [name, atom] : atoms) {
    cookies.push_back(
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data()));
  }
  CountRoundTrip();
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    if (const auto reply = Await(xcb_intern_atom_reply, cookies[i])) atoms[i].atom = reply->atom;
  }
  hasShapes_ = HasExtension(connection_, xcb_shape_id);
  if (!HasExtension(connection_, xcb_composite_id)) return;
  Await(xcb_composite_query_version_reply, xcb_composite_query_version(connection_, 0, 2));
  pixelsName_ = xcb_generate_id(connection_);
}

X11Desktop::~X11Desktop() { xcb_disconnect(connection_); }

void X11Desktop::CountRoundTrip() {
  ++roundTrips;
  // Some events come unasked, such as those about the keyboard; they must not pile up.
  while (const Owned<xcb_generic_event_t> event{xcb_poll_for_queued_event(connection_)}) {
  }
}

std::vector<X11Desktop::View> X11Desktop::Ask(std::span<const xcb_window_t> windows) {
  struct Cookies {
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_property_cookie_t state;
    xcb_query_tree_cookie_t tree;
    xcb_get_geometry_cookie_t geometry;
  };
  std::vector<Cookies> asked;
  for (const xcb_window_t window : windows) {
    asked.push_back({xcb_get_window_attributes(connection_, window),
                     xcb_get_property(connection_, 0, window, wmState_, XCB_ATOM_ANY, 0, 0),
                     xcb_query_tree(connection_, window), xcb_get_geometry(connection_, window)});
  }
  const auto screen = xcb_get_geometry(connection_, root_);  // the user may change its size
  CountRoundTrip();

  std::vector<View> views;
  for (const Cookies& cookies : asked) {
    const auto attributes = Await(xcb_get_window_attributes_reply, cookies.attributes);
    const auto state = Await(xcb_get_property_reply, cookies.state);
    const auto tree = Await(xcb_query_tree_reply, cookies.tree);
    const auto geometry = Await(xcb_get_geometry_reply, cookies.geometry);
    View& view = views.emplace_back();
    if (!attributes || !state || !tree || !geometry) continue;
    view.shown = attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    view.managed = state->type != XCB_ATOM_NONE;
    view.parent = tree->parent;
    view.children.assign(xcb_query_tree_children(tree.get()),
                         xcb_query_tree_children(tree.get()) + tree->children_len);
    view.outer = OuterArea(*geometry);
  }
  const auto size = Await(xcb_get_geometry_reply, screen);
  screen_ = size ? OuterArea(*size) : PixelArea{};
  return views;
}

std::vector<Owned<xcb_get_property_reply_t>> X11Desktop::Properties(
    WindowHandle window, std::initializer_list<xcb_atom_t> atoms) {
  std::vector<xcb_get_property_cookie_t> cookies;
  for (const xcb_atom_t atom : atoms) {
    cookies.push_back(
        xcb_get_property(connection_, 0, Id(window), atom, XCB_ATOM_ANY, 0, kPropertyWords));
  }
  CountRoundTrip();
  std::vector<Owned<xcb_get_property_reply_t>> properties;
  for (const auto cookie : cookies) properties.push_back(Await(xcb_get_property_reply, cookie));
  return properties;
}

std::vector<xcb_window_t> X11Desktop::ClientsIn(std::span<const xcb_window_t> frames) {
  std::vector<xcb_window_t> clients(frames.begin(), frames.end());
  std::vector<bool> settled(frames.size());
  // Goes down the trees of all frames, level by level. Within a frame the topmost window comes
  // first: where a window manager keeps several in one frame, that one is seen.
  std::vector<xcb_window_t> level = clients;
  std::vector<std::size_t> frameOf(frames.size());
  std::iota(frameOf.begin(), frameOf.end(), std::size_t{0});
  for (int depth = 0; depth <= kDeepestClient && !level.empty(); ++depth) {
    const std::vector<View> views = Ask(level);
    for (std::size_t i = 0; i < views.size(); ++i) {
      if (depth == 0 && !views[i].shown) clients[i] = 0;
      if (!views[i].shown || !views[i].managed || settled[frameOf[i]]) continue;
      clients[frameOf[i]] = level[i];
      settled[frameOf[i]] = true;
    }
    std::vector<xcb_window_t> below;
    std::vector<std::size_t> frameOfBelow;
    for (std::size_t i = 0; i < views.size(); ++i) {
      if (!views[i].shown || settled[frameOf[i]]) continue;
      below.insert(below.end(), views[i].children.rbegin(), views[i].children.rend());
      frameOfBelow.resize(below.size(), frameOf[i]);
    }
    level = std::move(below);
    frameOf = std::move(frameOfBelow);
  }
  return clients;
}

std::optional<PixelArea> X11Desktop::FrameAround(xcb_window_t parent) {
  for (int depth = 1; depth <= kDeepestClient; ++depth) {
    const View view = Ask({&parent, 1}).front();
    if (!view.shown) return std::nullopt;
    if (view.parent == root_) return view.outer;
    parent = view.parent;
  }
  return std::nullopt;
}

// The frame is as thick as the window manager says. The frame's own window may be larger, by a
// shadow or by a margin where the mouse can grab it; it counts only where the manager says nothing.
std::optional<X11Desktop::Measured> X11Desktop::Measure(WindowHandle handle) {
  const xcb_window_t window = Id(handle);
  const auto attributesAsked = xcb_get_window_attributes(connection_, window);
  const auto geometryAsked = xcb_get_geometry(connection_, window);
  const auto cornerAsked = xcb_translate_coordinates(connection_, window, root_, 0, 0);
  const auto treeAsked = xcb_query_tree(connection_, window);
  const auto screenAsked = xcb_get_geometry(connection_, root_);   // the user may change its size
  const auto properties = Properties(window, {netFrameExtents_});  // waits for all
  const auto attributes = Await(xcb_get_window_attributes_reply, attributesAsked);
  const auto geometry = Await(xcb_get_geometry_reply, geometryAsked);
  const auto corner = Await(xcb_translate_coordinates_reply, cornerAsked);
  const auto tree = Await(xcb_query_tree_reply, treeAsked);
  const auto screen = Await(xcb_get_geometry_reply, screenAsked);
  screen_ = screen ? OuterArea(*screen) : PixelArea{};
  if (!attributes || !geometry || !corner || !tree) return std::nullopt;
  if (attributes->map_state != XCB_MAP_STATE_VIEWABLE) return std::nullopt;

  const int border = geometry->border_width;
  const PixelArea inner =
      PixelArea{0, 0, geometry->width, geometry->height}.Moved({corner->dst_x, corner->dst_y});
  const PixelArea whole = {inner.left - border, inner.top - border, inner.right + border,
                           inner.bottom + border};
  if (const auto grown = Grown(whole, properties[0].get()))
    return Measured{*grown, inner, tree->parent};
  if (tree->parent == root_) return Measured{whole, inner, root_};
  const auto frame = FrameAround(tree->parent);
  return frame ? std::optional(Measured{*frame, inner, tree->parent}) : std::nullopt;
}

std::vector<WindowHandle> X11Desktop::TopLevelWindows() {
  const auto cookie = xcb_query_tree(connection_, root_);
  CountRoundTrip();
  const auto tree = Await(xcb_query_tree_reply, cookie);
  if (!tree) return {};
  const std::vector<xcb_window_t> clients =
      ClientsIn({xcb_query_tree_children(tree.get()), tree->children_len});
  std::vector<WindowHandle> windows(clients.rbegin(), clients.rend());
  std::erase(windows, WindowHandle{0});
  return windows;
}

std::vector<WindowHandle> X11Desktop::MinimisedWindows() {
  const auto list = std::move(Properties(root_, {netClientList_})[0]);
  const auto clients = Numbers(list.get());
  std::vector<xcb_get_property_cookie_t> asked;
  for (const xcb_window_t client : clients) {
    asked.push_back(
        xcb_get_property(connection_, 0, client, netWmState_, XCB_ATOM_ANY, 0, kPropertyWords));
  }
  CountRoundTrip();
  std::vector<WindowHandle> minimised;
  for (std::size_t i = 0; i < asked.size(); ++i) {
    const auto states = Await(xcb_get_property_reply, asked[i]);
    const auto hidden = std::ranges::count(Numbers(states.get()), netWmStateHidden_);
    if (hidden > 0) minimised.push_back(clients[i]);
  }
  return minimised;
}

std::string X11Desktop::ClassName(WindowHandle window) {
  const auto properties = Properties(window, {XCB_ATOM_WM_CLASS});
  const std::string_view text = Text(properties[0].get()).value_or("");
  const std::size_t instance = text.find('\0');  // the instance, a NUL, the class, a NUL
  if (instance == text.npos) return {};
  const std::string_view name = text.substr(instance + 1);
  return std::string(name.substr(0, std::min(name.find('\0'), kLongestText)));
}

std::string X11Desktop::GetWindowCaption(WindowHandle window) {
  const auto properties = Properties(window, {netWmName_, XCB_ATOM_WM_NAME});
  const auto caption = Text(properties[0].get());
  return std::string(
      (caption ? *caption : Text(properties[1].get()).value_or("")).substr(0, kLongestText));
}

std::uint32_t X11Desktop::ProcessId(WindowHandle window) {
  const auto properties = Properties(window, {netWmPid_});
  const auto numbers = Numbers(properties[0].get());
  return numbers.empty() ? 0 : numbers[0];
}

std::optional<PixelArea> X11Desktop::OuterRectangle(WindowHandle window) {
  const auto measured = Measure(window);
  return measured ? std::optional(measured->outer) : std::nullopt;
}

std::vector<WindowHandle> X11Desktop::WindowsAt(std::span<const PixelPoint> points, WindowHandle) {
  std::vector<xcb_translate_coordinates_cookie_t> cookies;
  for (const PixelPoint& point : points) {
    cookies.push_back(xcb_translate_coordinates(connection_, root_, root_,
                                                static_cast<std::int16_t>(point.x),
                                                static_cast<std::int16_t>(point.y)));
  }
  CountRoundTrip();
  std::vector<xcb_window_t> hits;
  for (const auto cookie : cookies) {
    const auto hit = Await(xcb_translate_coordinates_reply, cookie);
    hits.push_back(hit ? hit->child : 0);
  }
  std::vector<xcb_window_t> frames = hits;
  std::ranges::sort(frames);
  frames.erase(std::unique(frames.begin(), frames.end()), frames.end());
  std::erase(frames, xcb_window_t{0});
  const std::vector<xcb_window_t> clients = ClientsIn(frames);

  std::vector<WindowHandle> windows;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const PixelPoint& point = points[i];
    const auto frame = std::lower_bound(frames.begin(), frames.end(), hits[i]);
    // A window may reach beyond the screen, but is not seen there. Besides, a point that does not
    // fit the 16 bits of the protocol has been sent as another one.
    const bool seen = hits[i] != 0 && screen_.Contains(point);
    windows.push_back(seen ? clients[static_cast<std::size_t>(frame - frames.begin())] : 0);
  }
  return windows;
}

int X11Desktop::CaptionBarHeight(WindowHandle window) {
  const auto measured = Measure(window);
  return measured ? measured->inner.top - measured->outer.top : 0;
}

PixelArea X11Desktop::FreeArea(const PixelArea& screen) {
  const auto sizeAsked = xcb_get_geometry(connection_, root_);
  const auto work = std::move(Properties(root_, {netWorkArea_})[0]);  // waits for both
  const auto size = Await(xcb_get_geometry_reply, sizeAsked);
  const PixelArea desktop = size ? OuterArea(*size) : screen;
  PixelArea free = screen;
  // A panel that would leave nothing free is meant for another screen and does not count.
  const auto keep = [&](const PixelArea& rest) {
    if (!rest.IsEmpty()) free = rest;
  };
  const auto numbers = Numbers(work.get());
  if (screen == desktop && numbers.size() >= 4) {
    const auto number = [&](std::size_t i) {
      return static_cast<int>(std::min(numbers[i], kFarthest));
    };
    keep(free.Intersected(PixelArea{0, 0, number(2), number(3)}.Moved({number(0), number(1)})));
  }
  for (const WindowHandle window : TopLevelWindows()) {
    const auto struts = Properties(window, {netWmStrutPartial_, netWmStrut_});
    const bool partial = !Numbers(struts[0].get()).empty();
    const auto [left, right, top, bottom] = Taken(struts[partial ? 0 : 1].get(), desktop);
    if (left.Touches(screen))
      keep({std::max(free.left, left.right), free.top, free.right, free.bottom});
    if (right.Touches(screen))
      keep({free.left, free.top, std::min(free.right, right.left), free.bottom});
    if (top.Touches(screen))
      keep({free.left, std::max(free.top, top.bottom), free.right, free.bottom});
    if (bottom.Touches(screen))
      keep({free.left, free.top, free.right, std::min(free.bottom, bottom.top)});
  }
  return free;
}

}  // namespace holdem
