// What lies over other programs' windows.
#include <xcb/composite.h>
#include <xcb/shape.h>

#include <algorithm>

#include "platform/x11/x11_desktop.h"

namespace holdem {
namespace {

// The parts that a window draws, from the corner inside its border. The server gives rectangles for
// a window without a shape too, but these leave out some of its border.
std::vector<PixelArea> PartsOf(const xcb_get_geometry_reply_t& geometry,
                               const xcb_shape_get_rectangles_reply_t* shape) {
  const int border = geometry.border_width;
  if (shape == nullptr) {
    return {{-border, -border, geometry.width + border, geometry.height + border}};
  }
  std::vector<PixelArea> parts;
  auto part = xcb_shape_get_rectangles_rectangles_iterator(shape);
  for (; part.rem > 0; xcb_rectangle_next(&part)) {
    const auto& [x, y, width, height] = *part.data;
    parts.push_back({x, y, x + width, y + height});
  }
  return parts;
}

}  // namespace

std::optional<std::vector<PixelArea>> X11Desktop::Covers(WindowHandle window) {
  const auto measured = Measure(window);
  if (!measured) return std::nullopt;
  const auto over = WindowsOver(static_cast<xcb_window_t>(window), measured->parent);
  if (!over) return std::nullopt;
  std::vector<PixelArea> covers = Drawn(*over);
  for (PixelArea& cover : covers)
    cover = cover.Moved({-measured->outer.left, -measured->outer.top});
  return covers;
}

std::optional<std::vector<xcb_window_t>> X11Desktop::WindowsOver(xcb_window_t window,
                                                                 xcb_window_t parent) {
  constexpr int kDeepest = 32;  // windows in windows
  std::vector<xcb_window_t> over;
  for (int depth = 0; depth < kDeepest; ++depth) {
    xcb_void_cookie_t naming{};
    if (pixelsName_ != 0) {
      naming = xcb_composite_name_window_pixmap_checked(connection_, window, pixelsName_);
    }
    const auto treeAsked = xcb_query_tree(connection_, parent);
    CountRoundTrip();
    const auto tree = Await(xcb_query_tree_reply, treeAsked);
    if (pixelsName_ != 0 && IsKeptApart(naming)) return over;
    if (!tree) return std::nullopt;
    const std::span siblings(xcb_query_tree_children(tree.get()), tree->children_len);
    const auto itself = std::ranges::find(siblings, window);  // from bottom to top
    if (itself == siblings.end()) return std::nullopt;
    over.insert(over.end(), itself + 1, siblings.end());
    if (parent == root_) return over;
    window = parent;
    parent = tree->parent;
  }
  return std::nullopt;
}

bool X11Desktop::IsKeptApart(xcb_void_cookie_t naming) {
  const Owned<xcb_generic_error_t> refused{xcb_request_check(connection_, naming)};
  if (refused || xcb_connection_has_error(connection_) != 0) return false;
  xcb_free_pixmap(connection_, pixelsName_);
  return true;
}

std::vector<PixelArea> X11Desktop::Drawn(std::span<const xcb_window_t> windows) {
  struct Cookies {
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t corner;
    xcb_shape_query_extents_cookie_t extents;
    xcb_shape_get_rectangles_cookie_t shape;
  };
  std::vector<Cookies> asked;
  for (const xcb_window_t window : windows) {
    Cookies& cookies = asked.emplace_back();
    cookies.attributes = xcb_get_window_attributes(connection_, window);
    cookies.geometry = xcb_get_geometry(connection_, window);
    cookies.corner = xcb_translate_coordinates(connection_, window, root_, 0, 0);
    if (!hasShapes_) continue;
    cookies.extents = xcb_shape_query_extents(connection_, window);
    cookies.shape = xcb_shape_get_rectangles(connection_, window, XCB_SHAPE_SK_BOUNDING);
  }
  if (asked.empty()) return {};
  CountRoundTrip();

  std::vector<PixelArea> areas;
  for (const Cookies& cookies : asked) {
    const auto attributes = Await(xcb_get_window_attributes_reply, cookies.attributes);
    const auto geometry = Await(xcb_get_geometry_reply, cookies.geometry);
    const auto corner = Await(xcb_translate_coordinates_reply, cookies.corner);
    Owned<xcb_shape_query_extents_reply_t> extents;
    Owned<xcb_shape_get_rectangles_reply_t> shape;
    if (hasShapes_) extents = Await(xcb_shape_query_extents_reply, cookies.extents);
    if (hasShapes_) shape = Await(xcb_shape_get_rectangles_reply, cookies.shape);
    if (!attributes || !geometry || !corner) continue;
    if (attributes->map_state != XCB_MAP_STATE_VIEWABLE) continue;
    if (attributes->_class == XCB_WINDOW_CLASS_INPUT_ONLY) continue;
    const bool shaped = extents && extents->bounding_shaped;
    for (const PixelArea& part : PartsOf(*geometry, shaped ? shape.get() : nullptr)) {
      areas.push_back(part.Moved({corner->dst_x, corner->dst_y}));
    }
  }
  return areas;
}

}  // namespace holdem
