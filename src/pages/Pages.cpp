#include "pages/Pages.h"

#include <utility>

namespace ORXKMPrintProp {

Pages::Pages(Dialog& dialog, PageEvents events)
    : state_{dialog, [this] { return IsReady(); },
             [this] {
               const std::weak_ptr<PrnPropCls> root = gPrnProp;
               events_.OrderChanged();
               return root.lock() == gPrnProp;
             }},
      events_(std::move(events)),
      general_(state_),
      char_(state_),
      attr_(state_),
      str_(state_) {
  for (std::int16_t button = 0; button <= kTotalsRowButton; ++button) {
    dialog.Get<CommandButton>(u"cmdPrintLayout", button).Click = [this, button] { PressLayout(button); };
  }
}

bool Pages::IsReady() {
  if (!state_.loaded || !gPrnProp) return false;
  if (filledFrom_.lock() == gPrnProp) return true;
  FillAllPages();
  return false;
}

void Pages::FillAllPages() {
  filledFrom_ = gPrnProp;
  Fill([this] {
    for (Page* const page : byTab_) page->ResetPage();
    ShowAllPages();
  });
}

template <class Routine>
void Pages::Fill(Routine routine) {
  try {
    routine();
  } catch (const Overtaken&) {
    throw;  // the pages are those of the load that has overtaken this one
  } catch (...) {
    // Half of a page is never committed.
    filledFrom_.reset();
    throw;
  }
}

void Pages::ShowAllPages() {
  for (const std::int16_t tab : {kGeneralTab, kCharTab, kStrTab, kAttrTab}) PageOf(tab).ShowPage();
}

void Pages::StoreCurrentPage() {
  if (IsReady()) PageOf(state_.dialog.TabStrip().Tab()).StorePage();
}

void Pages::ChangeTab(std::int16_t PreviousTab) {
  if (IsReady()) PageOf(PreviousTab).StorePage();
  if (state_.loaded) {
    Fill([&] { PageOf(state_.dialog.TabStrip().Tab()).ShowPage(); });
  }
}

void Pages::SetReadOnly(bool readOnly) {
  if (readOnly == state_.mReadOnly) return;
  IsReady();
  state_.mReadOnly = readOnly;
  for (Page* const page : byTab_) page->EnablePage();
}

void Pages::PressLayout(std::int16_t ButtonID) {
  Text name;
  if (ButtonID == kTotalsRowButton) {
    if (!IsReady() || state_.curChar < 1) return;
    name = state_.Characteristics().Item(state_.curChar)->Name();
  }
  events_.PrintLayoutGet(ButtonID, name);
}

}  // namespace ORXKMPrintProp
