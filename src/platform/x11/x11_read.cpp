// Reading pixels of other programs' windows.
#include "platform/x11/pixel_format.h"
#include "platform/x11/x11_desktop.h"

namespace holdem {

// Reads the window's own pixels, and those of the root only where the server refuses: the root
// shows what a compositor makes of them, or nothing.
std::optional<std::vector<Capture>> X11Desktop::Read(WindowHandle window,
                                                     std::span<const PixelArea> areas) {
  constexpr int kReadAttempts = 3;
  auto source = static_cast<xcb_window_t>(window);
  // Of a window that has moved or gone meanwhile, other pixels than its own may have been read:
  // again.
  for (int attempt = 0; attempt < kReadAttempts; ++attempt) {
    const auto measured = Measure(window);
    if (!measured) return std::nullopt;
    const auto [left, top] = measured->outer.Corner();
    const PixelArea readable = measured->inner.Intersected(screen_).Moved({-left, -top});
    const auto [sourceLeft, sourceTop] = source == root_ ? PixelPoint{} : measured->inner.Corner();
    std::vector<Image> images;
    for (const PixelArea& area : areas) {
      Image& image = images.emplace_back(Image{.area = area.Intersected(readable)});
      if (image.area.IsEmpty()) continue;
      image.cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, source,
                                   static_cast<std::int16_t>(left - sourceLeft + image.area.left),
                                   static_cast<std::int16_t>(top - sourceTop + image.area.top),
                                   static_cast<std::uint16_t>(image.area.Width()),
                                   static_cast<std::uint16_t>(image.area.Height()), ~0u);
    }
    const bool stayed = Measure(window) == measured;
    auto captures = Collect(areas, images);
    if (stayed && captures) return captures;
    if (stayed) source = root_;
  }
  return std::nullopt;
}

std::optional<std::vector<Capture>> X11Desktop::Collect(std::span<const PixelArea> areas,
                                                        std::span<const Image> images) {
  bool allRead = true;
  std::vector<Capture> captures;
  for (std::size_t i = 0; i < areas.size(); ++i) {
    Capture& capture = captures.emplace_back(Capture{.area = areas[i]});
    if (areas[i].IsEmpty()) continue;
    capture.pixels.assign(areas[i].PixelCount(), kUnreadable);
    if (images[i].area.IsEmpty()) continue;  // nothing of it is readable
    const auto image = Await(xcb_get_image_reply, images[i].cookie);
    allRead = image && Decode(*image, images[i].area, capture) && allRead;
  }
  return allRead ? std::optional(std::move(captures)) : std::nullopt;
}

bool X11Desktop::Decode(const xcb_get_image_reply_t& image, const PixelArea& area,
                        Capture& capture) {
  const auto format = PixelFormat::Find(*xcb_get_setup(connection_), image.depth, image.visual);
  const auto width = static_cast<std::size_t>(area.Width());
  const std::size_t stride = format.RowBytes(width);
  const auto bytes = static_cast<std::size_t>(xcb_get_image_data_length(&image));
  bytesCaptured += static_cast<std::int64_t>(bytes);
  if (format.bytes == 0 || bytes < stride * static_cast<std::size_t>(area.Height())) return false;
  const std::uint8_t* data = xcb_get_image_data(&image);
  for (int y = area.top; y < area.bottom; ++y, data += stride) {
    PixelColor* const row = &capture.pixels[capture.area.IndexOf({area.left, y})];
    for (std::size_t x = 0; x < width; ++x) row[x] = format.Decode(data + x * format.bytes);
  }
  return true;
}

}  // namespace holdem
