// zelvs-script as a program: its command line, its exit status, what it prints where.

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdlib>
#include <string>

#include "support/outcome.h"

namespace zelvs {
namespace {

class ScriptProgramTest : public testing::Test {
 protected:
  ScriptProgramTest() { folder.write("ZELVS.INI", makerIni()); }

  static Outcome run(const std::string& words, const std::string& input = {}, const std::string& under = {}) {
    return runOutside(ZELVS_SCRIPT, words, input, under);
  }
  std::string here() const { return "--folder '" + folder.path() + "' "; }

  TemporaryFolder folder;
  TemporaryFolder work;
};

TEST_F(ScriptProgramTest, TheStatusTellsHowItWent) {
  struct Row {
    const char* commands;
    int status;
    const char* output;
  };
  const Row table[] = {
      {"", 0, ""},
      {"expect runMode 0\n", 0, "ok\n"},
      {"expect runMode 1\n", 1, "FAILED runMode: expected 1, is 0\n"},
      {"jump\n", 1, "error: unknown command: jump\n"},
      {"jump\nexpect error\n", 0, "error: unknown command: jump\nok\n"},
      {"close frmMDI\nanswer ok\n", 0, ""},
      {"close frmMDI\n", 0, ""},  // the commands end inside the message box
      {"close frmMDI\nexpect runMode 1\n", 1, "FAILED runMode: expected 1, is 0\n"},
      {"expect runMode 0\nset beltFrame 99\n", 0, "ok\n"},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.commands);
    const Outcome outcome = run(here(), row.commands);
    EXPECT_EQ(outcome.status, row.status);
    EXPECT_EQ(outcome.output, row.output);
    EXPECT_EQ(outcome.errors, "");
  }
}

TEST_F(ScriptProgramTest, ARunTimeErrorEndsItWithStatusThree) {
  folder.write("ZELVS.INI", makerIni({{"CPUTYPE", "4"}}));
  const Outcome outcome = run(here(), "echo never\n");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_TRUE(outcome.output.starts_with("fatal: " + folder.file("ZELVS.INI") + ": CPUTYPE=4 ")) << outcome.output;
  EXPECT_EQ(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 1);
  EXPECT_EQ(outcome.errors, "zelvs-script: while loading the window frmHard\nzelvs-script: while starting up\n");
}

TEST_F(ScriptProgramTest, ARunTimeErrorIsToldWithItsLineOfTheScript) {
  const Outcome outcome = run(here(), "now\ndblclick frmHard.picQVT(0)   # there is no schematic\n");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_EQ(outcome.output,
            "now = 0\nfatal: picture file not found: " + folder.file("Kairozu/QVT60_FULL_16BIT.BMP") + "\n");
  EXPECT_EQ(outcome.errors,
            "zelvs-script: while showing the schematic QVT60_FULL_16BIT.BMP\n"
            "zelvs-script: while double-clicking frmHard.picQVT(0)\n"
            "zelvs-script: while carrying out line 2: dblclick frmHard.picQVT(0)   # there is no schematic\n");
}

TEST_F(ScriptProgramTest, AWrongCommandLineIsToldWithTheUsage) {
  folder.write("script.zs", "expect runMode 0\n");
  const std::string script = "'" + folder.file("script.zs") + "'";
  const std::pair<std::string, std::string> table[] = {
      {"--unknown", "unknown option: --unknown"},
      {"-x", "unknown option: -x"},
      {"--folder", "--folder needs a folder"},
      {"--folder /nowhere/at/all", "no such folder: /nowhere/at/all"},
      {"--folder " + script, "no such folder: " + folder.file("script.zs")},
      {"--folder ''", "no such folder: "},
      {here() + script + " " + script, "more than one file: " + folder.file("script.zs")},
      {here() + "/nowhere/script.zs", "cannot read /nowhere/script.zs"},
      {here() + "/tmp", "cannot read /tmp"},
      {here() + "/dev/zero", "cannot read /dev/zero: it is a device, no file"},
      {here() + "/dev/null", "cannot read /dev/null: it is a device, no file"},
  };
  for (const auto& [words, told] : table) {
    SCOPED_TRACE(words);
    const Outcome outcome = run(words, "echo never\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "zelvs-script: " + told + "\nusage: zelvs-script [--desktop] [--folder DIR] [--prompt] [FILE]\n");
  }
}

TEST_F(ScriptProgramTest, AnotherProgramMayWriteTheScriptIntoAPipe) {
  ASSERT_EQ(mkfifo(work.file("pipe").c_str(), 0600), 0);
  const std::string writer = "timeout 5 sh -c \"echo 'echo through the pipe' > '" + work.file("pipe") + "'\" &";
  ASSERT_EQ(std::system(writer.c_str()), 0);
  const Outcome outcome = run(here() + "'" + work.file("pipe") + "'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "through the pipe\n");
}

TEST_F(ScriptProgramTest, APipeThatNobodyWritesIntoIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(work.file("pipe").c_str(), 0600), 0);
  const Outcome outcome = run(here() + "'" + work.file("pipe") + "'");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.errors.substr(0, outcome.errors.find('\n')),
            "zelvs-script: cannot read " + work.file("pipe") + ": nobody writes into this pipe");
}

TEST_F(ScriptProgramTest, AWriterMayTakeItsTime) {
  ASSERT_EQ(mkfifo(work.file("pipe").c_str(), 0600), 0);
  const std::string writer = "timeout 8 sh -c \"exec > '" + work.file("pipe") + "'; sleep 2; echo 'echo late'\" &";
  ASSERT_EQ(std::system(writer.c_str()), 0);
  const Outcome outcome = run(here() + "'" + work.file("pipe") + "'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "late\n");
}

TEST_F(ScriptProgramTest, AFileHasALongestLength) {
  work.write("script.zs", "echo one\n");
  std::filesystem::resize_file(work.file("script.zs"), 16 << 20);  // zeros: the second line, and that is too long
  const std::string script = "'" + work.file("script.zs") + "'";
  EXPECT_EQ(run(here() + script).output, "one\nerror: line 2 is longer than 65536 bytes\n");
  for (const std::uintmax_t size : {(16ULL << 20) + 1, 1ULL << 40}) {
    std::filesystem::resize_file(work.file("script.zs"), size);
    const Outcome outcome = run(here() + script);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors.substr(0, outcome.errors.find('\n')),
              "zelvs-script: cannot read " + work.file("script.zs") + ": it is longer than 16777216 bytes");
  }
}

TEST_F(ScriptProgramTest, AScriptThatCannotBeReadToItsEndIsTold) {
  // A folder opens like a file, and only reading it fails; so does the first byte of a program's memory.
  const std::pair<std::string, std::string> table[] = {
      {"< /tmp", "the standard input to its end: Is a directory"},
      {"<&-", "the standard input to its end: Bad file descriptor"},
      {"/proc/self/mem", "/proc/self/mem to its end: Input/output error"},
  };
  for (const auto& [from, told] : table) {
    const Outcome outcome = run(here() + from);
    EXPECT_EQ(outcome.status, 4) << from;
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "zelvs-script: cannot read " + told + "\n");
  }
}

TEST_F(ScriptProgramTest, AnswersThatNobodyTakesAreTold) {
  std::string much;
  for (int line = 0; line < 20000; ++line)
    much += "get iniFilePath\n";
  const std::string fullDisk = "sh -c '\"$@\" > /dev/full' sh";
  const std::pair<std::string, std::string> table[] = {
      {fullDisk, "No space left on device"},
      {"sh -c '\"$@\" >&-' sh", "Bad file descriptor"},
      // The reader has gone before the first answer comes.
      {"sh -c '{ sleep 0.3; \"$@\"; echo $? > \"$0\"; } | true; exit $(cat \"$0\")' '" + work.file("status") + "'",
       "Broken pipe"},
  };
  for (const auto& [under, told] : table) {
    for (const std::string& commands : {std::string("now\n"), much, std::string("close frmMDI\nbox\n")}) {
      const Outcome outcome = run(here(), commands, under);
      EXPECT_EQ(outcome.status, 4) << under;
      EXPECT_EQ(outcome.errors, "zelvs-script: cannot write the standard output: " + told + "\n");
    }
  }
  EXPECT_EQ(run(here(), "# says nothing\n", fullDisk).status, 0);

  // A build that counts branches would write a file of its own at the end, and tell that it cannot.
  const Outcome outcome = run(here(), much, "sh -c 'ulimit -f 8; LLVM_PROFILE_FILE=/dev/null \"$@\"' sh");
  EXPECT_EQ(outcome.status, 4);
  EXPECT_EQ(outcome.errors, "zelvs-script: cannot write the standard output: File too large\n");
}

TEST_F(ScriptProgramTest, AFileThatMayNotGrowIsLikeAFullDisk) {
  const std::string lines(10000, ';');
  folder.write("ZELVS.INI", makerIni() + lines);
  const char* save = "click frmMDI.lblDefault\nclick frmDefault.cmdAction(2)\nexpect frmDefault.Visible True\n";
  const Outcome outcome = run(here(), save, "sh -c 'ulimit -f 1; \"$@\"' sh");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "ok\n");
  EXPECT_EQ(folder.read("ZELVS.INI"), makerIni() + lines);
}

/// Every end of a script, and nothing is left in the folder for temporary files.
TEST_F(ScriptProgramTest, NothingIsLeftBehind) {
  struct End {
    const char* name;
    std::string commands;
    std::string under;
    int status;
  };
  const End ends[] = {
      {"the last line", "now\n", "", 0},
      {"inside a modal window", "close frmMDI\n", "", 0},
      {"the user's exit", "close frmMDI\nanswer ok\n", "", 0},
      {"nobody takes the answers", "now\n", "sh -c '\"$@\" > /dev/full' sh", 4},
      // The list of schematics names a file that is not there.
      {"a run-time error", "dblclick frmHard.picQVT(0)\n", "", 3},
      {"a signal", "", "sh -c 'sleep 2 | timeout -s TERM 1 \"$@\"' sh", 124},
  };
  for (const std::string& windows : {std::string(), std::string("--desktop ")}) {
    if (!windows.empty() && run("--desktop " + here()).status == 2) break;  // a build without windows
    for (const End& end : ends) {
      SCOPED_TRACE(windows + end.name);
      const TemporaryFolder temporary;
      const std::string environment =
          "-u XDG_RUNTIME_DIR -u DISPLAY -u WAYLAND_DISPLAY TMPDIR='" + temporary.path() + "' ";
      EXPECT_EQ(run(windows + here(), end.commands, environment + end.under).status, end.status);
      EXPECT_TRUE(std::filesystem::is_empty(temporary.path()));
    }
  }
}

TEST_F(ScriptProgramTest, NoArgumentIsTooLong) {
  const std::string name(5000, 'x');
  const std::string folders = "/tmp" + std::string(60000, '/') + "nowhere";
  for (const std::string& words : {"--folder " + name, "--folder " + folders, "--" + name, here() + name,
                                   here() + folders, here() + "/dev/null/" + name}) {
    const Outcome outcome = run(words);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors.substr(0, 14), "zelvs-script: ");
    EXPECT_LT(outcome.errors.find('\n'), 230U);
  }
}

TEST_F(ScriptProgramTest, TheCommandsComeFromAFileOrFromTheInput) {
  folder.write("script.zs", "echo from the file");
  EXPECT_EQ(run(here() + "'" + folder.file("script.zs") + "'", "echo from the input").output, "from the file\n");
  EXPECT_EQ(run(here(), "echo from the input").output, "from the input\n");
}

TEST_F(ScriptProgramTest, OptionsMayStandInAnyOrder) {
  folder.write("script.zs", "echo x\n");
  const Outcome outcome = run("'" + folder.file("script.zs") + "' --prompt " + here());
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, ">\nx\n>\n");
}

TEST_F(ScriptProgramTest, ThePromptHoldsAConversation) {
  // Each answer is there before the next command is given: nothing waits in a buffer.
  work.write("talk.sh",
             "set -e\n"
             "mkfifo to from\n"
             "timeout 10 \"$1\" --folder \"$2\" --prompt < to > from &\n"
             "exec 3> to 4< from\n"
             "read -r prompt <&4; echo 'get runMode' >&3\n"
             "read -r answer <&4; echo \"$prompt $answer\"\n"
             "read -r prompt <&4; echo 'now' >&3\n"
             "read -r answer <&4; echo \"$prompt $answer\"\n"
             "exec 3>&-\n"
             "wait $!\n");
  const std::string line = "cd '" + work.path() + "' && sh talk.sh '" ZELVS_SCRIPT "' '" + folder.path() + "' > said";
  EXPECT_EQ(std::system(line.c_str()), 0);
  EXPECT_EQ(work.read("said"), "> runMode = 0\n> now = 0\n");
}

TEST_F(ScriptProgramTest, WithoutAFolderTheProgramsOwnFolderIsTaken) {
  const std::string own = std::filesystem::path(ZELVS_SCRIPT).parent_path().string();
  EXPECT_EQ(run("", "get iniFilePath\n").output, "iniFilePath = \"" + own + "/ZELVS.INI\"\n");
}

TEST_F(ScriptProgramTest, AnEmptyFolderIsEnoughToStart) {
  TemporaryFolder bare;
  const Outcome outcome = run("--folder '" + bare.path() + "'", "expect startupDone -1\nexpect beepDeviceOpen 0\n");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "ok\nok\n");
  EXPECT_TRUE(std::filesystem::is_empty(bare.path())) << "the start writes nothing";
}

}  // namespace
}  // namespace zelvs
