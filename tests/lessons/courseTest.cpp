// The shipped course, as the program folder holds it: what a writer of lessons or hints could get wrong.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "files/readFile.h"
#include "text/codePage932.h"
#include "text/textFile.h"
#include "text/utf8.h"

namespace zelvs {
namespace {

using Lines = std::vector<std::string>;

/// A text of the program folder, read as the program does.
Lines shipped(const std::string& name) {
  const auto lines = readTextFile(ZELVS_FOLDER "/" + name);
  EXPECT_TRUE(lines) << name;
  return lines.value_or(Lines());
}

/// The fields of each line that is no comment.
std::vector<Lines> table(const std::string& name) {
  std::vector<Lines> rows;
  for (const std::string& line : shipped(name)) {
    if (line.starts_with(';')) continue;
    std::istringstream in(line);
    Lines& row = rows.emplace_back();
    for (std::string field; std::getline(in, field, '\t');)
      row.push_back(field);
  }
  return rows;
}

std::vector<Lines> index() {
  return table("NaviData/NaviIndex.txt");
}

/// The lines that are shown: the first two of each page of three.
Lines strips(const std::string& lesson) {
  Lines shown;
  const Lines lines = shipped("NaviData/" + lesson);
  for (std::size_t i = 0; i < lines.size(); ++i)
    if (i % 3 < 2) shown.push_back(lines[i]);
  return shown;
}

constexpr std::string_view kMarks = "&#\\";

/// In half characters.
int widthOf(std::string_view line) {
  int width = 0;
  for (const char32_t character : charactersOf(line))
    if (character >= 0x80 || kMarks.find(static_cast<char>(character)) == std::string_view::npos)
      width += character < 0x80 ? 1 : 2;
  return width;
}

TEST(CourseTest, TheFolderHoldsTheSourcesInTheCodePage) {
  int files = 0;
  for (const char* part : {"NaviData", "HintData"}) {
    for (const auto& entry : std::filesystem::directory_iterator(std::string(ZELVS_ASSETS "/") + part)) {
      SCOPED_TRACE(entry.path().string());
      ++files;
      const std::string source = readFile(entry.path().string()).value();
      std::size_t lackingAt = 0;
      EXPECT_TRUE(codePage932FromUtf8(source, lackingAt)) << "at byte " << lackingAt;
      EXPECT_EQ(source.find('\r'), std::string::npos);
      std::string joined;
      for (const std::string& line : shipped(std::string(part) + "/" + entry.path().filename().string()))
        joined += line + "\n";
      EXPECT_EQ(joined, source);
    }
  }
  EXPECT_GE(files, 5);
}

TEST(CourseTest, TheIndexNamesEachLessonOnceWithATitleAndANote) {
  std::set<std::string> files, titles;
  for (const Lines& entry : index()) {
    ASSERT_EQ(entry.size(), 3U) << entry.front();
    for (const std::string& field : entry)
      EXPECT_FALSE(field.empty()) << entry.front();
    EXPECT_TRUE(files.insert(entry[0]).second) << entry[0];
    EXPECT_TRUE(titles.insert(entry[1]).second) << entry[1];
  }
  EXPECT_GE(files.size(), 3U);
  std::set<std::string> sources;
  for (const auto& entry : std::filesystem::directory_iterator(ZELVS_ASSETS "/NaviData"))
    sources.insert(entry.path().filename().string());
  sources.erase("NaviIndex.txt");
  EXPECT_EQ(files, sources) << "a lesson is missing, or one is not listed";
}

TEST(CourseTest, ALessonIsMadeOfWholePages) {
  for (const Lines& entry : index()) {
    const Lines lines = shipped("NaviData/" + entry[0]);
    EXPECT_EQ(lines.size() % 3, 0U) << entry[0];
    EXPECT_GE(lines.size() / 3, 8U) << entry[0];
    EXPECT_LE(lines.size() / 3, 16U) << entry[0];
    for (const std::string& line : lines)
      EXPECT_FALSE(line.empty()) << entry[0];
  }
}

TEST(CourseTest, EachStripHasRoomForItsLine) {
  for (const Lines& entry : index())
    for (const std::string& line : strips(entry[0]))
      EXPECT_LE(widthOf(line), 2 * 46) << entry[0] << ": " << line;
}

TEST(CourseTest, EachMarkChangesTheColourOfSomeText) {
  // A mark that was meant as text would most likely change nothing, or colour nothing.
  for (const Lines& entry : index()) {
    for (const std::string& line : strips(entry[0])) {
      SCOPED_TRACE(entry[0] + ": " + line);
      char colour = '&';
      bool text = true;  // a line may begin with a mark
      for (const char character : line) {
        EXPECT_GE(static_cast<unsigned char>(character), 0x20U) << "a control character";
        if (kMarks.find(character) == std::string_view::npos) {
          text = true;
          continue;
        }
        EXPECT_TRUE(text) << "two marks in a row";
        EXPECT_NE(character, colour);
        colour = character;
        text = false;
      }
      EXPECT_TRUE(text) << "a mark at the end";
    }
  }
}

TEST(CourseTest, EachHintHasItsPictureAndCaption) {
  std::set<std::string> pictures, captions;
  const std::vector<Lines> hints = table("HintData/RegsterHint.TXT");
  EXPECT_EQ(hints.size(), 9U);
  for (const Lines& hint : hints) {
    ASSERT_EQ(hint.size(), 2U) << hint.front();
    EXPECT_TRUE(hint[0].ends_with(".BMP")) << hint[0];
    EXPECT_TRUE(pictures.insert(hint[0]).second) << hint[0];
    EXPECT_TRUE(captions.insert(hint[1]).second) << hint[1];
  }
}

TEST(CourseTest, ARegistersNameFindsItsHintAndTheSeventhIsTheControlWords) {
  const std::vector<Lines> hints = table("HintData/RegsterHint.TXT");
  for (const std::string name : {"SCR", "SSR", "HPR", "INT0R", "INT1R", "C1CR", "C2CR", "BCR"}) {
    const auto found = std::find_if(hints.begin(), hints.end(),
                                    [&name](const Lines& hint) { return hint[1].find(name) != std::string::npos; });
    ASSERT_NE(found, hints.end()) << name;
    EXPECT_EQ((*found)[0], name + ".BMP");
  }
  ASSERT_GT(hints.size(), 6U);
  EXPECT_EQ(hints[6][1], "コントロール");
}

}  // namespace
}  // namespace zelvs
