// Other programs' windows on an X display, over a connection of its own; main makes it and sets
// ports.desktop to it. Requests that do not need each other's replies are sent together and waited
// for once. Every call asks the display anew, so no answer is out of date.
#pragma once

#include <xcb/xcb.h>

#include <initializer_list>

#include "platform/desktop.h"
#include "platform/x11/xcb_reply.h"

namespace holdem {

// A handle is that of an application's own window, not of the frame that a window manager puts
// around it; a window that no window manager looks after (a menu, a tooltip) stands for itself.
// Windows that are not shown have no rectangle and no pixels, as if they were gone; pixels of the
// frame are not read. Without a display, and once the connection is lost, there are no windows.
class X11Desktop : public Desktop {
 public:
  explicit X11Desktop(const char* display = nullptr);  // nullptr: the one that $DISPLAY names
  ~X11Desktop() override;
  X11Desktop(const X11Desktop&) = delete;
  X11Desktop& operator=(const X11Desktop&) = delete;

  std::vector<WindowHandle> TopLevelWindows() override;
  std::string ClassName(WindowHandle window) override;  // the class part of WM_CLASS
  std::string GetWindowCaption(WindowHandle window) override;
  std::uint32_t ProcessId(WindowHandle window) override;
  std::optional<PixelArea> OuterRectangle(WindowHandle window) override;
  std::vector<WindowHandle> WindowsAt(std::span<const PixelPoint> points,
                                      WindowHandle measuredBy) override;
  // Always none. Only top-level windows have handles here, so none lies in another; and whatever
  // lies over a table shows in its pixels, so it must not count as the table, whoever owns it.
  WindowHandle Parent(WindowHandle) override { return 0; }
  std::optional<std::vector<Capture>> Read(WindowHandle window,
                                           std::span<const PixelArea> areas) override;
  std::optional<std::vector<PixelArea>> Covers(WindowHandle window) override;
  // Known only under window managers that list their windows.
  std::vector<WindowHandle> MinimisedWindows() override;
  int CaptionBarHeight(WindowHandle window) override;
  // By the struts that panels set. Window managers also tell a work area, but one for all monitors
  // together; it counts only where there is one monitor.
  PixelArea FreeArea(const PixelArea& screen) override;

  // The cost so far.
  std::int64_t roundTrips = 0;
  std::int64_t bytesCaptured = 0;  // of pixels

 private:
  // A window as it stood when it was asked.
  struct View {
    bool shown = false;    // with all windows it lies in; false when it is gone
    bool managed = false;  // carries WM_STATE: the application's own window, in a frame or not
    xcb_window_t parent = 0;
    std::vector<xcb_window_t> children;  // from bottom to top
    PixelArea outer;                     // border included, on its parent
  };
  // Where a shown window lies on the screen.
  struct Measured {
    PixelArea outer;  // with its visible frame
    PixelArea inner;  // without its border
    xcb_window_t parent = 0;

    bool operator==(const Measured&) const = default;
  };
  // Waits for a reply; nullptr when the request failed.
  template <typename Reply, typename Cookie>
  Owned<Reply> Await(Reply* (*wait)(xcb_connection_t*, Cookie, xcb_generic_error_t**),
                     Cookie cookie) {
    return Owned<Reply>(wait(connection_, cookie, nullptr));
  }
  void CountRoundTrip();

  std::vector<View> Ask(std::span<const xcb_window_t> windows);
  std::vector<Owned<xcb_get_property_reply_t>> Properties(WindowHandle window,
                                                          std::initializer_list<xcb_atom_t> atoms);
  // For each frame: the application's window that is shown in it, or the frame itself where there
  // is none; 0 where the frame is not shown.
  std::vector<xcb_window_t> ClientsIn(std::span<const xcb_window_t> frames);
  // The rectangle of the outermost window around one that lies in `parent`.
  std::optional<PixelArea> FrameAround(xcb_window_t parent);
  std::optional<Measured> Measure(WindowHandle handle);
  // The windows that may lie over this one: its siblings above it, and the siblings above every
  // window that it lies in, up to one whose pixels are kept apart. Nothing when the window is gone.
  std::optional<std::vector<xcb_window_t>> WindowsOver(xcb_window_t window, xcb_window_t parent);
  // Whether a compositor has the window's pixels kept apart. The server names the pixels of such
  // windows only; `naming` is the request to do so.
  bool IsKeptApart(xcb_void_cookie_t naming);
  // The parts of the screen that they draw on.
  std::vector<PixelArea> Drawn(std::span<const xcb_window_t> windows);
  struct Image {
    PixelArea area;                   // from the outer top-left corner
    xcb_get_image_cookie_t cookie{};  // none when the area is empty
  };
  std::optional<std::vector<Capture>> Collect(std::span<const PixelArea> areas,
                                              std::span<const Image> images);
  // Copies the image into this area of the capture. False when its colours are not understood, or
  // when it has too few pixels.
  bool Decode(const xcb_get_image_reply_t& image, const PixelArea& area, Capture& capture);

  xcb_connection_t* connection_;
  xcb_window_t root_ = 0;
  PixelArea screen_;  // as of the last Ask or Measure
  xcb_atom_t wmState_ = 0;
  xcb_atom_t netWmName_ = 0;
  xcb_atom_t netWmPid_ = 0;
  xcb_atom_t netFrameExtents_ = 0;
  xcb_atom_t netClientList_ = 0;
  xcb_atom_t netWmState_ = 0;
  xcb_atom_t netWmStateHidden_ = 0;
  xcb_atom_t netWorkArea_ = 0;
  xcb_atom_t netWmStrut_ = 0;
  xcb_atom_t netWmStrutPartial_ = 0;
  bool hasShapes_ = false;
  std::uint32_t pixelsName_ = 0;  // for IsKeptApart; 0 where none is ever kept apart
};

}  // namespace holdem
