#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "pages/AttrPage.h"
#include "pages/CharPage.h"
#include "pages/GeneralPage.h"
#include "pages/PrintLists.h"
#include "pages/StrPage.h"

namespace ORXKMPrintProp {

/// What the pages tell the control.
struct PageEvents {
  std::function<void(std::int16_t ButtonID, const Text& CharIObjName)> PrintLayoutGet;
  std::function<void()> OrderChanged;
};

/// The four pages of one dialog: the dispatch by page, and the dialog's events.
///
/// The shared selections are those of the dialog that is acting. Pages that were filled from a model that is not the
/// program's any more, because another control has loaded since or a load has failed, are not committed: where they
/// would act, they are filled anew instead.
class Pages {
 public:
  Pages(Dialog& dialog, PageEvents events);
  Pages(const Pages&) = delete;
  Pages& operator=(const Pages&) = delete;
  ~Pages();

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
  /// The shared selections of a dialog while another one acts.
  struct Selections {
    std::int16_t curChar = 0, curAttrChar = 0, curAttr = 0, curStr = 0, curStrElem = 0;
  };
  struct Routines {
    void (*show)(Pages&);
    void (*store)(Pages&);
    void (*enable)(Pages&);
  };

  static const Routines* RoutinesOf(std::int16_t tab);
  void ShowAllPages();
  /// Runs what fills pages. When it fails, they count as pages of a model that is gone.
  template <class Routine>
  void Fill(Routine routine);
  void Subscribe();
  void PressLayout(std::int16_t ButtonID);
  /// Whether the pages can act: there is a model, and they show it. Fills them if they show another.
  bool IsReady();
  /// Makes the shared selections those of this dialog.
  void Activate();
  ListPage* ListPageOf(std::int16_t tab);

  static Pages* active_;  ///< whose selections the shared ones are

  PageState state_;
  PageEvents events_;
  GeneralPage general_;
  CharPage char_;
  AttrPage attr_;
  StrPage str_;
  PrintLists printLists_;
  Selections selections_;
  std::weak_ptr<PrnPropCls> filledFrom_;
};

}  // namespace ORXKMPrintProp
