// The commands that look.

#include "support/scriptFixture.h"

namespace zelvs {
namespace {

using LookingTest = ScriptTest;

TEST_F(LookingTest, LookingAtValues) {
  EXPECT_EXCHANGES(
      0, {"get runMode", "runMode = 0\n"}, {"get startupDone", "startupDone = -1\n"},
      {"get saSetting(1) boardDo(4)", "saSetting(1) = 3\nboardDo(4) = 0\n"},
      {"get frmMDI.Caption", "frmMDI.Caption = \"ZEL-VS\"\n"}, {"get frmMDI.Visible", "frmMDI.Visible = True\n"},
      {"get frmVersion.Visible", "frmVersion.Visible = False\n"},
      {"get frmMDI.lblRunMode(0).Caption", "frmMDI.lblRunMode(0).Caption = \" RUN \"\n"},
      {"get frmMDI.lblRunMode(0).MouseIcon", "frmMDI.lblRunMode(0).MouseIcon = ilsMouse 1\n"},
      {"get frmMDI.lblRunMode(0).BackColor", "frmMDI.lblRunMode(0).BackColor = 12640511\n"},
      {"get frmHard.cmbSA(0).List(62)", "frmHard.cmbSA(0).List(62) = \"0x3F\"\n"},
      {"get frmHard.picNoise.Picture", "frmHard.picNoise.Picture = ilsNOISE 1\n"},
      {"get frmMDI.timTick.Interval", "frmMDI.timTick.Interval = 20\n"},
      {"get screen.Width screen.Height", "screen.Width = 28800\nscreen.Height = 16200\n"},
      {"get screen.TwipsPerPixelX screen.TwipsPerPixelY screen.CaptionHeight",
       "screen.TwipsPerPixelX = 15\nscreen.TwipsPerPixelY = 15\nscreen.CaptionHeight = 300\n"},
      {"peek 0x580", "0x580: 05\n"}, {"peek 1408 2", "0x580: 05 00\n"}, {"peek 0x590 6", "0x590: 51 56 54 36 30 20\n"},
      {"peek 0x7FF", "0x7FF: 00\n"}, {"box", "none\n"}, {"beeps", "beeps = 0\n"}, {"now", "now = 0\n"});
  EXPECT_EQ(run("get iniFilePath"), "iniFilePath = \"" + folder.file("ZELVS.INI") + "\"\n");
}

TEST_F(LookingTest, FormsAreListedFrontToBack) {
  const std::string children =
      "frmHard visible active\nfrmHint visible\nfrmDumpCDIO visible\nfrmDumpC17 hidden\nfrmDumpDRC hidden\nfrmMDI "
      "visible\n";
  EXPECT_EQ(run("activate frmHard\nforms"), "frmRegister visible\n" + children);
  EXPECT_EQ(run("close frmRegister\nforms"), children);
}

TEST_F(LookingTest, ControlsAreListedWithTheirKind) {
  const std::string printed = run("controls frmMDI");
  EXPECT_TRUE(printed.starts_with("ToolBox picture\nlblSimulationTick label\nlblRunMode(0) label\n")) << printed;
  EXPECT_TRUE(printed.ends_with("shpTick shape\ntimTick timer\n")) << printed;
}

}  // namespace
}  // namespace zelvs
