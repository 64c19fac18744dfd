#include "tables/CellCodecs.h"

#include <cstddef>

namespace ORXKMPrintProp::ModPrnGen {
namespace {

template <class Value, std::size_t N>
struct CodeTable {
  struct Code {
    Value value;
    TextView cell;
  };
  Code codes[N];
  Value otherCell;      ///< what any other text decodes to
  TextView otherValue;  ///< what any other value encodes to

  constexpr Value FromCell(TextView cell) const {
    for (const Code& code : codes) {
      if (code.cell == cell) return code.value;
    }
    return otherCell;
  }

  Text ToCell(Value value) const {
    for (const Code& code : codes) {
      if (code.value == value) return Text(code.cell);
    }
    return Text(otherValue);
  }
};

constexpr CodeTable<bool, 2> kFlag{{{true, u"X"}, {false, u" "}}, false, u"X"};

constexpr CodeTable<bool, 3> kAxis{{{true, u"Y"}, {true, u"X"}, {false, u" "}}, false, u"Y"};

constexpr CodeTable<PP_ValuePresentation, 4> kPresentation{
    {{PP_VALP_KEYTEXT, u"0"}, {PP_VALP_TEXT, u"1"}, {PP_VALP_KEY, u"2"}, {PP_VALP_TEXTKEY, u"3"}}, PP_VALP_TEXT, u""};

constexpr CodeTable<PP_Alignment, 3> kAlign{
    {{PP_PRN_ALIGN_LEFT, u"L"}, {PP_PRN_ALIGN_RIGHT, u"R"}, {PP_PRN_ALIGN_CENTER, u"C"}}, PP_PRN_ALIGN_LEFT, u"L"};

constexpr CodeTable<PP_PrnDirection, 2> kDirection{
    {{PP_PRN_DIR_HORIZONTAL, u"H"}, {PP_PRN_DIR_VERTICAL, u"V"}}, PP_PRN_DIR_VERTICAL, u"V"};

constexpr CodeTable<PP_SumPosit, 2> kSumPosit{
    {{PP_PRN_SUM_TOPLEFT, u"2"}, {PP_PRN_SUM_BOTTOMRIGHT, u"1"}}, PP_PRN_SUM_TOPLEFT, u"2"};

constexpr CodeTable<PP_SignPrsnt, 3> kSignPrsnt{
    {{PP_PRN_SIGN_PREFIX, u"1"}, {PP_PRN_SIGN_POSTFIX, u"2"}, {PP_PRN_SIGN_BRACES, u"3"}}, PP_PRN_SIGN_PREFIX, u"3"};

constexpr CodeTable<PP_CurUnitPosition, 4> kCurUnitPosition{
    {{PP_PRN_CUPOS_LEFT, u"L"}, {PP_PRN_CUPOS_RIGHT, u"R"}, {PP_PRN_CUPOS_HEAD, u"T"}, {PP_PRN_CUPOS_NONE, u"N"}},
    PP_PRN_CUPOS_NONE,
    u"N"};

constexpr CodeTable<PP_NoSums, 3> kNoSums{
    {{PP_PRN_NOSUMS_NEVER, u" "}, {PP_PRN_NOSUMS_CONDITION, u"C"}, {PP_PRN_NOSUMS_ALWAYS, u"U"}},
    PP_PRN_NOSUMS_NEVER,
    u"U"};

}  // namespace

bool FlagFromCell(TextView cell) { return kFlag.FromCell(cell); }
Text FlagToCell(bool value) { return kFlag.ToCell(value); }

bool AxisFromCell(TextView cell) { return kAxis.FromCell(cell); }
Text AxisToCell(bool value) { return kAxis.ToCell(value); }

PP_ValuePresentation PresentationFromCell(TextView cell) { return kPresentation.FromCell(cell); }
Text PresentationToCell(PP_ValuePresentation value) { return kPresentation.ToCell(value); }

PP_Alignment AlignFromCell(TextView cell) { return kAlign.FromCell(cell); }
Text AlignToCell(PP_Alignment value) { return kAlign.ToCell(value); }

PP_PrnDirection DirectionFromCell(TextView cell) { return kDirection.FromCell(cell); }
Text DirectionToCell(PP_PrnDirection value) { return kDirection.ToCell(value); }

PP_SumPosit SumPositFromCell(TextView cell) { return kSumPosit.FromCell(cell); }
Text SumPositToCell(PP_SumPosit value) { return kSumPosit.ToCell(value); }

PP_SignPrsnt SignPrsntFromCell(TextView cell) { return kSignPrsnt.FromCell(cell); }
Text SignPrsntToCell(PP_SignPrsnt value) { return kSignPrsnt.ToCell(value); }

PP_CurUnitPosition CurUnitPositionFromCell(TextView cell) { return kCurUnitPosition.FromCell(cell); }
Text CurUnitPositionToCell(PP_CurUnitPosition value) { return kCurUnitPosition.ToCell(value); }

PP_NoSums NoSumsFromCell(TextView cell) { return kNoSums.FromCell(cell); }
Text NoSumsToCell(PP_NoSums value) { return kNoSums.ToCell(value); }

}  // namespace ORXKMPrintProp::ModPrnGen
