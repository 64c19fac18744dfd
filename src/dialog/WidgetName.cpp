#include "dialog/WidgetName.h"

#include "tables/Conversions.h"

namespace ORXKMPrintProp {

Text WidgetName::Spelled() const {
  return index == kNoIndex ? Text(name) : Text(name) + u"(" + ToText(std::int32_t{index}) + u")";
}

}  // namespace ORXKMPrintProp
