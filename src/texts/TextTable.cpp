#include "texts/TextTable.h"

namespace ORXKMPrintProp {

TableRef gTextTable;

}  // namespace ORXKMPrintProp
