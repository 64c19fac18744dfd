#include <QApplication>

#include "views/hand_drive.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  return ORXKMPrintProp::test::DriveByHand(argc, argv);
}
