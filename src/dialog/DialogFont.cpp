#include "dialog/DialogFont.h"

namespace ORXKMPrintProp {

thread_local PerThread<Text> gDefaultFontName = NewPerThread<Text>();

namespace RBDoubleByteCS {

void GetDefaultDialogFont(const Platform& platform) { gDefaultFontName = TrimAtNul(platform.DialogFontFace()); }

Text TrimAtNul(const Text& text) { return text.substr(0, text.find(u'\0')); }

}  // namespace RBDoubleByteCS
}  // namespace ORXKMPrintProp
