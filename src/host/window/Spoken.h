#pragma once

class QLabel;
class QWidget;

namespace ORXKMPrintProp::host {

/// Assistive programs are told of the widget as of a window, to be called before they are told anything of it. Without
/// this Qt tells of dialogs and main windows alone.
void SpeakAsWindow(QWidget& widget);

/// Assistive programs are told of the label as of a notification, to be called before they are told anything of it.
void SpeakAsNotification(QLabel& label);
/// Has assistive programs speak what such a label says, wherever the focus is.
void Speak(QLabel& notification);

}  // namespace ORXKMPrintProp::host
