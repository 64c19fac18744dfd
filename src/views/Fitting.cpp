#include "views/Fitting.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "dialog/DialogLayout.h"

namespace ORXKMPrintProp::views {
namespace {

constexpr int kStep = 5;
constexpr int kNarrower = (Letters().width - kSmallestLetters.width) / kStep;         ///< steps that make narrower
constexpr int kSteps = kNarrower + (Letters().size - kSmallestLetters.size) / kStep;  ///< and those that make smaller
constexpr char16_t kEllipsis = u'\u2026';

Letters LettersAfter(int steps) {
  return {.size = Letters().size - kStep * std::max(steps - kNarrower, 0),
          .width = Letters().width - kStep * std::min(steps, kNarrower)};
}

bool IsLowSurrogate(char16_t c) { return c >= 0xDC00 && c < 0xE000; }

/// The longest head of the text that fits with an ellipsis behind it; an ellipsis alone where not even that fits.
Text Cut(TextView text, int width, const Measure& measure) {
  std::size_t fits = 0;
  std::size_t tooLong = text.size();
  while (fits + 1 < tooLong) {
    const std::size_t middle = fits + (tooLong - fits) / 2;
    (measure(Text(text.substr(0, middle)) + kEllipsis, kSmallestLetters) <= width ? fits : tooLong) = middle;
  }
  if (fits < text.size() && fits > 0 && IsLowSurrogate(text[fits])) --fits;
  return Text(text.substr(0, fits)) + kEllipsis;
}

}  // namespace

std::optional<Letters> FittingLetters(const std::function<bool(const Letters& letters)>& fits) {
  if (fits(Letters())) return Letters();
  // By halves, since each kind of letters may be a font to be loaded.
  int tooWide = 0;
  int fitting = kSteps + 1;
  while (tooWide + 1 < fitting) {
    const int middle = tooWide + (fitting - tooWide) / 2;
    (fits(LettersAfter(middle)) ? fitting : tooWide) = middle;
  }
  if (fitting > kSteps) return {};
  return LettersAfter(fitting);
}

FittedText Fit(TextView text, int width, const Measure& measure, const Letters& most) {
  if (measure(text, most) <= width) return {Text(text), most, false};
  const auto fitting = FittingLetters([&](const Letters& letters) { return measure(text, letters) <= width; });
  if (fitting) return {Text(text), *fitting, false};
  return {Cut(text, width, measure), kSmallestLetters, true};
}

CaptionLetters::CaptionLetters(const Dialog& dialog, Needed needed) : dialog_(dialog), ask_(std::move(needed)) {}

Letters CaptionLetters::Of(const Widget& widget) {
  Letters all;
  for (const auto& other : dialog_.Controls()) {
    if (!StandTogether(*other, widget)) continue;
    const auto [needed, isNew] = needed_.try_emplace(other.get());
    if (isNew) needed->second = ask_(*other);
    if (needed->second) all = std::min(all, *needed->second);
  }
  return all;
}

bool CaptionLetters::Change(const Widget& widget) {
  const Letters before = Of(widget);
  needed_.erase(&widget);
  return Of(widget) != before;
}

bool CaptionLetters::StandTogether(const Widget& a, const Widget& b) {
  return a.Row().kind == b.Row().kind && a.Row().page == b.Row().page && a.Row().parent == b.Row().parent;
}

FittedTabs FitTabs(int tabs, int width, const std::function<int(int tab, const Letters& letters)>& needed) {
  const auto fits = [&](const Letters& letters) {
    int all = 0;
    for (int tab = 0; tab < tabs; ++tab) all += TabWidth(width, needed(tab, letters));
    return all <= width;
  };
  const auto fitting = FittingLetters(fits);
  return {fitting.value_or(kSmallestLetters), !fitting};
}

int TabWidth(int stripWidth, int needed) { return std::max(stripWidth / kTabsPerRow, needed); }

int RoomOfTab(int tab, int tabs, int width, const std::function<int(int tab)>& needed) {
  int room = width;
  for (int other = 0; other < tabs; ++other) {
    if (other != tab) room -= TabWidth(width, needed(other));
  }
  return std::max(room, width / tabs);
}

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
