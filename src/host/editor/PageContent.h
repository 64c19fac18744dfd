#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::host {

/// What the page on top shows and the tables do not say: what is picked and selected, and what the fields hold, which
/// the user may have typed and the control not have stored yet.
struct PageContent {
  struct Field {
    Widget* widget;
    Text text;                      ///< of a text box; of a combo box the entry's
    std::int16_t number = 0;        ///< of a check box its value, of a combo box its index
    std::optional<Text> kept = {};  ///< what the setting holds instead of a text that it can't take
  };
  struct List {
    std::vector<std::int32_t> selected;
    std::int32_t caret = -1;
  };

  std::int16_t page = 0;
  // Entries by their ItemData.

  std::int32_t owner = -1;  ///< the characteristic, or structure, whose items the lists show
  List avail;
  List print;
  std::vector<Field> fields;  ///< none where all are to be as they are loaded
  /// Another item's settings that the user has changed and the control has stored as he went on, since the tables
  /// were read last. None when the tables say all but this.
  std::shared_ptr<const PageContent> before;
  bool isEdited = false;  ///< by the user, since it has been shown or the tables were read

  /// The item whose settings the fields hold, -1 for none.
  std::int32_t Item() const { return print.selected.size() == 1 ? print.selected.front() : -1; }
};
using PageContentRef = std::shared_ptr<const PageContent>;

PageContent ContentOf(const Dialog& dialog);

/// Whether both show the same items, and the settings of the same one.
bool IsSamePlace(const PageContent& a, const PageContent& b);
bool HaveSameFields(const PageContent& a, const PageContent& b);

/// Shows the content, but for the page, which is to be on top. What is the same already is not touched; entries that
/// are not there are left out. The control stores what its page held, as it does when the user goes on.
void Show(const Dialog& dialog, const PageContent& content);

/// The print list of the page, none for the General page.
ListBox* PrintListOf(const Dialog& dialog, std::int16_t page);

}  // namespace ORXKMPrintProp::host
