#pragma once

#include <cstdint>

#include "tables/Text.h"

namespace ORXKMPrintProp {

class EntryWidget;
class Widget;

/// What of a widget changes: of any, of check boxes, of text boxes, of lists and combo boxes, of the tab strip.
enum class WidgetProperty { Font, Caption, ToolTipText, Visible, Enabled, Value, Text, ListIndex, Tab, TabCaption };

/// What of an entry changes.
enum class EntryProperty { Text, Selected };

/// What draws the dialog. It hears of every change, after the widget has changed, and must not throw and not call
/// the control back from here, but for `MsgBox`. What it does not override is what a program without a view has.
class View {
 public:
  virtual ~View() = default;

  virtual void Changed(Widget&, WidgetProperty) {}
  virtual void EntryChanged(EntryWidget&, std::int16_t /*index*/, EntryProperty) {}

  /// `ListIndex` has followed its entry already, of which nothing else is told.
  virtual void EntryAdded(EntryWidget&, std::int16_t /*index*/) {}
  virtual void EntryRemoved(EntryWidget&, std::int16_t /*index*/) {}
  virtual void EntriesCleared(EntryWidget&) {}

  /// The pointer over the whole control, `Dialog::kDefaultPointer` or `Dialog::kDragPointer`.
  virtual void MousePointerChanged(std::int16_t /*pointer*/) {}

  /// Shows a modal message with one OK button. Returns when the user has closed it, or at once: nothing waits for the
  /// answer. May call anything back.
  virtual void MsgBox(const Text& /*text*/, const Text& /*title*/) {}
};

}  // namespace ORXKMPrintProp
