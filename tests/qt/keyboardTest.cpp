// The keyboard before real windows: what has the focus first, where Tab goes, and what a key must not run into.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <vector>

#include "chip/frmEditMemory.h"
#include "chip/frmMemoryRead.h"
#include "dialogs/frmDialog.h"
#include "dialogs/messages.h"
#include "lessons/frmNaviList.h"
#include "lessons/frmNavigation.h"
#include "monitor/frmDumpCDIO.h"
#include "qt/support/desktop.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class KeyboardTest : public DesktopTest {
 protected:
  KeyboardTest() {
    takePersonsPlatform();
    std::filesystem::create_directory(folder.file("NaviData"));
    folder.write("NaviData/NaviIndex.txt", "a.txt\ta\t\r\nb.txt\tb\t\r\n");
    folder.write("NaviData/a.txt", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
    folder.write("NaviData/b.txt", "1\r\n2\r\n3\r\n");
    start();
  }

  /// As a person presses it: it goes to what has the keyboard.
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    settle();
    QWidget* target = QApplication::focusWidget();
    ASSERT_NE(target, nullptr);
    QKeyEvent down(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(target, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers);
    QApplication::sendEvent(target, &up);
    settle();
  }
};

TEST_F(KeyboardTest, EnterAnswersAQuestion) {
  QTimer::singleShot(0, [] { press(Qt::Key_Return); });
  EXPECT_EQ(askDialog("?", DialogMode::TwoButtons, "title"), 1);
}

TEST_F(KeyboardTest, AQuestionStaysInFrontOfTheWindowsThatStayInFront) {
  gesture::click(*frmMDI, &frmMDI->lblDefault);
  bool shown = false;
  QTimer::singleShot(0, [&] {
    settle();
    const QWidget* window = canvasOf(frmDialog.form())->window();
    shown = window->isVisible() && window->isModal() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    frmDialog->hide();
  });
  askDialog("?", DialogMode::OneButton, "title");
  EXPECT_TRUE(shown);
}

TEST_F(KeyboardTest, TheLessonListIsWorkedByArrowsAndEnter) {
  QTimer::singleShot(0, [] {
    press(Qt::Key_Down);
    EXPECT_EQ(frmNaviList->lstTitle.ListIndex, 1);
    press(Qt::Key_Return);
    if (frmNaviList.visible()) frmNaviList->hide();
  });
  gesture::doubleClick(*frmMDI, &frmMDI->lblNagigator);
  settle();
  ASSERT_TRUE(frmNavigation.visible());
  EXPECT_EQ(frmNavigation->pageCount, 1);
}

TEST_F(KeyboardTest, AListKeepsItsSelectionWhateverKeysAreHeld) {
  QTimer::singleShot(0, [] {
    settle();
    auto* list = qobject_cast<QListWidget*>(canvasOf(frmNaviList.form())->widgetOf(frmNaviList->lstTitle));
    ASSERT_NE(list, nullptr);
    const QPointF place = list->visualItemRect(list->item(0)).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, place, list->viewport()->mapToGlobal(place), Qt::LeftButton,
                        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::ControlModifier);
      QApplication::sendEvent(list->viewport(), &event);
    }
    EXPECT_EQ(list->selectedItems().size(), 1);
    EXPECT_EQ(frmNaviList->lstTitle.ListIndex, 0);
    frmNaviList->hide();
  });
  gesture::doubleClick(*frmMDI, &frmMDI->lblNagigator);
}

TEST_F(KeyboardTest, TheSpaceKeyTurnsThePagesAndStopsAtTheLast) {
  frmNavigation->setNavigation("a.txt");
  frmNavigation->show();
  press(Qt::Key_Space);
  EXPECT_EQ(frmNavigation->currentPage, 2);
  press(Qt::Key_Space);
  press(Qt::Key_Space);
  EXPECT_TRUE(frmNavigation.visible()) << "the key has not gone on to the button beside";
  EXPECT_EQ(frmNavigation->currentPage, 2);
}

TEST_F(KeyboardTest, WhatIsPastedIsTypedAndWhatIsCopiedLeavesTheFieldAsItIs) {
  cpuType = 1;  // an 8-bit bus
  openMemoryRead();
  const TextBox& address = frmMemoryRead->txtAddress;
  QApplication::clipboard()->setText("z1\nC3");
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(address.Text.get(), "1C3");
  EXPECT_EQ(address.SelLength, 1);
  press(Qt::Key_Home);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "1");
  press(Qt::Key_X, Qt::ControlModifier);
  press(Qt::Key_Z, Qt::ControlModifier);
  press(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(address.Text.get(), "1C3");
  EXPECT_EQ(address.SelStart, 0);
  EXPECT_EQ(address.SelLength, 1);
  const auto* field = qobject_cast<QLineEdit*>(canvasOf(frmMemoryRead.form())->widgetOf(address));
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->text(), "1C3");
  EXPECT_EQ(field->selectedText(), "1");
}

TEST_F(KeyboardTest, TheDefaultFrameIsDrawnWhereEnterAnswers) {
  QTimer::singleShot(0, [] {
    const FrmEditMemory& form = *frmEditMemory;
    const auto drawnOn = [&](int index) {
      settle();
      return qobject_cast<QPushButton*>(canvasOf(&form)->widgetOf(form.cmdAction(index)))->isDefault();
    };
    EXPECT_FALSE(drawnOn(0)) << "the field keeps Enter for itself";
    desk().focus(&frmEditMemory->opnAccess(0));
    EXPECT_TRUE(drawnOn(0));
    EXPECT_FALSE(drawnOn(1));
    desk().focus(&frmEditMemory->cmdAction(1));
    EXPECT_FALSE(drawnOn(0)) << "the button that has the focus answers";
    EXPECT_TRUE(drawnOn(1));
    frmEditMemory->hide();
  });
  gesture::doubleClick(*frmDumpCDIO, &frmDumpCDIO->lblASC(378));
}

TEST_F(KeyboardTest, AWindowWithoutTheKeyboardDrawsNoDefaultFrame) {
  frmNavigation->setNavigation("a.txt");
  frmNavigation->show();
  desk().focus(&frmNavigation->cmdAction(1));
  const auto drawn = [] {
    settle();
    return qobject_cast<QPushButton*>(canvasOf(frmNavigation.form())->widgetOf(frmNavigation->cmdAction(1)))
        ->isDefault();
  };
  EXPECT_TRUE(drawn());
  desk().activate(*frmHard);
  EXPECT_FALSE(drawn());
  desk().activate(*frmNavigation);
  EXPECT_TRUE(drawn());
}

TEST_F(KeyboardTest, TabGoesThroughTheSettingsAsTheyStandOnTheWindow) {
  gesture::click(*frmMDI, &frmMDI->lblDefault);
  const FrmDefault& form = *frmDefault;
  const std::vector<const Control*> wanted = {
      &form.chkDef(2),     &form.chkDef(3),    &form.chkDef(4),     &form.chkDef(5),   &form.chkDef(6),
      &form.chkDef(0),     &form.optHF(0),     &form.optHF(1),      &form.chkDef(1),   &form.cmbCPUType,
      &form.cmbSA(0),      &form.cmbClock(1),  &form.chkCascade(0), &form.cmbSA(2),    &form.cmbClock(3),
      &form.chkCascade(1), &form.cmbSA(4),     &form.cmbClock(5),   &form.cmbIOS,      &form.cmbMode,
      &form.cmdAction(2),  &form.cmdAction(3), &form.cmdAction(1),  &form.cmdAction(0)};
  const Canvas* canvas = canvasOf(&form);
  settle();
  for (const Control* control : wanted) {
    EXPECT_TRUE(canvas->widgetOf(*control)->hasFocus()) << control->fullName();
    press(Qt::Key_Tab);
  }
}

}  // namespace
}  // namespace zelvs
