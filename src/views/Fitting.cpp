#include "views/Fitting.h"

#include <algorithm>
#include <cstddef>

#include "dialog/DialogLayout.h"

namespace ORXKMPrintProp::views {
namespace {

constexpr int kFullSize = 100;
constexpr int kSmallestSize = 70;
constexpr int kStep = 5;
constexpr char16_t kEllipsis = u'\u2026';

bool IsLowSurrogate(char16_t c) { return c >= 0xDC00 && c < 0xE000; }

/// The longest head of the text that fits with an ellipsis behind it; an ellipsis alone where not even that fits.
Text Cut(TextView text, int width, const Measure& measure) {
  std::size_t fits = 0;
  std::size_t tooLong = text.size();
  while (fits + 1 < tooLong) {
    const std::size_t middle = fits + (tooLong - fits) / 2;
    (measure(Text(text.substr(0, middle)) + kEllipsis, kSmallestSize) <= width ? fits : tooLong) = middle;
  }
  if (fits < text.size() && fits > 0 && IsLowSurrogate(text[fits])) --fits;
  return Text(text.substr(0, fits)) + kEllipsis;
}

}  // namespace

std::optional<int> FittingSize(const std::function<bool(int percent)>& fits) {
  for (int percent = kFullSize; percent >= kSmallestSize; percent -= kStep) {
    if (fits(percent)) return percent;
  }
  return {};
}

FittedText Fit(TextView text, int width, const Measure& measure) {
  const auto percent = FittingSize([&](int size) { return measure(text, size) <= width; });
  if (percent) return {Text(text), *percent, false};
  return {Cut(text, width, measure), kSmallestSize, true};
}

FittedTabs FitTabs(int tabs, int width, const std::function<int(int tab, int percent)>& needed) {
  const auto fits = [&](int percent) {
    int all = 0;
    for (int tab = 0; tab < tabs; ++tab) all += TabWidth(width, needed(tab, percent));
    return all <= width;
  };
  const auto percent = FittingSize(fits);
  return {percent.value_or(kSmallestSize), !percent};
}

int TabWidth(int stripWidth, int needed) { return std::max(stripWidth / kTabsPerRow, needed); }

Text ToolTipWith(TextView cutText, TextView toolTip) {
  Text text(cutText);
  if (!cutText.empty() && !toolTip.empty()) text += u'\n';
  return text.append(toolTip);
}

Text OnOneLine(TextView entry) {
  Text line(entry);
  std::replace_if(
      line.begin(), line.end(), [](char16_t c) { return c == u'\n' || c == u'\r'; }, u' ');
  return line;
}

}  // namespace ORXKMPrintProp::views
