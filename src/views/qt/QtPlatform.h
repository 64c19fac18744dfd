#pragma once

#include <memory>

#include "dialog/Platform.h"

class QCollator;

namespace ORXKMPrintProp::qt {

/// The desktop's interface font and the text order of its language, for the control's constructor. Needs the
/// application object.
class QtPlatform : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  int CompareTexts(TextView a, TextView b) const override;
  Text DialogFontFace() const override;

 private:
  std::unique_ptr<QCollator> order_;
};

}  // namespace ORXKMPrintProp::qt
