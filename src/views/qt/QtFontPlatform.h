#pragma once

#include "texts/DefaultFont.h"

namespace ORXKMPrintProp::qt {

/// The desktop's interface font, for the control's constructor. Needs the application object.
class QtFontPlatform : public RBDoubleByteCS::FontPlatform {
 public:
  Text GetTextFace(Context context, std::size_t length) override;
};

}  // namespace ORXKMPrintProp::qt
