#include "ui/qt/desktopCheck.h"

#include <QApplication>
#include <QAudioDevice>
#include <QEventLoop>
#include <QFontDatabase>
#include <QMediaDevices>
#include <QScreen>
#include <QSoundEffect>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include "ui/qt/desktop.h"
#include "ui/qt/qtPainter.h"
#include "ui/waveFile.h"

namespace zelvs {

namespace {

constexpr const char* kOffscreen = "offscreen";

/// The platforms that the toolkit shall try in turn. Where it can have none of them it ends the program, so the last is
/// one that it always can.
QByteArray platformsToTry(const QByteArray& wanted) {
  QByteArrayList names;
  if (!wanted.isEmpty()) {
    names << wanted;
  } else {
    if (qEnvironmentVariableIsSet("DISPLAY")) names << "xcb";
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) names << "wayland";
  }
  names << kOffscreen;
  return names.join(';');
}

Finding checkDisplay(const QByteArray& wanted) {
  const QString platform = QGuiApplication::platformName();
  if (platform == kOffscreen && !wanted.startsWith(kOffscreen)) {
    const QByteArray names[] = {wanted, qgetenv("DISPLAY"), qgetenv("WAYLAND_DISPLAY")};
    QByteArrayList told;
    for (const QByteArray& name : names) {
      if (!name.isEmpty()) told << name;
    }
    if (told.isEmpty()) return {false, "display: there is none, neither DISPLAY nor WAYLAND_DISPLAY is set"};
    return {false, "display: there is none that answers to " + told.join(", ").toStdString()};
  }
  constexpr QSize kLaidOutFor(1920, 1080);
  const QScreen& screen = *QGuiApplication::primaryScreen();
  const QSize size = screen.size();
  QString text = QString("display: %1 by %2 pixels at scale %3, by %4")
                     .arg(size.width())
                     .arg(size.height())
                     .arg(screen.devicePixelRatio())
                     .arg(platform);
  if (size.expandedTo(kLaidOutFor) != size) text += "; the windows are laid out for 1920 by 1080 and scroll";
  return {true, text.toStdString()};
}

Finding checkFont() {
  for (const QString& family : textFamilies()) {
    if (QFontDatabase::hasFamily(family)) return {true, "font: " + family.toStdString()};
  }
  return {false, "font: there is none of " + textFamilies().join(", ").toStdString() +
                     ": Japanese texts may be boxes, or stand beside their places"};
}

Finding checkOutput() {
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull()) return {false, "sound: there is no output device: nothing is heard"};
  return {true, "sound: " + device.description().toStdString()};
}

/// The player reads its file by and by.
Finding checkSound(const std::string& path) {
  constexpr int kPatience = 3000;  // milliseconds
  QSoundEffect player;
  QEventLoop reading;
  QObject::connect(&player, &QSoundEffect::statusChanged, &reading, &QEventLoop::quit);
  player.setSource(QUrl::fromLocalFile(QString::fromStdString(path)));
  QTimer::singleShot(kPatience, &reading, &QEventLoop::quit);
  while (player.status() == QSoundEffect::Loading && reading.exec()) {
  }
  const bool plays = player.status() == QSoundEffect::Ready;
  return {plays, plays ? "sound: BEEP.WAV can be played" : "sound: BEEP.WAV cannot be played"};
}

}  // namespace

std::vector<Finding> checkDesktop(int& argc, char** argv, const std::string& sound) {
  takeDisplayArguments(argc, argv);
  const QByteArray wanted = qgetenv("QT_QPA_PLATFORM");
  qputenv("QT_QPA_PLATFORM", platformsToTry(wanted));
  const QApplication application(argc, argv);
  std::vector<Finding> findings = {checkDisplay(wanted), checkFont(), checkOutput()};
  if (isWaveFile(sound)) findings.push_back(checkSound(sound));
  return findings;
}

}  // namespace zelvs
