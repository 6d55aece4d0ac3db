// What a command refuses, and the table of all of them.

#include <algorithm>
#include <set>

#include "script/commands.h"
#include "support/scriptFixture.h"

namespace zelvs {
namespace {

using CommandsTest = ScriptTest;

TEST_F(CommandsTest, RefusedCommands) {
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

TEST_F(CommandsTest, RefusedNamesOfThings) {
  EXPECT_EXCHANGES(
      1, {"expect error 1", "error: expect error: too many words\n"},
      {"expect peek 0x800 00", "error: outside chip memory (0x000 to 0x7FF): 0x800\n"},
      {"expect box", "error: expect: too few words\n"}, {"expect beeps", "error: expect: too few words\n"},
      {"expect box a b", "error: expect: too many words\n"}, {"expect beeps x", "FAILED beeps: expected x, is 0\n"},
      {"expect frmNone.Visible True", "error: unknown form: frmNone\n"},
      {"expect runMode x", "FAILED runMode: expected x, is 0\n"}, {"peek 0 x", "error: not a number: x\n"},
      {"poke 0 1 x", "error: not a byte: x\n"}, {"get iniFilePath(0)", "error: unknown name: iniFilePath\n"},
      {"get frmNone.a.Text", "error: unknown form: frmNone\n"},
      {"get frmMDI.lblNone.Text", "error: unknown control: frmMDI.lblNone\n"},
      {"get frmNone.Visible", "error: unknown form: frmNone\n"}, {"get frmMDI(0", "error: not a name: frmMDI(0\n"},
      {"set frmMDI(0 1", "error: not a shared variable: frmMDI(0\n"});
  EXPECT_EXCHANGES(1, {"close frmMDI\nexpect box no\nanswer cancel",
                       "FAILED box: expected \"no\", is "
                       "\"アプリケーションを終了します。よろしいですか？\"\n"});
}

TEST(CommandTableTest, EachNameStandsOnce) {
  std::set<std::string_view> names;
  for (const CommandGroup& group : commandGroups()) {
    for (const Command& command : group) {
      EXPECT_TRUE(names.insert(command.name).second) << command.name;
    }
  }
}

TEST(CommandTableTest, TheWordsThatAreToldAreTheWordsThatAreTaken) {
  for (const CommandGroup& group : commandGroups()) {
    for (const Command& command : group) {
      SCOPED_TRACE(command.name);
      const Words words = wordsOf(command.takes).value();
      const auto needed = [](const std::string& word) { return !word.starts_with("["); };
      const bool open = command.takes.find("...") != std::string_view::npos;
      EXPECT_EQ(command.least, std::count_if(words.begin(), words.end(), needed));
      EXPECT_EQ(command.most, open ? kMany : words.size());
    }
  }
}

}  // namespace
}  // namespace zelvs
