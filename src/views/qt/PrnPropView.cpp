#include "views/qt/PrnPropView.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <algorithm>

#include "views/Search.h"
#include "views/TabOrder.h"
#include "views/qt/CaptionViews.h"
#include "views/qt/ComboBoxView.h"
#include "views/qt/DisabledColors.h"
#include "views/qt/ListBoxView.h"
#include "views/qt/QtText.h"
#include "views/qt/TabStripView.h"
#include "views/qt/TextBoxView.h"

namespace ORXKMPrintProp::qt {
namespace {

template <class Glass, class W>
WidgetView* Make(Widget& widget, const Reports& reports, QWidget* parent) {
  return new Glass(dynamic_cast<W&>(widget), reports, parent);
}

WidgetView* MakeView(Widget& widget, const Reports& reports, QWidget* parent) {
  switch (widget.Row().kind) {
    case WidgetKind::SSTab:
      return Make<TabStripView, SSTab>(widget, reports, parent);
    case WidgetKind::Frame:
      return Make<FrameView, Frame>(widget, reports, parent);
    case WidgetKind::Label:
      return Make<LabelView, Label>(widget, reports, parent);
    case WidgetKind::TextBox:
      return Make<TextBoxView, TextBox>(widget, reports, parent);
    case WidgetKind::ComboBox:
      return Make<ComboBoxView, ComboBox>(widget, reports, parent);
    case WidgetKind::CheckBox:
      return Make<CheckBoxView, CheckBox>(widget, reports, parent);
    case WidgetKind::ListBox:
      return Make<ListBoxView, ListBox>(widget, reports, parent);
    case WidgetKind::CommandButton:
      return Make<ButtonView, CommandButton>(widget, reports, parent);
  }
  return nullptr;
}

QCursor DragCursor() {
  const MouseIconBits& icon = MouseIcon();
  const int size = static_cast<int>(icon.rows.size());
  QImage image(size, size, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  for (int y = 0; y < size; ++y) {
    const TextView row = icon.rows[static_cast<std::size_t>(y)];
    for (int x = 0; x < size; ++x) {
      const char16_t bit = row[static_cast<std::size_t>(x)];
      if (bit != u' ') image.setPixelColor(x, y, bit == u'#' ? Qt::black : Qt::white);
    }
  }
  return QCursor(QPixmap::fromImage(image), icon.hotSpotX, icon.hotSpotY);
}

}  // namespace

PrnPropView::PrnPropView(Dialog& dialog, QWidget* parent)
    : QWidget(parent),
      dialog_(dialog),
      reports_{[this](const QString& message) { emit failed(message); },
               [this](const Widget& widget) { emit used(widget); },
               [this](const Widget& widget) { return letters_.Of(widget); }},
      letters_(dialog, [this](const Widget& widget) { return ViewFor(widget).NeededLetters(); }) {
  setFixedSize(PlaceOf(kClientArea).size());
  // The layout is not mirrored, so its arrows are not either.
  setLayoutDirection(Qt::LeftToRight);
  // What the widgets inherit they need not be given one by one.
  setFont(ToQFont(dialog_.TabStrip().GetFont()));
  MakeReadable();
  MakeWidgets();
  SetTabOrder();
  GiveNames();
  Changed(dialog_.TabStrip(), WidgetProperty::Tab);
  MousePointerChanged(dialog_.MousePointer());
  dialog_.SetView(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (!qobject_cast<QListView*>(now) || !isAncestorOf(now)) return;
    lastList_ = dynamic_cast<ListBox*>(dialog_.FindSpelled(ToText(now->objectName())));
  });
}

/// The focus goes on while its widgets end.
PrnPropView::~PrnPropView() {
  qApp->disconnect(this);
  if (&dialog_.GetView() == this) dialog_.SetView(nullptr);
}

ListBox* PrnPropView::ListAtHand() const { return views::ListAtHand(dialog_, lastList_); }

void PrnPropView::ShowCaretOf(const ListBox* list) {
  for (const auto& [widget, view] : views_) {
    if (auto* const shown = dynamic_cast<ListBoxView*>(view)) shown->ShowCaretAlways(widget == list);
  }
}

void PrnPropView::Focus(const Widget& widget) { ViewFor(widget).Glass().setFocus(Qt::ShortcutFocusReason); }

void PrnPropView::Perform(const Widget& widget, const std::function<void()>& action) {
  ViewFor(widget).Perform(action);
}

void PrnPropView::MakeWidgets() {
  for (const auto& widget : dialog_.Controls()) {
    const LayoutRow& row = widget->Row();
    WidgetView* const view = MakeView(*widget, reports_, &ParentOf(row));
    view->Glass().setGeometry(PlaceOf(row.geometry));
    views_.emplace(widget.get(), view);
    if (row.kind == WidgetKind::SSTab) tabs_ = dynamic_cast<TabStripView*>(view);
  }
}

void PrnPropView::SetTabOrder() {
  QWidget* last = nullptr;
  for (const Widget* const widget : views::TabOrder(dialog_)) {
    QWidget& glass = ViewFor(*widget).Glass();
    if (last) setTabOrder(last, &glass);
    last = &glass;
  }
}

bool PrnPropView::focusNextPrevChild(bool next) {
  const auto hasFocus = [this](const Widget* widget) {
    const QWidget& glass = ViewFor(*widget).Glass();
    return (glass.focusProxy() ? glass.focusProxy() : &glass) == focusWidget();
  };
  const auto order = views::TabOrder(dialog_);
  const auto from = std::find_if(order.begin(), order.end(), hasFocus);
  const Widget* const to = from == order.end() ? nullptr : views::NextInTabOrder(dialog_, *from, next ? 1 : -1);
  if (!to) return QWidget::focusNextPrevChild(next);
  // What has the focus passes it on like this, too, when it is disabled.
  const bool isByKey = (*from)->Refuses() == Refusal::None;
  ViewFor(*to).Glass().setFocus(!isByKey ? Qt::OtherFocusReason : next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

/// Programs that take the value of a combo box for its name call it by its labels. A label belongs to one widget, so
/// what several of them are for has one of its own, which is not seen.
void PrnPropView::GiveNames() {
  for (const auto& widget : dialog_.Controls()) {
    if (widget->Row().kind == WidgetKind::SSTab) continue;
    Named named{ViewFor(*widget).Glass(), views::SpokenName(dialog_, *widget), nullptr};
    const auto labels = named.name.Labels();
    QWidget* label = labels.size() == 1 ? &ViewFor(*labels.front()).Glass() : nullptr;
    if (labels.size() > 1) {
      label = named.label = new QLabel(named.glass.parentWidget());
      label->hide();
    }
    if (label && label != &named.glass) static_cast<QLabel*>(label)->setBuddy(&named.glass);
    names_.push_back(std::move(named));
  }
  SpeakNames(nullptr);
}

void PrnPropView::SpeakNames(const Widget* changed) {
  for (const Named& named : names_) {
    if (changed && !named.name.DependsOn(*changed)) continue;
    const QString name = ToQString(named.name.Spoken());
    named.glass.setAccessibleName(name);
    if (named.label) named.label->setText(WithoutShortcut(name));
  }
}

QRect PrnPropView::PlaceOf(const Geometry& geometry) const {
  const views::Place place = views::PlaceOf(geometry, ResolutionOf(*this));
  return {place.left, place.top, place.width, place.height};
}

QWidget& PrnPropView::ParentOf(const LayoutRow& row) {
  if (row.parent.empty()) return *this;
  const Widget& parent = *dialog_.Find({row.parent});
  return parent.Row().kind == WidgetKind::SSTab ? tabs_->Page(row.page) : ViewFor(parent).Glass();
}

void PrnPropView::MakeReadable() {
  const QPalette readable = WithReadableDisabled(palette());
  if (readable != palette()) setPalette(readable);
}

/// Another style may leave another room for the captions.
void PrnPropView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) MakeReadable();
  if (event->type() != QEvent::StyleChange || names_.empty()) return;
  wasOnTop_ = {};
  letters_.ChangeAll();
  Changed(dialog_.TabStrip(), WidgetProperty::Tab);
}

void PrnPropView::keyPressEvent(QKeyEvent* event) { tabs_->PickByKey(*event, false); }

/// Styles show where the focus is once a key has led it there; it is to be seen from the beginning.
void PrnPropView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  window()->setAttribute(Qt::WA_KeyboardFocusChange);
}

/// A page that was never on top need not have been prepared for it.
void PrnPropView::BringUp(std::int16_t page) {
  if (std::exchange(wasOnTop_[static_cast<std::size_t>(page)], true)) return;
  for (const auto& widget : dialog_.Controls()) {
    if (widget->Row().page == page) ViewFor(*widget).Refresh();
  }
}

void PrnPropView::Changed(Widget& widget, WidgetProperty what) {
  SSTab& tabStrip = dialog_.TabStrip();
  if (&widget == &tabStrip) BringUp(tabStrip.Tab());
  const bool isFittedAnew = what == WidgetProperty::Caption || what == WidgetProperty::Font;
  const bool areLettersOthers = isFittedAnew && letters_.Change(widget);
  ViewFor(widget).Show(what);
  for (const auto& other : dialog_.Controls()) {
    if (areLettersOthers && views::CaptionLetters::StandTogether(*other, widget)) ViewFor(*other).Refresh();
  }
  if (what == WidgetProperty::Caption || what == WidgetProperty::ToolTipText) SpeakNames(&widget);
}

void PrnPropView::EntryChanged(EntryWidget& widget, std::int16_t index, EntryProperty what) {
  ViewFor(widget).EntryChanged(index, what);
}

void PrnPropView::EntryAdded(EntryWidget& widget, std::int16_t index) { ViewFor(widget).EntryAdded(index); }

void PrnPropView::EntryRemoved(EntryWidget& widget, std::int16_t index) { ViewFor(widget).EntryRemoved(index); }

void PrnPropView::EntriesCleared(EntryWidget& widget) { ViewFor(widget).EntriesCleared(); }

void PrnPropView::MousePointerChanged(std::int16_t pointer) {
  const bool isDrag = pointer == Dialog::kDragPointer;
  if (isDrag) {
    setCursor(DragCursor());
  } else {
    unsetCursor();
  }
  // The only widgets with a pointer of their own.
  for (QLineEdit* const edit : findChildren<QLineEdit*>()) {
    if (isDrag) {
      edit->unsetCursor();
    } else {
      edit->setCursor(Qt::IBeamCursor);
    }
  }
}

void PrnPropView::MsgBox(const Text& text, const Text& title) {
  // It goes with the window, if that is deleted meanwhile.
  const QPointer<QMessageBox> box(
      new QMessageBox(QMessageBox::NoIcon, ToQString(title), ToQString(text), QMessageBox::Ok, window()));
  box->setTextFormat(Qt::PlainText);
  box->setWindowModality(Qt::WindowModal);
  box->exec();
  delete box;
}

}  // namespace ORXKMPrintProp::qt
