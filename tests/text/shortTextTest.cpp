#include <gtest/gtest.h>

#include <string>

#include "text/shortText.h"
#include "text/utf8.h"

namespace zelvs {
namespace {

TEST(ShortText, WhatFitsStaysAsItIs) {
  EXPECT_EQ(shortened("", 3), "");
  EXPECT_EQ(shortened("abc", 3), "abc");
  EXPECT_EQ(shortened("設定値", 3), "設定値") << "characters count, not bytes";
}

TEST(ShortText, OfALongOneHeadAndTailAreLeft) {
  EXPECT_EQ(shortened("abcd", 3), "…cd") << "the least that is possible";
  EXPECT_EQ(shortened("abcdefghij", 7), "ab…ghij");
  EXPECT_EQ(shortened("あいうえおかきくけこ", 7), "あい…きくけこ");
  const std::string path = "/home/somebody/" + std::string(5000, 'x') + "/ZELVS.INI";
  EXPECT_EQ(charactersOf(shortPath(path)).size(), 90u);
  EXPECT_TRUE(shortPath(path).starts_with("/home/somebody/"));
  EXPECT_TRUE(shortPath(path).ends_with("/ZELVS.INI"));
}

}  // namespace
}  // namespace zelvs
