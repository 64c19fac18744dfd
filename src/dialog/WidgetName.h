#pragma once

#include <cstdint>

#include "tables/Text.h"

namespace ORXKMPrintProp {

/// How a widget of the dialog is called: `txtGenPrnTitle`, or `lstPrint` with its index in a widget array.
struct WidgetName {
  TextView name;
  std::int16_t index = kNoIndex;

  static constexpr std::int16_t kNoIndex = -1;

  /// As a person writes it: "txtGenPrnTitle", "lstPrint(1)".
  Text Spelled() const;

  friend constexpr bool operator==(const WidgetName&, const WidgetName&) = default;
};

}  // namespace ORXKMPrintProp
