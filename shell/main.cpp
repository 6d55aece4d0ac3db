// zelvs: the program.

#include "shell/ownFolder.h"
#include "shell/startUp.h"
#include "state/state.h"
#include "ui/qt/desktop.h"

int main(int argc, char** argv) {
  zelvs::programFolder = zelvs::ownFolder(argv[0]);
  return zelvs::runDesktop(argc, argv, zelvs::startUp);
}
