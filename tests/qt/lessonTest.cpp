// A lesson with a person before the desktop: the loops of the modal list and of the message box are real ones.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "lessons/frmNaviList.h"
#include "lessons/frmNavigation.h"
#include "qt/support/desktop.h"
#include "shell/frmMDI.h"
#include "support/userFixture.h"

namespace zelvs {
namespace {

class LessonTest : public DesktopTest {
 protected:
  LessonTest() {
    takePersonsPlatform();
    std::filesystem::create_directory(folder.file("NaviData"));
    folder.write("NaviData/NaviIndex.txt", "none.txt\tnone\t\r\na.txt\ta\t\r\n");
    folder.write("NaviData/a.txt", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    start();
  }

  /// Opens the list; what is to be done inside is done by its loop.
  template <class Inside>
  static void openList(Inside inside) {
    QTimer::singleShot(0, [&] {
      inside();
      if (frmNaviList.visible()) frmNaviList->hide();
    });
    doubleClick(frmMDI->lblNagigator);
  }
  static QWidget* windowOf(const Form* form) { return canvasOf(form)->window(); }
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
