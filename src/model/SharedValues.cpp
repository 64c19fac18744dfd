// The model's shared values, in one file because of the order in which the program's end destroys them: the root
// goes first, as its teardown releases the row index.

#include "model/PrnPropCls.h"

namespace ORXKMPrintProp {

Text gErrorText;
std::shared_ptr<AttrRowIndex> gAttrRowIndex;
std::shared_ptr<PrnPropCls> gPrnProp;

}  // namespace ORXKMPrintProp
