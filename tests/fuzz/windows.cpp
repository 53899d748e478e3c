#include "autoread/layouts.h"
#include "autoread/mod_windows.h"
#include "fakes/fake_ports.h"
#include "fuzz/fuzz.h"

namespace holdem::fuzz {
namespace {

// Texts that are nearly, or quite, what is looked for.
std::string AnyCaption(Script& script) {
  constexpr std::array<const char*, 8> kParts = {
      "-  Hold'em -", "- NL  Hold'em", "- PL  Hold'em", "- ",
      "Hold'em",      "hold'em",       "#32770",        "Afx"};
  std::string text;
  for (int parts = script.Any(4); parts > 0; --parts) {
    text += script.Any(3) == 0 ? script.Text(20) : kParts[script.Any(8)];
  }
  return text.substr(0, 259);
}

// Whether the text has the pattern's form, by what is left after each character of it.
bool Fits(std::string_view text, std::string_view pattern) {
  std::vector<bool> fits(text.size() + 1);  // by how much of the text is used up
  fits[0] = true;
  for (const char c : pattern) {
    std::vector<bool> next(text.size() + 1);
    for (std::size_t i = 0; i <= text.size(); ++i) {
      if (c == '*') next[i] = fits[i] || (i > 0 && next[i - 1]);
      if (c != '*' && i > 0) next[i] = fits[i - 1] && text[i - 1] == c;
    }
    fits = next;
  }
  return fits.back();
}

FakeWindow AnyWindow(Script& script, WindowHandle handle) {
  constexpr std::array<std::array<int, 2>, 6> kSizes = {
      {{800, 571}, {800, 562}, {795, 581}, {908, 708}, {800, 580}, {0, 0}}};
  const auto [width, height] = kSizes[script.Any(6)];
  const int left = script.Any(200) - 100;
  const int top = script.Any(200) - 100;
  FakeWindow window{.handle = handle,
                    .className = script.Any(2) == 0 ? "#32770" : "Afx" + script.Text(6),
                    .caption = AnyCaption(script)};
  window.outer = {left, top, left + width + (script.Rarely(4) ? script.Word() % 1000 : 0),
                  top + height - (script.Rarely(4) ? autoRead.CaptionAdjust : 0)};
  if (script.Rarely(4)) window.className = AnyCaption(script);
  if (script.Rarely(8)) window.parent = 1 + script.Any(4);
  return window;
}

}  // namespace

int FuzzWindows(Bytes bytes) {
  Script script(bytes);
  FakeWorld world;
  LoadTableLayouts();
  const std::string text = AnyCaption(script);
  for (std::string pattern : {std::string("*-  Hold'em -*"), std::string("*- NL  Hold'em*"),
                              std::string("*hold'em*"), std::string("Afx*"), script.Text(12)}) {
    if (script.Rarely(2)) std::ranges::replace(pattern, 'a', '*');
    HOLDS(modWindows::Matches(text, pattern) == Fits(text, pattern));
  }

  autoRead.CaptionAdjust = script.Rarely(2) ? script.Any(60) - 30 : 0;
  for (WindowHandle handle = 1; handle <= 4 && !script.Ended(); ++handle) {
    world.desktop.windows.push_back(AnyWindow(script, handle));
  }
  const auto& windows = world.desktop.windows;
  modWindows::FindTableWindows();
  auto listed = autoRead.TableCandidates.begin();
  for (const FakeWindow& window : windows) {
    const int layout = modWindows::ClassifyTable({.windowHandle = window.handle,
                                                  .className = window.className,
                                                  .caption = window.caption,
                                                  .width = window.outer.Width(),
                                                  .height = window.outer.Height()});
    const bool dialog = window.className == "#32770";
    HOLDS(layout >= 0 && layout <= kLayouts);
    HOLDS(layout == 0 || dialog == (layout <= 3));
    HOLDS(dialog || layout == 0 || window.className.starts_with("Afx"));
    HOLDS(layout == 0 || layout == 2 || window.outer.Width() == 800);
    if (dialog && window.outer.Height() != 571 && Fits(window.caption, "*- NL  Hold'em*")) {
      HOLDS(layout == 2);
    }
    if (layout != 0 && window.parent == 0) {  // listed as it is, in its place
      HOLDS(listed != autoRead.TableCandidates.end() && listed->windowHandle == window.handle &&
            listed->layout == layout && listed->caption == window.caption);
      ++listed;
    }
    // Seen only if every point of the grid that it has shows it, or a control of it.
    bool covered = false;
    for (int y = window.outer.top + 100; y <= window.outer.bottom - 100; y += 50) {
      for (int x = window.outer.left + 100; x <= window.outer.right - 100; x += 50) {
        const auto top = std::ranges::find_if(windows, [&](const FakeWindow& w) {
          return x >= w.outer.left && x < w.outer.right && y >= w.outer.top && y < w.outer.bottom;
        });
        covered |= (top->parent != 0 ? top->parent : top->handle) != window.handle;
      }
    }
    HOLDS(modWindows::IsTableObscured(window.handle, modWindows::Points::WholeWindow) == covered);
  }
  HOLDS(listed == autoRead.TableCandidates.end());
  return static_cast<int>(autoRead.TableCandidates.size());
}

}  // namespace holdem::fuzz
