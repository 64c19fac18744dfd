#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include "model/PrnPropCls.h"
#include "pages/Dialog.h"

// What the dialog's rules say of single values, worked out apart from the code that is tested.
namespace ORXKMPrintProp::test {

/// The widget of that name, found by a hash: a walk through the dialog would take most of the time of a run.
Widget& Find(const Dialog& dialog, TextView name, int index);
template <class W>
W& Find(const Dialog& dialog, TextView name, int index = WidgetName::kNoIndex) {
  return dynamic_cast<W&>(Find(dialog, name, index));
}

/// The whole text as a number, none where it is none or does not fit 16 bits.
std::optional<std::int16_t> WholeByRule(TextView text);
/// The number at the head of the text, 0 without one, none where it does not fit 16 bits.
std::optional<std::int16_t> LeadingByRule(TextView text);

/// What the settings frame of a list page holds; what a page does not have stays as it is here.
struct Frame {
  int presentation = -1;
  Text title;
  int align1 = -1, align2 = -1;
  bool autoWidth = false;
  Text width1, width2;
  bool eachPage1 = false, eachPage2 = false;
  bool hierarchy = false;
  Text level;
  int noSums = -1;

  bool operator==(const Frame&) const = default;
};
Frame FrameIn(const Dialog& dialog, int page);

/// The settings of an item that a frame shows.
struct ItemProps {
  int presentation = 0;
  Text title;
  int align1 = 0, align2 = 0;
  bool autoWidth = false;
  std::int16_t width1 = 0, width2 = 0;
  bool eachPage1 = false, eachPage2 = false;
  bool hierarchy = false;
  std::int16_t level = 0;
  int noSums = 0;

  bool operator==(const ItemProps&) const = default;
};

/// An item of any of the three list pages; what it is not is null.
struct ItemView {
  std::shared_ptr<const PrnItemCls> item;
  const PrnColumnsCls* columns = nullptr;
  const PrnCharCls* characteristic = nullptr;
  const PrnStrElemCls* element = nullptr;

  const PrnItemCls* operator->() const { return item.get(); }
};
ItemProps PropsOf(const ItemView& item);

/// What a frame shows of an item of that page.
Frame FrameOf(const ItemProps& props, int page);
/// What becomes of an item's settings when the frame is stored into it.
ItemProps AfterStore(ItemProps props, const Frame& frame, int page);

// The General page: its text boxes, combo boxes and check boxes, in the order in which the structures below hold them.

constexpr std::array<TextView, 6> kGeneralBoxes{u"txtGenPrnTitle",     u"txtGenMaxPages",   u"txtGenMarginTop",
                                                u"txtGenMarginBottom", u"txtGenMarginLeft", u"txtGenMarginRight"};
constexpr std::array<TextView, 4> kGeneralCombos{u"cmbGenPrnDirection", u"cmbGenSumPosit", u"cmbGenSignPrsnt",
                                                 u"cmbGenCurUnitPosition"};
constexpr std::array<TextView, 4> kGeneralChecks{u"chkGenShowNoZeros", u"chkGenUseColors", u"chkGenNoMultTexts",
                                                 u"chkGenNoLines"};

struct GeneralWidgets {
  std::array<Text, 6> boxes;
  std::array<int, 4> combos{-1, -1, -1, -1};
  std::array<bool, 4> checks{};

  bool operator==(const GeneralWidgets&) const = default;
};
GeneralWidgets GeneralWidgetsIn(const Dialog& dialog);

struct GeneralProps {
  Text title;
  std::array<std::int16_t, 5> numbers{};  ///< maximal pages and the margins
  std::array<int, 4> codes{};
  std::array<bool, 4> flags{};

  bool operator==(const GeneralProps&) const = default;
};
GeneralProps GeneralPropsOf(const PrnPropCls& root);
GeneralWidgets ShownGeneral(const GeneralProps& props);
GeneralProps AfterStore(GeneralProps props, const GeneralWidgets& widgets);

}  // namespace ORXKMPrintProp::test
