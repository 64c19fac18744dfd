#include "pages/Pages.h"

#include <utility>

#include "pages/ListRoutines.h"

namespace ORXKMPrintProp {

std::int16_t gCurChar = 0;
std::int16_t gCurAttrChar = 0;
std::int16_t gCurAttr = 0;
std::int16_t gCurStr = 0;
std::int16_t gCurStrElem = 0;

Pages* Pages::active_ = nullptr;

Pages::Pages(Dialog& dialog, PageEvents events)
    : state_{dialog},
      events_(std::move(events)),
      general_(state_),
      char_(state_),
      attr_(state_),
      str_(state_),
      printLists_(
          state_, char_, [this](std::int16_t tab) { return ListPageOf(tab); },
          [this] {
            const std::weak_ptr<PrnPropCls> root = gPrnProp;
            events_.OrderChanged();
            if (root.lock() != gPrnProp) return false;
            Activate();
            return true;
          }) {
  Subscribe();
}

Pages::~Pages() {
  if (active_ == this) active_ = nullptr;
}

const Pages::Routines* Pages::RoutinesOf(std::int16_t tab) {
  static constexpr Routines kRoutines[] = {
      {[](Pages& p) { p.general_.ShowGeneralPage(); }, [](Pages& p) { p.general_.StoreGeneralPage(); },
       [](Pages& p) { p.general_.EnableGeneralPage(); }},
      {[](Pages& p) { p.char_.ShowCharPage(); }, [](Pages& p) { p.char_.StoreCharPage(); },
       [](Pages& p) { p.char_.EnableCharPage(); }},
      {[](Pages& p) { p.attr_.ShowAttrPage(); }, [](Pages& p) { p.attr_.StoreAttrPage(); },
       [](Pages& p) { p.attr_.EnableAttrPage(); }},
      {[](Pages& p) { p.str_.ShowStrPage(); }, [](Pages& p) { p.str_.StoreStrPage(); },
       [](Pages& p) { p.str_.EnableStrPage(); }},
  };
  return tab >= 0 && tab < SSTab::kTabs ? &kRoutines[tab] : nullptr;
}

ListPage* Pages::ListPageOf(std::int16_t tab) {
  ListPage* const pages[] = {nullptr, &char_, &attr_, &str_};
  return tab >= 0 && tab < SSTab::kTabs ? pages[tab] : nullptr;
}

void Pages::Activate() {
  if (active_ == this) return;
  if (active_) active_->selections_ = {gCurChar, gCurAttrChar, gCurAttr, gCurStr, gCurStrElem};
  gCurChar = selections_.curChar;
  gCurAttrChar = selections_.curAttrChar;
  gCurAttr = selections_.curAttr;
  gCurStr = selections_.curStr;
  gCurStrElem = selections_.curStrElem;
  active_ = this;
}

bool Pages::IsReady() {
  if (!state_.loaded || !gPrnProp) return false;
  Activate();
  if (filledFrom_.lock() == gPrnProp) return true;
  FillAllPages();
  return false;
}

void Pages::FillAllPages() {
  Activate();
  filledFrom_ = gPrnProp;
  printLists_.EndDrag();
  Fill([this] {
    char_.ResetCharPage();
    attr_.ResetAttrPage();
    str_.ResetStrPage();
    ShowAllPages();
  });
}

template <class Routine>
void Pages::Fill(Routine routine) {
  try {
    routine();
  } catch (...) {
    // Half of a page is never committed.
    filledFrom_.reset();
    throw;
  }
}

void Pages::ShowAllPages() {
  general_.ShowGeneralPage();
  char_.ShowCharPage();
  str_.ShowStrPage();
  attr_.ShowAttrPage();
}

void Pages::StoreCurrentPage() {
  if (!IsReady()) return;
  if (const Routines* const page = RoutinesOf(state_.dialog.TabStrip().Tab())) page->store(*this);
}

void Pages::ChangeTab(std::int16_t PreviousTab) {
  if (IsReady()) {
    if (const Routines* const page = RoutinesOf(PreviousTab)) page->store(*this);
  }
  if (!state_.loaded) return;
  if (const Routines* const page = RoutinesOf(state_.dialog.TabStrip().Tab())) {
    Fill([&] { page->show(*this); });
  }
}

void Pages::SetReadOnly(bool readOnly) {
  if (readOnly == state_.mReadOnly) return;
  IsReady();
  state_.mReadOnly = readOnly;
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) RoutinesOf(tab)->enable(*this);
}

void Pages::PressLayout(std::int16_t ButtonID) {
  Text name;
  if (ButtonID == kTotalsRowButton) {
    if (!IsReady() || gCurChar < 1) return;
    name = state_.Characteristics().Item(gCurChar)->Name();
  }
  events_.PrintLayoutGet(ButtonID, name);
}

void Pages::Subscribe() {
  Dialog& dialog = state_.dialog;
  const auto whenReady = [this](auto handler) {
    return [this, handler] {
      if (IsReady()) handler();
    };
  };

  for (std::int16_t button = 0; button <= kTotalsRowButton; ++button) {
    dialog.Get<CommandButton>(u"cmdPrintLayout", button).Click = [this, button] { PressLayout(button); };
  }
  for (std::int16_t tab = 1; tab < SSTab::kTabs; ++tab) {
    ListPage& page = *ListPageOf(tab);
    page.cmdLeftToRight.Click = whenReady([this, tab] { printLists_.LeftToRight(tab); });
    page.cmdRightToLeft.Click = whenReady([this, tab] { printLists_.RightToLeft(tab); });
    page.lstPrint.Click = whenReady([&page] { page.SelectionChanged(); });
    const auto mouse = [this, tab](void (PrintLists::*handler)(std::int16_t, std::int16_t)) {
      return [this, tab, handler](std::int16_t button) {
        if (IsReady()) (printLists_.*handler)(tab, button);
      };
    };
    page.lstPrint.MouseDown = mouse(&PrintLists::MouseDown);
    page.lstPrint.MouseMove = mouse(&PrintLists::MouseMove);
    page.lstPrint.MouseUp = mouse(&PrintLists::MouseUp);
  }

  dialog.Get<ComboBox>(u"cmbCharQueryBreak").Click = whenReady([this] { char_.Breaks().OnQueryBreak(); });
  dialog.Get<ComboBox>(u"cmbCharPageBreak").Click = whenReady([this] { char_.Breaks().OnPageBreak(); });
  char_.chkCharHierDisplay.Click = whenReady([this] { char_.OnHierDisplay(); });
  attr_.cmbAttrChar.Click = whenReady([this] { attr_.AttrCharChanged(); });
  str_.lstStrStructures.Click = whenReady([this] { str_.StructureChanged(); });
  str_.chkStrColAutoWidth.Click = whenReady([this] {
    if (gCurStr != -1 && gCurStrElem != -1) str_.OnAutoWidth();
  });

  const auto subscribe = [&](ColumnFrame& columns, auto isShown) {
    columns.cmbPresentation.Click = whenReady([&columns] { columns.OnPresentation(); });
    columns.chkColAutoWidth.Click = whenReady([&columns, isShown] {
      if (isShown()) columns.OnAutoWidth();
    });
  };
  subscribe(char_.Columns(), [] { return gCurChar != -1; });
  subscribe(attr_.Columns(), [] { return gCurAttrChar != -1 && gCurAttr != -1; });

  for (const auto& name : {u"txtGenMarginTop", u"txtGenMarginBottom", u"txtGenMarginLeft", u"txtGenMarginRight",
                           u"txtGenMaxPages", u"txtCharHierLevel", u"txtCharColWidth1", u"txtCharColWidth2",
                           u"txtAttrColWidth1", u"txtAttrColWidth2", u"txtStrColWidth"}) {
    dialog.Get<TextBox>(name).KeyPress = ModPrnGen::FilterDigitKey;
  }
}

}  // namespace ORXKMPrintProp
