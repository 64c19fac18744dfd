#include "host/window/Measure.h"

#include "control/ORXQueryPrnProp.h"
#include "host/window/Display.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host {

TextRooms Measure(const MemoryTableRef& texts, const std::vector<ShownText>& shown) {
  const ApplicationInMemory application;
  const qt::QtPlatform platform;
  ORXQueryPrnProp control(platform);
  control.ORXControlTexts(texts);
  const Dialog& dialog = control.GetDialog();
  const qt::PrnPropView view(control.GetDialog());
  TextRooms rooms{.rooms = {}, .dpi = view.logicalDpiX()};
  for (const auto& [place, text] : shown) {
    rooms.rooms.push_back(view.RoomOf(*dialog.Find(place.widget), text, place.number));
  }
  return rooms;
}

}  // namespace ORXKMPrintProp::host
