#include <QApplication>
#include <QLabel>
#include <cstdlib>

#include "FirstPaint.h"

/// The least that a program with a window does, and the least that one with a text in it does: what the start of any
/// other is measured against.
/// empty_window WIDTH HEIGHT [TEXT]
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc < 3) return 2;
  QWidget window;
  window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
  if (argc > 3) new QLabel(QString::fromUtf8(argv[3]), &window);
  new ORXKMPrintProp::bench::ExitAfterFirstPaint(window);
  window.show();
  return QApplication::exec();
}
