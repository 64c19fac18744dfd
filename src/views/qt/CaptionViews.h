#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "views/qt/WidgetView.h"

/// @file
/// The widgets that show a caption.

namespace ORXKMPrintProp::qt {

/// A line around its widgets with the caption in it, the same in every style: where other styles give the caption a
/// row of its own, the topmost widgets of the layout would lie on the line.
class FrameView : public ViewOf<QGroupBox, Frame> {
 public:
  using ViewOf::ViewOf;
  void Refresh() override;

 protected:
  std::optional<int> CaptionRoom() const override;
  void paintEvent(QPaintEvent* event) override;
};

/// A caption by itself.
class LabelView : public ViewOf<QLabel, Label> {
 public:
  LabelView(Label& label, const Reports& reports, QWidget* parent);
  void Refresh() override;

 protected:
  std::optional<int> CaptionRoom() const override;
};

/// A button with its caption.
class ButtonView : public ViewOf<QPushButton, CommandButton> {
 public:
  ButtonView(CommandButton& button, const Reports& reports, QWidget* parent);
  void Refresh() override;

 protected:
  std::optional<int> CaptionRoom() const override;
  /// Enter presses the button that has the focus, once; a dialog around it never presses it by itself.
  void keyPressEvent(QKeyEvent* event) override;
};

/// A check box with its caption.
class CheckBoxView : public ViewOf<QCheckBox, CheckBox> {
 public:
  CheckBoxView(CheckBox& check, const Reports& reports, QWidget* parent);
  void Refresh() override;

 protected:
  std::optional<int> CaptionRoom() const override;
};

}  // namespace ORXKMPrintProp::qt
