#include "host/editor/LayoutText.h"

#include "views/Translation.h"

namespace ORXKMPrintProp::host {

TextView LineEndOf(TextView text) { return text.find(u"\r\n") == TextView::npos ? u"\n" : u"\r\n"; }

Text WithLineEnds(TextView text, TextView lineEnd) {
  Text changed;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isReturn = text[at] == u'\r';
    if (!isReturn && text[at] != u'\n') {
      changed += text[at];
      continue;
    }
    changed += lineEnd;
    if (isReturn && text.substr(at).starts_with(u"\r\n")) ++at;
  }
  return changed;
}

Question LayoutIsThrownAway() {
  return {.kind = Question::Kind::Question,
          .text = views::Translated("The layout has changed."),
          .further = views::Translated("Throw away what was typed?"),
          .choices = {Choice::Discard, Choice::Cancel},
          .preset = Choice::Cancel};
}

}  // namespace ORXKMPrintProp::host
