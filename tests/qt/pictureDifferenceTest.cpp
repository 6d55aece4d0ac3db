// What the comparison of pictures finds, and what it forgives: how letters are smoothed, and nothing that a person
// would look for.

#include <gtest/gtest.h>

#include <QPainter>

#include "qt/support/desktop.h"
#include "qt/support/pictureDifference.h"
#include "ui/qt/qtPainter.h"

namespace zelvs {
namespace {

/// A screen with a lamp and a text; its defaults are what is stored.
struct Look {
  QString text = "0x8B";
  QPointF textAt{40, 60};
  QColor lamp{0x22, 0xE0, 0x3C};
  QSize size{1920, 1080};

  QImage drawn() const {
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(192, 192, 192));
    QPainter painter(&image);
    painter.fillRect(QRect(300, 200, 4, 4), lamp);
    painter.setFont(fontOf(9, false));
    painter.drawText(textAt, text);
    return image;
  }
};

/// Letters need a desktop.
class PictureDifferenceTest : public DesktopTest {
 protected:
  static std::string differenceFrom(const Look& made) { return pictureDifference(Look().drawn(), made.drawn()); }
};

TEST_F(PictureDifferenceTest, TheSameHasNone) {
  EXPECT_EQ(differenceFrom({}), "");
}

TEST_F(PictureDifferenceTest, ForgivesAQuarterOfAPixel) {
  const Look off{.textAt = {40.25, 60}};
  ASSERT_NE(off.drawn(), Look().drawn());
  EXPECT_EQ(differenceFrom(off), "");
}

TEST_F(PictureDifferenceTest, FindsADigitThatIsAlike) {
  EXPECT_NE(differenceFrom({.text = "0x88"}), "");
  EXPECT_NE(differenceFrom({.text = "0x6B"}), "");
}

TEST_F(PictureDifferenceTest, FindsATextOnePixelFurther) {
  EXPECT_NE(differenceFrom({.textAt = {41, 60}}), "");
  EXPECT_NE(differenceFrom({.textAt = {40, 61}}), "");
}

TEST_F(PictureDifferenceTest, TellsHowMuchOfALampHasChangedAndWhere) {
  EXPECT_EQ(differenceFrom({.lamp = {0xE0, 0x22, 0x3C}}),
            "differs in 16 pixels, by up to 190 levels, within x 300 to 303, y 200 to 203");
}

TEST_F(PictureDifferenceTest, ForgivesSixtyFourLevelsAndFourPixels) {
  EXPECT_EQ(differenceFrom({.lamp = {0x22, 0xE0 - 64, 0x3C}}), "");
  EXPECT_NE(differenceFrom({.lamp = {0x22, 0xE0 - 65, 0x3C}}), "");

  QImage dotted = Look().drawn();
  for (int x = 0; x < 4; ++x)
    dotted.setPixel(x, 0, 0);
  EXPECT_EQ(pictureDifference(Look().drawn(), dotted), "");
  dotted.setPixel(4, 0, 0);
  EXPECT_NE(pictureDifference(Look().drawn(), dotted), "");
}

TEST_F(PictureDifferenceTest, AnotherSizeIsADifference) {
  EXPECT_EQ(differenceFrom({.size = {1920, 1081}}), "is 1920x1081 and was 1920x1080");
}

TEST_F(PictureDifferenceTest, FoldersAreComparedByTheNamesOfTheirPictures) {
  const TemporaryFolder stored;
  const TemporaryFolder made;
  const auto put = [](const TemporaryFolder& there, const std::string& name, const Look& look) {
    ASSERT_TRUE(look.drawn().save(QString::fromStdString(there.file(name))));
  };
  put(stored, "changed.png", {});
  put(made, "changed.png", {.text = "0x88"});
  put(stored, "same.png", {});
  put(made, "same.png", {});
  put(stored, "gone.png", {});
  put(made, "new.png", {});
  stored.write("broken.png", "no picture");
  put(made, "broken.png", {});
  made.write("output", "no picture either");

  std::vector<std::string> found;
  for (const auto& [file, what] :
       pictureFindings(QString::fromStdString(stored.path()), QString::fromStdString(made.path())))
    found.push_back(file + " " + what.substr(0, what.find(" in ")));
  EXPECT_EQ(found, (std::vector<std::string>{"broken.png cannot be read", "changed.png differs",
                                             "gone.png is stored and not made", "new.png is made and not stored"}));
}

}  // namespace
}  // namespace zelvs
