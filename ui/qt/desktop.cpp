#include "ui/qt/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>

#include "ui/desk.h"
#include "ui/qt/qtPlatform.h"
#include "ui/qt/windows.h"
#include "ui/runTimeError.h"
#include "ui/view.h"

namespace zelvs {

namespace {

constexpr int kNoDisplay = 1;

bool hasDisplay() {
#ifdef Q_OS_UNIX
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
  return true;
#endif
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

int runDesktop(int& argc, char** argv, const std::function<void()>& start) {
  if (!hasDisplay()) {
    std::fprintf(stderr,
                 "zelvs: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set).\n"
                 "Start it on a desktop, or drive it without one by zelvs-script.\n");
    return kNoDisplay;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName("ZEL-VS");
  setUpLook();
  setRunTimeErrorTeller(tellUser);
  Windows windows;
  QtPlatform platform(windows);
  setView(&windows);
  setPlatform(&platform);
  start();
  // The exit question may have been confirmed while the program was still coming up.
  const int status = desk().ended() ? 0 : QApplication::exec();
  desk().clear();
  setView(nullptr);
  return status;
}

}  // namespace zelvs
