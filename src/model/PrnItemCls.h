#pragma once

#include "model/Property.h"
#include "tables/PrnEnums.h"

namespace ORXKMPrintProp {

/// What characteristics, attributes and structure elements have in common: a thing that is printed or not.
///
/// It is printed exactly when `Hidden` is False, in ascending `Position`. The two are read independently at load;
/// once the dialog has committed them, the printed items hold 1, 2, 3 ... and the hidden ones 0.
class PrnItemCls {
 public:
  FlagProperty Hidden;
  NumberProperty Position;
  /// Technical name.
  TextProperty Name;
  /// Display name, what the dialog shows.
  TextProperty Text;
  /// No table and no page uses it: it stays empty unless a caller sets it.
  TextProperty UID;
};

/// What characteristics and attributes have in common: two columns. With key and description both are used, in
/// the order of the presentation; with either alone there is only column 1.
class PrnColumnsCls : public PrnItemCls {
 public:
  Property<PP_ValuePresentation> Presentation;
  /// One title for both columns.
  TextProperty ColTitle;
  Property<PP_Alignment> ColAlign1;
  Property<PP_Alignment> ColAlign2;
  /// True: the column is printed on each page.
  FlagProperty ColFix1;
  FlagProperty ColFix2;
  FlagProperty ColAutoWidth;
  /// In the unit of the host, which alone knows it.
  NumberProperty ColWidth1;
  NumberProperty ColWidth2;
};

}  // namespace ORXKMPrintProp
