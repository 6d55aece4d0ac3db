// The report of a run-time error: what it holds, and that it never takes the place of anything.

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <optional>

#include "shell/frmVersion.h"
#include "shell/report.h"
#include "support/program.h"
#include "ui/runTimeError.h"

namespace zelvs {
namespace {

constexpr std::string_view kLiesIn = "A report of it lies in ";

/// The folder for temporary files is one of its own.
class ReportTest : public ProgramTest {
 protected:
  ReportTest() {
    if (const char* before = std::getenv("TMPDIR")) before_ = before;
    setTemporary(temporary.path());
  }
  ~ReportTest() override {
    if (before_) {
      setTemporary(*before_);
    } else {
      unsetenv("TMPDIR");
    }
  }

  static void setTemporary(const std::string& path) { setenv("TMPDIR", path.c_str(), 1); }
  /// The name of the report's file; empty when none was written.
  std::string keep(const std::string& text) {
    const std::string told = keepReport(text);
    if (!told.starts_with(kLiesIn)) return {};
    return std::filesystem::path(told.substr(kLiesIn.size())).filename().string();
  }
  int files() const {
    const std::filesystem::directory_iterator all(temporary.path());
    return static_cast<int>(std::distance(begin(all), end(all)));
  }

  TemporaryFolder temporary;

 private:
  std::optional<std::string> before_;
};

TEST_F(ReportTest, TellsWhatWentWrongInWhatAndWithWhichSettings) {
  start({{"CPUTYPE", "2"}});
  const Deed deed("opening the lesson", "first.txt");
  const std::string name = keep("lesson file not found: first.txt");
  EXPECT_TRUE(name.starts_with("zelvs-report-") && name.ends_with(".txt")) << name;
  const std::string report = temporary.read(name);
  EXPECT_TRUE(report.starts_with("ZELVS 1.00, 20")) << report;
  for (const std::string& part :
       {std::string("\nlesson file not found: first.txt\nwhile opening the lesson first.txt\n"),
        "The program lies in " + folder.path() + " ", std::string("\nCPUTYPE=2\n"), std::string("\nOPENWINDOW5=0\n")}) {
    EXPECT_NE(report.find(part), std::string::npos) << part << "is not in\n" << report;
  }
}

TEST_F(ReportTest, EachHasAFileOfItsOwn) {
  const std::string first = keep("first");
  const std::string second = keep("second");
  EXPECT_NE(first, second);
  EXPECT_EQ(files(), 2);
  EXPECT_NE(temporary.read(first).find("first"), std::string::npos);
}

TEST_F(ReportTest, NoLinkIsFollowed) {
  // The names that it may take in the next seconds.
  folder.write("precious", "as it was");
  for (int second = 0; second < 10; ++second) {
    const std::time_t then = std::time(nullptr) + second;
    char name[64];
    std::strftime(name, sizeof name, "zelvs-report-%Y%m%d-%H%M%S.txt", std::localtime(&then));
    std::filesystem::create_symlink(folder.file(second % 2 == 0 ? "precious" : "nothing"), temporary.file(name));
  }
  const std::string name = keep("text");
  EXPECT_NE(temporary.read(name).find("text"), std::string::npos);
  EXPECT_EQ(files(), 11);
  EXPECT_EQ(folder.read("precious"), "as it was");
  EXPECT_FALSE(std::filesystem::exists(folder.file("nothing")));
}

TEST_F(ReportTest, WhereNoneCanBeWrittenTheUserIsToldSo) {
  const std::string none = "A report of it could not be written; these words stand on standard error.";
  setTemporary("/nowhere/at/all");
  EXPECT_EQ(keepReport("text"), none);
  setTemporary("/proc");  // a folder that takes no file from anybody
  EXPECT_EQ(keepReport("text"), none);
}

}  // namespace
}  // namespace zelvs
