#pragma once

class QWidget;

namespace ORXKMPrintProp::host {

/// Assistive programs are told of the widget as of a window, to be called before they are told anything of it. Without
/// this Qt tells of dialogs and main windows alone.
void SpeakAsWindow(QWidget& widget);

}  // namespace ORXKMPrintProp::host
