// zelvs: the program.

#include "shell/ownFolder.h"
#include "shell/report.h"
#include "shell/startUp.h"
#include "shell/writeSignals.h"
#include "state/state.h"
#include "ui/qt/desktop.h"

int main(int argc, char** argv) {
  zelvs::ignoreWriteSignals();
  zelvs::programFolder = zelvs::ownFolder(argv[0]);
  return zelvs::runDesktop(argc, argv, zelvs::startUp, zelvs::keepReport);
}
