#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "text/shortText.h"
#include "text/utf8.h"

namespace zelvs {
namespace {

TEST(ShortText, WhatFitsStaysAsItIs) {
  for (const char* text : {"", "a", "abcde", "全2重の字"})
    EXPECT_EQ(shortened(text, 5), text);
}

TEST(ShortText, HeadAndTailOfWhatDoesNot) {
  EXPECT_EQ(shortened("abcdef", 5), "ab…ef");
  EXPECT_EQ(shortened("abcdef", 4), "ab…f");
  EXPECT_EQ(shortened("abcdef", 2), "a…");
  EXPECT_EQ(shortened("abcdef", 1), "…");
  EXPECT_EQ(shortened("/home/somebody/a/folder/of/many/lessons/first.txt", 21), "/home/some…/first.txt");
}

TEST(ShortText, NoCharacterIsCut) {
  EXPECT_EQ(shortened("全2重全2重", 5), "全2…2重");
  EXPECT_EQ(shortened("𠮟𠮟𠮟𠮟", 3), "𠮟…𠮟");
  // A damaged byte counts as a character.
  EXPECT_EQ(shortened("\xE5\xE5\xE5全", 3), "\xE5…全");
}

TEST(ShortText, APathKeepsItsName) {
  const std::string path = "/home/somebody/" + std::string(5000, 'x') + "/ZELVS.INI";
  EXPECT_EQ(charactersOf(shortPath(path)).size(), 90u);
  EXPECT_TRUE(shortPath(path).starts_with("/home/somebody/"));
  EXPECT_TRUE(shortPath(path).ends_with("/ZELVS.INI"));
}

TEST(ShortText, IsNeverLongerThanAsked) {
  std::string text;
  for (int length = 0; length < 40; ++length) {
    for (std::size_t most = 1; most < 40; ++most) {
      const std::string kept = shortened(text, most);
      EXPECT_EQ(charactersOf(kept).size(), std::min(charactersOf(text).size(), most)) << text << ", " << most;
    }
    text += length % 3 == 0 ? "重" : "x";
  }
}

}  // namespace
}  // namespace zelvs
