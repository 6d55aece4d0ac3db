// The script's commands, driven through text streams.

#include <sstream>
#include <string>

#include "monitor/frmRegister.h"
#include "script/scriptRunner.h"
#include "ui/headless/headlessHands.h"
#include "shell/frmMDI.h"
#include "state/randomSource.h"
#include "support/program.h"

namespace zelvs {
namespace {

class ScriptRunnerTest : public ProgramTest {
 protected:
  ScriptRunnerTest() { start(); }

  /// Runs the commands; the result is what was printed.
  std::string run(const std::string& commands, bool prompt = false) {
    std::istringstream in(commands);
    std::ostringstream out;
    HeadlessHands hands;
    ScriptRunner runner(in, out, platform, hands, prompt);
    status = runner.run();
    platform.onModal = nullptr;
    platform.onMessageBox = nullptr;
    return out.str();
  }

  int status = -1;
};

struct Exchange {
  const char* commands;
  const char* printed;
};

#define EXPECT_EXCHANGES(wantedStatus, ...)                        \
  for (const Exchange& row : std::vector<Exchange>{__VA_ARGS__}) { \
    EXPECT_EQ(run(row.commands), row.printed) << row.commands;     \
    EXPECT_EQ(status, wantedStatus) << row.commands;               \
  }

TEST_F(ScriptRunnerTest, LinesThatSayNothing) {
  EXPECT_EXCHANGES(0, {"", ""}, {"\n\n", ""}, {"# a comment\n", ""}, {"   \t # another\n", ""}, {"\r\n", ""},
                   {"echo a # behind\n", "a\n"}, {"echo a#b\n", "a#b\n"}, {"echo \"a # b\"\n", "a # b\n"},
                   {"echo last line without an end", "last line without an end\n"});
}

TEST_F(ScriptRunnerTest, QuotesAndEscapes) {
  EXPECT_EXCHANGES(0, {"echo a   b\tc", "a b c\n"}, {"echo \"a   b\"", "a   b\n"}, {"echo \"\"", "\n"}, {"echo", "\n"},
                   {R"(echo "a\"b\\c")", "a\"b\\c\n"}, {R"(echo "a\tb\r\nc")", "a\tb\r\nc\n"},
                   {"echo 全2重", "全2重\n"});
  EXPECT_EXCHANGES(1, {"echo \"open", "error: a quotation is left open\n"},
                   {"echo \"open\\\"", "error: a quotation is left open\n"},
                   {"\"", "error: a quotation is left open\n"});
}

TEST_F(ScriptRunnerTest, RefusedCommands) {
  EXPECT_EXCHANGES(
      1, {"jump", "error: unknown command: jump\n"}, {"CLICK frmMDI", "error: unknown command: CLICK\n"},
      {"click", "error: click: too few words\n"}, {"click a b", "error: click: too many words\n"},
      {"click frmNone", "error: unknown form: frmNone\n"}, {"click frmMessage", "error: frmMessage is not loaded\n"},
      {"click frmmdi", "error: unknown form: frmmdi\n"},
      {"click frmMDI.lblNone", "error: unknown control: frmMDI.lblNone\n"},
      {"click frmMDI.lblRunMode", "error: frmMDI.lblRunMode needs an index\n"},
      {"click frmMDI.lblRunMode(4)", "error: frmMDI.lblRunMode(4) is not there\n"},
      {"click frmMDI.lblRunMode(-1)", "error: frmMDI.lblRunMode(-1) is not there\n"},
      {"click frmMDI.lblVersion(-1)", "error: unknown control: frmMDI.lblVersion(-1)\n"},
      {"click frmMDI.lblVersion(0)", "error: unknown control: frmMDI.lblVersion(0)\n"},
      {"click frmMDI.lblRunMode(x)", "error: not a target: frmMDI.lblRunMode(x)\n"},
      {"click frmMDI.lblRunMode(1", "error: not a target: frmMDI.lblRunMode(1\n"},
      {"click frmMDI.", "error: not a target: frmMDI.\n"}, {"click .", "error: not a target: .\n"},
      {"click frmMDI.a.b", "error: not a target: frmMDI.a.b\n"},
      {"click frmMDI.timTick", "error: frmMDI.timTick has no face\n"},
      {"click frmHard.cmbSA(0)", "error: frmHard.cmbSA(0) is not visible\n"},
      {"focus frmMDI.lblVersion", "error: frmMDI.lblVersion cannot have the focus\n"},
      {"focus frmMDI", "error: not a control: frmMDI\n"},
      {"close frmHard.picNoise", "error: not a form: frmHard.picNoise\n"},
      {"activate frmHard.picNoise", "error: not a form: frmHard.picNoise\n"},
      {"type frmHard.picNoise x", "error: frmHard.picNoise takes no text\n"},
      {"key frmHard.picNoise x", "error: not a number: x\n"},
      {"key frmHard.picNoise 4294967296", "error: not a number: 4294967296\n"},
      {"select frmHard.picNoise 0", "error: frmHard.picNoise has no row 0\n"},
      {"select frmHard.picNoise 4294967296", "error: not a number: 4294967296\n"},
      {"answer ok", "error: no message box is open\n"}, {"get", "error: get: too few words\n"},
      {"get frmMDI.lblVersion.Nothing", "error: unknown property: frmMDI.lblVersion.Nothing\n"},
      {"get frmMDI.Nothing", "error: unknown property: frmMDI.Nothing\n"},
      {"get nothing", "error: unknown name: nothing\n"}, {"get runMode(0)", "error: runMode has no index\n"},
      {"get boardDo", "error: boardDo needs an index\n"}, {"get boardDo(5)", "error: boardDo(5) is not there\n"},
      {"get openWindow(0)", "error: openWindow(0) is not there\n"},
      {"get screen.Depth", "error: unknown: screen.Depth\n"}, {"get a.b.c.d", "error: not a name: a.b.c.d\n"},
      {"controls frmNone", "error: unknown form: frmNone\n"},
      {"peek 0x800", "error: outside chip memory (0x000 to 0x7FF): 0x800\n"},
      {"peek -1", "error: outside chip memory (0x000 to 0x7FF): -1\n"},
      {"peek 0x7FF 2", "error: outside chip memory (0x000 to 0x7FF): 0x7FF\n"},
      {"peek 0 0", "error: outside chip memory (0x000 to 0x7FF): 0\n"},
      {"peek 9223372036854775807", "error: outside chip memory (0x000 to 0x7FF): 9223372036854775807\n"},
      {"peek 9223372036854775808", "error: not a number: 9223372036854775808\n"},
      {"peek x", "error: not a number: x\n"}, {"peek 0x", "error: not a number: 0x\n"},
      {"peek --5", "error: not a number: --5\n"}, {"peek 0x-5", "error: not a number: 0x-5\n"},
      {"poke 0", "error: poke: too few words\n"}, {"poke 0 256", "error: not a byte: 256\n"},
      {"poke 0 -1", "error: not a byte: -1\n"},
      {"poke 0x7FF 1 2", "error: outside chip memory (0x000 to 0x7FF): 0x7FF\n"},
      {"set runMode", "error: set: too few words\n"}, {"set nothing 1", "error: unknown name: nothing\n"},
      {"set frmMDI.Tag 1", "error: not a shared variable: frmMDI.Tag\n"}, {"set runMode x", "error: not a number: x\n"},
      {"set boardDi(0) 256", "error: boardDi(0) cannot hold 256\n"},
      {"set boardDi(0) -1", "error: boardDi(0) cannot hold -1\n"},
      {"set runMode 65536", "error: runMode cannot hold 65536\n"}, {"random 2", "error: not a number from 0 to 1: 2\n"},
      {"random -0.5", "error: not a number from 0 to 1: -0.5\n"},
      {"random nan", "error: not a number from 0 to 1: nan\n"}, {"random x", "error: not a number from 0 to 1: x\n"},
      {"wait -1", "error: not a number: -1\n"}, {"wait x", "error: not a number: x\n"},
      {"wait 9223372036854775807", "error: not a number: 9223372036854775807\n"},
      {"step -1", "error: not a number: -1\n"}, {"tick x", "error: not a number: x\n"},
      {"pointer 1", "error: pointer: too few words\n"}, {"pointer x 1", "error: not a number: x\n"},
      {"pointer 1 y", "error: not a number: y\n"}, {"screenshot frmMDI a.png", "error: a picture needs --desktop\n"},
      {"screenshot all a.png", "error: a picture needs --desktop\n"}, {"expect", "error: expect: too few words\n"},
      {"expect runMode", "error: expect: too few words\n"}, {"expect runMode 0 0", "error: expect: too many words\n"},
      {"expect nothing 0", "error: unknown name: nothing\n"}, {"expect peek 0", "error: expect peek: too few words\n"});
}

TEST_F(ScriptRunnerTest, LookingAtValues) {
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

TEST_F(ScriptRunnerTest, FormsAreListedFrontToBack) {
  const std::string children =
      "frmHard visible active\nfrmHint visible\nfrmDumpCDIO visible\nfrmDumpC17 hidden\nfrmDumpDRC hidden\nfrmMDI "
      "visible\n";
  EXPECT_EQ(run("activate frmHard\nforms"), "frmRegister visible\n" + children);
  EXPECT_EQ(run("close frmRegister\nforms"), children);
}

TEST_F(ScriptRunnerTest, ControlsAreListedWithTheirKind) {
  const std::string printed = run("controls frmMDI");
  EXPECT_TRUE(printed.starts_with("ToolBox picture\nlblSimulationTick label\nlblRunMode(0) label\n")) << printed;
  EXPECT_TRUE(printed.ends_with("shpTick shape\ntimTick timer\n")) << printed;
}

TEST_F(ScriptRunnerTest, Gestures) {
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

TEST_F(ScriptRunnerTest, MovingPutsThePointerOnTheCentre) {
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

TEST_F(ScriptRunnerTest, SettingUp) {
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

TEST_F(ScriptRunnerTest, QueuedNumbersAreDrawnInOrderAndOutliveAReseed) {
  EXPECT_EQ(run("random 0.25 0 1 .5"), "");
  for (const double number : {0.25, 0.0, 1.0}) {
    EXPECT_EQ(drawUniform(), number);
  }
  reseedRandom();
  EXPECT_EQ(drawUniform(), 0.5);
}

TEST_F(ScriptRunnerTest, ExpectationsThatHold) {
  EXPECT_EXCHANGES(0, {"expect runMode 0", "ok\n"}, {"expect runMode 0x0", "ok\n"}, {"expect runMode \"0\"", "ok\n"},
                   {"expect startupDone -1", "ok\n"}, {"expect frmMDI.lblRunMode(0).Caption \" RUN \"", "ok\n"},
                   {"expect frmHard.picNoise.Picture \"ilsNOISE 1\"", "ok\n"}, {"expect frmMDI.Visible True", "ok\n"},
                   {"expect frmRegister.lblValL(9).Caption 00", "ok\n"},
                   {"expect frmRegister.lblValL(9).Caption \"00\"", "ok\n"}, {"expect peek 0x580 05 00", "ok\n"},
                   {"expect beeps 0", "ok\n"}, {"expect screen.Width 28800", "ok\n"},
                   {"jump\nexpect error", "error: unknown command: jump\nok\n"},
                   {"jump\n\n# comment\nexpect error", "error: unknown command: jump\nok\n"});
}

TEST_F(ScriptRunnerTest, ExpectationsThatFail) {
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

TEST_F(ScriptRunnerTest, OneRefusalOrFailureAmongManyDecidesTheStatus) {
  run("jump\nexpect runMode 0\nexpect runMode 0");
  EXPECT_EQ(status, 1);
  run("expect runMode 1\nexpect runMode 0");
  EXPECT_EQ(status, 1);
  run("jump\nexpect error\njump\nexpect error");
  EXPECT_EQ(status, 0);
}

TEST_F(ScriptRunnerTest, APromptStandsBeforeEachCommand) {
  EXPECT_EQ(run("now\n\necho a", true), ">\nnow = 0\n>\n>\na\n>\n");
}

TEST_F(ScriptRunnerTest, WhileAMessageBoxIsOpenTheScriptGoesOnInside) {
  EXPECT_EQ(run("close frmMDI\n"
                "box\n"
                "expect box アプリケーションを終了します。よろしいですか？\n"
                "click frmMDI.lblRunMode(1)\n"
                "expect error\n"
                "answer maybe\n"
                "expect error\n"
                "wait 20\n"
                "answer cancel\n"
                "box\n"
                "expect frmMDI.Visible True\n"),
            "ZELVS終了確認 | アプリケーションを終了します。よろしいですか？ | ok cancel\n"
            "ok\n"
            "error: the message box \"ZELVS終了確認\" is open\n"
            "ok\n"
            "error: no such button: maybe\n"
            "ok\n"
            "none\n"
            "ok\n");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(platform.now(), 20);
}

TEST_F(ScriptRunnerTest, TheConfirmedExitEndsTheScript) {
  EXPECT_EQ(run("close frmMDI\nanswer ok\necho never\n"), "");
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(desk().ended());
}

TEST_F(ScriptRunnerTest, WhileAModalWindowIsOpenTheScriptGoesOnInside) {
  // Two boards on one station: the panel warns.
  EXPECT_EQ(
      run("dblclick frmHard.picSA(0)\n"
          "select frmHard.cmbSA(0) 4\n"
          "expect frmDialog.Visible True\n"
          "forms\n"
          "click frmMDI.lblRunMode(1)\n"
          "expect error\n"
          "expect beeps 1\n"
          "click frmDialog.cmdAction(0)\n"
          "expect frmDialog.dialogResult 1\n"
          "expect frmDialog.Visible False\n"),
      "ok\n"
      "frmDialog visible modal active\nfrmRegister visible\nfrmHard visible\nfrmHint visible\nfrmDumpCDIO visible\n"
      "frmDumpC17 hidden\nfrmDumpDRC hidden\nfrmMDI visible\n"
      "error: frmDialog is modal\n"
      "ok\nok\nok\nok\n");
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace zelvs
