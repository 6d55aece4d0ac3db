// Editing in a text box, key by key.

#include <string>
#include <vector>

#include "support/program.h"
#include "support/userFixture.h"
#include "text/utf8.h"

namespace zelvs {
namespace {

class FrmEdit final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmEdit() : Form("frmEdit", kKind, Border::Fixed) {}
  TextBox txtField{this, "txtField"};
};
FormRef<FrmEdit> frmEdit{"frmEdit"};

class TextBoxTest : public ProgramTest {
 protected:
  TextBoxTest() {
    frmEdit->show();
    field().onChange = [this] { ++changes; };
  }
  TextBox& field() { return frmEdit->txtField; }

  void put(const std::string& text, int start, int length = 0) {
    field().Text = text;
    gesture::placeCaret(field(), start, length);
    changes = 0;
  }
  void type(const std::string& text) { zelvs::type(field(), text); }
  /// "ab|c" with the caret at 2, "a[b]c" with b selected.
  std::string look() {
    std::u32string text = charactersOf(field().Text.get());
    const auto start = static_cast<std::size_t>(field().SelStart.get());
    const auto length = static_cast<std::size_t>(field().SelLength.get());
    if (length == 0) return textOf(text.insert(start, U"|"));
    return textOf(text.insert(start + length, U"]").insert(start, U"["));
  }

  int changes = 0;
};

TEST_F(TextBoxTest, TypingInsertsAtTheCaretAndReplacesTheSelection) {
  put("", 0);
  type("ab");
  EXPECT_EQ(look(), "ab|");
  put("ad", 1);
  type("bc");
  EXPECT_EQ(look(), "abc|d");
  put("abcd", 1, 2);
  type("X");
  EXPECT_EQ(look(), "aX|d");
  put("漢字", 1);
  type("全");
  EXPECT_EQ(look(), "漢全|字");
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, KeysEditAndMove) {
  struct Row {
    const char* name;
    const char* text;
    int start, length;
    int code;
    const char* after;
    int changes;
  };
  const Row table[] = {
      {"left", "abc", 2, 0, key::kLeft, "a|bc", 0},
      {"left at the start", "abc", 0, 0, key::kLeft, "|abc", 0},
      {"left out of a selection", "abc", 1, 2, key::kLeft, "a|bc", 0},
      {"right", "abc", 2, 0, key::kRight, "abc|", 0},
      {"right at the end", "abc", 3, 0, key::kRight, "abc|", 0},
      {"right out of a selection", "abc", 1, 2, key::kRight, "abc|", 0},
      {"right over an ideograph", "漢字", 0, 0, key::kRight, "漢|字", 0},
      {"home", "abc", 2, 1, key::kHome, "|abc", 0},
      {"end", "漢字", 0, 1, key::kEnd, "漢字|", 0},
      {"backspace", "abc", 2, 0, key::kBackspace, "a|c", 1},
      {"backspace at the start", "abc", 0, 0, key::kBackspace, "|abc", 0},
      {"backspace on a selection", "abcd", 1, 2, key::kBackspace, "a|d", 1},
      {"backspace on an ideograph", "漢字", 2, 0, key::kBackspace, "漢|", 1},
      {"delete", "abc", 1, 0, key::kDelete, "a|c", 1},
      {"delete at the end", "abc", 3, 0, key::kDelete, "abc|", 0},
      {"delete on a selection", "abcd", 1, 2, key::kDelete, "a|d", 1},
      {"a letter key types the small letter", "", 0, 0, 'A', "a|", 1},
      {"a digit key types its digit", "", 0, 0, '7', "7|", 1},
      {"the space key types a blank", "ab", 1, 0, key::kSpace, "a |b", 1},
      {"escape types nothing", "ab", 1, 0, key::kEscape, "a|b", 0},
      {"enter types nothing", "ab", 1, 0, key::kEnter, "a|b", 0},
      {"page up types nothing", "ab", 1, 0, key::kPageUp, "a|b", 0},
      {"a function key types nothing", "ab", 1, 0, 112, "a|b", 0},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    put(row.text, row.start, row.length);
    EXPECT_EQ(gesture::keyDown(field(), row.code), "");
    EXPECT_EQ(look(), row.after);
    EXPECT_EQ(changes, row.changes);
  }
}

TEST_F(TextBoxTest, AFullFieldTakesNoMoreButLetsASelectionBeReplaced) {
  field().MaxLength = 3;
  put("", 0);
  type("abcd");
  EXPECT_EQ(look(), "abc|");
  EXPECT_EQ(changes, 3);
  put("abc", 1, 1);
  type("XY");
  EXPECT_EQ(look(), "aX|c");
  put("漢字全", 3);
  type("x");
  EXPECT_EQ(look(), "漢字全|") << "characters count, not bytes";
}

TEST_F(TextBoxTest, AKeyPressHandlerDropsOrChangesTheCharacter) {
  field().onKeyPress = [](char32_t& character) {
    if (character == U'x') character = 0;
    if (character >= U'a' && character <= U'f') character -= U'a' - U'A';
  };
  type("axbx");
  EXPECT_EQ(look(), "AB|");
  put("ab", 2);
  gesture::keyDown(field(), 'C');
  EXPECT_EQ(look(), "abC|");
  field().onKeyPress = [](char32_t& character) { character = 0; };
  gesture::keyDown(field(), key::kBackspace);
  EXPECT_EQ(look(), "abC|") << "backspace is a key press too";
}

TEST_F(TextBoxTest, AKeyDownHandlerSwallowsTheKeyAndItsKeyPress) {
  int presses = 0;
  field().onKeyPress = [&presses](char32_t&) { ++presses; };
  field().onKeyDown = [](int& code) { code = 0; };
  put("ab", 1);
  for (const int code : {key::kLeft, key::kDelete, key::kBackspace, int{'A'}})
    gesture::keyDown(field(), code);
  EXPECT_EQ(look(), "a|b");
  EXPECT_EQ(presses, 0);
  EXPECT_EQ(changes, 0);
}

TEST_F(TextBoxTest, TypingTheSameCharacterOverItselfIsAChange) {
  put("7F", 0, 1);
  type("7");
  EXPECT_EQ(look(), "7|F");
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, AChangeHandlerMayCorrectTheFieldAndTheSelection) {
  field().onChange = [this] {
    field().SelStart = 1;
    field().SelLength = 1;
  };
  put("00", 0, 1);
  type("A");
  EXPECT_EQ(look(), "A[0]") << "as a field that is overtyped digit by digit does";
}

TEST_F(TextBoxTest, AssignmentByCodeChangesOnlyWithAnotherText) {
  put("abc", 2, 1);
  field().Text = "abc";
  EXPECT_EQ(changes, 0);
  field().Text = "x";
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(look(), "x|") << "caret and selection stay inside the text";
}

TEST_F(TextBoxTest, AClickPutsTheCaretWhereItLiesAndIsTold) {
  int clicks = 0;
  field().onClick = [&clicks] { ++clicks; };
  struct Row {
    const char* text;
    double width;
    const char* after;
  };
  // A character is 90 twips wide, an ideograph 180.
  const Row table[] = {{"abcdef", 510, "ab|cdef"},
                       {"abc", 3000, "abc|"},
                       {"", 510, "|"},
                       {"漢字全", 510, "漢|字全"},
                       {"abc", 90, "|abc"}};
  for (const Row& row : table) {
    field().move(0, 0, row.width, 300);
    put(row.text, 0, 1);
    clicks = 0;
    EXPECT_EQ(gesture::click(*frmEdit, &field()), "");
    EXPECT_EQ(look(), row.after);
    EXPECT_EQ(clicks, 1);
  }
  EXPECT_EQ(desk().focused(), &field());
}

TEST_F(TextBoxTest, TheCaretIsPutInsideTheTextOnly) {
  put("abc", -5, 100);
  EXPECT_EQ(look(), "[abc]");
  put("abc", 100, 1);
  EXPECT_EQ(look(), "abc|");
}

}  // namespace
}  // namespace zelvs
