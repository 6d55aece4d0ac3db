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
    painter.fillRect(QRect(300, 200, 8, 8), lamp);
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

TEST_F(PictureDifferenceTest, TellsHowMuchHasChangedAndWhere) {
  EXPECT_EQ(differenceFrom({.lamp = {0xE0, 0x22, 0x3C}}),
            "64 pixels by up to 190 levels, 4 places by up to 190 on average, within 8x8 from 300,200");
}

TEST_F(PictureDifferenceTest, FindsALampOfAShadeThatIsAlike) {
  EXPECT_EQ(differenceFrom({.lamp = {0x22, 0xE0 - 49, 0x3C}}),
            "0 pixels by up to 0 levels, 4 places by up to 49 on average, within 8x8 from 300,200");
  EXPECT_EQ(differenceFrom({.lamp = {0x22, 0xE0 - 48, 0x3C}}), "");
}

TEST_F(PictureDifferenceTest, PlacesCoverThePictureToItsEdges) {
  QImage picture(9, 8, QImage::Format_RGB32);
  picture.fill(Qt::black);
  picture.setPixelColor(8, 7, QColor(100, 80, 60));
  const QImage places = averages(picture);
  ASSERT_EQ(places.size(), QSize(3, 2));
  EXPECT_EQ(places.pixelColor(2, 1), QColor(25, 20, 15));
  EXPECT_EQ(places.pixelColor(1, 1), QColor(Qt::black));
}

TEST_F(PictureDifferenceTest, FindsOnePixelThatIsFarOff) {
  QImage dotted = Look().drawn();
  dotted.setPixelColor(1919, 1079, QColor(192, 192, 192 - 150));
  EXPECT_EQ(pictureDifference(Look().drawn(), dotted), "");
  dotted.setPixelColor(1919, 1079, QColor(192, 192, 192 - 151));
  EXPECT_EQ(pictureDifference(Look().drawn(), dotted),
            "1 pixels by up to 151 levels, 0 places by up to 0 on average, within 1x1 from 1919,1079");
}

TEST_F(PictureDifferenceTest, AnotherSizeIsADifference) {
  EXPECT_EQ(differenceFrom({.size = {1920, 1081}}), "1920x1081, was 1920x1080");
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
    found.push_back(file + ": " + what);
  ASSERT_EQ(found.size(), 4U);
  EXPECT_EQ(found[0], "broken.png: cannot be read");
  EXPECT_EQ(found[1], "changed.png: " + differenceFrom({.text = "0x88"}));
  EXPECT_EQ(found[2], "gone.png: stored and not made");
  EXPECT_EQ(found[3], "new.png: made and not stored");
}

}  // namespace
}  // namespace zelvs
