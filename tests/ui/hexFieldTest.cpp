// The field that is overtyped digit by digit.

#include <string>

#include "support/program.h"
#include "support/userFixture.h"
#include "text/utf8.h"
#include "ui/hexField.h"

namespace zelvs {
namespace {

class FrmField final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmField() : Form("frmField", kKind, Border::Fixed) {
    txtField.move(0, 0, 3000, 400);
    cmdOther.Default = true;
  }
  TextBox txtField{this, "txtField"};
  CommandButton cmdOther{this, "cmdOther"};
};
FormRef<FrmField> frmField{"frmField"};

class HexFieldTest : public ProgramTest {
 protected:
  HexFieldTest() {
    frmField->show();
    frmField->cmdOther.onClick = [this] { ++presses; };
  }
  TextBox& field() { return frmField->txtField; }
  void attach(const std::string& text, bool upperCase = true, EnterKey enterKey = EnterKey::Ignored) {
    attachHexField(field(), {static_cast<int>(text.size()), upperCase, enterKey});
    field().Text = text;
    gesture::focus(frmField->cmdOther);
    gesture::focus(field());
  }
  void type(const std::string& text) { zelvs::type(field(), text); }
  void key(int code) { EXPECT_EQ(gesture::keyDown(field(), code), ""); }
  /// "0[0]00" with the second digit selected.
  std::string look() {
    std::string text = field().Text.get();
    const auto start = static_cast<std::size_t>(field().SelStart.get());
    const auto length = static_cast<std::size_t>(field().SelLength.get());
    return text.insert(start + length, "]").insert(start, "[");
  }
  int presses = 0;
};

TEST_F(HexFieldTest, TypingOvertypesAndStopsAtTheLastDigit) {
  attach("0000");
  EXPECT_EQ(look(), "[0]000");
  type("1");
  EXPECT_EQ(look(), "1[0]00");
  type("23");
  EXPECT_EQ(look(), "123[0]");
  type("4");
  EXPECT_EQ(look(), "123[4]");
  type("5");
  EXPECT_EQ(look(), "123[5]");
}

TEST_F(HexFieldTest, ADigitLikeTheOneThatStandsThereMovesOnToo) {
  attach("0000");
  type("00");
  EXPECT_EQ(look(), "00[0]0");
}

TEST_F(HexFieldTest, OnlyHexadecimalDigitsPass) {
  attach("0000");
  type("gGxX? -.@`/:漢\b\r\x1B");
  EXPECT_EQ(look(), "[0]000");
  for (const std::string digits : {"0123", "4567", "89ab", "cdef", "ABCD", "EFEF"}) {
    attach("????");
    type(digits);
    std::string upper = digits;
    for (char& digit : upper)
      digit = static_cast<char>(std::toupper(digit));
    EXPECT_EQ(field().Text.get(), upper);
  }
}

TEST_F(HexFieldTest, SmallLettersStayWhereTheFieldIsToldSo) {
  attach("0000", false);
  type("aBcD");
  EXPECT_EQ(look(), "aBc[D]");
}

TEST_F(HexFieldTest, KeysMoveTheOneSelectedDigit) {
  struct Row {
    const char* name;
    int from;
    int code;
    const char* after;
  };
  const Row table[] = {
      {"right", 0, key::kRight, "1[2]34"},         {"right at the end", 3, key::kRight, "123[4]"},
      {"left", 3, key::kLeft, "12[3]4"},           {"left at the start", 0, key::kLeft, "[1]234"},
      {"backspace", 2, key::kBackspace, "1[2]34"}, {"backspace at the start", 0, key::kBackspace, "[1]234"},
      {"home", 2, key::kHome, "[1]234"},           {"end", 1, key::kEnd, "123[4]"},
      {"delete", 1, key::kDelete, "1[2]34"},       {"up", 1, key::kUp, "1[2]34"},
      {"down", 1, key::kDown, "1[2]34"},           {"page up", 1, key::kPageUp, "1[2]34"},
      {"page down", 1, key::kPageDown, "1[2]34"},  {"space", 1, key::kSpace, "1[2]34"},
      {"a digit's key", 1, '9', "19[3]4"},         {"a letter's key", 1, 'E', "1E[3]4"},
      {"another letter's key", 1, 'G', "1[2]34"},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    attach("1234");
    gesture::placeCaret(field(), row.from, 0);
    key(row.code);
    EXPECT_EQ(look(), row.after);
  }
}

TEST_F(HexFieldTest, EnterAndEscapeDoWhatTheFieldIsTold) {
  for (const int code : {key::kEnter, key::kEscape}) {
    presses = 0;
    attach("1234", true, EnterKey::ToLastDigit);
    key(code);
    EXPECT_EQ(look(), "123[4]");
    EXPECT_EQ(presses, 0);
    attach("1234", true, EnterKey::Ignored);
    key(code);
    EXPECT_EQ(look(), "[1]234");
    EXPECT_EQ(presses, 0);
    attach("1234", true, EnterKey::PassedOn);
    key(code);
    EXPECT_EQ(look(), "[1]234");
    EXPECT_EQ(presses, code == key::kEnter ? 1 : 0);
  }
}

TEST_F(HexFieldTest, AClickSelectsTheDigitBehindItOrTheLast) {
  attach("1234");
  gesture::placeCaret(field(), 2, 0);
  EXPECT_EQ(look(), "12[3]4");
  gesture::placeCaret(field(), 4, 0);
  EXPECT_EQ(look(), "123[4]");
  gesture::placeCaret(field(), 0, 4);
  EXPECT_EQ(look(), "[1]234");
  gesture::click(*frmField, &field());
  EXPECT_EQ(look(), "123[4]") << "the middle of a wide field lies behind its text";
}

TEST_F(HexFieldTest, TheFocusSelectsTheFirstDigit) {
  attach("1234");
  key(key::kRight);
  gesture::focus(frmField->cmdOther);
  gesture::focus(field());
  EXPECT_EQ(look(), "[1]234");
}

TEST_F(HexFieldTest, AShorterTextKeepsTheSelectionInside) {
  attach("1234");
  key(key::kEnd);
  field().MaxLength = 2;
  field().Text = "AB";
  EXPECT_EQ(look(), "A[B]");
}

TEST_F(HexFieldTest, ATextShorterThanTheFieldIsTypedOnAtItsEnd) {
  attach("0000");
  field().Text = "12";
  for (int i = 0; i < 4; ++i)
    key(key::kRight);
  EXPECT_EQ(look(), "12[]") << "behind its last digit and no further";
  type("3");
  EXPECT_EQ(field().Text.get(), "123");
  type("456");
  EXPECT_EQ(look(), "123[6]");
  field().Text = "";
  key(key::kEnd);
  key(key::kLeft);
  EXPECT_EQ(look(), "[]");
  type("7");
  EXPECT_EQ(field().Text.get(), "7");
}

}  // namespace
}  // namespace zelvs
