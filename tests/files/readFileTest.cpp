#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "files/readFile.h"
#include "support/faultyFiles.h"
#include "support/program.h"

namespace zelvs {
namespace {

TEST(ReadFile, WhatIsNoPlainFileIsNoFile) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.file("folder"));
  ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("nowhere", folder.file("dangling"));
  std::filesystem::create_symlink("circle", folder.file("circle"));
  folder.write("a", "a");
  for (const std::string& path :
       {folder.file("missing"), folder.file("folder"), folder.file("pipe"), folder.file("dangling"),
        folder.file("circle"), folder.file("a/b"), folder.file("a/"), folder.file(std::string(5000, 'x')),
        std::string(), std::string("/dev/zero"), std::string("/dev/tty")}) {
    std::string refusal = "not yet";
    EXPECT_FALSE(readFile(path, &refusal)) << path;
    EXPECT_EQ(refusal, "") << path;
  }
}

TEST(ReadFile, AFileIsReadWholeOrRefused) {
  const TemporaryFolder folder;
  const std::string bytes(3'000'001, 'x');
  folder.write("a", bytes);
  std::string refusal;
  EXPECT_EQ(readFile(folder.file("a"), &refusal), bytes);
  EXPECT_EQ(refusal, "");
  EXPECT_EQ(readFile(folder.file("a"), &refusal, bytes.size()), bytes);
  EXPECT_FALSE(readFile(folder.file("a"), &refusal, bytes.size() - 1));
  EXPECT_EQ(refusal, "larger than 3000000 bytes");
  EXPECT_FALSE(readFile(folder.file("a"), nullptr, 1)) << "nobody needs to ask why";
}

TEST(ReadFile, AFileOfATerabyteIsRefusedUnread) {
  const TemporaryFolder folder;
  folder.write("a", "");
  ASSERT_EQ(truncate(folder.file("a").c_str(), off_t{1} << 40), 0);
  FaultyFiles files;
  std::string refusal;
  EXPECT_FALSE(readFile(folder.file("a"), &refusal));
  EXPECT_EQ(refusal, "larger than 16777216 bytes");
  EXPECT_EQ(std::count(files.calls.begin(), files.calls.end(), "read"), 0);
}

TEST(ReadFile, EachCallThatFailsIsToldAndNoHalfFileIsTaken) {
  const TemporaryFolder folder;
  folder.write("a", "some bytes");
  FaultyFiles files;
  std::string refusal;
  ASSERT_TRUE(readFile(folder.file("a"), &refusal));
  const std::vector<std::string> calls = files.calls;
  ASSERT_EQ(calls, (std::vector<std::string>{"status", "openToRead", "statusOfFile", "read", "read"}));
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    SCOPED_TRACE(calls[call - 1]);
    const auto readWith = [&](FaultyFiles::Fault fault) {
      files.calls.clear();
      files.at = static_cast<int>(call);
      files.fault = fault;
      return readFile(folder.file("a"), &refusal);
    };
    EXPECT_FALSE(readWith(FaultyFiles::Fault::Error));
    EXPECT_EQ(refusal, "Input/output error");
    EXPECT_EQ(readWith(FaultyFiles::Fault::HalfWay), "some bytes");
    EXPECT_EQ(refusal, "");
    if (calls[call - 1].starts_with("status")) continue;  // these are never interrupted
    EXPECT_EQ(readWith(FaultyFiles::Fault::Interrupted), "some bytes");
    EXPECT_EQ(refusal, "");
  }
}

TEST(ReadFile, AFileThatChangesWhileItIsReadIsWholeOrRefused) {
  const TemporaryFolder folder;
  folder.write("a", "some bytes");
  FaultyFiles files;
  std::string refusal;
  files.toldSize = 11;
  EXPECT_FALSE(readFile(folder.file("a"), &refusal));
  EXPECT_EQ(refusal, "it ended before its size");
  files.toldSize = 2;
  EXPECT_EQ(readFile(folder.file("a"), &refusal, 10), "some bytes") << "it has grown";
  EXPECT_FALSE(readFile(folder.file("a"), &refusal, 9));
  EXPECT_EQ(refusal, "larger than 9 bytes");
}

}  // namespace
}  // namespace zelvs
