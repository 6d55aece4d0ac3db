// A window whose edge the user may draw at: the form takes the size, and the window follows the form.

#include <gtest/gtest.h>

#include <QApplication>

#include "lessons/frmNaviList.h"
#include "lessons/frmNavigation.h"
#include "qt/support/desktop.h"

namespace zelvs {
namespace {

class SizingTest : public DesktopTest {};

TEST_F(SizingTest, TheFormTakesTheSizeThatTheUserGives) {
  frmNavigation->show();
  settle();
  Canvas* canvas = canvasOf(frmNavigation.form());
  QWidget* window = canvas->window();
  EXPECT_EQ(window->width(), 11205 / 15);
  const double caption = frmNavigation->Height - frmNavigation->clientHeight();
  const QSize bar(0, qRound(caption / 15));
  EXPECT_EQ(canvas->size(), window->size() - bar);
  for (const QSize size : {QSize(900, 150), QSize(500, 80), QSize(200, 95)}) {
    window->resize(size + bar);
    settle();
    EXPECT_EQ(window->size(), size + bar);
    EXPECT_EQ(canvas->size(), size);
    EXPECT_DOUBLE_EQ(frmNavigation->Width, size.width() * 15);
    EXPECT_DOUBLE_EQ(frmNavigation->Height, size.height() * 15 + caption);
    // It went back to its corner, and the window with it.
    EXPECT_DOUBLE_EQ(frmNavigation->Left, platform().screen().width * 15 - frmNavigation->Width - 50);
    EXPECT_EQ(window->geometry().x(), qRound(frmNavigation->Left / 15));
    EXPECT_EQ(window->geometry().y(), qRound(frmNavigation->Top / 15));
    const QWidget* next = canvas->widgetOf(frmNavigation->cmdAction(1));
    EXPECT_NEAR(next->width(), frmNavigation->cmdAction(1).Width / 15, 2) << "out to whole pixels";
  }
  frmNavigation->Width = 12000;
  settle();
  EXPECT_EQ(window->width(), 800) << "the program's own size";
}

TEST_F(SizingTest, OtherWindowsKeepTheirSize) {
  frmNaviList->show();
  settle();
  QWidget* window = canvasOf(frmNaviList.form())->window();
  const QSize before = window->size();
  window->resize(900, 700);
  settle();
  EXPECT_EQ(window->size(), before);
  EXPECT_DOUBLE_EQ(frmNaviList->Width, before.width() * 15);
}

}  // namespace
}  // namespace zelvs
