// zelvs: the program.

#include <QApplication>
#include <QMessageBox>
#include <cstdio>

#include "kernel/startUp.h"
#include "kernel/state.h"
#include "ui/desk.h"
#include "ui/qt/qtPlatform.h"

namespace {

constexpr int kNoDisplay = 1;

bool hasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

void tellUser(const std::string& text) {
  std::fprintf(stderr, "ZEL-VS: %s\n", text.c_str());
  // Off-screen nobody could ever press OK.
  const QString platform = QGuiApplication::platformName();
  if (platform == "offscreen" || platform == "minimal") return;
  QMessageBox box(QMessageBox::Critical, "ZEL-VS", QString::fromStdString(text), QMessageBox::Ok);
  box.setWindowFlag(Qt::WindowStaysOnTopHint);  // in front of the splash
  box.exec();
}

}  // namespace

int main(int argc, char** argv) {
#ifdef Q_OS_UNIX
  if (!hasDisplay()) {
    std::fprintf(stderr,
                 "zelvs: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set).\n"
                 "Start it on a desktop, or drive it without one by zelvs-script.\n");
    return kNoDisplay;
  }
#endif
  QApplication application(argc, argv);
  QApplication::setApplicationName("ZEL-VS");
  zelvs::setUpLook();
  zelvs::setRunTimeErrorTeller(tellUser);
  zelvs::programFolder = QCoreApplication::applicationDirPath().toStdString();
  zelvs::QtPlatform platform;
  zelvs::setPlatform(&platform);
  zelvs::startUp();
  // The exit question may have been confirmed while the program was still coming up.
  const int status = zelvs::desk().ended() ? 0 : QApplication::exec();
  zelvs::desk().clear();
  return status;
}
