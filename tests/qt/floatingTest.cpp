// A child that floats: it leaves the area of the others for the frame itself, moves with the mouse and comes back.

#include <gtest/gtest.h>

#include <QApplication>

#include "bench/frmHard.h"
#include "monitor/frmDumpDRC.h"
#include "qt/support/desktop.h"
#include "shell/frmMDI.h"
#include "ui/qt/clientArea.h"
#include "ui/qt/formWindow.h"

namespace zelvs {
namespace {

class FloatingTest : public DesktopTest {
 protected:
  FloatingTest() { start({{"OPENWINDOW1", "0"}, {"OPENWINDOW2", "0"}, {"OPENWINDOW5", "1"}}); }

  void click(Control& control) {
    EXPECT_EQ(hands().click(control.form(), &control), "");
    settle();
  }
  static FormWindow* windowOf(const Form* form) { return qobject_cast<FormWindow*>(canvasOf(form)->parentWidget()); }
  /// The area of the other children that it lies in, null when it lies in the frame itself.
  static ClientArea* areaOf(const FormWindow& window) {
    return qobject_cast<ClientArea*>(window.parentWidget()->parentWidget());
  }
  /// What the user sees at the middle of the memory window.
  static QWidget* seen(const FormWindow& window) {
    QWidget* frame = window.window();
    QWidget* widget = frame->childAt(window.mapTo(frame, window.rect().center()));
    while (widget != nullptr && qobject_cast<Canvas*>(widget) == nullptr)
      widget = widget->parentWidget();
    return widget;
  }
};

TEST_F(FloatingTest, ItStaysInFrontOfThePanelAndComesBackToItsPlace) {
  FormWindow* window = windowOf(frmDumpDRC.form());
  ASSERT_NE(window, nullptr);
  // Over the panel.
  frmDumpDRC->move(1500, 3000);
  desk().activate(*frmHard);
  settle();
  EXPECT_EQ(seen(*window), canvasOf(frmHard.form()));
  const QPoint place = window->mapToGlobal(QPoint(0, 0));

  click(frmDumpDRC->chkTopMost);
  EXPECT_EQ(windowOf(frmDumpDRC.form()), window) << "the same window with the same title bar";
  EXPECT_EQ(areaOf(*window), nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->mapToGlobal(QPoint(0, 0)), place);
  desk().activate(*frmHard);
  settle();
  EXPECT_EQ(seen(*window), canvasOf(frmDumpDRC.form()));
  EXPECT_TRUE(frmDumpDRC->floating());

  click(frmDumpDRC->chkTopMost);
  EXPECT_NE(areaOf(*window), nullptr);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->mapToGlobal(QPoint(0, 0)), place);
  desk().activate(*frmHard);
  settle();
  EXPECT_EQ(seen(*window), canvasOf(frmHard.form()));
}

TEST_F(FloatingTest, ThePlaceThatTheUserGivesItIsTheModels) {
  click(frmDumpDRC->chkTopMost);
  FormWindow* window = windowOf(frmDumpDRC.form());
  frmDumpDRC->dragTo(300 * 15 + 30.0, 200 * 15 + 30.0);
  settle();
  EXPECT_EQ(window->pos(), QPoint(300, 200));
  const QPoint place = window->mapToGlobal(QPoint(0, 0));
  click(frmDumpDRC->chkTopMost);
  EXPECT_EQ(window->mapToGlobal(QPoint(0, 0)), place);
}

TEST_F(FloatingTest, ItIsDraggedByItsTitleBarAndTurnedToByIt) {
  click(frmDumpDRC->chkTopMost);
  desk().activate(*frmHard);
  settle();
  FormWindow* window = windowOf(frmDumpDRC.form());
  const QPoint before = window->pos();
  const QPointF grip(150, 8);
  const auto placeOf = [&](QPointF at) {
    const QPoint global = window->parentWidget()->mapToGlobal(QPointF(before) + at).toPoint();
    return Point{global.x(), global.y()};
  };
  hands().handMove(placeOf(grip));
  hands().handDown();
  EXPECT_EQ(desk().active(), frmDumpDRC.form());
  hands().handMove(placeOf(grip + QPointF(-40, -30)));
  hands().handUp();
  EXPECT_EQ(window->pos(), before + QPoint(-40, -30));
  EXPECT_EQ(frmDumpDRC->Left, (before.x() - 40) * 15 + 30.0);
}

TEST_F(FloatingTest, ClosedWhileItFloatsItComesBackAmongTheOthers) {
  click(frmDumpDRC->chkTopMost);
  EXPECT_EQ(hands().close(*frmDumpDRC), "");
  settle();
  EXPECT_FALSE(frmDumpDRC.loaded());
  frmDumpDRC->show();
  settle();
  EXPECT_FALSE(frmDumpDRC->floating());
  EXPECT_NE(areaOf(*windowOf(frmDumpDRC.form())), nullptr);
}

}  // namespace
}  // namespace zelvs
