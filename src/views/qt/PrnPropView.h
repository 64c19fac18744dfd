#pragma once

#include <QString>
#include <QWidget>
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "dialog/Dialog.h"
#include "views/Fitting.h"
#include "views/SpokenName.h"
#include "views/qt/WidgetView.h"

class QLabel;

namespace ORXKMPrintProp::qt {

class TabStripView;

/// The dialog as a Qt widget of fixed size, to be put into any window. A dialog has one view at a time; it shows
/// what the dialog holds already, and everything from then on.
///
/// The signals come inside the user's action, as the events of the control do. What is called in one may call any
/// operation of the control, and run an event loop of its own, but is to delete the view by `deleteLater` only.
class PrnPropView : public QWidget, private View {
  Q_OBJECT

 public:
  /// @param dialog must outlive the view. That of a control made with a `QtPlatform` has the desktop's interface font
  /// and text order.
  /// @param parent as for any widget.
  explicit PrnPropView(Dialog& dialog, QWidget* parent = nullptr);
  ~PrnPropView() override;

  /// The list in which an entry is looked for: the one that had the focus last, else the first one on the page. Null
  /// where the user can reach none.
  ListBox* ListAtHand() const;
  /// The caret of that list is seen though the focus is elsewhere, null for none.
  void ShowCaretOf(const ListBox* list);
  /// Gives the focus to a widget on the page on top.
  void Focus(const Widget& widget);
  /// Carries out what the user does to the widget from outside of the dialog, with the signals that go with it.
  void Perform(const Widget& widget, const std::function<void()>& action);
  /// How another text would lie in the widget, in the place of its caption or as one of its entries.
  /// @param widget of the dialog.
  /// @param text that is not shown.
  /// @param tab of the tab strip, which tab it is for.
  /// @return none where the widget shows nothing of the kind.
  std::optional<views::TextRoom> RoomOf(const Widget& widget, const Text& text, int tab) const {
    return ViewFor(widget).RoomOf(text, tab);
  }

 signals:
  /// What the user did failed in the middle, as where a table refuses an operation. The dialog stays usable.
  /// @param message one line for a person
  void failed(const QString& message);
  /// The user has done something with a widget, and all that it led to is done. Whether a setting has changed is seen
  /// in the tables, once the control has given them.
  void used(const ORXKMPrintProp::Widget& widget);

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void Changed(Widget& widget, WidgetProperty what) override;
  void EntryChanged(EntryWidget& widget, std::int16_t index, EntryProperty what) override;
  void EntryAdded(EntryWidget& widget, std::int16_t index) override;
  void EntryRemoved(EntryWidget& widget, std::int16_t index) override;
  void EntriesCleared(EntryWidget& widget) override;
  void MousePointerChanged(std::int16_t pointer) override;
  void MsgBox(const Text& text, const Text& title) override;

  /// Colours are those of the desktop, but for what is disabled.
  void MakeReadable();
  void MakeWidgets();
  void SetTabOrder();
  void GiveNames();
  void SpeakNames(const Widget* changed);
  void BringUp(std::int16_t page);
  /// Where the widget lies, in pixels from its parent.
  QRect PlaceOf(const Geometry& geometry) const;
  QWidget& ParentOf(const LayoutRow& row);
  WidgetView& ViewFor(const Widget& widget) const { return *views_.at(&widget); }

  Dialog& dialog_;
  Reports reports_;
  std::unordered_map<const Widget*, WidgetView*> views_;
  struct Named {
    QWidget& glass;
    views::SpokenName name;
    QLabel* label;  ///< that has all of a name of several labels, null for another name
  };
  std::vector<Named> names_;
  views::CaptionLetters letters_;
  TabStripView* tabs_ = nullptr;
  std::array<bool, SSTab::kTabs> wasOnTop_ = {};
  ListBox* lastList_ = nullptr;  ///< that had the focus
};

}  // namespace ORXKMPrintProp::qt
