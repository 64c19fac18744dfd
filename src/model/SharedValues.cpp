// The model's shared values, in one file because of the order in which a thread's end destroys them: the root
// goes first, as its teardown releases the row index.

#include "model/PrnPropCls.h"

namespace ORXKMPrintProp {

thread_local PerThread<Text> gErrorText = NewPerThread<Text>();
thread_local PerThread<std::shared_ptr<AttrRowIndex>> gAttrRowIndex = NewPerThread<std::shared_ptr<AttrRowIndex>>();
thread_local PerThread<std::shared_ptr<PrnPropCls>> gPrnProp = NewPerThread<std::shared_ptr<PrnPropCls>>();

}  // namespace ORXKMPrintProp
