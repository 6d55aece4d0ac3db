// zelvs-text as a program: what it writes, what it refuses and how it says so.

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/program.h"

namespace zelvs {
namespace {

class TextToolTest : public testing::Test {
 protected:
  /// Its status; what it says on standard error is in errors().
  int run(const std::string& words) {
    const std::string line = "cd '" + folder.path() + "' && timeout 10 '" ZELVS_TEXT "' " + words + " 2> errors";
    const int result = std::system(line.c_str());
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
  }
  std::string errors() const { return folder.read("errors"); }
  bool exists(const std::string& name) const { return std::filesystem::exists(folder.file(name)); }

  TemporaryFolder folder;
};

TEST_F(TextToolTest, WritesCodePage932WithItsLineEnds) {
  struct Row {
    const char* name;
    std::string source;
    std::string target;
  };
  const Row table[] = {
      {"nothing", "", ""},
      {"Japanese", "a.txt\t表\tｱ\n", "a.txt\t\x95\x5C\t\xB1\r\n"},
      {"CR LF already", "a\r\nb\n", "a\r\nb\r\n"},
      {"empty lines", "\n\n", "\r\n\r\n"},
      {"no line end at the end", "a\nb", "a\r\nb"},
  };
  for (const Row& row : table) {
    folder.write("source", row.source);
    EXPECT_EQ(run("source target"), 0) << row.name;
    EXPECT_EQ(folder.read("target"), row.target) << row.name;
    EXPECT_EQ(errors(), "") << row.name;
  }
}

TEST_F(TextToolTest, NamesFileLineAndCharacter) {
  struct Row {
    const char* name;
    std::string source;
    const char* error;
  };
  const Row table[] = {
      {"a character that is lacking", "表\nb\r\ncaf\u00E9\n",
       "source:3: \"\u00E9\" (U+00E9) is not in code page 932\n"},
      {"in the first line", "\uFEFFa", "source:1: \"\uFEFF\" (U+FEFF) is not in code page 932\n"},
      {"above 16 bits", "\n𠮷", "source:2: \"𠮷\" (U+20BB7) is not in code page 932\n"},
      {"a source in code page 932", "abc\n\x95\x5C\n", "source:2: byte 0x95 is not UTF-8\n"},
  };
  for (const Row& row : table) {
    folder.write("source", row.source);
    EXPECT_EQ(run("source target"), 1) << row.name;
    EXPECT_EQ(errors(), row.error) << row.name;
    EXPECT_FALSE(exists("target")) << row.name;
  }
}

TEST_F(TextToolTest, MakesTheTargetsFolder) {
  folder.write("source", "a");
  EXPECT_EQ(run("source NaviData/inner/target"), 0);
  EXPECT_EQ(folder.read("NaviData/inner/target"), "a");
}

TEST_F(TextToolTest, WhatCannotBeReadOrWritten) {
  EXPECT_EQ(run("missing target"), 1);
  EXPECT_EQ(errors(), "missing: cannot be read\n");
  EXPECT_FALSE(exists("target"));
  folder.write("source", "a");
  EXPECT_EQ(run("source ."), 1);
  EXPECT_EQ(errors(), ".: cannot be written\n");
  EXPECT_EQ(run("source source/target"), 1);
  EXPECT_EQ(errors(), "source/target: cannot be written\n");
}

TEST_F(TextToolTest, AWrongCommandLine) {
  for (const char* words : {"", "source", "source target more"}) {
    EXPECT_EQ(run(words), 2) << words;
    EXPECT_EQ(errors(), "usage: zelvs-text SOURCE TARGET\n") << words;
  }
}

}  // namespace
}  // namespace zelvs
