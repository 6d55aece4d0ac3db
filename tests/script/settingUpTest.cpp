// The commands that set up.

#include "state/randomSource.h"
#include "support/scriptFixture.h"

namespace zelvs {
namespace {

using SettingUpTest = ScriptTest;

TEST_F(SettingUpTest, SettingUp) {
  EXPECT_EXCHANGES(
      0, {"poke 0x502 0xFF 16 0\npeek 0x502 3", "0x502: FF 10 00\n"}, {"set runMode 2\nget runMode", "runMode = 2\n"},
      {"set startupDone -1\nget startupDone", "startupDone = -1\n"},
      {"set noiseHeld 65535\nget noiseHeld\nset noiseHeld 0", "noiseHeld = -1\n"},
      {"set boardDi(9) 0xFF\nget boardDi(9)", "boardDi(9) = 255\n"}, {"wait 0\nnow", "now = 0\n"},
      {"wait 250\nnow\nwait 0x10\nnow", "now = 250\nnow = 266\n"},
      {"set runMode 0\nset chk1LedTimer 1000\nstep\nget chk1LedTimer\nstep 9\nget chk1LedTimer",
       "chk1LedTimer = 999\nchk1LedTimer = 990\n"},
      {"tick\nget chk1LedTimer\ntick 2\nget chk1LedTimer\nnow", "chk1LedTimer = 923\nchk1LedTimer = 789\nnow = 266\n"},
      {"step 0\ntick 0\nget chk1LedTimer", "chk1LedTimer = 789\n"});
  EXPECT_EQ(run("poke 0 1 2 999\npeek 0 2"), "error: not a byte: 999\n0x000: 00 00\n") << "all or nothing";
}

TEST_F(SettingUpTest, QueuedNumbersAreDrawnInOrderAndOutliveAReseed) {
  EXPECT_EQ(run("random 0.25 0 1 .5"), "");
  for (const double number : {0.25, 0.0, 1.0}) {
    EXPECT_EQ(drawUniform(), number);
  }
  reseedRandom();
  EXPECT_EQ(drawUniform(), 0.5);
}

}  // namespace
}  // namespace zelvs
