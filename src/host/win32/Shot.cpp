#include "host/win32/Shot.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <new>
#include <stdexcept>
#include <system_error>

#include "host/Load.h"
#include "host/editor/WindowCommands.h"
#include "host/win32/Apartment.h"
#include "host/win32/EditWindow.h"
#include "views/win32/WindowDrawing.h"
#include "views/win32/WindowsPlatform.h"

namespace ORXKMPrintProp::host {
namespace {

struct EndStream {
  void operator()(IStream* stream) const { stream->Release(); }
};

class GdiPlus {
 public:
  GdiPlus() {
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
  }
  GdiPlus(const GdiPlus&) = delete;
  GdiPlus& operator=(const GdiPlus&) = delete;
  ~GdiPlus() { Gdiplus::GdiplusShutdown(token_); }

 private:
  ULONG_PTR token_ = 0;
};

std::string Encoded(Gdiplus::Bitmap& picture) {
  static constexpr CLSID kPng = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
  IStream* made = nullptr;
  if (FAILED(::CreateStreamOnHGlobal(nullptr, TRUE, &made))) throw std::bad_alloc();
  const std::unique_ptr<IStream, EndStream> stream(made);
  if (picture.Save(stream.get(), &kPng, nullptr) != Gdiplus::Ok) {
    throw std::runtime_error("the system writes no PNG pictures");
  }
  STATSTG state{};
  stream->Stat(&state, STATFLAG_NONAME);
  HGLOBAL held = nullptr;
  ::GetHGlobalFromStream(stream.get(), &held);
  const std::string bytes(static_cast<const char*>(::GlobalLock(held)),
                          static_cast<std::size_t>(state.cbSize.QuadPart));
  ::GlobalUnlock(held);
  return bytes;
}

std::string Draw(HWND window, const PictureSize& wanted) {
  RECT inside{};
  ::GetClientRect(window, &inside);
  const SIZE whole{inside.right, inside.bottom};
  const auto scaled = [&](LONG length) {
    return std::max(1L, std::lround(static_cast<double>(length) * wanted.factor));
  };
  const SIZE size = wanted.width > 0 ? SIZE{wanted.width, wanted.height} : SIZE{scaled(whole.cx), scaled(whole.cy)};
  const double factor =
      std::min(double(size.cx) / static_cast<double>(whole.cx), double(size.cy) / static_cast<double>(whole.cy));
  const LONG width = std::lround(static_cast<double>(whole.cx) * factor);
  const LONG height = std::lround(static_cast<double>(whole.cy) * factor);
  const LONG left = (size.cx - width) / 2, top = (size.cy - height) / 2;
  const win32::Canvas canvas(size);
  ::SetStretchBltMode(canvas.Context(), HALFTONE);
  win32::DrawWindow(window, whole, canvas.Context(), {left, top, left + width, top + height});
  const GdiPlus started;
  Gdiplus::Bitmap picture(size.cx, size.cy, size.cx * 4, PixelFormat32bppRGB, static_cast<BYTE*>(canvas.Bits()));
  return Encoded(picture);
}

}  // namespace

std::string Shot(const ShotOptions& options) {
  const Apartment apartment;
  EditedSettings settings(options.settings, win32::WindowsPlatform::Instance());
  try {
    EditWindow window(settings);
    // Not every system draws all of a hidden window, and what the user sees comes behind messages.
    window.Show();
    settings.Control().GetDialog().TabStrip().UserPick(static_cast<std::int16_t>(options.page));
    window.HandleMessages();
    return Draw(options.window ? window.Window() : window.DialogWindow(), options.size);
  } catch (const std::system_error&) {
    throw LoadError("there is no display to draw a window on");
  }
}

}  // namespace ORXKMPrintProp::host
