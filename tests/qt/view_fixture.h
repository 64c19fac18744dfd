#pragma once

#include <gtest/gtest.h>

#include <QListView>
#include <QSignalSpy>
#include <QTest>
#include <string>

#include "control/ORXQueryPrnProp.h"
#include "support/loaded.h"
#include "support/widget_text.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtFontPlatform.h"

namespace ORXKMPrintProp::qt::test {

using namespace ORXKMPrintProp::test;

/// A control with a view on the screen. However a test ends, the view must show what the widgets hold.
class ViewTest : public testing::Test {
 protected:
  ViewTest();
  void TearDown() override;

  /// Loads characteristics of these names, and brings a page on top.
  void Load(const std::string& printed, const std::string& available = "", std::int16_t tab = 1);

  /// The Qt widget of that name, `lstPrint(1)`.
  template <class QtWidget>
  QtWidget& Glass(const char* name) {
    auto* const found = view.findChild<QtWidget*>(QString::fromLatin1(name));
    if (!found) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }

  static QPoint PointOf(QListView& list, int entry);
  static void Press(QListView& list, int entry, Qt::MouseButton button = Qt::LeftButton);
  static void Move(QListView& list, int entry);
  static void Release(QListView& list, int entry, Qt::MouseButton button = Qt::LeftButton);
  static void Click(QListView& list, int entry, Qt::MouseButton button = Qt::LeftButton);

  QtFontPlatform platform;
  ORXQueryPrnProp control;
  PrnPropView view;
  QSignalSpy orderChanged;
  QSignalSpy failures;
  Dialog& dialog = control.GetDialog();
};

}  // namespace ORXKMPrintProp::qt::test
