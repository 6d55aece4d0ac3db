// A lesson with a person before the desktop: the loops of the modal list and of the message box are real ones.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <memory>

#include "learning/frmNaviList.h"
#include "learning/frmNavigation.h"
#include "shell/frmMDI.h"
#include "support/program.h"
#include "ui/gesture.h"
#include "ui/qt/canvas.h"
#include "ui/qt/desktopScript.h"
#include "ui/qt/qtPlatform.h"

namespace zelvs {
namespace {

class LessonTest : public testing::Test {
 protected:
  LessonTest() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    desktop_ = std::make_unique<DesktopScript>(argc_, argv_);
    platform_ = std::make_unique<QtPlatform>();
    setPlatform(platform_.get());
    clearState();
    programFolder = folder_.path();
    folder_.write("ZELVS.INI", makerIni());
    std::filesystem::create_directory(folder_.file("NaviData"));
    folder_.write("NaviData/NaviIndex.txt", "none.txt\tnone\t\r\na.txt\ta\t\r\n");
    folder_.write("NaviData/a.txt", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    startUp();
    settle();
  }
  ~LessonTest() override {
    desk().clear();
    settle();
  }

  static void settle() {
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (int i = 0; i < 3; ++i)
      QApplication::processEvents();
  }
  static void click(Control& control) { EXPECT_EQ(gesture::click(control.form(), &control), ""); }
  /// Opens the list; what is to be done inside is done by its loop.
  template <class Inside>
  static void openList(Inside inside) {
    QTimer::singleShot(0, [&] {
      inside();
      if (frmNaviList.visible()) frmNaviList->hide();
    });
    EXPECT_EQ(gesture::doubleClick(*frmMDI, &frmMDI->lblNagigator), "");
  }
  static QWidget* windowOf(const Form* form) {
    for (QWidget* widget : QApplication::allWidgets()) {
      auto* canvas = qobject_cast<Canvas*>(widget);
      if (canvas != nullptr && canvas->form() == form) return canvas->window();
    }
    return nullptr;
  }

  TemporaryFolder folder_;
  int argc_ = 1;
  char name_[6] = "zelvs";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<DesktopScript> desktop_;
  std::unique_ptr<QtPlatform> platform_;
};

TEST_F(LessonTest, TheBoxOfAMissingLessonBelongsToTheList) {
  bool shown = false;
  openList([&] {
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      shown = true;
      EXPECT_EQ(box->parentWidget(), windowOf(frmNaviList.form()));
      EXPECT_EQ(box->icon(), QMessageBox::Information);
      EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
      EXPECT_EQ(box->windowTitle(), QString("確認"));
      EXPECT_EQ(box->text(), QString("ファイルが見つかりません。"));
      box->button(QMessageBox::Ok)->click();
    });
    click(frmNaviList->cmdStart);
    EXPECT_TRUE(frmNaviList.visible());
    EXPECT_FALSE(frmNavigation.loaded());
  });
  EXPECT_TRUE(shown);
}

TEST_F(LessonTest, AStartLeavesTheLoopOfTheList) {
  openList([] {
    gesture::pick(frmNaviList->lstTitle, 1);
    click(frmNaviList->cmdStart);
  });
  settle();
  EXPECT_FALSE(frmNaviList.visible());
  ASSERT_TRUE(frmNavigation.visible());
  EXPECT_EQ(frmNavigation->pageCount, 2);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(windowOf(frmNavigation.form())->windowFlags() & Qt::WindowStaysOnTopHint);

  // Again and again from the list behind the lesson.
  for (int i = 0; i < 3; ++i) {
    click(frmNavigation->cmdAction(1));
    QTimer::singleShot(0, [] { click(frmNaviList->cmdStart); });
    click(frmNavigation->cmdAction(2));
    settle();
    EXPECT_TRUE(frmNavigation.visible());
    EXPECT_EQ(frmNavigation->currentPage, 1);
  }
  click(frmNavigation->cmdAction(3));
  settle();
  EXPECT_FALSE(frmNavigation.loaded());
}

}  // namespace
}  // namespace zelvs
