#include "host/editor/PageContent.h"

#include <algorithm>

namespace ORXKMPrintProp::host {
namespace {

constexpr TextView kOwnerCombo = u"cmbAttrChar";

ListBox& ListOf(const Dialog& dialog, TextView name, std::int16_t page) { return dialog.Get<ListBox>(name, page); }

/// What picks whose items the page shows, none where it shows all.
EntryWidget* OwnerPicker(const Dialog& dialog, std::int16_t page) {
  if (page == kAttrTab) return &dialog.Get<ComboBox>(kOwnerCombo);
  if (page == kStrTab) return &dialog.Get<ListBox>(u"lstStrStructures");
  return nullptr;
}

/// In a list the caret may be elsewhere.
bool IsPicked(const EntryWidget& picker, std::int16_t entry) {
  const auto* const list = dynamic_cast<const ListBox*>(&picker);
  return list ? list->Selected(entry) : picker.ListIndex() == entry;
}

void Pick(EntryWidget& picker, std::int16_t entry) {
  if (auto* const list = dynamic_cast<ListBox*>(&picker)) return list->Selected(entry, true);
  picker.ListIndex(entry);
}

PageContent::List ContentOf(const ListBox& list) {
  PageContent::List content;
  if (list.ListIndex() >= 0) content.caret = list.ItemData(list.ListIndex());
  for (std::int16_t i = 0, left = list.SelCount(); left > 0; ++i) {
    if (!list.Selected(i)) continue;
    content.selected.push_back(list.ItemData(i));
    --left;
  }
  return content;
}

void Show(ListBox& list, const PageContent::List& content) {
  std::vector<std::int32_t> wanted = content.selected;
  std::sort(wanted.begin(), wanted.end());
  // What goes goes first, so that nothing is shown in between.
  for (const bool selected : {false, true}) {
    for (std::int16_t i = 0; i < list.ListCount(); ++i) {
      if (std::binary_search(wanted.begin(), wanted.end(), list.ItemData(i)) == selected) list.Selected(i, selected);
    }
  }
  std::int16_t caret = 0;
  while (caret < list.ListCount() && list.ItemData(caret) != content.caret) ++caret;
  list.ListIndex(caret < list.ListCount() ? caret : std::int16_t{-1});
}

void Show(const PageContent::Field& field) {
  if (auto* const combo = dynamic_cast<ComboBox*>(field.widget)) {
    if (field.number < combo->ListCount()) combo->ListIndex(field.number);
  } else if (auto* const check = dynamic_cast<CheckBox*>(field.widget)) {
    check->Value(field.number);
  } else {
    auto& box = dynamic_cast<TextBox&>(*field.widget);
    box.SetText(field.text);
  }
}

}  // namespace

ListBox* PrintListOf(const Dialog& dialog, std::int16_t page) {
  return page == kGeneralTab ? nullptr : &ListOf(dialog, u"lstPrint", page);
}

PageContent ContentOf(const Dialog& dialog) {
  PageContent content;
  content.page = dialog.TabStrip().Tab();
  const EntryWidget* const picker = OwnerPicker(dialog, content.page);
  for (std::int16_t i = 0; picker && i < picker->ListCount(); ++i) {
    if (IsPicked(*picker, i)) content.owner = picker->ItemData(i);
  }
  if (const ListBox* const print = PrintListOf(dialog, content.page)) {
    content.avail = ContentOf(ListOf(dialog, u"lstAvail", content.page));
    content.print = ContentOf(*print);
  }
  for (const auto& widget : dialog.Controls()) {
    if (widget->Row().page != content.page || widget->Row().name.name == kOwnerCombo) continue;
    PageContent::Field field{.widget = widget.get(), .text = {}};
    if (const auto* const box = dynamic_cast<const TextBox*>(widget.get())) {
      field.text = box->GetText();
      if (!box->IsStorable()) field.kept = box->kept;
    } else if (const auto* const check = dynamic_cast<const CheckBox*>(widget.get())) {
      field.number = check->Value();
    } else if (const auto* const combo = dynamic_cast<const ComboBox*>(widget.get())) {
      field.number = combo->ListIndex();
      if (field.number >= 0) field.text = combo->List(field.number);
    } else {
      continue;
    }
    content.fields.push_back(field);
  }
  return content;
}

bool IsSamePlace(const PageContent& a, const PageContent& b) {
  return a.page == b.page && a.owner == b.owner && a.print.selected == b.print.selected;
}

bool HaveSameFields(const PageContent& a, const PageContent& b) {
  return std::equal(a.fields.begin(), a.fields.end(), b.fields.begin(), b.fields.end(),
                    [](const PageContent::Field& one, const PageContent::Field& other) {
                      return one.widget == other.widget && one.text == other.text && one.number == other.number;
                    });
}

void Show(const Dialog& dialog, const PageContent& content) {
  if (EntryWidget* const picker = OwnerPicker(dialog, content.page)) {
    for (std::int16_t i = 0; i < picker->ListCount(); ++i) {
      if (picker->ItemData(i) == content.owner) Pick(*picker, i);
    }
  }
  if (ListBox* const print = PrintListOf(dialog, content.page)) {
    Show(ListOf(dialog, u"lstAvail", content.page), content.avail);
    Show(*print, content.print);
  }
  // What is picked and checked fills the boxes.
  for (const WidgetKind kind : {WidgetKind::ComboBox, WidgetKind::CheckBox, WidgetKind::TextBox}) {
    for (const PageContent::Field& field : content.fields) {
      if (field.widget->Row().kind == kind) Show(field);
    }
  }
}

}  // namespace ORXKMPrintProp::host
