// zelvs as a program.

#include <filesystem>

#include "support/outcome.h"

namespace zelvs {
namespace {

/// The program in a folder of its own, off-screen.
class DesktopProgramTest : public testing::Test {
 protected:
  DesktopProgramTest() {
    std::filesystem::copy_file(ZELVS, folder.file("zelvs"));
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
  EXPECT_EQ(std::filesystem::path(path).parent_path(), temporary.path());
  EXPECT_NE(temporary.read(std::filesystem::path(path).filename().string()).find(words), std::string::npos);
}

}  // namespace
}  // namespace zelvs
