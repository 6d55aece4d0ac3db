// The command that expects.

#include "support/scriptFixture.h"

namespace zelvs {
namespace {

using ExpectationsTest = ScriptTest;

TEST_F(ExpectationsTest, ExpectationsThatHold) {
  EXPECT_EXCHANGES(0, {"expect runMode 0", "ok\n"}, {"expect runMode 0x0", "ok\n"}, {"expect runMode \"0\"", "ok\n"},
                   {"expect startupDone -1", "ok\n"}, {"expect frmMDI.lblRunMode(0).Caption \" RUN \"", "ok\n"},
                   {"expect frmHard.picNoise.Picture \"ilsNOISE 1\"", "ok\n"}, {"expect frmMDI.Visible True", "ok\n"},
                   {"expect frmRegister.lblValL(9).Caption 00", "ok\n"},
                   {"expect frmRegister.lblValL(9).Caption \"00\"", "ok\n"}, {"expect peek 0x580 05 00", "ok\n"},
                   {"expect beeps 0", "ok\n"}, {"expect screen.Width 28800", "ok\n"},
                   {"jump\nexpect error", "error: unknown command: jump\nok\n"},
                   {"jump\n\n# comment\nexpect error", "error: unknown command: jump\nok\n"});
}

TEST_F(ExpectationsTest, ExpectationsThatFail) {
  EXPECT_EXCHANGES(
      1, {"expect runMode 1", "FAILED runMode: expected 1, is 0\n"},
      {"expect frmMDI.Caption ZELVS", "FAILED frmMDI.Caption: expected \"ZELVS\", is \"ZEL-VS\"\n"},
      {"expect frmMDI.Caption \"a\\r\\n\"", "FAILED frmMDI.Caption: expected \"a\\r\\n\", is \"ZEL-VS\"\n"},
      {"expect frmMDI.Visible 1", "FAILED frmMDI.Visible: expected 1, is True\n"},
      {"expect frmMDI.Visible true", "FAILED frmMDI.Visible: expected true, is True\n"},
      {"expect frmRegister.lblValL(9).Caption 0", "FAILED frmRegister.lblValL(9).Caption: expected \"0\", is \"00\"\n"},
      {"expect frmHard.picNoise.Picture none", "FAILED frmHard.picNoise.Picture: expected none, is ilsNOISE 1\n"},
      {"expect peek 0x580 06 00", "FAILED peek 0x580: expected 06 00, is 05 00\n"},
      {"expect peek 0x580 5", "FAILED peek 0x580: expected 5, is 05\n"},
      {"expect beeps 1", "FAILED beeps: expected 1, is 0\n"},
      {"expect error", "FAILED error: expected a refusal, is none\n"},
      {"jump\nnow\nexpect error", "error: unknown command: jump\nnow = 0\nFAILED error: expected a refusal, is none\n"},
      {"jump\nexpect error\nexpect error",
       "error: unknown command: jump\nok\nFAILED error: expected a refusal, is none\n"},
      {"expect box text", "FAILED box: expected \"text\", is \"none\"\n"});
}

}  // namespace
}  // namespace zelvs
