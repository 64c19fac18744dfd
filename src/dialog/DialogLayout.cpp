#include "dialog/DialogLayout.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace ORXKMPrintProp {
namespace {

// clang-format off
constexpr LayoutRow kLayout[] = {
    {{u"tstPrint"}, WidgetKind::SSTab, u"", -1, {0, 0, 9615, 5895}, 0, u""},
    // page 0, General
    {{u"txtGenPrnTitle"}, WidgetKind::TextBox, u"tstPrint", 0, {120, 960, 5055, 285}, 22, u""},
    {{u"cmbGenPrnDirection"}, WidgetKind::ComboBox, u"tstPrint", 0, {120, 1680, 2535, 315}, 23, u""},
    {{u"txtGenMaxPages"}, WidgetKind::TextBox, u"tstPrint", 0, {3720, 1680, 1455, 285}, 24, u""},
    {{u"chkGenShowNoZeros"}, WidgetKind::CheckBox, u"tstPrint", 0, {120, 2280, 3615, 255}, 25, u"Keine Nullen anzeigen"},
    {{u"chkGenNoMultTexts"}, WidgetKind::CheckBox, u"tstPrint", 0, {120, 2640, 4815, 255}, 26, u"Keine Merkmalswiederholungen"},
    {{u"chkGenUseColors"}, WidgetKind::CheckBox, u"tstPrint", 0, {120, 3000, 4335, 255}, 27, u"Farben verwenden"},
    {{u"chkGenNoLines"}, WidgetKind::CheckBox, u"tstPrint", 0, {120, 3360, 4815, 255}, 28, u"Keine Linien drucken"},
    {{u"cmbGenSumPosit"}, WidgetKind::ComboBox, u"tstPrint", 0, {120, 4080, 2415, 315}, 29, u""},
    {{u"cmbGenCurUnitPosition"}, WidgetKind::ComboBox, u"tstPrint", 0, {2760, 4080, 2415, 315}, 30, u""},
    {{u"cmbGenSignPrsnt"}, WidgetKind::ComboBox, u"tstPrint", 0, {120, 4920, 2415, 315}, 31, u""},
    {{u"lblGenMaxPages"}, WidgetKind::Label, u"tstPrint", 0, {3720, 1440, 1695, 255}, 92, u"Maximale Seitenzahl"},
    {{u"lblGenPrnDirection"}, WidgetKind::Label, u"tstPrint", 0, {120, 1440, 2055, 255}, 93, u"Druckrichtung"},
    {{u"lblGenPrnTitle"}, WidgetKind::Label, u"tstPrint", 0, {120, 720, 2055, 255}, 94, u"Drucktitel"},
    {{u"fraGenPageLayout"}, WidgetKind::Frame, u"tstPrint", 0, {5640, 2640, 2055, 2655}, 95, u"Seitenlayout"},
    {{u"fraGenPageMargins"}, WidgetKind::Frame, u"tstPrint", 0, {5640, 840, 2055, 1695}, 97, u"Seitenränder"},
    {{u"lblGenSumPosit"}, WidgetKind::Label, u"tstPrint", 0, {120, 3840, 2055, 255}, 102, u"Summenposition"},
    {{u"lblGenSignPrsnt"}, WidgetKind::Label, u"tstPrint", 0, {120, 4680, 2055, 255}, 103, u"Vorzeichendarstellung"},
    {{u"lblGenCurUnitPosition"}, WidgetKind::Label, u"tstPrint", 0, {2760, 3840, 2775, 255}, 104, u"Position Währungen/Einheiten"},
    // in fraGenPageLayout
    {{u"cmdPrintLayout", 0}, WidgetKind::CommandButton, u"fraGenPageLayout", 0, {120, 360, 1695, 315}, 36, u"Deckblatt"},
    {{u"cmdPrintLayout", 1}, WidgetKind::CommandButton, u"fraGenPageLayout", 0, {120, 960, 1695, 315}, 37, u"Kopfteil"},
    {{u"cmdPrintLayout", 2}, WidgetKind::CommandButton, u"fraGenPageLayout", 0, {120, 1560, 1695, 315}, 38, u"Fußteil"},
    {{u"cmdPrintLayout", 3}, WidgetKind::CommandButton, u"fraGenPageLayout", 0, {120, 2160, 1695, 315}, 39, u"Abschlußseite"},
    // in fraGenPageMargins
    {{u"txtGenMarginTop"}, WidgetKind::TextBox, u"fraGenPageMargins", 0, {120, 600, 735, 285}, 32, u""},
    {{u"txtGenMarginBottom"}, WidgetKind::TextBox, u"fraGenPageMargins", 0, {1080, 600, 735, 285}, 33, u""},
    {{u"txtGenMarginLeft"}, WidgetKind::TextBox, u"fraGenPageMargins", 0, {120, 1320, 735, 285}, 34, u""},
    {{u"txtGenMarginRight"}, WidgetKind::TextBox, u"fraGenPageMargins", 0, {1080, 1320, 735, 285}, 35, u""},
    {{u"lblGenMarginTop"}, WidgetKind::Label, u"fraGenPageMargins", 0, {120, 360, 855, 255}, 98, u"Oben"},
    {{u"lblGenMarginRight"}, WidgetKind::Label, u"fraGenPageMargins", 0, {1080, 1080, 855, 255}, 99, u"Rechts"},
    {{u"lblGenMarginLeft"}, WidgetKind::Label, u"fraGenPageMargins", 0, {120, 1080, 855, 255}, 100, u"Links"},
    {{u"lblGenMarginBottom"}, WidgetKind::Label, u"fraGenPageMargins", 0, {1080, 360, 855, 255}, 101, u"Unten"},
    // page 1, Characteristics
    {{u"lstAvail", 1}, WidgetKind::ListBox, u"tstPrint", 1, {120, 1440, 1935, 2595}, 1, u"", true, true},
    {{u"cmdLeftToRight", 1}, WidgetKind::CommandButton, u"tstPrint", 1, {2160, 2280, 375, 375}, 2, u">>"},
    {{u"cmdRightToLeft", 1}, WidgetKind::CommandButton, u"tstPrint", 1, {2160, 3000, 375, 375}, 3, u"<<"},
    {{u"lstPrint", 1}, WidgetKind::ListBox, u"tstPrint", 1, {2640, 1440, 1935, 2595}, 4, u"", true},
    {{u"fraCharPrintProp"}, WidgetKind::Frame, u"tstPrint", 1, {4680, 480, 4815, 5250}, 76, u"Druckeigenschaften Merkmal"},
    {{u"lblCharPrint"}, WidgetKind::Label, u"tstPrint", 1, {2640, 1200, 1815, 255}, 90, u"Druckmerkmale"},
    {{u"lblCharAvail"}, WidgetKind::Label, u"tstPrint", 1, {120, 1200, 1815, 255}, 91, u"Verfügbare Merkmale"},
    {{u"fraCharBreak"}, WidgetKind::Frame, u"tstPrint", 1, {120, 4080, 4455, 1650}, 105, u"Bei Gruppenwechsel..."},
    // in fraCharPrintProp
    {{u"txtCharColTitle"}, WidgetKind::TextBox, u"fraCharPrintProp", 1, {120, 600, 3015, 285}, 8, u""},
    {{u"cmbCharPresentation"}, WidgetKind::ComboBox, u"fraCharPrintProp", 1, {120, 1200, 3015, 315}, 9, u""},
    {{u"cmbCharColAlign1"}, WidgetKind::ComboBox, u"fraCharPrintProp", 1, {1680, 1920, 1455, 315}, 10, u""},
    {{u"chkCharColAutoWidth"}, WidgetKind::CheckBox, u"fraCharPrintProp", 1, {1680, 2400, 375, 255}, 11, u""},
    {{u"txtCharColWidth1"}, WidgetKind::TextBox, u"fraCharPrintProp", 1, {1680, 2760, 855, 285}, 13, u""},
    {{u"chkCharColEachPage1"}, WidgetKind::CheckBox, u"fraCharPrintProp", 1, {1680, 3120, 495, 255}, 14, u""},
    {{u"chkCharHierDisplay"}, WidgetKind::CheckBox, u"fraCharPrintProp", 1, {1680, 3720, 375, 255}, 15, u""},
    {{u"txtCharHierLevel"}, WidgetKind::TextBox, u"fraCharPrintProp", 1, {1680, 4080, 375, 285}, 16, u""},
    {{u"cmbCharNoSums"}, WidgetKind::ComboBox, u"fraCharPrintProp", 1, {120, 4800, 2055, 315}, 17, u""},
    {{u"cmdPrintLayout", 4}, WidgetKind::CommandButton, u"fraCharPrintProp", 1, {3240, 4800, 1455, 315}, 18, u"Summenzeile"},
    {{u"cmbCharColAlign2"}, WidgetKind::ComboBox, u"fraCharPrintProp", 1, {3240, 1920, 1455, 315}, 19, u""},
    {{u"txtCharColWidth2"}, WidgetKind::TextBox, u"fraCharPrintProp", 1, {3240, 2760, 855, 285}, 20, u""},
    {{u"chkCharColEachPage2"}, WidgetKind::CheckBox, u"fraCharPrintProp", 1, {3240, 3120, 495, 255}, 21, u""},
    {{u"lblCharCol1"}, WidgetKind::Label, u"fraCharPrintProp", 1, {1680, 1680, 1455, 255}, 77, u"Spalte 1"},
    {{u"lblCharCol2"}, WidgetKind::Label, u"fraCharPrintProp", 1, {3240, 1680, 1455, 255}, 78, u"Spalte 2"},
    {{u"lblCharColEachPage"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 3120, 1575, 255}, 79, u"Auf jeder Seite"},
    {{u"lblCharColAutoWidth"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 2400, 1575, 255}, 80, u"Breite automatisch"},
    {{u"lblCharColAlign"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 1920, 1575, 255}, 81, u"Ausrichtung"},
    {{u"lblCharColWidth"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 2760, 1575, 255}, 82, u"Breite"},
    {{u"lblCharPresentation"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 960, 1815, 255}, 83, u"Darstellung"},
    {{u"lblCharColTitle"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 360, 1575, 255}, 96, u"Spaltenüberschrift"},
    {{u"lblCharNoSums"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 4560, 2055, 255}, 109, u"Summenunterdrückung"},
    {{u"lblCharHierLevel"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 4080, 1455, 255}, 110, u"Hierarchielevel"},
    {{u"lblCharHierDisplay"}, WidgetKind::Label, u"fraCharPrintProp", 1, {120, 3720, 1455, 255}, 111, u"Hierarchieanzeige"},
    // in fraCharBreak
    {{u"cmbCharQueryBreak"}, WidgetKind::ComboBox, u"fraCharBreak", 1, {2400, 240, 1935, 315}, 5, u""},
    {{u"cmbCharPageBreak"}, WidgetKind::ComboBox, u"fraCharBreak", 1, {2400, 720, 1935, 315}, 6, u""},
    {{u"cmbCharBreakArea"}, WidgetKind::ComboBox, u"fraCharBreak", 1, {2400, 1200, 1935, 315}, 7, u""},
    {{u"lblCharQueryBreak"}, WidgetKind::Label, u"fraCharBreak", 1, {240, 270, 1935, 255}, 106, u"neues Deckblatt"},
    {{u"lblCharPageBreak"}, WidgetKind::Label, u"fraCharBreak", 1, {240, 750, 1935, 255}, 107, u"neue Seite"},
    {{u"lblCharBreakArea"}, WidgetKind::Label, u"fraCharBreak", 1, {240, 1230, 1935, 255}, 108, u"neuer Block"},
    // page 2, Attributes
    {{u"cmbAttrChar"}, WidgetKind::ComboBox, u"tstPrint", 2, {120, 720, 1815, 315}, 40, u""},
    {{u"lstAvail", 2}, WidgetKind::ListBox, u"tstPrint", 2, {120, 1440, 1935, 2595}, 41, u"", true},
    {{u"cmdLeftToRight", 2}, WidgetKind::CommandButton, u"tstPrint", 2, {2160, 2280, 375, 375}, 42, u">>"},
    {{u"cmdRightToLeft", 2}, WidgetKind::CommandButton, u"tstPrint", 2, {2160, 3000, 375, 375}, 43, u"<<"},
    {{u"lstPrint", 2}, WidgetKind::ListBox, u"tstPrint", 2, {2640, 1440, 1935, 2595}, 44, u"", true},
    {{u"fraAttrPrintProp"}, WidgetKind::Frame, u"tstPrint", 2, {4680, 480, 4815, 3570}, 67, u"Druckeigenschaften Attribut"},
    {{u"lblAttrChar"}, WidgetKind::Label, u"tstPrint", 2, {120, 480, 1815, 255}, 87, u"Merkmal"},
    {{u"lblAttrAvail"}, WidgetKind::Label, u"tstPrint", 2, {120, 1200, 1815, 255}, 88, u"Verfügbare Attribute"},
    {{u"lblAttrPrint"}, WidgetKind::Label, u"tstPrint", 2, {2640, 1200, 1815, 255}, 89, u"Druckattribute"},
    // in fraAttrPrintProp
    {{u"txtAttrColTitle"}, WidgetKind::TextBox, u"fraAttrPrintProp", 2, {120, 600, 3015, 285}, 45, u""},
    {{u"cmbAttrPresentation"}, WidgetKind::ComboBox, u"fraAttrPrintProp", 2, {120, 1200, 3015, 315}, 46, u""},
    {{u"cmbAttrColAlign1"}, WidgetKind::ComboBox, u"fraAttrPrintProp", 2, {1680, 1920, 1455, 315}, 47, u""},
    {{u"chkAttrColAutoWidth"}, WidgetKind::CheckBox, u"fraAttrPrintProp", 2, {1680, 2400, 375, 255}, 48, u""},
    {{u"txtAttrColWidth1"}, WidgetKind::TextBox, u"fraAttrPrintProp", 2, {1680, 2760, 855, 285}, 49, u""},
    {{u"chkAttrColEachPage1"}, WidgetKind::CheckBox, u"fraAttrPrintProp", 2, {1680, 3120, 495, 255}, 50, u""},
    {{u"cmbAttrColAlign2"}, WidgetKind::ComboBox, u"fraAttrPrintProp", 2, {3240, 1920, 1455, 315}, 51, u""},
    {{u"txtAttrColWidth2"}, WidgetKind::TextBox, u"fraAttrPrintProp", 2, {3240, 2760, 855, 285}, 52, u""},
    {{u"chkAttrColEachPage2"}, WidgetKind::CheckBox, u"fraAttrPrintProp", 2, {3240, 3120, 495, 255}, 53, u""},
    {{u"lblAttrCol1"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {1680, 1680, 1455, 255}, 68, u"Spalte 1"},
    {{u"lblAttrCol2"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {3240, 1680, 1455, 255}, 69, u"Spalte 2"},
    {{u"lblAttrColEachPage"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {120, 3120, 1575, 255}, 70, u"Auf jeder Seite"},
    {{u"lblAttrColAutoWidth"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {120, 2400, 1575, 255}, 71, u"Breite automatisch"},
    {{u"lblAttrPresentation"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {120, 960, 1815, 255}, 72, u"Darstellung"},
    {{u"lblAttrColWidth"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {120, 2760, 1575, 255}, 73, u"Breite"},
    {{u"lblAttrColAlign"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {120, 1920, 1575, 255}, 74, u"Ausrichtung"},
    {{u"lblAttrColTitle"}, WidgetKind::Label, u"fraAttrPrintProp", 2, {120, 360, 1575, 255}, 75, u"Spaltenüberschrift"},
    // page 3, Structures
    {{u"fraStrPrintProp"}, WidgetKind::Frame, u"tstPrint", 3, {4680, 480, 4815, 3570}, 12, u"Druckeigenschaften Strukturelement"},
    {{u"lstStrStructures"}, WidgetKind::ListBox, u"tstPrint", 3, {120, 600, 1815, 450}, 54, u""},
    {{u"lstAvail", 3}, WidgetKind::ListBox, u"tstPrint", 3, {120, 1440, 1935, 2595}, 55, u"", true},
    {{u"cmdLeftToRight", 3}, WidgetKind::CommandButton, u"tstPrint", 3, {2160, 2280, 375, 375}, 56, u">>"},
    {{u"cmdRightToLeft", 3}, WidgetKind::CommandButton, u"tstPrint", 3, {2160, 3000, 375, 375}, 57, u"<<"},
    {{u"lstPrint", 3}, WidgetKind::ListBox, u"tstPrint", 3, {2640, 1440, 1935, 2595}, 58, u"", true},
    {{u"lblStrPrint"}, WidgetKind::Label, u"tstPrint", 3, {2640, 1200, 1815, 255}, 84, u"Druck-Strukturelemente"},
    {{u"lblStrAvail"}, WidgetKind::Label, u"tstPrint", 3, {120, 1200, 2175, 255}, 85, u"Verfügbare Strukturelemente"},
    {{u"lblStrStructures"}, WidgetKind::Label, u"tstPrint", 3, {120, 360, 2055, 255}, 86, u"Strukturen"},
    // in fraStrPrintProp
    {{u"txtStrColTitle"}, WidgetKind::TextBox, u"fraStrPrintProp", 3, {120, 600, 3015, 285}, 59, u""},
    {{u"cmbStrColAlign"}, WidgetKind::ComboBox, u"fraStrPrintProp", 3, {1680, 1200, 1455, 315}, 60, u""},
    {{u"chkStrColAutoWidth"}, WidgetKind::CheckBox, u"fraStrPrintProp", 3, {1680, 1680, 375, 255}, 61, u""},
    {{u"txtStrColWidth"}, WidgetKind::TextBox, u"fraStrPrintProp", 3, {1680, 2040, 855, 285}, 62, u""},
    {{u"lblStrColAutoWidth"}, WidgetKind::Label, u"fraStrPrintProp", 3, {120, 1680, 1575, 255}, 63, u"Breite automatisch"},
    {{u"lblStrColWidth"}, WidgetKind::Label, u"fraStrPrintProp", 3, {120, 2040, 1575, 255}, 64, u"Breite"},
    {{u"lblStrColAlign"}, WidgetKind::Label, u"fraStrPrintProp", 3, {120, 1200, 1575, 255}, 65, u"Ausrichtung"},
    {{u"lblStrColTitle"}, WidgetKind::Label, u"fraStrPrintProp", 3, {120, 360, 1575, 255}, 66, u"Spaltenüberschrift"},
};
// clang-format on

constexpr const LayoutRow* ParentOf(const LayoutRow& row) {
  return std::find_if(std::begin(kLayout), &row, [&](const LayoutRow& other) { return other.name.name == row.parent; });
}

constexpr bool LiesInItsParent(const LayoutRow& row) {
  if (row.parent.empty()) return true;
  const LayoutRow* const parent = ParentOf(row);
  const Geometry& inner = row.geometry;
  return parent != &row && (parent->page == row.page || parent->kind == WidgetKind::SSTab) &&
         inner.left + inner.width <= parent->geometry.width && inner.top + inner.height <= parent->geometry.height;
}

template <class Same>
constexpr bool NoTwo(Same same) {
  for (const LayoutRow& row : kLayout) {
    if (std::any_of(std::begin(kLayout), &row, [&](const LayoutRow& other) { return same(other, row); })) return false;
  }
  return true;
}

static_assert(NoTwo([](const LayoutRow& a, const LayoutRow& b) { return a.name == b.name; }));
static_assert(NoTwo([](const LayoutRow& a, const LayoutRow& b) { return a.tabIndex == b.tabIndex; }));
static_assert(std::all_of(std::begin(kLayout), std::end(kLayout), LiesInItsParent));

// clang-format off
constexpr MouseIconBits kMouseIcon{
    {
        u"                                ",
        u"                                ",
        u"                                ",
        u"                                ",
        u"                                ",
        u"                                ",
        u"                                ",
        u"                                ",
        u"                #               ",
        u"                ##              ",
        u"                #.#             ",
        u"                #..#            ",
        u"                #...#           ",
        u"                #....#          ",
        u"                #.....#         ",
        u"                #......#        ",
        u"                #.......#       ",
        u"                #........#      ",
        u"                #.....#####     ",
        u"                #..#..#         ",
        u"                #.# #..#        ",
        u"                ##  #..#    #   ",
        u"                #    #..#  ###  ",
        u"                     #..# ##### ",
        u"                      ##   .#.  ",
        u"                           .#.  ",
        u"                           .#.  ",
        u"                          ##### ",
        u"                           ###  ",
        u"                            #   ",
        u"                                ",
        u"                                ",
    }};
// clang-format on
static_assert(std::all_of(kMouseIcon.rows.begin(), kMouseIcon.rows.end(),
                          [](TextView row) { return row.size() == 32; }));

}  // namespace

const char* NameOf(WidgetKind kind) {
  static constexpr const char* kNames[] = {"SSTab",    "Frame",    "Label",   "TextBox",
                                           "ComboBox", "CheckBox", "ListBox", "CommandButton"};
  return kNames[static_cast<std::size_t>(kind)];
}

std::span<const LayoutRow> DialogLayout() { return kLayout; }

const MouseIconBits& MouseIcon() { return kMouseIcon; }

}  // namespace ORXKMPrintProp
