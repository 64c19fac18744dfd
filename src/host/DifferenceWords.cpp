#include "host/DifferenceWords.h"

namespace ORXKMPrintProp::host {

const DifferenceWords& DifferenceWordsIn(std::string_view language) {
  static const DifferenceWords english;
  static const DifferenceWords german{
      .changed = u"{0}: {1} ist jetzt {2}",
      .itemChanged = u"{0} {1} ist jetzt {2}",
      .set = u"{0} ist jetzt {2}",
      .on = u"{0} ist jetzt an",
      .off = u"{0} ist jetzt aus",
      .notAutomatic = u"{0} ist jetzt {2}, nicht mehr automatisch",
      .layoutChanged = u"{0} hat ein anderes Layout",
      .layoutNew = u"{0} hat jetzt ein Layout",
      .layoutGone = u"{0} hat kein Layout mehr",
      .nothing = u"leer",
      .automatic = u"automatisch",
      .inHeading = u"in der Überschrift",
      .moved = u"{0}: von Platz {1} auf {2}",
      .printedBehind = u"{0} wird wieder gedruckt, hinter {1}",
      .printedFirst = u"{0} wird wieder gedruckt, an erster Stelle",
      .notPrinted = u"{0} wird nicht mehr gedruckt",
      .newBehind = u"{0} ist neu, hinter {1}",
      .newFirst = u"{0} ist neu, an erster Stelle",
      .newHidden = u"{0} ist neu, nicht gedruckt",
      .gone = u"{0} ist weg",
      .called = u"hieß {1}",
      .nameless = u"(ohne Namen)",
      .hierarchy = u"Hierarchie",
      .version = u"Version der Hierarchie",
      .dateTo = u"Ende der Gültigkeit der Hierarchie",
      .position = u"Position",
  };
  return language == "de" ? german : english;
}

}  // namespace ORXKMPrintProp::host
