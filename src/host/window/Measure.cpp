#include "host/window/Measure.h"

#include "host/window/Display.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host {

TextRooms Measure(const MemoryTableRef& texts, const std::vector<ShownText>& shown) {
  const ApplicationInMemory application;
  const qt::QtPlatform platform;
  const auto control = ControlWith(texts, platform);
  Dialog& dialog = control->GetDialog();
  const qt::PrnPropView view(dialog);
  TextRooms rooms{.rooms = {}, .dpi = view.logicalDpiX()};
  for (const auto& [place, text] : shown) {
    rooms.rooms.push_back(view.RoomOf(*dialog.Find(place.widget), text, place.number));
  }
  return rooms;
}

}  // namespace ORXKMPrintProp::host
