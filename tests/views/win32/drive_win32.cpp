#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "views/hand_drive.h"

int main(int argc, char** argv) {
  // Lines end with one character, as those of the program.
  _setmode(_fileno(stdout), _O_BINARY);
  return ORXKMPrintProp::test::DriveByHand(argc, argv);
}
