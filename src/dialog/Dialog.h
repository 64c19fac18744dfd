#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "dialog/Lists.h"
#include "dialog/Widgets.h"

namespace ORXKMPrintProp {

struct DialogText;

/// The dialog: every widget of the layout, made once, in the order of the layout table.
class Dialog {
 public:
  /// @param platform must outlive the dialog.
  explicit Dialog(const Platform& platform = Platform::Plain());
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  ~Dialog();

  using Controls_ = std::vector<std::unique_ptr<Widget>>;
  /// Every widget, the elements of widget arrays each by itself.
  const Controls_& Controls() const { return controls_; }

  /// The widget of that name, null when there is none.
  Widget* Find(const WidgetName& name) const;
  /// The same by the name as it is spelled: "lstPrint(1)".
  Widget* FindSpelled(TextView name) const;

  /// The same where the widget's kind is known. @throws RunTimeError (NoSuchKey) for a name that the layout does not
  /// have.
  template <class W>
  W& Get(TextView name, std::int16_t index = WidgetName::kNoIndex) const {
    return dynamic_cast<W&>(Needed({name, index}));
  }
  SSTab& TabStrip() const { return *tabStrip_; }

  static constexpr std::int16_t kDefaultPointer = 0;
  static constexpr std::int16_t kDragPointer = 99;

  /// The pointer over the whole control.
  std::int16_t MousePointer() const { return mousePointer_; }
  void MousePointer(std::int16_t pointer);

  /// Sets every caption, tooltip and fixed item through the text table. Items that are there already change in
  /// place: what is shown stays shown, and no Click is raised.
  void ApplyTexts();

  /// Gives every widget the typeface of the platform's dialog font, which is asked for once in a thread.
  void ApplyDialogFont();

  /// Without a view nothing is drawn and a message counts as closed at once.
  View& GetView() const { return *context_.view; }
  /// @param view must live until another one, or none, takes its place.
  void SetView(View* view) { context_.view = view ? view : &noView_; }

 private:
  Widget& Needed(const WidgetName& name) const;
  void Receive(const DialogText& place, Text text);

  View noView_;
  WidgetContext context_;
  Controls_ controls_;
  SSTab* tabStrip_ = nullptr;
  std::int16_t mousePointer_ = kDefaultPointer;
};

}  // namespace ORXKMPrintProp
