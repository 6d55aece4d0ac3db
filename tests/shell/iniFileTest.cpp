// Reading and writing of ZELVS.INI.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "shell/iniFile.h"
#include "support/faultyFiles.h"
#include "support/program.h"
#include "text/utf16.h"
#include "ui/runTimeError.h"

namespace zelvs {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class IniFileTest : public ProgramTest {
 protected:
  IniFileTest() { iniFilePath = folder.file("ZELVS.INI"); }

  void write(const std::string& text) { folder.write("ZELVS.INI", text); }
  std::string read() { return folder.read("ZELVS.INI"); }
  std::string get(std::string_view key) { return getIniValue("INIT", key, ""); }
  std::string raw(std::string_view key) { return Profile(iniFilePath).values("INIT", {key})[0].value_or("fallback"); }
  std::vector<std::string> names() {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder.path()))
      found.push_back(entry.path().filename().string());
    return found;
  }
};

// ---- Reading

TEST_F(IniFileTest, WhereAKeyIsFound) {
  struct Row {
    const char* name;
    std::string text;
    const char* value;  // of KEY
  };
  const std::string manyLines = [] {
    std::string text = "[INIT]\r\n";
    for (int i = 0; i < 1000; ++i)
      text += "OTHER" + std::to_string(i) + "=0\r\n";
    return text + "KEY=7\r\n";
  }();
  const Row table[] = {
      {"plain", "[INIT]\r\nKEY=7\r\n", "7"},
      {"behind other keys", manyLines, "7"},
      {"behind another section", "[OTHER]\r\nKEY=1\r\n[INIT]\r\nKEY=7\r\n", "7"},
      {"in another section", "[OTHER]\r\nKEY=1\r\n[INIT]\r\n[MORE]\r\nKEY=2\r\n", "fallback"},
      {"without a section", "KEY=7\r\n", "fallback"},
      {"before its section", "KEY=1\r\n[INIT]\r\nKEY=7\r\n", "7"},
      {"doubled key", "[INIT]\r\nKEY=7\r\nKEY=8\r\n", "7"},
      {"doubled section", "[INIT]\r\nKEY=7\r\n[INIT]\r\nKEY=8\r\n", "7"},
      {"only in the second section of its name", "[INIT]\r\nOTHER=7\r\n[INIT]\r\nKEY=8\r\n", "fallback"},
      {"small letters", "[init]\r\nkey=7\r\n", "7"},
      {"mixed letters", "[Init]\r\nKey=7\r\n", "7"},
      {"blanks", "  [ INIT ]  \r\n \t KEY \t = \t 7 \t \r\n", "7"},
      {"a comment behind the section", "[INIT] ; settings\r\nKEY=7\r\n", "7"},
      {"a comment that looks like the key", "[INIT]\r\n;KEY=1\r\nKEY=7\r\n", "7"},
      {"a longer key", "[INIT]\r\nKEYS=1\r\nKEY=7\r\n", "7"},
      {"a shorter key", "[INIT]\r\nKE=1\r\nKEY=7\r\n", "7"},
      {"a longer section", "[INITS]\r\nKEY=1\r\n[INIT]\r\nKEY=7\r\n", "7"},
      {"no equals sign", "[INIT]\r\nKEY\r\n", "fallback"},
      {"empty value", "[INIT]\r\nKEY=\r\n", ""},
      {"a second equals sign", "[INIT]\r\nKEY=7=8\r\n", "7=8"},
      {"byte order mark", "\xEF\xBB\xBF[INIT]\r\nKEY=7\r\n", "7"},
      {"line feeds only", "[INIT]\nKEY=7\n", "7"},
      {"no last line end", "[INIT]\r\nKEY=7", "7"},
      {"blank lines", "\r\n\r\n[INIT]\r\n\r\n\r\nKEY=7\r\n", "7"},
      {"an unclosed section", "[INIT\r\nKEY=7\r\n", "fallback"},
      {"empty file", "", "fallback"},
      {"one byte", "[", "fallback"},
      {"zero bytes before", "\0\0\0\r\n[INIT]\r\nKEY=7\r\n"s, "7"},
      {"zero bytes inside", "[INIT]\r\nA=\0\0\r\n\0\r\nKEY=7\r\n"s, "7"},
      {"binary",
       "\x7F"
       "ELF\x02\x01\x00\x00\xFF\xFE=[=\r\r\n\n]\n["s,
       "fallback"},
      {"quotation marks", "[INIT]\r\nKEY=\"7\"\r\n", "7"},
      {"single quotation marks", "[INIT]\r\nKEY='7'\r\n", "7"},
      {"quotation marks keep blanks", "[INIT]\r\nKEY=\" 7 \"\r\n", " 7 "},
      {"one pair of quotation marks", "[INIT]\r\nKEY=\"\"7\"\"\r\n", "\"7\""},
      {"quotation marks that do not match", "[INIT]\r\nKEY=\"7'\r\n", "\"7'"},
      {"one quotation mark", "[INIT]\r\nKEY=\"\r\n", "\""},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    write(row.text);
    EXPECT_EQ(raw("KEY"), row.value);
  }
}

TEST_F(IniFileTest, NoFileReadsAsTheFallback) {
  EXPECT_EQ(raw("KEY"), "fallback");
  EXPECT_EQ(getIniValue("INIT", "KEY", "3"), "3");
  EXPECT_EQ(get("KEY"), "");
  iniFilePath = folder.file("nowhere/ZELVS.INI");
  EXPECT_EQ(get("KEY"), "");
}

TEST_F(IniFileTest, AValueIsTheNumberThatItBeginsWith) {
  const std::pair<const char*, const char*> table[] = {
      {"0", "0"},         {"1", "1"},         {"12abc", "12"},   {"abc", "0"},
      {"-1", "-1"},       {"+3", "3"},        {"1.5", "1.5"},    {".5", "0.5"},
      {"-2.5", "-2.5"},   {"-.5", "-0.5"},    {"1.", "1"},       {"1.5.5", "1.5"},
      {"007", "7"},       {"1 2", "1"},       {"1 ; note", "1"}, {"--1", "0"},
      {"-", "0"},         {".", "0"},         {"-abc", "0"},     {"0x10", "0"},
      {"65535", "65535"}, {"\"5\"", "5"},     {"\" 5\"", "5"},   {"１", "0"},
      {"0.3", "0.3"},     {"99999", "99999"}, {"", ""},          {"2.512222223036001", "2.512222223036001"},
  };
  for (const auto& [value, number] : table) {
    write("[INIT]\r\nKEY="s + value + "\r\n");
    EXPECT_EQ(get("KEY"), number) << "KEY=" << value;
  }
}

TEST_F(IniFileTest, AWholeNumberIsRoundedToEvenAndHasSixteenBits) {
  const std::pair<double, int> table[] = {
      {0, 0},      {0.5, 0},   {1.5, 2},    {2.5, 2},         {3.5, 4},        {-0.5, 0},
      {-1.5, -2},  {-2.5, -2}, {0.4999, 0}, {0.5001, 1},      {32767, 32767},  {32768, -32768},
      {65535, -1}, {65536, 0}, {65537, 1},  {-32768, -32768}, {-32769, 32767}, {1e20, 0},
  };
  for (const auto& [number, whole] : table) {
    EXPECT_EQ(wholeNumber16(number), whole) << number;
  }
}

TEST_F(IniFileTest, AValueIsCutAt255Bytes) {
  write("[INIT]\r\nKEY=" + std::string(300, 'x') + "\r\nNEXT=7\r\n");
  EXPECT_EQ(raw("KEY"), std::string(255, 'x'));
  EXPECT_EQ(get("NEXT"), "7");
  write("[INIT]\r\nKEY=" + std::string(300, '9') + "\r\n");
  EXPECT_EQ(raw("KEY").size(), 255u);
  EXPECT_GE(get("KEY").size(), 255u);
  EXPECT_EQ(get("KEY").find_first_not_of("0123456789"), std::string::npos) << "in full, never with an exponent";
}

TEST_F(IniFileTest, SettingsAreReadAsSixteenBitNumbers) {
  const std::pair<const char*, int> table[] = {
      {"0", 0},  {"1", 1},     {"-1", -1},    {"1.5", 2}, {"2.5", 2},    {"0.5", 0},
      {".5", 0}, {"-2.5", -2}, {"65535", -1}, {"abc", 0}, {"12abc", 12}, {"", 0},
  };
  for (const auto& [value, number] : table) {
    write("[INIT]\r\nCPUTYPE="s + value + "\r\n");
    readIniFile();
    EXPECT_EQ(cpuType, number) << "CPUTYPE=" << value;
  }
}

TEST_F(IniFileTest, EverySettingHasItsKey) {
  struct Row {
    const char* key;
    std::int16_t& variable;
  };
  const Row table[] = {
      {"CABLECONNECTION", cableConnection},
      {"MEMORYCLEAR", memoryClear},
      {"CPUTYPE", cpuType},
      {"TRANSFER", transferSetting[0]},
      {"SA-QVT40-1", saSetting[0]},
      {"SA-QVT40-3", saSetting[1]},
      {"SA-QVT50", saSetting[2]},
      {"CLOCK-QVT60", clockSetting[0]},
      {"CLOCK-QVT40-1", clockSetting[1]},
      {"CLOCK-QVT40-3", clockSetting[2]},
      {"CLOCK-QVT50", clockSetting[3]},
      {"CASCADE-QVT40-12", cascadeSetting[1]},
      {"CASCADE-QVT40-34", cascadeSetting[2]},
      {"IOS-QVT50", ioBoardMode},
      {"MODE-QVT50", ioBoardCounterMode},
      {"OPENWINDOW1", openWindow[1]},
      {"OPENWINDOW2", openWindow[2]},
      {"OPENWINDOW3", openWindow[3]},
      {"OPENWINDOW4", openWindow[4]},
      {"OPENWINDOW5", openWindow[5]},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.key);
    write("[INIT]\r\n"s + row.key + "=123\r\n");
    readIniFile();
    for (const Row& other : table)
      EXPECT_EQ(other.variable, &other == &row ? 123 : 0) << other.key;
  }
}

TEST_F(IniFileTest, TheTransferSettingIsCopiedToAllBoards) {
  write("[INIT]\r\nTRANSFER=1\r\n");
  readIniFile();
  for (int board = 0; board <= 4; ++board)
    EXPECT_EQ(transferSetting[board], 1);
}

TEST_F(IniFileTest, NoFileReadsAsZeroEverywhere) {
  Mdef_Set();
  readIniFile();
  EXPECT_EQ(iniFilePath, folder.file("ZELVS.INI"));
  EXPECT_EQ(cableConnection, 0);
  EXPECT_EQ(memoryClear, 0);
  EXPECT_EQ(ioBoardMode, 0);
  EXPECT_EQ(saSetting[1], 0);
  EXPECT_EQ(saSetting[2], 0);
  EXPECT_EQ(cascadeSetting[1], 0);
  for (int window = 1; window <= 5; ++window)
    EXPECT_EQ(openWindow[window], 0);
  EXPECT_FALSE(fs::exists(iniFilePath)) << "reading makes no file";
}

TEST_F(IniFileTest, TheMakersValues) {
  for (std::int16_t* variable : {&cableConnection, &memoryClear, &cpuType, &ioBoardMode, &ioBoardCounterMode}) {
    *variable = 77;
  }
  for (auto range :
       {std::pair{transferSetting.begin(), transferSetting.end()}, std::pair{saSetting.begin(), saSetting.end()},
        std::pair{clockSetting.begin(), clockSetting.end()}, std::pair{cascadeSetting.begin(), cascadeSetting.end()},
        std::pair{openWindow.begin(), openWindow.end()}}) {
    std::fill(range.first, range.second, std::int16_t{77});
  }
  Mdef_Set();
  const auto values = [](auto& array) { return std::vector<int>(array.begin(), array.end()); };
  EXPECT_EQ(cableConnection, 1);
  EXPECT_EQ(memoryClear, 1);
  EXPECT_EQ(cpuType, 0);
  EXPECT_EQ(values(transferSetting), (std::vector<int>{0, 0, 0, 0, 0}));
  EXPECT_EQ(values(saSetting), (std::vector<int>{0, 2, 4}));
  EXPECT_EQ(values(clockSetting), (std::vector<int>{0, 0, 0, 0}));
  EXPECT_EQ(values(cascadeSetting), (std::vector<int>{1, 1}));
  EXPECT_EQ(ioBoardMode, 5);
  EXPECT_EQ(ioBoardCounterMode, 0);
  EXPECT_EQ(values(openWindow), (std::vector<int>{1, 1, 1, 0, 0}));
}

TEST_F(IniFileTest, AFolderOrAPipeInThePlaceOfTheFileIsNoFile) {
  ASSERT_EQ(mkdir(iniFilePath.c_str(), 0700), 0);
  EXPECT_EQ(get("KEY"), "");
  writeIniValue("INIT", "KEY", "1");
  EXPECT_TRUE(fs::is_directory(iniFilePath));
  ASSERT_EQ(rmdir(iniFilePath.c_str()), 0);
  // Opening a pipe that nobody writes to would wait for ever.
  ASSERT_EQ(mkfifo(iniFilePath.c_str(), 0600), 0);
  EXPECT_EQ(get("KEY"), "");
  writeIniValue("INIT", "KEY", "1");
  EXPECT_TRUE(fs::is_fifo(iniFilePath));
  EXPECT_EQ(names(), std::vector<std::string>{"ZELVS.INI"});
}

TEST_F(IniFileTest, AFileOfHundredMegabytesIsReadInNoTime) {
  constexpr off_t kSize = 100'000'000;
  constexpr auto kPatience = std::chrono::seconds(20);  // many times what it takes
  const auto timeToRead = [] {
    const auto before = std::chrono::steady_clock::now();
    readIniFile();
    return std::chrono::steady_clock::now() - before;
  };
  write("[INIT]\r\nCPUTYPE=3\r\n");
  ASSERT_EQ(truncate(iniFilePath.c_str(), kSize), 0);
  EXPECT_LT(timeToRead(), kPatience) << "zero bytes";
  EXPECT_EQ(cpuType, 3);

  std::string lines = "[INIT]\r\nCPUTYPE=2\r\n";
  lines.reserve(kSize);
  while (lines.size() < kSize)
    lines += "SOME-OTHER-SETTING=some other value\r\n";
  write(lines);
  EXPECT_LT(timeToRead(), kPatience) << "lines";
  EXPECT_EQ(cpuType, 2);
}

// ---- Writing

TEST_F(IniFileTest, WritingReplacesOneKeyAndKeepsTheRest) {
  struct Row {
    const char* name;
    std::string before;
    std::string after;  // KEY=9 in section INIT
  };
  const Row table[] = {
      {"replaces", "[INIT]\r\nA=1\r\nKEY=7\r\nB=2\r\n", "[INIT]\r\nA=1\r\nKEY=9\r\nB=2\r\n"},
      {"adds to its section", "[INIT]\r\nA=1\r\n", "[INIT]\r\nA=1\r\nKEY=9\r\n"},
      {"adds behind the last line that is not blank", "[INIT]\r\nA=1\r\n\r\n[MORE]\r\nB=2\r\n",
       "[INIT]\r\nA=1\r\nKEY=9\r\n\r\n[MORE]\r\nB=2\r\n"},
      {"adds to an empty section", "[INIT]\r\n[MORE]\r\nKEY=2\r\n", "[INIT]\r\nKEY=9\r\n[MORE]\r\nKEY=2\r\n"},
      {"adds the section", "[MORE]\r\nKEY=2\r\n", "[MORE]\r\nKEY=2\r\n[INIT]\r\nKEY=9\r\n"},
      {"to an empty file", "", "[INIT]\r\nKEY=9\r\n"},
      {"keeps comments and unknown lines", "; mine\r\n\r\n[INIT]\r\n;KEY=1\r\nwhat is this\r\nKEY=7\r\n=\r\n",
       "; mine\r\n\r\n[INIT]\r\n;KEY=1\r\nwhat is this\r\nKEY=9\r\n=\r\n"},
      {"keeps line feeds", "[INIT]\nKEY=7\nA=1\n", "[INIT]\nKEY=9\nA=1\n"},
      {"adds with line feeds", "[INIT]\nA=1\n", "[INIT]\nA=1\nKEY=9\n"},
      {"the first of two keys", "[INIT]\r\nKEY=7\r\nKEY=8\r\n", "[INIT]\r\nKEY=9\r\nKEY=8\r\n"},
      {"in the first of two sections", "[INIT]\r\nKEY=7\r\n[INIT]\r\nKEY=8\r\n",
       "[INIT]\r\nKEY=9\r\n[INIT]\r\nKEY=8\r\n"},
      {"small letters", "[init]\r\nkey=7\r\n", "[init]\r\nKEY=9\r\n"},
      {"replaces without a last line end", "[INIT]\r\nKEY=7", "[INIT]\r\nKEY=9"},
      {"adds without a last line end", "[INIT]\r\nA=1", "[INIT]\r\nA=1\r\nKEY=9\r\n"},
      {"adds the section without a last line end", "[MORE]\r\nA=1", "[MORE]\r\nA=1\r\n[INIT]\r\nKEY=9\r\n"},
      {"keeps zero bytes", "\0\0\r\n[INIT]\r\nA=\0\r\nKEY=7\r\n"s, "\0\0\r\n[INIT]\r\nA=\0\r\nKEY=9\r\n"s},
      {"keeps the byte order mark", "\xEF\xBB\xBF[INIT]\r\nKEY=7\r\n", "\xEF\xBB\xBF[INIT]\r\nKEY=9\r\n"},
      {"the same value", "[INIT]\r\nKEY=9\r\n", "[INIT]\r\nKEY=9\r\n"},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    write(row.before);
    writeIniValue("INIT", "KEY", "9");
    EXPECT_EQ(read(), row.after);
    EXPECT_EQ(get("KEY"), "9");
    EXPECT_EQ(names(), std::vector<std::string>{"ZELVS.INI"}) << "nothing else is left in the folder";
  }
}

TEST_F(IniFileTest, WritingMakesTheFile) {
  writeIniValue("INIT", "KEY", "9");
  EXPECT_EQ(read(), "[INIT]\r\nKEY=9\r\n");
}

TEST_F(IniFileTest, AllKeysWrittenComeBack) {
  write("[INIT]\r\nCPUTYPE=1\r\n");
  for (int i = 0; i < 20; ++i)
    writeIniValue("INIT", "KEY" + std::to_string(i), std::to_string(i));
  for (int i = 0; i < 20; ++i)
    EXPECT_EQ(get("KEY" + std::to_string(i)), std::to_string(i));
  EXPECT_EQ(get("CPUTYPE"), "1");
}

TEST_F(IniFileTest, AReadOnlyFileStaysAsItIs) {
  write("[INIT]\r\nKEY=7\r\n");
  ASSERT_EQ(chmod(iniFilePath.c_str(), 0444), 0);
  writeIniValue("INIT", "KEY", "9");
  writeIniValue("INIT", "OTHER", "9");
  EXPECT_EQ(read(), "[INIT]\r\nKEY=7\r\n");
  EXPECT_EQ(names(), std::vector<std::string>{"ZELVS.INI"});
}

TEST_F(IniFileTest, TheFilesModeIsKept) {
  write("[INIT]\r\nKEY=7\r\n");
  ASSERT_EQ(chmod(iniFilePath.c_str(), 0640), 0);
  writeIniValue("INIT", "KEY", "9");
  EXPECT_EQ(get("KEY"), "9");
  EXPECT_EQ(static_cast<int>(fs::status(iniFilePath).permissions()), 0640);
}

TEST_F(IniFileTest, AFolderThatCannotBeWrittenIsNothingToTalkAbout) {
  folder.write("file", "");
  // No folder, a file in the folder's place, and a folder in which nobody can make files.
  for (const std::string& path :
       {folder.file("nowhere/ZELVS.INI"), folder.file("file/ZELVS.INI"), "/proc/ZELVS.INI"s}) {
    iniFilePath = path;
    testing::internal::CaptureStderr();
    writeIniValue("INIT", "KEY", "9");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << path;
    EXPECT_EQ(get("KEY"), "") << path;
  }
  EXPECT_EQ(names(), std::vector<std::string>{"file"});
}

/// As somebody who may not write everywhere: an administrator may. Runs in a process of its own.
template <class Work>
void asPlainUser(Work work) {
  EXPECT_EXIT(
      {
        if (geteuid() == 0) setuid(65534);
        work();
        std::exit(0);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(IniFileTest, InAFolderThatTakesNoNewFileTheOldOneIsWrittenOver) {
  for (const char* old : {"[INIT]\r\nKEY=7\r\nA=1\r\n", "[INIT]\r\nKEY=1234567\r\nA=1\r\n", "A=1\r\n[INIT]\r\n"}) {
    write(old);
    ASSERT_EQ(chmod(iniFilePath.c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    asPlainUser([] { writeIniValue("INIT", "KEY", "90"); });
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    EXPECT_EQ(get("KEY"), "90");
    EXPECT_NE(read().find("A=1\r\n"), std::string::npos);
    EXPECT_EQ(read().substr(read().size() - 2), "\r\n") << "nothing of a longer text is left behind it";
    EXPECT_EQ(names(), std::vector<std::string>{"ZELVS.INI"});
  }
}

TEST_F(IniFileTest, ThereAFullDiskLeavesTheOldTextToo) {
  write("[INIT]\r\nA=1\r\n");
  ASSERT_EQ(chmod(iniFilePath.c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
  asPlainUser([] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{16, 16};  // more than the old text, less than the new one
    setrlimit(RLIMIT_FSIZE, &full);
    writeIniValue("INIT", "KEY", "9");
  });
  ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
  EXPECT_EQ(read(), "[INIT]\r\nA=1\r\n");
}

TEST_F(IniFileTest, ALinkStaysALink) {
  ASSERT_EQ(mkdir(folder.file("there").c_str(), 0700), 0);
  folder.write("there/real.ini", "[INIT]\r\nKEY=7\r\n");
  fs::create_symlink("there/real.ini", iniFilePath);
  writeIniValue("INIT", "KEY", "9");
  EXPECT_TRUE(fs::is_symlink(iniFilePath));
  EXPECT_EQ(folder.read("there/real.ini"), "[INIT]\r\nKEY=9\r\n");
  int files = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder.file("there")))
    ++files;
  EXPECT_EQ(files, 1);
}

TEST_F(IniFileTest, ALinkToNowhereIsLeftAlone) {
  fs::create_symlink("nowhere/real.ini", iniFilePath);
  writeIniValue("INIT", "KEY", "9");
  EXPECT_TRUE(fs::is_symlink(iniFilePath));
  EXPECT_EQ(names(), std::vector<std::string>{"ZELVS.INI"});
}

TEST_F(IniFileTest, BehindALinkTheFileIsMadeWhereThereIsAFolderForIt) {
  fs::create_symlink("real.ini", iniFilePath);
  EXPECT_EQ(get("KEY"), "");
  writeIniValue("INIT", "KEY", "9");
  EXPECT_TRUE(fs::is_symlink(iniFilePath));
  EXPECT_EQ(folder.read("real.ini"), "[INIT]\r\nKEY=9\r\n");
}

// ---- Read errors

TEST_F(IniFileTest, AReadErrorWhileSavingLosesNoLine) {
  std::string before = "[INIT]\r\nKEY=7\r\n[OTHERS]\r\n";
  for (int line = 0; line < 3000; ++line)
    before += "SETTING" + std::to_string(line) + "=of another program\r\n";
  write(before);
  FaultyFiles files;
  files.only = "read";
  files.at = 1;
  for (const std::errc error : {std::errc::io_error, std::errc::permission_denied}) {
    files.calls.clear();
    files.error = error;
    writeIniValue("INIT", "KEY", "9");
    EXPECT_EQ(files.calls.size(), 1u);
    EXPECT_EQ(read(), before);
  }
  // A short read is no end of the file.
  files.calls.clear();
  files.fault = FaultyFiles::Fault::HalfWay;
  writeIniValue("INIT", "KEY", "9");
  EXPECT_EQ(read(), "[INIT]\r\nKEY=9" + before.substr(before.find("\r\n[OTHERS]")));
}

TEST_F(IniFileTest, AFileThatIsThereAndCannotBeReadIsNoFileOfZeros) {
  write("[INIT]\r\nCPUTYPE=2\r\n");
  FaultyFiles files;
  files.only = "read";
  files.at = 1;
  EXPECT_EXIT(readIniFile(), testing::ExitedWithCode(kRunTimeErrorStatus),
              "ZELVS.INI cannot be read: Input/output error");
  EXPECT_EXIT(get("CPUTYPE"), testing::ExitedWithCode(kRunTimeErrorStatus),
              "ZELVS.INI cannot be read: Input/output error");
}

TEST_F(IniFileTest, AFileOfATerabyteIsRefusedAtOnce) {
  write("[INIT]\r\nCPUTYPE=2\r\n");
  ASSERT_EQ(truncate(iniFilePath.c_str(), off_t{1} << 40), 0);
  EXPECT_EXIT(readIniFile(), testing::ExitedWithCode(kRunTimeErrorStatus),
              "ZELVS.INI cannot be read: larger than 134217728 bytes");
  writeIniValue("INIT", "KEY", "9");
  EXPECT_EQ(static_cast<off_t>(fs::file_size(iniFilePath)), off_t{1} << 40);
}

// ---- UTF-16

TEST_F(IniFileTest, AFileInUtf16IsReadAndStaysOne) {
  for (const ByteOrder order : {ByteOrder::LowFirst, ByteOrder::HighFirst}) {
    const auto inUtf16 = [&](const std::string& text) { return utf16FromUtf8("\uFEFF" + text, order); };
    write(inUtf16("; 設定 𠮷\r\n[INIT]\r\nCPUTYPE=2\r\nKEY=7\r\n"));
    readIniFile();
    EXPECT_EQ(cpuType, 2);
    writeIniValue("INIT", "KEY", "9");
    EXPECT_EQ(read(), inUtf16("; 設定 𠮷\r\n[INIT]\r\nCPUTYPE=2\r\nKEY=9\r\n"));
    writeIniValue("INIT", "NEW", "1");
    EXPECT_EQ(read(), inUtf16("; 設定 𠮷\r\n[INIT]\r\nCPUTYPE=2\r\nKEY=9\r\nNEW=1\r\n"));
  }
}

TEST_F(IniFileTest, WhatBeginsAsUtf16AndIsNoneIsRefusedAndStays) {
  for (const std::string& damaged : {"\xFF\xFE["s, "\xFE\xFF\xD8\x00"s, "\xFF\xFE\x00\xDC"s}) {
    write(damaged);
    EXPECT_EXIT(readIniFile(), testing::ExitedWithCode(kRunTimeErrorStatus),
                "ZELVS.INI cannot be read: it begins as UTF-16 and is none");
    writeIniValue("INIT", "KEY", "9");
    EXPECT_EQ(read(), damaged);
  }
}

}  // namespace
}  // namespace zelvs
