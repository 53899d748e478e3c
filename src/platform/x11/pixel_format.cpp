#include "platform/x11/pixel_format.h"

#include <bit>

namespace holdem {
namespace {

const xcb_visualtype_t* FindVisual(const xcb_setup_t& setup, xcb_visualid_t visual) {
  for (auto screen = xcb_setup_roots_iterator(&setup); screen.rem; xcb_screen_next(&screen)) {
    for (auto d = xcb_screen_allowed_depths_iterator(screen.data); d.rem; xcb_depth_next(&d)) {
      for (auto v = xcb_depth_visuals_iterator(d.data); v.rem; xcb_visualtype_next(&v)) {
        if (v.data->visual_id == visual) return v.data;
      }
    }
  }
  return nullptr;
}

// The bits under the mask, to the nearest of 0..255.
std::uint32_t Component(std::uint32_t pixel, std::uint32_t mask) {
  const int shift = std::countr_zero(mask);
  const std::uint32_t full = mask >> shift;
  return (((pixel & mask) >> shift) * 255 + full / 2) / full;
}

}  // namespace

PixelFormat PixelFormat::Find(const xcb_setup_t& setup, std::uint8_t depth, xcb_visualid_t visual) {
  const xcb_visualtype_t* const look = FindVisual(setup, visual);
  if (look == nullptr || look->_class != XCB_VISUAL_CLASS_TRUE_COLOR) return {};
  if (look->red_mask == 0 || look->green_mask == 0 || look->blue_mask == 0) return {};
  for (auto f = xcb_setup_pixmap_formats_iterator(&setup); f.rem; xcb_format_next(&f)) {
    if (f.data->depth != depth) continue;
    return {.bytes = f.data->bits_per_pixel / 8u,
            .rowPad = f.data->scanline_pad / 8u,
            .bigEndian = setup.image_byte_order == XCB_IMAGE_ORDER_MSB_FIRST,
            .redMask = look->red_mask,
            .greenMask = look->green_mask,
            .blueMask = look->blue_mask};
  }
  return {};
}

PixelColor PixelFormat::Decode(const std::uint8_t* pixel) const {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < bytes; ++i) {
    bits |= std::uint32_t{pixel[i]} << 8 * (bigEndian ? bytes - 1 - i : i);
  }
  return Component(bits, redMask) | Component(bits, greenMask) << 8 |
         Component(bits, blueMask) << 16;
}

}  // namespace holdem
