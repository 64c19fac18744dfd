#pragma once

/// @file
/// The values that exist once for each thread that uses controls, not once per control. Each is declared in the folder
/// that gives it its meaning; two live controls of a thread share them all, and the last load wins for both.

#include <memory>

#include "dialog/DialogFont.h"  // IWYU pragma: export  gDefaultFontName
#include "model/PrnPropCls.h"   // IWYU pragma: export  gPrnProp, gErrorText, gAttrRowIndex
#include "tables/TableOperation.h"
#include "texts/LookupText.h"  // IWYU pragma: export  gTextTable

namespace ORXKMPrintProp {

/// While True, tab changes are ignored: a control is being started.
extern thread_local bool gTabSetup;

/// Releases the model and the host's text table, for a host that ends: its objects must not outlive it. Controls that
/// are still there count as before their first load until the next one. On Windows every thread that has used controls
/// is to call it before it ends: nothing else releases what it holds.
void ReleaseSharedValues();

/// As long as one lives, the thread has no model and no text table; afterwards it has those that it had before. For a
/// control that a host makes only to look something up, also from inside a call on a table: made and ended within, it
/// does not touch what others show, load or read back.
class SharedValuesGuard {
 public:
  SharedValuesGuard();
  SharedValuesGuard(const SharedValuesGuard&) = delete;
  SharedValuesGuard& operator=(const SharedValuesGuard&) = delete;
  ~SharedValuesGuard();

 private:
  std::shared_ptr<PrnPropCls> root_;
  std::shared_ptr<AttrRowIndex> attrRowIndex_;
  TableRef textTable_;
  Text errorText_;
  TableOperation* operation_;
};

}  // namespace ORXKMPrintProp
