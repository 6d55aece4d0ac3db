#include "ui/qt/desktop.h"

#include <QApplication>
#include <QMessageBox>
#include <algorithm>
#include <cstdio>
#include <string_view>
#include <utility>

#include "text/shortText.h"
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

int tellNoDisplay(int& argc, char** argv) {
  if (argc > 1) {
    // The toolkit knows its own arguments also where it has nothing to show on.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc > 1) return refuseArgument(argv[1]);
  }
  std::fprintf(stderr,
               "zelvs: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set).\n"
               "Start it on a desktop, or drive it without one by zelvs-script.\n");
  return kNoDisplay;
}

std::string (*theReporter)(const std::string& text) = nullptr;
QtPlatform* thePlatform = nullptr;

/// What has gone wrong may do so again at the next tick, or when it is painted anew: the words would be gone before
/// anybody had read them.
void holdStill() {
  thePlatform->stopClock();
  for (QWidget* window : QApplication::topLevelWidgets())
    window->setUpdatesEnabled(false);
}

void tellUser(const std::string& text) {
  const std::string what = shortened(text, kLongestTold);
  std::string more;
  for (const std::string& deed : deedWords())
    more += deed + "\n";
  more += theReporter(text);
  std::fprintf(stderr, "ZEL-VS: %s\n%s\n", what.c_str(), more.c_str());
  // Off-screen nobody could ever press OK.
  const QString platform = QGuiApplication::platformName();
  if (platform == "offscreen" || platform == "minimal") return;
  holdStill();
  QMessageBox box(QMessageBox::Critical, "ZEL-VS", QString::fromStdString(what), QMessageBox::Ok);
  box.setInformativeText(QString::fromStdString(more));
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.setWindowFlag(Qt::WindowStaysOnTopHint);  // in front of the splash
  box.exec();
}

}  // namespace

void takeDisplayArguments(int& argc, char** argv) {
  constexpr std::pair<std::string_view, const char*> kArguments[] = {{"-display", "DISPLAY"},
                                                                     {"-platform", "QT_QPA_PLATFORM"}};
  for (const auto& [argument, variable] : kArguments) {
    const auto asks = [&](std::string_view given) {
      return given == argument || (given.starts_with("--") && given.substr(1) == argument);
    };
    char** const at = std::find_if(argv + 1, argv + argc, asks);
    if (argv + argc - at < 2) continue;
    qputenv(variable, at[1]);
    std::move(at + 2, argv + argc + 1, at);  // with the null behind them
    argc -= 2;
  }
}

int refuseArgument(const char* argument) {
  constexpr int kWrongCommandLine = 2;
  const std::string told = shortened(argument, kLongestTold);
  std::fprintf(stderr, "zelvs: unknown argument: %s\n%s", told.c_str(), kDesktopUsage);
  return kWrongCommandLine;
}

int runDesktop(int& argc, char** argv, const std::function<void()>& start, std::string (*report)(const std::string&)) {
  takeDisplayArguments(argc, argv);
  if (!hasDisplay()) return tellNoDisplay(argc, argv);
  QApplication application(argc, argv);
  if (argc > 1) return refuseArgument(argv[1]);
  QApplication::setApplicationName("ZEL-VS");
  setUpLook();
  Windows windows;
  QtPlatform platform(windows);
  theReporter = report;
  thePlatform = &platform;
  setRunTimeErrorTeller(tellUser);
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
