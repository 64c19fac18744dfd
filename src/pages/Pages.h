#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>

#include "pages/AttrPage.h"
#include "pages/CharPage.h"
#include "pages/GeneralPage.h"
#include "pages/StrPage.h"

namespace ORXKMPrintProp {

/// What the pages tell the control.
struct PageEvents {
  std::function<void(std::int16_t ButtonID, const Text& CharIObjName)> PrintLayoutGet;
  std::function<void()> OrderChanged;
};

/// The four pages of one dialog: the dispatch by page, and the layout buttons.
///
/// Pages that were filled from a model that is not the program's any more, because another control has loaded since or
/// a load has failed, are not committed: where they would act, they are filled anew instead.
class Pages {
 public:
  Pages(Dialog& dialog, PageEvents events);
  Pages(const Pages&) = delete;
  Pages& operator=(const Pages&) = delete;

  /// Fills all four pages after a load, which leaves nothing selected on the Attributes and Structures pages but
  /// what they show now.
  void FillAllPages();
  /// From now on the pages act; without a fill they are those of a model that is gone.
  void SetLoaded() { state_.loaded = true; }
  /// Commits the page on top, unless the pages have to be filled anew.
  void StoreCurrentPage();
  /// The page left is committed, and the one on top filled.
  void ChangeTab(std::int16_t PreviousTab);
  void SetReadOnly(bool readOnly);
  bool IsReadOnly() const { return state_.mReadOnly; }

 private:
  void ShowAllPages();
  /// Runs what fills pages. When it fails, they count as pages of a model that is gone.
  template <class Routine>
  void Fill(Routine routine);
  void PressLayout(std::int16_t ButtonID);
  bool IsReady();
  Page& PageOf(std::int16_t tab) const { return *byTab_[static_cast<std::size_t>(tab)]; }

  PageState state_;
  PageEvents events_;
  GeneralPage general_;
  CharPage char_;
  AttrPage attr_;
  StrPage str_;
  const std::array<Page*, SSTab::kTabs> byTab_{&general_, &char_, &attr_, &str_};
  std::weak_ptr<PrnPropCls> filledFrom_;
};

}  // namespace ORXKMPrintProp
