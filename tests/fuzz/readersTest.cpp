// Files of any bytes at all: every reader takes them or refuses them, and what a writer leaves comes back.

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "lessons/frmNavigation.h"
#include "lessons/naviIndex.h"
#include "monitor/frmHint.h"
#include "shell/iniFile.h"
#include "support/bitmap.h"
#include "support/program.h"
#include "text/codePage932.h"
#include "text/textFile.h"
#include "text/utf8.h"

namespace zelvs {
namespace {

constexpr int kRounds = 400;

class RandomBytesTest : public ProgramTest {
 protected:
  std::size_t upTo(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_); }

  /// Bytes with more line ends, TABs, marks and lead bytes than chance would give.
  std::string bytes(std::size_t most) {
    static const std::string kUsual = "\r\n\t;=[]&#\\ \"'-.0129AKEY";
    std::string text(upTo(most + 1), '\0');
    for (char& byte : text) {
      switch (upTo(4)) {
        case 0:
          byte = static_cast<char>(upTo(256));
          break;
        case 1:
          byte = static_cast<char>(0x81 + upTo(0x7C));
          break;
        default:
          byte = kUsual[upTo(kUsual.size())];
      }
    }
    return text;
  }
  /// A text that is like a well-formed one but for a few bytes.
  std::string damaged(std::string text) {
    for (std::size_t faults = upTo(6); faults > 0 && !text.empty(); --faults) {
      const std::size_t at = upTo(text.size());
      if (upTo(3) == 0) {
        text.erase(at, 1 + upTo(4));
      } else {
        text.insert(at, bytes(4));
      }
    }
    return text;
  }

  std::mt19937 random_{932};
};

TEST_F(RandomBytesTest, AnyBytesAreText) {
  for (int round = 0; round < kRounds; ++round) {
    const std::string raw = bytes(60);
    const std::string text = utf8FromCodePage932(raw);
    const std::u32string characters = charactersOf(text);
    EXPECT_EQ(textOf(characters), text) << "well-formed";
    EXPECT_LE(characters.size(), raw.size());
    std::size_t lackingAt = 0;
    if (const auto back = codePage932FromUtf8(text, lackingAt)) {
      EXPECT_EQ(utf8FromCodePage932(*back), text);
    } else {
      EXPECT_EQ(text.find("\uFFFD"), lackingAt) << "only what was no character has no code";
    }
    folder.write("text", raw);
    const auto lines = readTextFile(folder.file("text"));
    ASSERT_TRUE(lines);
    const auto ends = std::count(raw.begin(), raw.end(), '\n') + (raw.empty() || raw.back() == '\n' ? 0 : 1);
    EXPECT_EQ(static_cast<std::ptrdiff_t>(lines->size()), ends);
  }
}

TEST_F(RandomBytesTest, WhatIsWrittenIntoAnyIniFileComesBack) {
  iniFilePath = folder.file("ZELVS.INI");
  for (int round = 0; round < kRounds; ++round) {
    const std::string before = upTo(2) == 0 ? bytes(80) : damaged(makerIni());
    folder.write("ZELVS.INI", before);
    const std::string value = std::to_string(static_cast<int>(upTo(200)) - 100);
    const std::string key = upTo(2) == 0 ? "CPUTYPE" : "KEY";
    writeIniValue("INIT", key, value);
    EXPECT_EQ(getIniValue("INIT", key, ""), value) << before;
    const std::string once = folder.read("ZELVS.INI");
    writeIniValue("INIT", key, value);
    EXPECT_EQ(folder.read("ZELVS.INI"), once) << "a second time changes nothing";
    readIniFile();
  }
}

TEST_F(RandomBytesTest, AnyLessonIsShownToItsEnd) {
  std::filesystem::create_directory(folder.file("NaviData"));
  start({{"OPENWINDOW1", "0"}, {"OPENWINDOW2", "0"}, {"OPENWINDOW3", "0"}});
  for (int round = 0; round < kRounds / 3; ++round) {
    folder.write("NaviData/a.txt", "first\r\nsecond\r\nthird\r\n" + bytes(200));
    frmNavigation->setNavigation("a.txt");
    EXPECT_EQ(frmNavigation->pageCount, static_cast<int>(frmNavigation->naviLines.size() / 3));
    for (int page = 1; page <= frmNavigation->pageCount; ++page) {
      frmNavigation->showPage(page);
      for (int strip = 0; strip < 2; ++strip) {
        std::string wanted = frmNavigation->naviLines[static_cast<std::size_t>(3 * (page - 1) + strip)];
        std::erase_if(wanted, [](char c) { return c == '&' || c == '#' || c == '\\'; });
        std::string shown;
        for (const DrawingOperation& item : frmNavigation->picNav(strip).drawing())
          shown += item.text;
        EXPECT_EQ(shown, wanted);
      }
    }
  }
}

TEST_F(RandomBytesTest, AnyListOfHintsGivesATabALine) {
  std::filesystem::create_directory(folder.file("HintData"));
  folder.write("HintData/a.bmp", bitmapOf(20, 10));
  start({{"OPENWINDOW1", "0"}, {"OPENWINDOW2", "0"}, {"OPENWINDOW3", "0"}});
  for (int round = 0; round < kRounds / 3; ++round) {
    folder.write("HintData/RegsterHint.TXT", damaged("a.bmp\tSCR\r\n;\r\na.bmp\tSSR\r\na.bmp\t\x95\x5C\r\n"));
    const auto lines = *readTextFile(folder.file("HintData/RegsterHint.TXT"));
    const auto hints = std::count_if(lines.begin(), lines.end(), [](const auto& line) { return line[0] != ';'; });
    frmHint->initHint();
    EXPECT_EQ(frmHint->tabHint.Tabs, std::max<int>(1, static_cast<int>(hints)));
    EXPECT_LE(frmHint->ilsHint.count(), hints);
  }
}

TEST_F(RandomBytesTest, AnIndexOfWholeLinesIsReadWhateverTheFieldsAre) {
  std::filesystem::create_directory(folder.file("NaviData"));
  start({{"OPENWINDOW1", "0"}, {"OPENWINDOW2", "0"}, {"OPENWINDOW3", "0"}});
  for (int round = 0; round < kRounds / 3; ++round) {
    std::string index;
    std::size_t entries = 0;
    for (std::size_t lines = upTo(6); lines > 0; --lines) {
      std::string line = bytes(20) + "\t" + bytes(20) + "\t" + bytes(10);
      std::erase(line, '\n');
      if (line[0] != ';') ++entries;
      index += line + "\n";
    }
    folder.write("NaviData/NaviIndex.txt", index);
    readNaviIndex();
    EXPECT_EQ(naviIndex.size(), entries);
  }
}

}  // namespace
}  // namespace zelvs
