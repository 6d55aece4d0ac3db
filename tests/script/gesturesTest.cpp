// The commands that are gestures.

#include "shell/frmMDI.h"
#include "support/scriptFixture.h"

namespace zelvs {
namespace {

using GesturesTest = ScriptTest;

TEST_F(GesturesTest, Gestures) {
  EXPECT_EXCHANGES(0, {"click frmMDI.lblRunMode(1)\nget runMode", "runMode = 1\n"},
                   {"press frmMDI.lblRunMode(2)\nget runMode\nrelease frmMDI.lblRunMode(2)\nget runMode",
                    "runMode = 1\nrunMode = 2\n"},
                   {"dblclick frmMDI.lblRunMode(3)\nbeeps", "beeps = 2\n"},
                   {"dblpress frmMDI.lblRunMode(3)\nbeeps", "beeps = 3\n"},
                   {"release frmMDI.lblRunMode(3)\nbeeps", "beeps = 4\n"},
                   {"dblclick frmHard.picSA(0)\nget frmHard.cmbSA(0).Visible", "frmHard.cmbSA(0).Visible = True\n"},
                   {"select frmHard.cmbSA(0) 0x0A\nget frmHard.cmbSA(0).Visible saSetting(0)",
                    "frmHard.cmbSA(0).Visible = False\nsaSetting(0) = 11\n"},
                   {"dblclick frmHard.picSA(0)\nkey frmHard.cmbSA(0) 40\nkey frmHard.cmbSA(0) 13\nget saSetting(0)",
                    "saSetting(0) = 12\n"},
                   {"dblclick frmHard.picSA(0)\nfocus frmHard.picNoise\nget frmHard.cmbSA(0).Visible",
                    "frmHard.cmbSA(0).Visible = False\n"},
                   {"activate frmRegister\nget frmRegister.Visible", "frmRegister.Visible = True\n"});
}

TEST_F(GesturesTest, MovingPutsThePointerOnTheCentre) {
  run("move frmMDI.lblRunMode(1)");
  const Label& label = frmMDI->lblRunMode(1);
  EXPECT_EQ(platform.pointer().x, static_cast<int>(label.Left + label.Width / 2));
  EXPECT_EQ(platform.pointer().y, static_cast<int>(300 / 15 + label.Height / 2));
  run("pointer 12 0x22");
  EXPECT_EQ(platform.pointer().x, 12);
  EXPECT_EQ(platform.pointer().y, 34);
  EXPECT_EQ(status, 0);
  run("pointer 1 2\nmove frmHard.cmbSA(0)");
  EXPECT_EQ(platform.pointer().x, 1) << "a refused gesture moves nothing";
}

}  // namespace
}  // namespace zelvs
