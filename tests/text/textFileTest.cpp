#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "files/readFile.h"
#include "support/program.h"
#include "text/textFile.h"

namespace zelvs {
namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

TEST(TextFile, Lines) {
  struct Row {
    const char* name;
    std::string bytes;
    Lines lines;
  };
  const Row table[] = {
      {"an empty file", "", {}},
      {"one line", "abc\r\n", {"abc"}},
      {"without a line end", "abc", {"abc"}},
      {"LF alone", "a\nb\n", {"a", "b"}},
      {"both kinds", "a\r\nb\nc", {"a", "b", "c"}},
      {"a line end and nothing else", "\r\n", {""}},
      {"LF and nothing else", "\n", {""}},
      {"empty lines", "\r\n\r\na\r\n\r\n", {"", "", "a", ""}},
      {"CR in a line", "a\rb\r\n", {"a\rb"}},
      {"CR at the end of the file", "a\r", {"a\r"}},
      {"two CR before LF", "a\r\r\n", {"a\r"}},
      {"a zero", "a\0b\r\nc"s, {"a\0b"s, "c"}},
      {"blanks and TABs stay", " a\tb \r\n", {" a\tb "}},
      {"Japanese", "\x95\x5C\r\n\xB1\xB2", {"表", "ｱｲ"}},
      {"a stray first byte before a line end", "a\x95\r\nb\x95\nc\x95", {"a\uFFFD", "b\uFFFD", "c\uFFFD"}},
      {"a second byte is no line end", "\x81\x41\x81\x41\n", {"、、"}},
  };
  const TemporaryFolder folder;
  for (const Row& row : table) {
    folder.write("a.txt", row.bytes);
    EXPECT_EQ(readTextFile(folder.file("a.txt")), row.lines) << row.name;
    EXPECT_EQ(readFile(folder.file("a.txt")), row.bytes) << row.name;
  }
}

TEST(TextFile, ALongFileIsReadWhole) {
  const TemporaryFolder folder;
  std::string bytes;
  for (int i = 0; i < 20000; ++i)
    bytes += "\x95\x5C" + std::to_string(i) + "\r\n";
  folder.write("a.txt", bytes);
  const auto lines = readTextFile(folder.file("a.txt"));
  ASSERT_TRUE(lines);
  ASSERT_EQ(lines->size(), 20000u);
  EXPECT_EQ(lines->back(), "表19999");
}

TEST(TextFile, ALineIsAsLongAsItMayBeOrTheFileIsRefused) {
  const TemporaryFolder folder;
  const std::string longest(65536, 'x');
  std::string refusal;
  for (const char* end : {"", "\n", "\r\n", "\r\nmore"}) {
    folder.write("a.txt", "first\n" + longest + end);
    const auto lines = readTextFile(folder.file("a.txt"), &refusal);
    ASSERT_TRUE(lines);
    EXPECT_EQ((*lines)[1], longest);
    EXPECT_EQ(refusal, "");
    folder.write("a.txt", "first\n" + longest + "y" + end);
    EXPECT_FALSE(readTextFile(folder.file("a.txt"), &refusal));
    EXPECT_EQ(refusal, "line 2 is longer than 65536 bytes");
    EXPECT_FALSE(readTextFile(folder.file("a.txt"))) << "nobody needs to ask why";
  }
}

TEST(TextFile, FieldsStandBetweenTabs) {
  EXPECT_EQ(fieldsOf("a\tb\tc", 3), (Lines{"a", "b", "c"}));
  EXPECT_EQ(fieldsOf("a\tb\tc\td", 3), (Lines{"a", "b", "c\td"})) << "the last one takes the rest";
  EXPECT_EQ(fieldsOf("a\tb", 3), (Lines{"a", "b"}));
  EXPECT_EQ(fieldsOf("", 3), Lines{""});
  EXPECT_EQ(fieldsOf("\t\t", 3), (Lines{"", "", ""}));
  EXPECT_EQ(fieldsOf("a\tb", 1), Lines{"a\tb"});
}

TEST(TextFile, WhatIsNoPlainFileIsAbsent) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file("folder"));
  ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("nowhere", folder.file("dangling"));
  for (const char* name : {"missing", "folder", "pipe", "dangling", "folder/missing", ""}) {
    EXPECT_FALSE(readFile(folder.file(name))) << name;
    EXPECT_FALSE(readTextFile(folder.file(name))) << name;
  }
  folder.write("a.txt", "a");
  EXPECT_FALSE(readTextFile(folder.file("a.txt/")));
  std::filesystem::create_symlink("a.txt", folder.file("link"));
  EXPECT_EQ(readTextFile(folder.file("link")), Lines{"a"});
}

}  // namespace
}  // namespace zelvs
