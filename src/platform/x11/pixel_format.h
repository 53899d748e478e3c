// How an X display packs the pixels of an image. For x11_read.cpp.
#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <cstdint>

#include "platform/desktop.h"

namespace holdem {

struct PixelFormat {
  std::size_t bytes = 0;   // of a pixel, 1..4; 0 when the colours cannot be told
  std::size_t rowPad = 1;  // a row fills a multiple of so many bytes
  bool bigEndian = false;
  std::uint32_t redMask = 0;  // which of a pixel's bits
  std::uint32_t greenMask = 0;
  std::uint32_t blueMask = 0;

  // Of images that GetImage gives with this depth and visual.
  static PixelFormat Find(const xcb_setup_t& setup, std::uint8_t depth, xcb_visualid_t visual);

  std::size_t RowBytes(std::size_t pixels) const {
    return (pixels * bytes + rowPad - 1) / rowPad * rowPad;
  }
  PixelColor Decode(const std::uint8_t* pixel) const;  // colours of any width become 0..255
};

}  // namespace holdem
