#include "host/editor/Notes.h"

#include <algorithm>

#include "host/Terminal.h"
#include "host/Utf8.h"
#include "host/Words.h"
#include "views/SpokenName.h"

namespace ORXKMPrintProp::host {
namespace {

using Field = PageContent::Field;

/// "Region: " for the settings of an item.
Text SubjectOf(const Dialog& dialog, const PageContent& shown) {
  const ListBox* const print = PrintListOf(dialog, shown.page);
  for (std::int16_t i = 0; print && i < print->ListCount(); ++i) {
    if (print->ItemData(i) == shown.Item()) return print->List(i) + u": ";
  }
  return {};
}

Text WordsOn(const Dialog& dialog, const PageContent& shown, const Field& field) {
  const Text text = field.text.empty() ? TranslatedText("(empty)") : field.text;
  return SubjectOf(dialog, shown) +
         views::Filled(TranslatedText("{0} {1} is no number up to 32767: {2} kept"),
                       {views::SpokenName(dialog, *field.widget).Spoken(), text, *field.kept});
}

bool IsOn(const Note& note, const Field& field, const PageContent& shown) {
  return note.box == field.widget && note.owner == shown.owner && note.item == shown.Item();
}

}  // namespace

Notes NotesOn(const Dialog& dialog, const PageContent& shown) {
  Notes notes;
  for (const Field& field : shown.fields) {
    if (!field.kept) continue;
    notes.push_back({field.widget, shown.owner, shown.Item(), ToUtf8(OneLine(WordsOn(dialog, shown, field)))});
  }
  return notes;
}

Notes NotesAfter(Notes notes, const Dialog& dialog, const PageContent& former, const PageContent& shown) {
  const bool isSamePlace = IsSamePlace(former, shown);
  for (std::size_t i = 0; i < shown.fields.size(); ++i) {
    const Field& field = shown.fields[i];
    const bool isChanged = isSamePlace && former.fields[i].text != field.text;
    if (isChanged || field.kept) std::erase_if(notes, [&](const Note& note) { return IsOn(note, field, shown); });
  }
  Notes here = NotesOn(dialog, shown);
  notes.insert(notes.end(), here.begin(), here.end());
  return notes;
}

}  // namespace ORXKMPrintProp::host
