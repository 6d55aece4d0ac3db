// The mouse and the keyboard themselves: how a place and a key are named, and what a message box leaves of them.

#include "panel/frmEditSerial.h"
#include "shell/frmMDI.h"
#include "support/scriptFixture.h"

namespace zelvs {
namespace {

using RawHandsTest = ScriptTest;

TEST_F(RawHandsTest, WhatNamesNoPlaceAndNoKeyIsRefused) {
  EXPECT_EXCHANGES(1, {"hand move 5", "error: hand move: too few words\n"},
                   {"hand move 5 x", "error: not a number: x\n"},
                   {"hand move frmNone", "error: unknown form: frmNone\n"},
                   {"hand move frmHard.cmbSA(0) x", "error: not a number: x\n"},
                   {"hand move frmMDI 1", "error: not a control: frmMDI\n"},
                   {"hand move frmHard.cmbSA(0) 99", "error: frmHard.cmbSA(0) has no row 99\n"},
                   {"hand move frmMDI.lblVersion 0", "error: frmMDI.lblVersion has no row 0\n"},
                   {"hand key ctrl+", "error: no such key: ctrl+\n"}, {"hand key F0", "error: no such key: F0\n"},
                   {"hand key F13", "error: no such key: F13\n"}, {"hand key FF", "error: no such key: FF\n"},
                   {"hand key tab", "error: no such key: tab\n"}, {"hand key ab", "error: no such key: ab\n"},
                   {"hand key \"\"", "error: no such key: \n"});
}

TEST_F(RawHandsTest, ARefusedMoveMovesNothing) {
  run("pointer 3 4\nhand move 5");
  EXPECT_EQ(platform.pointer().x, 3);
  run("hand move 5 0x10");
  EXPECT_EQ(platform.pointer().x, 5);
  EXPECT_EQ(platform.pointer().y, 16);
}

/// A field of the serial editor that keeps what is typed over it.
class RawKeysTest : public RawHandsTest {
 protected:
  /// Opens a new editor, presses the keys and says what stands in its field then.
  std::string typed(const std::string& keys) {
    if (frmEditSerial.loaded()) frmEditSerial->unload();
    return run("dblclick frmHard.picSDI(1)\n" + keys + "\nget frmEditSerial.txtWriteData.Text\nclose frmEditSerial");
  }
};

TEST_F(RawKeysTest, AKeyIsItsCharacterOrItsName) {
  const std::string is = "frmEditSerial.txtWriteData.Text = ";
  EXPECT_EQ(typed("hand key a\nhand key F\nhand key 7"), is + "\"aF70\"\n");
  EXPECT_EQ(typed("hand key End\nhand key 1\nhand key Home\nhand key 2"), is + "\"2001\"\n");
  EXPECT_EQ(typed("hand key Right\nhand key 1\nhand key Left\nhand key Left\nhand key 2"), is + "\"2100\"\n");
  EXPECT_EQ(typed("hand key Space\nhand key \" \"\nhand key F5\nhand key +\nhand key あ\nhand key 1"),
            is + "\"1000\"\n");
}

TEST_F(RawKeysTest, AHeldKeyTakesItsCharacterFromALetter) {
  const std::string is = "frmEditSerial.txtWriteData.Text = ";
  EXPECT_EQ(typed("hand key ctrl+1\nhand key alt+2\nhand key ctrl+alt+3\nhand key shift+4"), is + "\"4000\"\n");
  EXPECT_EQ(typed("hand key ctrl+Space\nhand key alt+Space\nhand key shift+End\nhand key 1"), is + "\"0001\"\n");
}

TEST_F(RawHandsTest, AMessageBoxHasTwoKeysAndNoMouse) {
  const std::string open =
      "close frmMDI\nhand move frmMDI.lblRunMode(1)\nhand down\nhand up\nhand key a\nhand key 5\nhand key Space\n";
  EXPECT_EQ(run(open + "hand key Escape\nbox\nget runMode frmMDI.Visible"),
            "none\nrunMode = 0\nfrmMDI.Visible = True\n");
  EXPECT_FALSE(desk().ended());
  EXPECT_EQ(run(open + "hand key Enter\necho never"), "");
  EXPECT_TRUE(desk().ended());
}

}  // namespace
}  // namespace zelvs
