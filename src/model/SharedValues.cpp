// The model's shared values, in one file because of the order in which a thread's end destroys them: the root
// goes first, as its teardown releases the row index.

#include "model/PrnPropCls.h"

namespace ORXKMPrintProp {

thread_local Text gErrorText;
thread_local std::shared_ptr<AttrRowIndex> gAttrRowIndex;
thread_local std::shared_ptr<PrnPropCls> gPrnProp;

}  // namespace ORXKMPrintProp
