#include "host/editor/StatusMessage.h"

#include <algorithm>

#include "host/PrintRows.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "host/Words.h"
#include "model/PrnCharCls.h"
#include "views/SpokenName.h"

namespace ORXKMPrintProp::host {
namespace {

using views::Filled;

std::string Line(TextView words) { return ToUtf8(OneLine(words)); }

/// "no page", "new block at Month"; in another language, or of captions in one, the caption and the entry as they are.
Text WordsOnBreak(const Text& caption, const PageContent::Field& selector) {
  constexpr TextView kNew = u"New ";
  if (views::CurrentLanguage().code != "en" || !caption.starts_with(kNew)) return caption + u": " + selector.text;
  const Text what = caption.substr(kNew.size());
  return selector.number == 0 ? u"no " + what : u"new " + what + u" at " + selector.text;
}

bool IsBreakSelector(const Widget& widget) {
  constexpr TextView kSelectors[] = {u"cmbCharQueryBreak", u"cmbCharPageBreak", u"cmbCharBreakArea"};
  return std::find(std::begin(kSelectors), std::end(kSelectors), widget.Row().name.name) != std::end(kSelectors);
}

}  // namespace

std::vector<std::string> WordsOnOrder(const Dialog& dialog, const Widget& used, const PageContent& former,
                                      const PageContent& now) {
  std::vector<std::string> words;
  if (former.page != now.page) return words;
  const ListBox* const print = PrintListOf(dialog, now.page);
  if (&used == print && print->ListIndex() >= 0) {
    words.push_back(
        Line(Filled(TranslatedText("{0} is now {1} of {2}"),
                    {print->List(print->ListIndex()), Digits(print->ListIndex() + 1), Digits(print->ListCount())})));
  }
  std::vector<Text> breaks;
  for (std::size_t i = 0; i < now.fields.size(); ++i) {
    const PageContent::Field& field = now.fields[i];
    if (!IsBreakSelector(*field.widget) || field.text == former.fields[i].text) continue;
    breaks.push_back(WordsOnBreak(views::SpokenName(dialog, *field.widget).Spoken(), field));
  }
  if (!breaks.empty()) words.push_back(Line(Filled(TranslatedText("Order changed: {0}"), {Joined(breaks)})));
  return words;
}

std::vector<std::string> WordsOnPage(const Dialog& dialog) {
  std::vector<std::string> words;
  const std::int16_t page = dialog.TabStrip().Tab();
  const ListBox* const print = PrintListOf(dialog, page);
  if (!print) return words;
  if (print->SelCount() > 1) {
    words.push_back(Line(
        Filled(TranslatedText("{0} selected: their settings show when one is selected"), {Digits(print->SelCount())})));
  }
  if (page == kCharTab && print->ListCount() >= kMaxPrintCharacteristics) {
    words.push_back(Line(Filled(
        TranslatedText("{0}: {1} of {2} used"),
        {views::SpokenName(dialog, *print).Spoken(), Digits(print->ListCount()), Digits(kMaxPrintCharacteristics)})));
  }
  return words;
}

}  // namespace ORXKMPrintProp::host
