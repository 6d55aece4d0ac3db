// Each hint of the program folder has its picture, and all are of one size: the hint window does not jump.

#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <set>
#include <string>

#include "files/readFile.h"
#include "text/textFile.h"
#include "tools/hintSheet.h"

namespace zelvs {
namespace {

TEST(HintPicturesTest, EachHintHasOneAndAllAreOfOneSize) {
  const auto lines = readTextFile(ZELVS_FOLDER "/HintData/RegsterHint.TXT");
  ASSERT_TRUE(lines);
  std::set<std::string> contents;
  std::size_t hints = 0;
  for (const std::string& line : *lines) {
    if (line.starts_with(';')) continue;
    ++hints;
    const std::string name = fieldsOf(line, 2)[0];
    const std::string path = std::string(ZELVS_FOLDER "/HintData/") + name;
    const QImage picture(QString::fromStdString(path), "BMP");
    EXPECT_EQ(picture.size(), QSize(kHintWidth, kHintHeight)) << name;
    contents.insert(readFile(path).value_or(""));
  }
  EXPECT_GT(hints, 0U);
  EXPECT_EQ(contents.size(), hints) << "two hints look alike";
}

}  // namespace
}  // namespace zelvs
