// The program before a real screen under a window manager with frames of its own, worked by a real mouse. run.sh brings
// the screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <functional>
#include <memory>

#include "bench/frmHard.h"
#include "chip/frmEditMemory.h"
#include "chip/frmEditRegister.h"
#include "dialogs/frmDialog.h"
#include "lessons/frmNavigation.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "support/program.h"
#include "ui/qt/qtPlatform.h"
#include "ui/qt/windows.h"
#include "ui/view.h"
#include "ui/windowFrame.h"

namespace zelvs {
namespace {

class WindowManagerTest : public testing::Test {
 protected:
  WindowManagerTest() {
    setUpLook();
    setPlatform(&platform_);
    setView(&windows_);
    clearState();
    programFolder = folder_.path();
    std::filesystem::create_directory(folder_.file("NaviData"));
    folder_.write("NaviData/NaviIndex.txt", "a.txt\ta\t\r\n");
    folder_.write("NaviData/a.txt", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    folder_.write("ZELVS.INI", makerIni());
    startUp();
    pass(kToSettle);
  }
  ~WindowManagerTest() override {
    desk().clear();
    pass(0);
    setView(nullptr);
  }

  static constexpr int kToSettle = 700;  // milliseconds that a window manager gets
  static constexpr int kApart = 600;     // between clicks that are not to be one double click
  static constexpr int kToOpen = 1500;

  /// Lets events run for that many milliseconds.
  static void pass(int milliseconds) {
    QElapsedTimer time;
    time.start();
    do {
      QApplication::processEvents(QEventLoop::AllEvents, 10);
    } while (time.elapsed() < milliseconds);
  }
  /// Whether it is so, at once or after what a busy machine may need.
  static bool comesTrue(const std::function<bool()>& what) {
    constexpr int kPatience = 10000;
    QElapsedTimer time;
    for (time.start(); !what() && time.elapsed() < kPatience;)
      pass(20);
    return what();
  }
  /// What a person does: xdotool's words. Events run meanwhile, and for a while behind it.
  static void person(const QString& does, int then = 300) {
    QProcess tool;
    tool.start("xdotool", does.split(' '));
    while (tool.state() != QProcess::NotRunning)
      pass(5);
    ASSERT_EQ(tool.exitCode(), 0) << does.toStdString();
    pass(then);
  }
  static QString moveTo(double x, double y) {
    return QString("mousemove %1 %2").arg(qRound(x / kTwipsPerPixel)).arg(qRound(y / kTwipsPerPixel));
  }
  static QString moveTo(const Control& control) {
    const Area area = control.area();
    return moveTo(control.form().insideLeft() + area.left + area.width / 2,
                  control.form().insideTop() + area.top + area.height / 2);
  }
  static void click(const Control& control) { person(moveTo(control) + " click 1", kApart); }
  static void doubleClick(const Control& control) {
    person(moveTo(control) + " click --repeat 2 --delay 60 1", kApart);
  }
  /// Does what opens a modal window, and inside while that is open; inside closes it.
  template <class Opens, class Inside>
  static void modally(Opens opens, Inside inside) {
    bool done = false;
    QTimer::singleShot(kToOpen, [&] {
      inside();
      done = true;
    });
    opens();
    while (!done)
      pass(10);
  }
  /// On a small screen the boards below are scrolled to.
  static void bringIntoView(const Control& control) {
    frmMDI->scrollTo(0, control.area().bottom() - frmMDI->clientArea().height + 1500);
    pass(100);
  }
  QWidget& windowOf(const Form& form) const { return *windows_.windowOf(form); }
  /// What a person sees of a form: the place of its inside on the screen.
  QPoint insideOf(const Form& form) const { return windows_.canvasOf(form)->mapToGlobal(QPoint(0, 0)); }
  static QPoint insideInModel(const Form& form) {
    return {qRound(form.insideLeft() / kTwipsPerPixel), qRound(form.insideTop() / kTwipsPerPixel)};
  }

  /// The titles of the windows that stand by themselves, back to front, as the window manager has stacked them.
  static QStringList stacked() {
    QStringList titles;
    for (const QString& id : output("xprop -root _NET_CLIENT_LIST_STACKING").section("# ", 1).trimmed().split(", "))
      titles << output("xprop -id " + id + " _NET_WM_NAME").section('"', 1, 1);
    return titles;
  }
  static QString output(const QString& command) {
    QProcess tool;
    tool.start(command.section(' ', 0, 0), command.section(' ', 1).split(' '));
    while (tool.state() != QProcess::NotRunning)
      pass(5);
    return QString::fromUtf8(tool.readAllStandardOutput());
  }
  static void startLesson() {
    frmNavigation->setNavigation("a.txt");
    frmNavigation->show();
    pass(kToSettle);
  }

 private:
  int argc_ = 1;
  char name_[5] = "test";
  char* argv_[2] = {name_, nullptr};
  QApplication application_{argc_, argv_};
  TemporaryFolder folder_;

 protected:
  Windows windows_;
  QtPlatform platform_{windows_};
};

TEST_F(WindowManagerTest, TheWindowThatTheStartShowedLastHasTheUser) {
  const auto turnedTo = [this](Form& form) {
    return comesTrue(
        [&] { return desk().active() == &form && QApplication::activeWindow() == windowOf(form).window(); });
  };
  // The desktop chooses another window when the splash goes.
  ASSERT_TRUE(comesTrue([] { return !frmVersion.visible(); }));
  pass(kToSettle);
  EXPECT_TRUE(turnedTo(*frmHint));
  click(frmRegister->lblReg(0));
  EXPECT_TRUE(turnedTo(*frmRegister));
  click(frmMDI->lblDefault);
  EXPECT_TRUE(turnedTo(*frmDefault));
  person("key Escape");
  EXPECT_FALSE(frmDefault.visible());
  EXPECT_TRUE(turnedTo(*frmMDI)) << "where it was opened";
}

TEST_F(WindowManagerTest, InsidesLieWhereTheModelHasThem) {
  for (const Form* form : desk().forms()) {
    if (form->visible() && form->kind() != FormKind::Frame) {
      EXPECT_EQ(insideOf(*form), insideInModel(*form)) << form->name();
    }
  }
  EXPECT_EQ(windows_.canvasOf(*frmRegister)->size(), QSize(298, 168))
      << "the caption bar takes nothing of the eight rows";
}

TEST_F(WindowManagerTest, TheMemoryEditorLiesInFrontOfTheLesson) {
  startLesson();
  modally([] { doubleClick(frmDumpCDIO->lblASC(378)); },
          [] {
            ASSERT_TRUE(frmEditMemory.visible());
            EXPECT_EQ(stacked().back(), "Memory Write");
            click(frmEditMemory->cmdAction(1));
            EXPECT_FALSE(frmEditMemory.visible()) << "its buttons can be reached";
            frmEditMemory->hide();
          });
}

TEST_F(WindowManagerTest, TheRegisterEditorLiesInFrontOfTheSettings) {
  click(frmMDI->lblDefault);
  ASSERT_TRUE(frmDefault.visible());
  frmDefault->move(frmRegister->Left, frmRegister->Top + 3300);
  pass(kToSettle);
  modally([] { doubleClick(frmRegister->lblValL(4)); },
          [] {
            ASSERT_TRUE(frmEditRegister.visible());
            EXPECT_EQ(stacked().back(), "Register Write");
            click(frmEditRegister->cmdAction(1));
            EXPECT_FALSE(frmEditRegister.visible());
            frmEditRegister->hide();
          });
}

TEST_F(WindowManagerTest, TheFrameIsRestoredSmallerThanTheScreenAndMaximizedAgain) {
  QWidget& frame = windowOf(*frmMDI);
  const QSize screen = QGuiApplication::primaryScreen()->size();
  ASSERT_TRUE(frame.isMaximized());
  frame.showNormal();
  pass(kToSettle);
  EXPECT_LT(frame.frameGeometry().width(), screen.width());
  EXPECT_LT(frame.frameGeometry().height(), screen.height());
  EXPECT_GE(frame.frameGeometry().top(), 0) << "its title can be reached";
  EXPECT_EQ(insideOf(*frmHard), insideInModel(*frmHard));
  frame.showMaximized();
  // The window's own word: the widget keeps its borders' width from before.
  const QWindow& window = *frame.windowHandle();
  EXPECT_TRUE(comesTrue([&] { return window.frameGeometry().width() == screen.width(); }))
      << window.frameGeometry().width();
  EXPECT_EQ(insideOf(*frmHard), insideInModel(*frmHard));
}

TEST_F(WindowManagerTest, TheLessonCoversNoScreen) {
  startLesson();
  const QRect before = windowOf(*frmNavigation).geometry();
  person(moveTo(frmNavigation->insideLeft() + 1500, frmNavigation->insideTop() - 150) +
         " click --repeat 2 --delay 60 1");
  windowOf(*frmNavigation).showMaximized();
  pass(kToSettle);
  EXPECT_EQ(windowOf(*frmNavigation).geometry(), before);
}

TEST_F(WindowManagerTest, WindowsDoNotCreep) {
  const QPoint registers = insideOf(*frmRegister);
  QPoint settings;
  for (int opening = 0; opening < 4; ++opening) {
    click(frmMDI->lblDefault);
    pass(kToSettle);
    if (opening == 0) settings = insideOf(*frmDefault);
    EXPECT_EQ(insideOf(*frmDefault), settings);
    click(frmDefault->cmdAction(0));
    frmRegister->close(true);
    click(frmMDI->lblRegisterWindow);
    pass(kToSettle);
    EXPECT_EQ(insideOf(*frmRegister), registers);
  }
}

TEST_F(WindowManagerTest, AWindowIsDraggedByItsCaptionBarAndClosedByItsBox) {
  const QPoint before = insideOf(*frmRegister);
  person(moveTo(frmRegister->insideLeft() + 1500, frmRegister->insideTop() - 150) + " mousedown 1");
  person("mousemove_relative -- 60 40");
  person("mousemove_relative -- 40 60");
  person("mouseup 1");
  EXPECT_EQ(insideOf(*frmRegister), before + QPoint(100, 100));
  EXPECT_EQ(insideOf(*frmRegister), insideInModel(*frmRegister));
  const Area box = closeBoxOf(*frmRegister);
  person(moveTo(frmRegister->insideLeft() + box.left + box.width / 2,
                frmRegister->insideTop() + box.top + box.height / 2) +
         " click 1");
  EXPECT_FALSE(frmRegister.visible());
}

TEST_F(WindowManagerTest, ADoubleClickOnARowLeavesWhatLiesUnderIt) {
  frmRegister->hide();
  doubleClick(frmHard->picCPU);
  ASSERT_TRUE(frmHard->cmbCPUType.Visible);
  // Its second row lies over RESET of the center board.
  const Area reset = frmHard->picReset(0).area();
  const double x = frmHard->insideLeft() + reset.left + reset.width / 2;
  person(moveTo(x, frmHard->insideTop() + reset.top + 240) + " click --repeat 2 --delay 60 1", kApart);
  EXPECT_FALSE(frmHard->cmbCPUType.Visible);
  EXPECT_EQ(cpuType, 1);
  EXPECT_EQ(continuousScanActive, kTrue) << "a reset would have ended it";
}

TEST_F(WindowManagerTest, AMessageTakesTheMouseFromNoise) {
  bringIntoView(frmHard->picMode);
  doubleClick(frmHard->picMode);
  ASSERT_TRUE(frmHard->cmbMode.Visible);
  frmMDI->scrollTo(0, 0);
  pass(100);
  modally([] { person(moveTo(frmHard->picNoise) + " mousedown 1"); },
          [] {
            EXPECT_TRUE(frmDialog.visible());
            person("mouseup 1");
            person("key Return");
            EXPECT_FALSE(frmDialog.visible());
            frmDialog->hide();
          });
  EXPECT_EQ(noiseHeld, kFalse);
  EXPECT_EQ(frmHard->picNoise.Picture.get(), frmHard->ilsNOISE.image(kNoiseUp));
  person(moveTo(frmHard->picNoise) + " mousedown 1");
  EXPECT_EQ(noiseHeld, kTrue) << "pressed anew it works";
  person("mouseup 1");
  EXPECT_EQ(noiseHeld, kFalse);
}

TEST_F(WindowManagerTest, ToolTipsShowWhateverWindowIsActive) {
  click(frmRegister->lblReg(3));
  ASSERT_EQ(desk().active(), frmRegister.form());
  person(moveTo(frmHard->picNoise));
  person(moveTo(frmHard->picSDI(2)));
  person("mousemove_relative -- 2 1", 1500);
  EXPECT_EQ(QToolTip::text(), QString::fromStdString(frmHard->picSDI(2).ToolTipText.get()));
}

TEST_F(WindowManagerTest, WhatIsOpenedOutsideTheViewIsScrolledTo) {
  click(frmMDI->lblMemoryWindow);
  const Form& list = *FormPlace::named("frmDumpSel")->form();
  click(*list.find("cmdAREA", 2));
  ASSERT_TRUE(frmDumpDRC.visible());
  const Area seen = frmMDI->clientArea();
  const double top = frmDumpDRC->insideTop() - kCaptionHeight;
  EXPECT_GE(top, seen.top);
  EXPECT_LE(top + frmDumpDRC->Height, seen.bottom() + kTwipsPerPixel);
  EXPECT_EQ(insideOf(*frmDumpDRC), insideInModel(*frmDumpDRC));
}

TEST_F(WindowManagerTest, AFloatingWindowKeepsItsTitleInReach) {
  click(frmMDI->lblMemoryWindow);
  click(*FormPlace::named("frmDumpSel")->form()->find("cmdAREA", 2));
  click(frmDumpDRC->chkTopMost);
  ASSERT_TRUE(frmDumpDRC->floating());
  const auto inReach = [&] {
    const QRect frame = windowOf(*frmMDI).geometry();
    return frame.contains(insideOf(*frmDumpDRC) + QPoint(30, -10));
  };
  EXPECT_TRUE(inReach());
  windowOf(*frmMDI).showNormal();
  pass(kToSettle);
  EXPECT_TRUE(inReach()) << "also in a smaller frame";
}

}  // namespace
}  // namespace zelvs
