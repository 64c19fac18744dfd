#include "views/qt/DisabledColors.h"

#include <QColor>
#include <algorithm>
#include <cmath>
#include <utility>

namespace ORXKMPrintProp::qt {
namespace {

double LuminanceOf(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor Mixed(const QColor& text, const QColor& ground, int percent) {
  const auto mixed = [&](int of, int with) { return (of * percent + with * (100 - percent)) / 100; };
  return {mixed(text.red(), ground.red()), mixed(text.green(), ground.green()), mixed(text.blue(), ground.blue())};
}

/// The text as faint as it may be.
QColor Faded(const QColor& text, const QColor& ground, double contrast) {
  for (int percent = 50; percent <= 100; percent += 5) {
    const QColor faded = Mixed(text, ground, percent);
    if (ContrastOf(faded, ground) >= contrast) return faded;
  }
  return ContrastOf(Qt::black, ground) > ContrastOf(Qt::white, ground) ? Qt::black : Qt::white;
}

}  // namespace

double ContrastOf(const QColor& a, const QColor& b) {
  const auto [dark, light] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
  return (light + 0.05) / (dark + 0.05);
}

QPalette WithReadableDisabled(QPalette palette) {
  // Reading needs 4.5; small letters are drawn paler than their colour, and buttons in shades of theirs.
  static constexpr struct {
    QPalette::ColorRole text, ground;
    double contrast;
  } kTexts[] = {
      {QPalette::WindowText, QPalette::Window, 5.5},
      {QPalette::Text, QPalette::Base, 5.5},
      {QPalette::HighlightedText, QPalette::Highlight, 5.5},
      {QPalette::ButtonText, QPalette::Button, 7.5},
  };
  for (const auto& row : kTexts) {
    const QColor& text = palette.color(QPalette::Active, row.text);
    const QColor& ground = palette.color(QPalette::Disabled, row.ground);
    palette.setColor(QPalette::Disabled, row.text, Faded(text, ground, row.contrast));
  }
  return palette;
}

}  // namespace ORXKMPrintProp::qt
