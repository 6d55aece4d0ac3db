// zelvs as a program.

#include <filesystem>

#include "support/outcome.h"
#include "support/wave.h"

namespace zelvs {
namespace {

namespace fs = std::filesystem;

/// The program in a folder of its own, off-screen.
class DesktopProgramTest : public testing::Test {
 protected:
  DesktopProgramTest() {
    fs::copy_file(ZELVS, folder.file("zelvs"));
    folder.write("ZELVS.INI", makerIni());
  }

  Outcome run(const std::string& words, const std::string& environment = "QT_QPA_PLATFORM=offscreen") {
    return runOutside(folder.file("zelvs"), words, "", environment + " TMPDIR='" + temporary.path() + "'");
  }

  TemporaryFolder folder;
  TemporaryFolder temporary;
};

TEST_F(DesktopProgramTest, ARunTimeErrorIsToldWithWhatWasDoneAndWhereItsReportLies) {
  folder.write("ZELVS.INI", makerIni({{"CPUTYPE", "4"}}));
  const Outcome outcome = run("");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_EQ(outcome.output, "");
  const std::string words =
      folder.file("ZELVS.INI") +
      ": CPUTYPE=4 is no position of the list frmHard.cmbCPUType, which has the positions 0 to 3\n"
      "while loading the window frmHard\n"
      "while starting up\n";
  const std::string start = "ZEL-VS: " + words + "A report of it lies in ";
  const std::size_t at = outcome.errors.find(start);
  ASSERT_NE(at, std::string::npos) << outcome.errors;
  const std::string path =
      outcome.errors.substr(at + start.size(), outcome.errors.find('\n', at + start.size()) - at - start.size());
  EXPECT_EQ(fs::path(path).parent_path(), temporary.path());
  EXPECT_NE(temporary.read(fs::path(path).filename().string()).find(words), std::string::npos);
}

constexpr const char* kUsage = "usage: zelvs [--check | --help | --version] [ARGUMENT OF THE TOOLKIT...]\n";

TEST_F(DesktopProgramTest, HelpAndVersionNeedNoDisplay) {
  const std::string none = "-u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM";
  const Outcome help = run("--help", none);
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.output.starts_with(kUsage)) << help.output;
  const Outcome version = run("--version", none);
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.output, "ZELVS 1.00\n");
  EXPECT_EQ(version.errors, "");
  EXPECT_EQ(run("--version > /dev/full", none).status, 1);
}

TEST_F(DesktopProgramTest, AnArgumentThatNobodyKnowsIsToldWithTheUsage) {
  for (const char* display : {"-u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM", "QT_QPA_PLATFORM=offscreen"}) {
    for (const char* words :
         {"--unknown", "-style fusion --unknown", "--check --unknown", "--unknown -platform offscreen"}) {
      const Outcome outcome = run(words, display);
      EXPECT_EQ(outcome.status, 2) << words;
      EXPECT_EQ(outcome.output, "");
      EXPECT_NE(outcome.errors.find(std::string("zelvs: unknown argument: --unknown\n") + kUsage), std::string::npos)
          << outcome.errors;
    }
  }
}

TEST_F(DesktopProgramTest, ArgumentsOfTheToolkitAreTaken) {
  // Each comes as far as to the settings, which end it.
  folder.write("ZELVS.INI", makerIni({{"CPUTYPE", "4"}}));
  for (const char* words : {"-style fusion", "-style=fusion", "-platform offscreen", "--platform offscreen -reverse",
                            "-display :0 -platform offscreen"}) {
    EXPECT_EQ(run(words, "-u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen").status, 3) << words;
  }
}

TEST_F(DesktopProgramTest, WithoutADisplayItSaysSo) {
  const std::string none = "-u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM";
  for (const char* words : {"", "-style fusion"}) {
    const Outcome outcome = run(words, none);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.errors.find("zelvs: there is no display (neither DISPLAY"), std::string::npos) << outcome.errors;
  }
}

TEST_F(DesktopProgramTest, ALookOverTheInstallationNeedsNoDisplay) {
  struct Row {
    const char* environment;
    const char* line;
  };
  const Row table[] = {
      {"-u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM",
       "WRONG  display: there is none, neither DISPLAY nor WAYLAND_DISPLAY is set\n"},
      {"-u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY=:7777", "WRONG  display: there is none that answers to :7777\n"},
      {"-u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen", "right  display: 800 by 800 pixels at scale 1"},
  };
  for (const Row& row : table) {
    const Outcome outcome = run("--check", row.environment);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.output.find("right  program folder: " + folder.path() + "\n"), std::string::npos);
    EXPECT_NE(outcome.output.find("WRONG  NaviData: NaviIndex.txt is missing"), std::string::npos);
    EXPECT_NE(outcome.output.find(row.line), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("  font: "), std::string::npos);
    EXPECT_NE(outcome.output.find("  sound: "), std::string::npos);
  }
}

TEST_F(DesktopProgramTest, ASoundIsTriedByThePlayerItself) {
  fs::copy_file(ZELVS_FOLDER "/BEEP.WAV", folder.file("BEEP.WAV"));
  EXPECT_NE(run("--check").output.find("right  sound: BEEP.WAV can be played\n"), std::string::npos);
  // A file that is none is not given to the player, which may wait for the rest of it without end.
  folder.write("BEEP.WAV", silentWave().substr(0, 40));
  const std::string told = run("--check").output;
  EXPECT_NE(told.find("WRONG  BEEP.WAV: is missing or no wave file"), std::string::npos);
  EXPECT_EQ(told.find("sound: BEEP.WAV"), std::string::npos);
}

}  // namespace
}  // namespace zelvs
