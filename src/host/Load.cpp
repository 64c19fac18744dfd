#include "host/Load.h"

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/PrintRows.h"
#include "host/SettingsColumns.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {
namespace {

/// What the control says of a table, by the name that the table has in a document. It says so ahead of a place in a
/// row, or at the end; what stands between may be the document's own text.
Text InNamesOfDocument(Text words) {
  struct Name {
    TextView ofControl;
    TextView ofDocument;
  };
  static constexpr Name kBegins[] = {{u"Table with general print properties GenPropTable ", u"general "},
                                     {u"GenPropTable, ", u"general, "},
                                     {u"it_dim, ", u"dimension, "},
                                     {u"it_mem, ", u"member, "},
                                     {u"it_atr, ", u"attribute, "}};
  static constexpr TextView kEnd = u" of it_atr.";
  for (const Name& name : kBegins) {
    if (words.starts_with(name.ofControl)) return words.replace(0, name.ofControl.size(), name.ofDocument);
  }
  if (words.ends_with(kEnd)) words.replace(words.size() - kEnd.size(), Text::npos, u" of attribute.");
  return words;
}

}  // namespace

LoadError::LoadError(const SettingsDocument& document, TextView words)
    : std::runtime_error(OneLine(document.file + ": the load fails: " + ToUtf8(InNamesOfDocument(Text(words))))) {}

void LoadAndReadBack(const SettingsDocument& document) {
  const SharedValuesGuard guard;
  ORXQueryPrnProp control;
  try {
    if (!control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute)) {
      throw LoadError(document, gErrorText);
    }
    // Any of the four reads rewrites all tables.
    if (!control.ORXGenPropTable()) throw LoadError(document, u"the tables could not be read back");
  } catch (const RunTimeError& error) {
    throw LoadError(document, error.Message());
  }
}

std::shared_ptr<const PrnPropCls> SettingsOf(const SettingsDocument& document) {
  const SharedValuesGuard guard;
  // The end of a root releases what another load may be using.
  const auto end = [](const PrnPropCls* root) {
    const SharedValuesGuard kept;
    delete root;
  };
  const std::shared_ptr<PrnPropCls> settings(new PrnPropCls, end);
  try {
    if (!settings->FromTable(*document.general, *document.dimension, *document.member, *document.attribute)) {
      throw LoadError(document, gErrorText);
    }
  } catch (const RunTimeError& error) {
    throw LoadError(document, error.Message());
  }
  for (std::int16_t i = 0; const TextView column : kPageLayouts) {
    settings->FBLayout(i++, RawText(*document.general->Rows(1), column));
  }
  auto characteristic = settings->Characteristics().begin();
  for (const RowRef& row : AllRows(*document.dimension)) {
    if (!IsStructure(*row)) (*characteristic++)->FBLayout(RawText(*row, kTotalsLayout));
  }
  return settings;
}

}  // namespace ORXKMPrintProp::host
