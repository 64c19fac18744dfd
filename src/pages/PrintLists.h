#pragma once

#include <cstdint>
#include <functional>

#include "pages/CharPage.h"
#include "pages/ListPage.h"

namespace ORXKMPrintProp {

/// What moves entries on the three list pages: the transfer buttons and the drag in a print list.
///
/// `ORXOrderChanged` reaches the host from here, inside the user's action. When the host loads other settings in its
/// handler, the rest of the action is dropped: it was about settings that are gone.
class PrintLists {
 public:
  /// Ten print characteristics are allowed; the limit guards the button alone.
  static constexpr int kMaxPrintCharacteristics = 10;

  /// @param pageOf the page with that number, null for one without lists.
  /// @param orderChanged raises the event. @return False when other settings have been loaded in it.
  PrintLists(PageState& state, CharPage& charPage, std::function<ListPage*(std::int16_t tab)> pageOf,
             std::function<bool()> orderChanged);

  void LeftToRight(std::int16_t Index);
  void RightToLeft(std::int16_t Index);

  void MouseDown(std::int16_t Index, std::int16_t Button);
  void MouseMove(std::int16_t Index, std::int16_t Button);
  void MouseUp(std::int16_t Index, std::int16_t Button);

  /// The lists have been filled anew: no entry is being dragged any more.
  void EndDrag();

 private:
  void AfterTransfer(std::int16_t moved);

  PageState& state_;
  CharPage& charPage_;
  std::function<ListPage*(std::int16_t tab)> pageOf_;
  std::function<bool()> orderChanged_;

  std::int16_t mDragIndex = -1;  ///< index of the entry being dragged, -1 for none
  std::int16_t mDragStart = 0;   ///< where the drag began
  bool mDragMoved = false;       ///< a drag on the Characteristics page has moved its entry
};

}  // namespace ORXKMPrintProp
