// Lines, the prompt, refusals and what holds the user.

#include <ios>
#include <streambuf>

#include "support/scriptFixture.h"

namespace zelvs {
namespace {

using ScriptRunnerTest = ScriptTest;

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

TEST_F(ScriptRunnerTest, ALineHasALongestLength) {
  const std::string longest = "echo " + std::string(kLongestScriptLine - 5, 'x');
  EXPECT_EQ(run(longest), longest.substr(5) + "\n");
  EXPECT_EQ(run(longest + "\nnow\n"), longest.substr(5) + "\nnow = 0\n");
  EXPECT_EQ(status, 0);
  // A longer one is refused whole: what its first part would do is not done.
  const std::string refused = "error: line 3 is longer than 65536 bytes\n";
  EXPECT_EQ(run("now\n\n" + longest + "x\nnow\n"), "now = 0\n" + refused + "now = 0\n");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(run("now\n\n" + longest + "x"), "now = 0\n" + refused);
  EXPECT_EQ(run("\n\n#" + std::string(1 << 20, 'x') + "\nexpect error\n"), refused + "ok\n");
  EXPECT_EQ(status, 0);
}

/// Bytes, and behind them an error in place of an end.
class BrokenSource : public std::streambuf {
 public:
  explicit BrokenSource(std::string bytes) : bytes_(std::move(bytes)) {
    setg(bytes_.data(), bytes_.data(), bytes_.data() + bytes_.size());
  }

 protected:
  int_type underflow() override { throw std::ios_base::failure("broken"); }

 private:
  std::string bytes_;
};

TEST_F(ScriptRunnerTest, AScriptThatCannotBeReadToItsEndIsBrokenOff) {
  const std::pair<std::string, std::string> table[] = {
      {"", ""},
      {"echo a\n", "a\n"},
      {"echo a\necho b", "a\n"},  // who knows how it would have gone on
      {"expect runMode 1\n", "FAILED runMode: expected 1, is 0\n"},
  };
  for (const auto& [commands, printed] : table) {
    BrokenSource source(commands);
    std::istream in(&source);
    std::ostringstream out;
    HeadlessHands hands;
    EXPECT_EQ(ScriptRunner(in, out, platform, hands, false).run(), kBrokenOffStatus) << commands;
    EXPECT_EQ(out.str(), printed);
  }
}

/// Takes some bytes and then no more.
class FullSink : public std::streambuf {
 public:
  FullSink() { setp(bytes_, bytes_ + sizeof bytes_); }

 private:
  char bytes_[8];
};

TEST_F(ScriptRunnerTest, AScriptWhoseAnswersNobodyTakesIsBrokenOff) {
  FullSink sink;
  std::ostream out(&sink);
  std::istringstream in("now\nnow\nset beltFrame 3\n");
  HeadlessHands hands;
  EXPECT_EQ(ScriptRunner(in, out, platform, hands, false).run(), kBrokenOffStatus);
  EXPECT_EQ(beltFrame, 0) << "what stands behind is not done any more";
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
