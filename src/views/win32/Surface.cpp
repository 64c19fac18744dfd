#include "views/win32/Surface.h"

#include <cmath>

#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {
namespace {

/// A device context with a font in it, to measure with.
class Ruler {
 public:
  explicit Ruler(HFONT font) : former_(::SelectObject(context_, font)) {}
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;
  ~Ruler() {
    ::SelectObject(context_, former_);
    ::ReleaseDC(nullptr, context_);
  }
  int WidthOf(TextView text) const {
    SIZE size{};
    ::GetTextExtentPoint32W(context_, ToWide(text).c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
  }
  int Height() const { return Metrics().tmHeight; }
  /// Of a character in the middle.
  int Width() const { return Metrics().tmAveCharWidth; }

 private:
  TEXTMETRICW Metrics() const {
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(context_, &metrics);
    return metrics;
  }

  HDC context_ = ::GetDC(nullptr);
  HGDIOBJ former_;
};

}  // namespace

Surface::~Surface() {
  for (const auto& [key, font] : fonts_) ::DeleteObject(font);
}

Surface::Held Surface::Hold() { return {Shared(), isOpen_ && reports_.hold ? reports_.hold() : nullptr}; }

HFONT Surface::FontOf(const Font& font, const views::Letters& letters) {
  constexpr double kPointsPerInch = 72;
  const long height = std::lround(font.Size * letters.size / 100 * resolution_.y / kPointsPerInch);
  HFONT& made = fonts_[{font.Name, height, font.Weight, letters.width}];
  if (!made) {
    const int width =
        letters.width == 100 ? 0 : Ruler(FontOf(font, {.size = letters.size})).Width() * letters.width / 100;
    made = ::CreateFontW(-static_cast<int>(height), width, 0, 0, font.Weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE,
                         ToWide(font.Name).c_str());
  }
  return made;
}

views::Measure Surface::MeasureOf(const Font& font) {
  return [this, &font](TextView text, const views::Letters& letters) {
    return Ruler(FontOf(font, letters)).WidthOf(text);
  };
}

int Surface::MetricOf(int metric) const {
  return ::MulDiv(::GetSystemMetrics(metric), static_cast<int>(resolution_.y),
                  static_cast<int>(PrnPropView::DpiOf(nullptr)));
}

int Surface::HeightOf(const Font& font) { return Ruler(FontOf(font)).Height(); }

}  // namespace ORXKMPrintProp::win32
