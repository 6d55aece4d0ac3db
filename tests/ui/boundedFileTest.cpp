// Files that are read only as far as their reader has room.

#include <sys/stat.h>

#include <filesystem>

#include "support/program.h"
#include "ui/boundedFile.h"

namespace zelvs {
namespace {

TEST(BoundedFileTest, AFileIsReadUpToTheLimit) {
  const TemporaryFolder folder;
  std::string refusal = "old";
  folder.write("ten", "0123456789");
  EXPECT_EQ(readBoundedFile(folder.file("ten"), refusal, 10), "0123456789");
  EXPECT_EQ(refusal, "");
  EXPECT_EQ(readBoundedFile(folder.file("ten"), refusal, 9), std::nullopt);
  EXPECT_EQ(refusal, "larger than 9 bytes");
  std::filesystem::resize_file(folder.file("ten"), std::uintmax_t{1} << 40);
  EXPECT_EQ(readBoundedFile(folder.file("ten"), refusal, 10), std::nullopt);
  EXPECT_EQ(refusal, "larger than 10 bytes");
}

TEST(BoundedFileTest, WhatIsNoPlainFileIsNotThere) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkdir(folder.file("folder").c_str(), 0700), 0);
  ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("/dev/zero", folder.file("device"));
  for (const char* name : {"nothing", "folder", "pipe", "device"}) {
    SCOPED_TRACE(name);
    std::string refusal = "old";
    EXPECT_EQ(readBoundedFile(folder.file(name), refusal, 10), std::nullopt);
    EXPECT_EQ(refusal, "");
  }
}

}  // namespace
}  // namespace zelvs
