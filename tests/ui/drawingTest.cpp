// Drawing on a picture box, the extent of texts, and labels that size themselves.

#include <cmath>
#include <functional>
#include <string>

#include "support/program.h"
#include "ui/inspect.h"
#include "ui/textExtent.h"

namespace zelvs {
namespace {

class FrmPaper final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmPaper() : Form("frmPaper", kKind, Border::Fixed) {}
  PictureBox picSheet{this, "picSheet"};
  PictureBox picPixels{this, "picPixels"};
  Label lblText{this, "lblText"};
};
FormRef<FrmPaper> frmPaper{"frmPaper"};

class DrawingTest : public ProgramTest {
 protected:
  PictureBox& sheet() { return frmPaper->picSheet; }
  std::string drawing(const PictureBox& box) { return inspect(box, "Drawing", std::nullopt)->text; }
};

TEST_F(DrawingTest, OperationsAreKeptInTheirOrderUntilCleared) {
  sheet().FontSize = 10;
  sheet().ForeColor = 255;
  sheet().line(0, 10, 100, 10.5, 0xFF0000);
  sheet().CurrentX = 30;
  sheet().CurrentY = 40;
  sheet().print("AB");
  EXPECT_EQ(drawing(sheet()), "line 0 10 100 10.5 16711680\ntext 30 40 255 \"AB\"");
  sheet().cls();
  EXPECT_EQ(drawing(sheet()), "");
  EXPECT_EQ(sheet().CurrentX, 0);
  EXPECT_EQ(sheet().CurrentY, 0);
}

TEST_F(DrawingTest, ThePrintPositionMovesBehindTheText) {
  sheet().FontSize = 10;  // 200 twips high
  sheet().print("AB");
  EXPECT_EQ(sheet().CurrentX, 200);
  sheet().print("漢");
  EXPECT_EQ(sheet().CurrentX, 400);
  EXPECT_EQ(sheet().CurrentY, 0);
  EXPECT_EQ(drawing(sheet()), "text 0 0 0 \"AB\"\ntext 200 0 0 \"漢\"");
}

TEST_F(DrawingTest, ThePrintPositionCountsInTheScaleOfTheBox) {
  PictureBox& box = frmPaper->picPixels;
  box.setUnit(kTwipsPerPixel);
  box.FontSize = 9;  // 12 pixels high
  box.print("A");
  EXPECT_EQ(box.CurrentX, 6);
}

TEST_F(DrawingTest, ALineEndsAtThePrintPosition) {
  sheet().line(1, 2, 30, 40, kBlack);
  EXPECT_EQ(sheet().CurrentX, 30);
  EXPECT_EQ(sheet().CurrentY, 40);
}

TEST_F(DrawingTest, AnEmptyTextDrawsNothing) {
  frmPaper.load();
  frmPaper->takeChanged();
  sheet().print("");
  EXPECT_EQ(drawing(sheet()), "");
  EXPECT_TRUE(frmPaper->takeChanged().empty());
}

TEST_F(DrawingTest, EachOperationMarksTheBox) {
  frmPaper.load();
  const std::function<void()> operations[] = {[this] { sheet().print("x"); }, [this] { sheet().line(0, 0, 1, 1, 0); },
                                              [this] { sheet().cls(); }};
  for (const auto& operation : operations) {
    frmPaper->takeChanged();
    operation();
    EXPECT_EQ(frmPaper->takeChanged().size(), 1u);
  }
}

TEST_F(DrawingTest, QuotesInADrawnTextAreEscaped) {
  sheet().print("a\"b\\");
  EXPECT_EQ(drawing(sheet()), R"(text 0 0 0 "a\"b\\")");
}

TEST_F(DrawingTest, ABoxTellsWhenItsSizeChanges) {
  int resizes = 0;
  sheet().onResize = [&resizes] { ++resizes; };
  sheet().Width = 100;
  sheet().Width = 100;
  sheet().Height = 50;
  sheet().Left = 10;
  EXPECT_EQ(resizes, 2);
}

TEST(TextExtent, AsciiIsHalfAsWideAsAnIdeograph) {
  struct Row {
    const char* text;
    double width;  // at 10 points: 200 twips high
    int lines;
  };
  const Row table[] = {
      {"", 0, 1},
      {"A", 100, 1},
      {"ABC", 300, 1},
      {"漢", 200, 1},
      {"漢字A", 500, 1},
      {"（）", 400, 1},
      {"\u3000", 200, 1},
      {"abc\r\nde", 300, 2},
      {"a\r\n漢字", 400, 2},
      {"abc\n", 300, 2},
      {"a\r\nb\r\nc\r\n", 100, 4},
      {"\r\n", 0, 2},
  };
  for (const Row& row : table) {
    EXPECT_EQ(textWidth(row.text, 10), row.width) << row.text;
    EXPECT_EQ(lineCount(row.text), row.lines) << row.text;
  }
  EXPECT_EQ(textWidth("A", 9), 90);
  EXPECT_GT(lineHeight(10), 200) << "lines do not touch";
  EXPECT_EQ(lineHeight(20), 2 * lineHeight(10));
}

TEST_F(DrawingTest, ALabelTakesTheSizeOfItsText) {
  Label& label = frmPaper->lblText;
  label.move(0, 0, 50, 60);
  label.FontSize = 10;
  label.Caption = "ABC";
  EXPECT_EQ(label.Width, 50.0) << "not before it is asked to";
  label.AutoSize = true;
  EXPECT_EQ(label.Width, 300.0);
  EXPECT_EQ(label.Height, lineHeight(10));
  label.Caption = "漢字\r\nA";
  EXPECT_EQ(label.Width, 400.0);
  EXPECT_EQ(label.Height, 2 * lineHeight(10));
  label.FontSize = 20;
  EXPECT_EQ(label.Width, 800.0);
  EXPECT_EQ(label.Height, 2 * lineHeight(20));
}

TEST_F(DrawingTest, TheFontSizeIsTheFirstThatIsHigherThanAsked) {
  Label& label = frmPaper->lblText;
  for (const short height : {1, 100, 225, 300, 1000}) {
    const float size = setFontSizePt(height, label);
    EXPECT_FLOAT_EQ(size, static_cast<float>(label.FontSize.get())) << "the target keeps the size";
    EXPECT_GE(size, 2.0f);
    EXPECT_GT(lineHeight(label.FontSize), height);
    if (size > 2.0f) {
      EXPECT_LE(lineHeight(label.FontSize - 0.2), height + 1e-9) << "a step less is not enough";
    }
    const double steps = (label.FontSize - 2) / 0.2;
    EXPECT_NEAR(steps, std::round(steps), 1e-6) << "steps of 0.2 from 2.0";
  }
}

TEST_F(DrawingTest, TheFontSizeEndsAtItsLimits) {
  Label& label = frmPaper->lblText;
  for (const short height : {0, -1, -32768}) {
    EXPECT_EQ(setFontSizePt(height, label), 2.0f);
  }
  EXPECT_EQ(setFontSizePt(32767, label), 76.0f);
  EXPECT_EQ(label.FontSize, 76.0);
}

TEST_F(DrawingTest, TheFontSizeCountsInTheTargetsScale) {
  PictureBox& box = frmPaper->picPixels;
  const float inTwips = setFontSizePt(225, box);
  box.setUnit(kTwipsPerPixel);
  EXPECT_EQ(setFontSizePt(15, box), inTwips);
}

}  // namespace
}  // namespace zelvs
