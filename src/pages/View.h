#pragma once

#include <cstdint>

#include "tables/Text.h"

namespace ORXKMPrintProp {

class EntryWidget;
class Widget;

/// What draws the dialog. It hears of every change, after the widget has changed, and must not throw and not call
/// the control back from here. What it does not override is what a program without a view has.
class View {
 public:
  virtual ~View() = default;

  /// A property of the widget, its selection or the text of an entry.
  virtual void Changed(Widget&) {}
  virtual void EntryAdded(EntryWidget&, std::int16_t /*index*/) {}
  virtual void EntryRemoved(EntryWidget&, std::int16_t /*index*/) {}
  virtual void EntriesCleared(EntryWidget&) {}
  /// @param pointer 0 the default pointer, 99 the drag pointer, over the whole control.
  virtual void MousePointerChanged(std::int16_t /*pointer*/) {}

  /// Shows a modal message with one OK button and returns when the user has closed it. May call anything back.
  virtual void MsgBox(const Text& /*text*/, const Text& /*title*/) {}

  /// The text order of the user's language, without regard to case.
  /// @return below 0, 0 or above 0 as `a` sorts ahead of `b`, with it or behind it.
  virtual int CompareTexts(TextView a, TextView b) const;
};

}  // namespace ORXKMPrintProp
