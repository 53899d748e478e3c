// A window of the made-up desktop that shows the stand-in client's picture of a table.
#pragma once

#include <memory>

#include "fakes/fake_desktop.h"
#include "table_client/table_picture.h"

namespace holdem {

inline FakeWindow TableWindow(const table_client::Table& table, WindowHandle handle) {
  const auto [width, height] = table_client::OuterSize(table.layout, table_client::kDrawnCaption);
  const auto picture =
      std::make_shared<const table_client::Picture>(table_client::DrawTable(table));
  return {.handle = handle,
          .className = table_client::WindowClass(table.layout),
          .caption = table_client::DefaultCaption(table.layout),
          .outer = {100, 50, 100 + width, 50 + height},
          .painted = [picture](int x, int y) -> PixelColor {
            const table_client::Rgb color = picture->At(x, y);
            return (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
          }};
}

}  // namespace holdem
