// One window with a control of every kind, worked through real events: what a person types, picks and points at
// reaches the model, and what the model says is what the window shows.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolTip>

#include "qt/support/desktop.h"
#include "shell/frmMDI.h"
#include "ui/controls.h"
#include "ui/qt/qtPainter.h"
#include "ui/qt/windows.h"
#include "ui/textExtent.h"

namespace zelvs {
namespace {

class FrmGallery final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmGallery() : Form("frmGallery", kKind, Border::Fixed) {
    Caption = "Gallery";
    Width = 6000;
    Height = 5400;
    lblText.move(120, 120, 1500, 300);
    lblText.Caption = "ラベル 0x3F";
    lblText.ToolTipText = "説明";
    picBox.move(120, 480, 1500, 900);
    picBox.setUnit(kTwipsPerPixel);
    picBox.BackColor = kWhite;
    picInside.placeIn(picBox);
    picInside.move(80, 5, 15, 13);
    picInside.Picture = ilsLED_G.image(2);
    linA.X1 = 120;
    linA.Y1 = 1500;
    linA.X2 = 1620;
    linA.Y2 = 1800;
    shpA.move(1800, 120, 300, 300);
    shpA.BackColor = kRed;
    fraA.move(1800, 480, 1800, 1200);
    fraA.Caption = "Access";
    fraA.FontSize = 9;
    opnA(0).placeIn(fraA);
    opnA(0).move(120, 300, 1500, 300);
    opnA(0).Caption = "word";
    opnA(1).placeIn(fraA);
    opnA(1).move(120, 700, 1500, 300);
    opnA(1).Caption = "byte";
    txtA.move(3800, 120, 1200, 330);
    txtA.Text = "0000";
    txtA.MaxLength = 4;
    chkA.move(3800, 600, 1800, 300);
    chkA.Caption = "常に手前に表示";
    cmbA.move(3800, 1000, 1800, 330);
    cmbRows.move(3800, 1400, 1800, 900);
    lstA.move(120, 2000, 1800, 1200);
    tabA.move(2100, 2400, 3500, 1800);
    cmdA.move(120, 3400, 1200, 375);
    cmdA.Caption = "OK";
    for (ListControl* list :
         {static_cast<ListControl*>(&cmbA), static_cast<ListControl*>(&cmbRows), static_cast<ListControl*>(&lstA)}) {
      for (const char* row : {"48MHz", "24MHz", "12MHz"})
        list->addItem(row);
    }
    cmbRows.Unrolled = true;
    tabA.Tabs = 3;
    tabA.setTabCaption(1, "INT0R");
  }

  ImageList ilsLED_G{"ilsLED_G", 2};
  ImageList ilsMouse{"ilsMouse", 2};
  Label lblText{this, "lblText"};
  PictureBox picBox{this, "picBox"};
  PictureBox picInside{this, "picInside"};
  Line linA{this, "linA"};
  Shape shpA{this, "shpA"};
  Frame fraA{this, "fraA"};
  ControlArray<OptionButton> opnA{this, "opnA", 0, 1};
  TextBox txtA{this, "txtA"};
  CheckBox chkA{this, "chkA"};
  ComboBox cmbA{this, "cmbA"};
  ComboBox cmbRows{this, "cmbRows"};
  ListBox lstA{this, "lstA"};
  TabStrip tabA{this, "tabA"};
  CommandButton cmdA{this, "cmdA"};
};

FormRef<FrmGallery> frmGallery{"frmGallery"};

class GalleryTest : public DesktopTest {
 protected:
  GalleryTest() {
    frmGallery->show();
    settle();
  }

  static Canvas& canvas() { return *canvasOf(frmGallery.form()); }
  template <class Widget>
  static Widget& widgetOf(const Control& control) {
    return *qobject_cast<Widget*>(canvas().widgetOf(control));
  }
  /// The colour at a place of the form in twips, as the window shows it now.
  static QColor shownAt(double x, double y) {
    settle();
    return canvas().grab().toImage().pixelColor(qRound(x / kTwipsPerPixel), qRound(y / kTwipsPerPixel));
  }
};

TEST_F(GalleryTest, TypingReachesTheModelAndTheFieldShowsIt) {
  frmGallery->txtA.SelStart = 0;
  frmGallery->txtA.SelLength = 1;
  EXPECT_EQ(hands().type(frmGallery->txtA, U'A'), "");
  EXPECT_EQ(frmGallery->txtA.Text.get(), "A000");
  settle();
  EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).text(), "A000");
  EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).cursorPosition(), 1);
}

TEST_F(GalleryTest, HandlersOfTheFieldSeeEveryKey) {
  std::u32string pressed;
  std::vector<int> down;
  frmGallery->txtA.onKeyPress = [&](char32_t& character) {
    pressed += character;
    character = 0;
  };
  frmGallery->txtA.onKeyDown = [&](int& code) { down.push_back(code); };
  hands().type(frmGallery->txtA, U'z');
  hands().keyDown(frmGallery->txtA, 39);
  hands().keyDown(frmGallery->txtA, 46);
  EXPECT_EQ(pressed, U"z");
  EXPECT_EQ(down, (std::vector<int>{39, 46}));
  EXPECT_EQ(frmGallery->txtA.Text.get(), "000") << "Delete takes the character behind the caret";
}

TEST_F(GalleryTest, TheFieldCutsAndUndoesNothingByItself) {
  auto& field = widgetOf<QLineEdit>(frmGallery->txtA);
  frmGallery->txtA.SelLength = 2;
  desk().focus(&frmGallery->txtA);
  settle();
  ASSERT_EQ(field.selectedText(), "00");
  for (const int key : {Qt::Key_X, Qt::Key_Z, Qt::Key_K, Qt::Key_U, Qt::Key_Backspace, Qt::Key_Delete}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier);
    QApplication::sendEvent(&field, &event);
    settle();
    EXPECT_EQ(field.text(), "0000") << key;
    EXPECT_EQ(frmGallery->txtA.Text.get(), "0000") << key;
  }
  field.cut();
  field.del();
  settle();
  EXPECT_EQ(field.text(), "0000") << "nor from its menu";
}

TEST_F(GalleryTest, TheSelectionOfTheModelIsShown) {
  frmGallery->txtA.SelStart = 2;
  frmGallery->txtA.SelLength = 1;
  settle();
  EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).selectionStart(), 2);
  EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).selectedText().size(), 1);
}

TEST_F(GalleryTest, AClickIntoTheFieldPutsTheCaretAndIsTold) {
  std::vector<int> carets;
  frmGallery->txtA.onClick = [&] {
    carets.push_back(frmGallery->txtA.SelStart);
    frmGallery->txtA.SelStart = 3;
    frmGallery->txtA.SelLength = 1;
  };
  // The first click brings the focus as well.
  for (int i = 0; i < 2; ++i) {
    hands().click(*frmGallery, &frmGallery->txtA);
    settle();
    EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).selectionStart(), 3);
    EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).selectedText().size(), 1);
  }
  EXPECT_EQ(carets, (std::vector<int>{4, 4})) << "the middle of the field lies behind its text";
}

TEST_F(GalleryTest, TheChosenOptionStaysChosenWhenItIsClickedAgain) {
  for (int i = 0; i < 3; ++i) {
    hands().click(*frmGallery, &frmGallery->opnA(0));
    settle();
    EXPECT_TRUE(frmGallery->opnA(0).Value.get());
    EXPECT_TRUE(widgetOf<QRadioButton>(frmGallery->opnA(0)).isChecked());
  }
}

TEST_F(GalleryTest, FocusGoesBetweenWidgetsAsTheModelSays) {
  std::string order;
  frmGallery->txtA.onGotFocus = [&] { order += "got "; };
  frmGallery->txtA.onLostFocus = [&] { order += "lost "; };
  hands().focus(frmGallery->txtA);
  hands().click(*frmGallery, &frmGallery->cmdA);
  EXPECT_EQ(order, "got lost ");
  EXPECT_EQ(desk().focused(), &frmGallery->cmdA);
}

TEST_F(GalleryTest, ButtonsChecksAndOptionsAreClicked) {
  int clicks = 0;
  frmGallery->cmdA.onClick = [&] { ++clicks; };
  hands().click(*frmGallery, &frmGallery->cmdA);
  EXPECT_EQ(clicks, 1);
  hands().click(*frmGallery, &frmGallery->chkA);
  EXPECT_EQ(frmGallery->chkA.Value.get(), 1);
  hands().click(*frmGallery, &frmGallery->opnA(1));
  hands().click(*frmGallery, &frmGallery->opnA(0));
  EXPECT_TRUE(frmGallery->opnA(0).Value.get());
  EXPECT_FALSE(frmGallery->opnA(1).Value.get());
  settle();
  EXPECT_TRUE(widgetOf<QCheckBox>(frmGallery->chkA).isChecked());
}

TEST_F(GalleryTest, RowsAndTabsArePicked) {
  int clicks = 0;
  for (Control* control : {static_cast<Control*>(&frmGallery->cmbA), static_cast<Control*>(&frmGallery->cmbRows),
                           static_cast<Control*>(&frmGallery->lstA), static_cast<Control*>(&frmGallery->tabA)}) {
    control->onClick = [&] { ++clicks; };
    EXPECT_EQ(hands().pick(*control, 2), "");
    EXPECT_NE(hands().pick(*control, 3), "") << control->name();
  }
  EXPECT_EQ(clicks, 4);
  EXPECT_EQ(frmGallery->cmbA.ListIndex.get(), 2);
  EXPECT_EQ(frmGallery->cmbRows.Text(), "12MHz");
  EXPECT_EQ(frmGallery->lstA.ListIndex.get(), 2);
  EXPECT_EQ(frmGallery->tabA.Tab.get(), 2);
  settle();
  EXPECT_EQ(widgetOf<QTabBar>(frmGallery->tabA).tabText(1), "INT0R");
  EXPECT_EQ(widgetOf<QListWidget>(frmGallery->lstA).currentRow(), 2);
  EXPECT_EQ(widgetOf<QComboBox>(frmGallery->cmbA).currentText(), "12MHz");
}

TEST_F(GalleryTest, HiddenAndDisabledControlsAreSoOnTheWindow) {
  frmGallery->cmdA.Enabled = false;
  frmGallery->fraA.Visible = false;
  settle();
  EXPECT_FALSE(widgetOf<QPushButton>(frmGallery->cmdA).isEnabled());
  EXPECT_FALSE(canvas().widgetOf(frmGallery->opnA(0))->isVisible()) << "what a hidden frame holds is hidden";
  frmGallery->fraA.Visible = true;
  settle();
  EXPECT_TRUE(canvas().widgetOf(frmGallery->opnA(0))->isVisible());
}

TEST_F(GalleryTest, ShapesPicturesAndDrawingsAreSeen) {
  EXPECT_EQ(shownAt(1950, 270), QColor(255, 0, 0));
  const QColor before = shownAt(300, 900);
  EXPECT_EQ(before, QColor(255, 255, 255));
  frmGallery->picBox.line(0, 28, 60, 28, kRed);
  EXPECT_EQ(shownAt(300, 900), QColor(255, 0, 0));
  frmGallery->picBox.cls();
  EXPECT_EQ(shownAt(300, 900), before);
  const QColor lamp = shownAt(120 + 87 * 15, 480 + 11 * 15);
  frmGallery->picInside.Picture = frmGallery->ilsLED_G.image(1);
  EXPECT_NE(shownAt(120 + 87 * 15, 480 + 11 * 15), lamp) << "another image is another lamp";
}

TEST_F(GalleryTest, ADrawnLineIsOnePixelWideAlsoBetweenTwoPixels) {
  PictureBox& box = frmGallery->picBox;  // its left top corner is at pixel 8, 32
  box.line(10, 40, 30.5, 40, kBlack);
  box.line(30.5, 40, 30.5, 20, kBlack);
  box.line(30.5, 20, 43, 20, kBlack);
  box.line(43, 20, 43, 40, kBlack);
  settle();
  const QImage image = canvas().grab().toImage();
  const auto blackIn = [&](int left, int right, int y) {
    std::vector<int> found;
    for (int x = left; x <= right; ++x) {
      const QColor colour = image.pixelColor(8 + x, 32 + y);
      if (colour == Qt::black) {
        found.push_back(x);
      } else {
        EXPECT_EQ(colour, QColor(Qt::white)) << "no half tones at " << x;
      }
    }
    return found;
  };
  ASSERT_EQ(blackIn(25, 50, 30).size(), 2u);
  const int rise = blackIn(25, 50, 30)[0];
  EXPECT_NEAR(rise, 30.5, 0.5);
  EXPECT_EQ(blackIn(25, 50, 30)[1], 43);
  EXPECT_EQ(blackIn(1, 50, 40).front(), 10);
  EXPECT_EQ(blackIn(rise, 43, 20).size(), static_cast<std::size_t>(43 - rise + 1)) << "the corners are closed";
  EXPECT_EQ(blackIn(0, 55, 19).size(), 0u);
}

TEST_F(GalleryTest, DrawnLinesAreAlikeAtEveryScale) {
  const std::pair<double, int> scales[] = {{1, 1}, {1.25, 1}, {1.5, 1}, {1.75, 1}, {2, 2}, {2.5, 2}, {3, 3}};
  for (int x = 5; x < 50; x += 5)
    frmGallery->picBox.line(x + 0.5 * (x % 2), 20, x + 0.5 * (x % 2), 50, kBlack);
  for (const auto& [scale, width] : scales) {
    QImage image(QSizeF(400 * scale, 360 * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    drawForm(painter, *frmGallery, QRegion(0, 0, 400, 360));
    painter.end();
    std::vector<int> widths;
    bool before = false;
    for (int x = qRound(9 * scale); x < qRound(60 * scale); ++x) {
      const bool black = image.pixelColor(x, qRound((32 + 35) * scale)) == Qt::black;
      if (black && !before) widths.push_back(0);
      if (black) ++widths.back();
      before = black;
    }
    EXPECT_EQ(widths, std::vector<int>(9, width)) << scale;
  }
}

TEST_F(GalleryTest, TextIsAsWideAsTheModelCounts) {
  // Coloured pieces of a line are placed by that count; letters come in whole pixels, of which 11 points have none.
  constexpr int kLetters = 20;
  Label& label = frmGallery->lblText;
  label.move(0, 4400, 5900, 600);
  label.ForeColor = kBlack;
  std::string blocks;
  for (int i = 0; i < kLetters; ++i)
    blocks += "■";
  label.Caption = blocks;
  for (const double points : {9.0, 10.0, 11.0, 12.0, 13.0, 14.0}) {
    label.FontSize = points;
    QImage image(400, 360, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawForm(painter, *frmGallery, QRegion(0, 0, 400, 360));
    painter.end();
    int end = 0;
    for (int y = 294; y < 332; ++y)
      for (int x = 0; x < 400; ++x)
        if (image.pixelColor(x, y).lightness() < 100) end = std::max(end, x + 1);
    const double em = textWidth("■", points) / kTwipsPerPixel;
    EXPECT_LE(end, kLetters * em) << points;
    EXPECT_GT(end, (kLetters - 0.25) * em) << points;
  }
}

TEST_F(GalleryTest, WhatStandsOutOfItsContainerIsNotPainted) {
  Shape& strip = frmGallery->shpA;
  strip.placeIn(frmGallery->picBox);  // 100 by 60 pixels from pixel 8, 32
  strip.ForeColor = kRed;
  strip.move(8, 0, 100, 80);
  const QColor outside = shownAt(15 * 109, 15 * 60);
  EXPECT_NE(outside, QColor(Qt::red));
  EXPECT_EQ(shownAt(15 * 107, 15 * 60), QColor(Qt::red));
  EXPECT_EQ(shownAt(15 * 15, 15 * 60), QColor(Qt::white));
  EXPECT_EQ(shownAt(15 * 17, 15 * 60), QColor(Qt::red));
  EXPECT_NE(shownAt(15 * 50, 15 * 93), QColor(Qt::red)) << "below";
  strip.Left = -40;
  EXPECT_NE(shownAt(15 * 7, 15 * 60), QColor(Qt::red)) << "left of it";
  EXPECT_EQ(shownAt(15 * 8, 15 * 60), QColor(Qt::red));
  EXPECT_EQ(shownAt(15 * 67, 15 * 60), QColor(Qt::red));
  EXPECT_EQ(shownAt(15 * 68, 15 * 60), QColor(Qt::white)) << "where it was";
  strip.Left = -100;
  EXPECT_EQ(shownAt(15 * 8, 15 * 60), QColor(Qt::white));
}

TEST_F(GalleryTest, AFilePictureIsShownInItsOwnSize) {
  TemporaryFolder folder;
  QImage blue(20, 10, QImage::Format_RGB32);
  blue.fill(Qt::blue);
  ASSERT_TRUE(blue.save(QString::fromStdString(folder.file("blue.bmp")), "BMP"));
  frmGallery->picBox.AutoSize = true;
  frmGallery->picBox.Picture = loadPicture(folder.file("blue.bmp"));
  EXPECT_EQ(frmGallery->picBox.Width.get(), 300);
  EXPECT_EQ(frmGallery->picBox.Height.get(), 150);
  EXPECT_EQ(shownAt(180, 540), QColor(0, 0, 255));
}

TEST_F(GalleryTest, MovingAControlClearsItsOldPlace) {
  frmGallery->shpA.Left = 2400;
  EXPECT_EQ(shownAt(2550, 270), QColor(255, 0, 0));
  EXPECT_NE(shownAt(1950, 270), QColor(255, 0, 0));
}

TEST_F(GalleryTest, OnlyTheChangedPlaceIsPainted) {
  class Watch final : public QObject {
   public:
    QRegion painted;
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
      return false;
    }
  };
  settle();
  Watch watch;
  canvas().installEventFilter(&watch);
  frmGallery->picInside.Picture = frmGallery->ilsLED_G.image(1);
  settle();
  ASSERT_FALSE(watch.painted.isEmpty());
  EXPECT_LE(watch.painted.boundingRect().width(), 15 + 4);
  EXPECT_LE(watch.painted.boundingRect().height(), 13 + 4);

  watch.painted = {};
  frmGallery->picInside.Picture = frmGallery->ilsLED_G.image(1);
  settle();
  EXPECT_TRUE(watch.painted.isEmpty()) << "an unchanged value costs nothing";

  frmGallery->hide();
  frmGallery->picInside.Picture = frmGallery->ilsLED_G.image(2);
  settle();
  EXPECT_TRUE(watch.painted.isEmpty()) << "a hidden window is skipped";
}

TEST_F(GalleryTest, TipsAndPointersBelongToTheControlUnderTheMouse) {
  const QPoint place(40, 18);
  QHelpEvent help(QEvent::ToolTip, place, canvas().mapToGlobal(place));
  QApplication::sendEvent(&canvas(), &help);
  EXPECT_EQ(QToolTip::text(), "説明");
  EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
  frmGallery->lblText.MousePointer = kCustomPointer;
  frmGallery->lblText.MouseIcon = frmGallery->ilsMouse.image(2);
  hands().move(*frmGallery, &frmGallery->lblText);
  EXPECT_EQ(canvas().cursor().shape(), Qt::BitmapCursor);
  hands().move(*frmGallery, &frmGallery->shpA);
  EXPECT_EQ(canvas().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(GalleryTest, AControlUnderAnotherCannotBeReached) {
  frmGallery->shpA.move(0, 0, 3000, 3000);
  frmGallery->shpA.bringToFront();
  EXPECT_EQ(hands().click(*frmGallery, &frmGallery->lblText), "frmGallery.lblText is covered");
}

TEST_F(GalleryTest, DoubleClicksAreTwoPressesWithoutAHandler) {
  std::string order;
  frmGallery->picBox.onMouseDown = [&] { order += "d"; };
  frmGallery->picBox.onMouseUp = [&] { order += "u"; };
  frmGallery->picBox.onClick = [&] { order += "c"; };
  hands().doubleClick(*frmGallery, &frmGallery->picBox, true);
  EXPECT_EQ(order, "ducduc");
  order.clear();
  frmGallery->picBox.onDblClick = [&] { order += "D"; };
  hands().doubleClick(*frmGallery, &frmGallery->picBox, true);
  EXPECT_EQ(order, "ducDu");
}

TEST_F(GalleryTest, TheCloseBoxUnloadsAndTheNextTouchMakesANewWindow) {
  EXPECT_EQ(hands().close(*frmGallery), "");
  EXPECT_FALSE(frmGallery.loaded());
  settle();
  frmGallery->show();
  settle();
  EXPECT_TRUE(canvas().isVisible());
}

TEST_F(GalleryTest, AHandlerMayUnloadItsOwnForm) {
  frmGallery->picBox.onClick = [] { frmGallery->unload(); };
  hands().click(*frmGallery, &frmGallery->picBox);
  settle();
  EXPECT_FALSE(frmGallery.loaded());
}

QAccessibleInterface* named(QAccessibleInterface& holder, const QString& name) {
  for (int i = 0; i < holder.childCount(); ++i) {
    if (holder.child(i)->text(QAccessible::Name) == name) return holder.child(i);
  }
  return nullptr;
}

TEST_F(GalleryTest, ScreenReadersSeeThePaintedControlsByName) {
  int clicks = 0;
  frmGallery->picBox.onClick = [&] { ++clicks; };
  frmGallery->picBox.Tag = "1";
  QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&canvas());
  ASSERT_NE(window, nullptr);
  QAccessibleInterface* box = named(*window, "frmGallery.picBox");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->role(), QAccessible::PushButton);
  EXPECT_EQ(box->text(QAccessible::Value), "1");
  EXPECT_EQ(box->rect().size(), QSize(100, 60));
  box->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(named(*window, "frmGallery.lblText")->text(QAccessible::Description), "説明");
  EXPECT_EQ(window->childAt(box->rect().x() + 1, box->rect().y() + 1), box);
  frmGallery->picBox.Visible = false;
  EXPECT_EQ(named(*window, "frmGallery.picBox"), nullptr);
  frmGallery->unload();
  EXPECT_FALSE(box->isValid());
}

TEST_F(GalleryTest, WhatChangedWhileHiddenIsThereWhenShownAndIsFollowedFromThen) {
  frmGallery->hide();
  frmGallery->txtA.Text = "1111";
  settle();
  frmGallery->show();
  settle();
  EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).text(), "1111");
  frmGallery->txtA.Text = "2222";
  settle();
  EXPECT_EQ(widgetOf<QLineEdit>(frmGallery->txtA).text(), "2222");
  frmGallery->shpA.BackColor = 0xFF0000;
  EXPECT_EQ(shownAt(1950, 270), QColor(0, 0, 255));
}

TEST_F(GalleryTest, TheFrameHoldsItsToolBarAtEveryWidth) {
  frmMDI->show();
  settle();
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (qobject_cast<QMainWindow*>(widget) != nullptr) widget->resize(900, 500);
  }
  settle();
  EXPECT_EQ(frmMDI->ToolBox.Width.get(), 900 * kTwipsPerPixel);
}

}  // namespace
}  // namespace zelvs
