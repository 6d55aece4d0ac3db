#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "files/writeFile.h"
#include "support/faultyFiles.h"
#include "support/program.h"
#include "support/simulatedDisk.h"

namespace zelvs {
namespace {

namespace fs = std::filesystem;
using Fault = FaultyFiles::Fault;
using std::string_literals::operator""s;

const std::string kOld = "the old bytes of the file, some sectors of them\n";
const std::string kNew = "the new bytes\nof the file, which are more than the old ones, and more sectors\n";

class WriteFileTest : public testing::Test {
 protected:
  std::string path(const std::string& name = "file") const { return folder.file(name); }
  std::set<std::string> names() const {
    std::set<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder.path()))
      found.insert(entry.path().filename().string());
    return found;
  }
  struct stat statusOf(const std::string& name) const {
    struct stat status = {};
    EXPECT_EQ(stat(path(name).c_str(), &status), 0);
    return status;
  }
  template <class Work>
  static void inAProcessOfItsOwn(Work work) {
    const pid_t child = fork();
    if (child == 0) {
      work();
      _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  /// As somebody who may not write everywhere; an administrator may.
  template <class Work>
  static void asPlainUser(Work work) {
    inAProcessOfItsOwn([&] {
      if (geteuid() == 0) {
        ASSERT_EQ(setuid(kNobody), 0);
      }
      work();
    });
  }

  static constexpr uid_t kNobody = 65534;
  TemporaryFolder folder;
};

// ---- What a change comes to

TEST_F(WriteFileTest, AFileIsMadeOrChanged) {
  EXPECT_EQ(changeFile(path(),
                       [](const std::optional<std::string>& old) {
                         EXPECT_FALSE(old);
                         return kOld;
                       }),
            "");
  EXPECT_EQ(folder.read("file"), kOld);
  EXPECT_EQ(changeFile(path(), [](const std::optional<std::string>& old) { return *old + kNew; }), "");
  EXPECT_EQ(folder.read("file"), kOld + kNew);
  EXPECT_EQ(writeFile(path(), kNew), "");
  EXPECT_EQ(folder.read("file"), kNew);
  EXPECT_EQ(writeFile(path(), ""), "");
  EXPECT_EQ(folder.read("file"), "");
  EXPECT_EQ(names(), std::set{"file"s});
}

TEST_F(WriteFileTest, WithoutAFolderInItsNameItLiesInTheCurrentOne) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  EXPECT_EQ(writeFile("file", kOld), "");
  EXPECT_EQ(writeFile("file", kNew), "");
  fs::current_path(before);
  EXPECT_EQ(folder.read("file"), kNew);
  EXPECT_EQ(names(), std::set{"file"s});
}

TEST_F(WriteFileTest, WhatStaysTheSameIsNotWritten) {
  folder.write("file", kOld);
  const ino_t before = statusOf("file").st_ino;
  EXPECT_EQ(writeFile(path(), kOld), "");
  EXPECT_EQ(statusOf("file").st_ino, before);
}

TEST_F(WriteFileTest, WhatCannotBeWrittenIsToldAndStays) {
  fs::create_directory(path("folder"));
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  folder.write("readOnly", kOld);
  ASSERT_EQ(chmod(path("readOnly").c_str(), 0444), 0);
  folder.write("large", kOld);
  fs::create_symlink("circle", path("circle"));
  const auto tried = [&](const std::string& name) {
    return changeFile(
        path(name), [](const auto&) { return kNew; }, name == "large" ? 4 : kLargestText);
  };
  EXPECT_EQ(tried("folder"), "it is no plain file");
  EXPECT_EQ(tried("pipe"), "it is no plain file");
  EXPECT_EQ(tried("readOnly"), "it is read-only");
  EXPECT_EQ(tried("large"), "larger than 4 bytes");
  EXPECT_EQ(tried("circle"), "Too many levels of symbolic links");
  EXPECT_EQ(tried("nowhere/file"), "No such file or directory");
  EXPECT_EQ(tried("large/file"), "Not a directory");
  EXPECT_EQ(tried(std::string(5000, 'x')), "File name too long");
  EXPECT_TRUE(fs::is_directory(path("folder")));
  EXPECT_TRUE(fs::is_fifo(path("pipe")));
  EXPECT_EQ(folder.read("readOnly"), kOld);
  EXPECT_EQ(folder.read("large"), kOld);
  EXPECT_EQ(names(), (std::set{"folder"s, "pipe"s, "readOnly"s, "large"s, "circle"s}));
}

TEST_F(WriteFileTest, AFileOfAnotherThatMayNotBeWrittenStaysInOnesOwnFolder) {
  if (geteuid() != 0) GTEST_SKIP() << "only an administrator can set this up";
  folder.write("file", kOld);
  ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
  asPlainUser([&] { EXPECT_EQ(writeFile(path(), kNew), "Permission denied"); });
  EXPECT_EQ(folder.read("file"), kOld);
}

// ---- Links

TEST_F(WriteFileTest, WhatALinkLeadsToIsWrittenAlsoWhenItIsNotThereYet) {
  fs::create_directory(path("there"));
  fs::create_symlink("there/real", path("relative"));
  fs::create_symlink(path("there/other"), path("absolute"));
  fs::create_symlink("relative", path("chain"));
  EXPECT_EQ(writeFile(path("chain"), kOld), "");
  EXPECT_EQ(folder.read("there/real"), kOld);
  EXPECT_EQ(writeFile(path("relative"), kNew), "");
  EXPECT_EQ(folder.read("there/real"), kNew);
  EXPECT_EQ(writeFile(path("absolute"), kNew), "");
  EXPECT_EQ(folder.read("there/other"), kNew);
  for (const char* link : {"relative", "absolute", "chain"})
    EXPECT_TRUE(fs::is_symlink(path(link))) << link;
}

TEST_F(WriteFileTest, NothingThatLiesBesideItIsTouched) {
  folder.write("file", kOld);
  folder.write("mine", "mine");
  // What copies of old had for a name, and names that are only like ours.
  fs::create_symlink("mine", path("file.new"));
  ASSERT_EQ(mkfifo(path("file.0123456789abcdef.new").c_str(), 0600), 0);
  folder.write(".file.0123456789abcdeg.new", "no digit");
  folder.write(".elif.0123456789abcdef.new", "another's");
  folder.write(".other.0123456789abcdef.new", "another's");
  folder.write(".file.0123456789abcdef.old", "another's");
  const auto before = names();
  EXPECT_EQ(writeFile(path(), kNew), "");
  EXPECT_EQ(folder.read("file"), kNew);
  EXPECT_EQ(folder.read("mine"), "mine");
  EXPECT_EQ(names(), before);
}

TEST_F(WriteFileTest, WhatAKillHasLeftGoesWithTheNextChange) {
  folder.write("mine", "mine");
  folder.write(".file.0123456789abcdef.new", "half");
  fs::create_symlink("mine", path(".file.fedcba9876543210.new"));
  EXPECT_EQ(writeFile(path(), kNew), "");
  EXPECT_EQ(names(), (std::set{"file"s, "mine"s}));
  EXPECT_EQ(folder.read("mine"), "mine");
}

// ---- What belongs to a file beside its bytes

TEST_F(WriteFileTest, ModeOwnerAndAttributesAreKept) {
  folder.write("file", kOld);
  const bool administrator = geteuid() == 0;
  if (administrator) {
    ASSERT_EQ(chown(path().c_str(), 4711, 4712), 0);
  }
  const bool attributes = setxattr(path().c_str(), "user.note", "mine", 4, 0) == 0;
  ASSERT_EQ(chmod(path().c_str(), 02640), 0);
  const struct stat before = statusOf("file");
  EXPECT_EQ(writeFile(path(), kNew), "");
  EXPECT_EQ(folder.read("file"), kNew);
  const struct stat after = statusOf("file");
  EXPECT_NE(after.st_ino, before.st_ino) << "a new file";
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  char note[8] = {};
  if (attributes) {
    EXPECT_EQ(getxattr(path().c_str(), "user.note", note, sizeof note), 4);
    EXPECT_STREQ(note, "mine");
  }
}

TEST_F(WriteFileTest, WhatTheFolderWouldGiveANewFileDoesNotComeToAnOldOne) {
  folder.write("file", kOld);
  // Whatever is new in the folder may be used by one more user: five rows of what, which rights, whose.
  struct Row {
    std::uint16_t what, rights;
    std::uint32_t whose;
  };
  constexpr std::uint32_t kNone = 0xFFFFFFFF;
  const struct {
    std::uint32_t version = 2;
    Row rows[5] = {{1, 7, kNone}, {2, 7, 4711}, {4, 5, kNone}, {16, 7, kNone}, {32, 5, kNone}};
  } rights;
  if (setxattr(folder.path().c_str(), "system.posix_acl_default", &rights, sizeof rights, 0) != 0) {
    GTEST_SKIP() << "this file system has no such rights";
  }
  const auto hasRights = [&](const std::string& name) {
    return getxattr(path(name).c_str(), "system.posix_acl_access", nullptr, 0) > 0;
  };
  folder.write("new", "");
  ASSERT_TRUE(hasRights("new"));
  const mode_t before = statusOf("file").st_mode;
  EXPECT_EQ(writeFile(path(), kNew), "");
  EXPECT_EQ(folder.read("file"), kNew);
  EXPECT_FALSE(hasRights("file"));
  EXPECT_EQ(statusOf("file").st_mode, before);
  // And what an old one has is kept.
  EXPECT_EQ(writeFile(path("new"), kNew), "");
  EXPECT_TRUE(hasRights("new"));
}

TEST_F(WriteFileTest, ANewFileIsReadableAsTheUsersMaskSays) {
  const mode_t before = umask(027);
  EXPECT_EQ(writeFile(path(), kNew), "");
  umask(before);
  EXPECT_EQ(statusOf("file").st_mode & 0777, 0640u);
}

// ---- Where no new file can take the place

TEST_F(WriteFileTest, HardLinksGoOnNamingOneFile) {
  for (const std::string& bytes : {kNew, "short"s, kOld, "THE" + kOld.substr(3)}) {
    folder.write("file", kOld);
    fs::remove(path("other"));
    fs::create_hard_link(path(), path("other"));
    EXPECT_EQ(writeFile(path(), bytes), "");
    EXPECT_EQ(folder.read("other"), bytes);
    EXPECT_EQ(statusOf("file").st_ino, statusOf("other").st_ino);
    EXPECT_EQ(names(), (std::set{"file"s, "other"s}));
  }
}

TEST_F(WriteFileTest, AFileInAFolderThatTakesNoneIsWrittenOver) {
  folder.write("file", kOld);
  ASSERT_EQ(chmod(path().c_str(), 0666), 0);
  for (const mode_t mode : {0555, 0111, 0333}) {
    ASSERT_EQ(chmod(folder.path().c_str(), mode), 0);
    asPlainUser([&] {
      EXPECT_EQ(writeFile(path(), kNew), "");
      EXPECT_EQ(writeFile(path(), kOld), "");
      EXPECT_EQ(writeFile(path(), "x"), "");
    });
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    EXPECT_EQ(folder.read("file"), "x");
    EXPECT_EQ(names(), std::set{"file"s});
  }
}

TEST_F(WriteFileTest, AnothersFileInASharedFolderIsWrittenOverAndStaysAnothers) {
  if (geteuid() != 0) GTEST_SKIP() << "only an administrator can set this up";
  // In a sticky folder nobody may replace another's file; in an open one the new file would be one's own.
  for (const mode_t mode : {01777, 0777}) {
    folder.write("file", kOld);
    ASSERT_EQ(chown(path().c_str(), 4711, 4712), 0);
    ASSERT_EQ(chmod(path().c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), mode), 0);
    asPlainUser([&] { EXPECT_EQ(writeFile(path(), kNew), ""); });
    EXPECT_EQ(folder.read("file"), kNew);
    EXPECT_EQ(statusOf("file").st_uid, 4711u);
    EXPECT_EQ(names(), std::set{"file"s});
  }
}

// ---- Each call that fails

/// Every call in turn goes wrong in one way; behind each the file is the old or the new one, whole, as it was told.
class FaultsTest : public WriteFileTest, public testing::WithParamInterface<bool> {
 protected:
  /// True: two names, so that the file is written over.
  bool inPlace() const { return GetParam(); }

  void setUp() {
    std::error_code error;
    fs::remove(path("other"), error);
    folder.write("file", kOld);
    if (inPlace()) fs::create_hard_link(path(), path("other"));
  }
  std::size_t filesThere() const { return inPlace() ? 2 : 1; }

  std::vector<std::string> callsOfAChange(FaultyFiles& files) {
    setUp();
    files.at = 0;
    files.calls.clear();
    EXPECT_EQ(writeFile(path(), kNew), "");
    return files.calls;
  }
  std::string writeWith(FaultyFiles& files, std::size_t call, Fault fault) {
    setUp();
    files.calls.clear();
    files.at = static_cast<int>(call);
    files.fault = fault;
    return writeFile(path(), kNew);
  }
};

TEST_P(FaultsTest, AnErrorLeavesTheOldFileOrTheNewOne) {
  for (const std::errc error : {std::errc::io_error, std::errc::no_space_on_device, std::errc::permission_denied,
                                std::errc::operation_not_permitted, std::errc::read_only_file_system}) {
    FaultyFiles files;
    files.error = error;
    const std::vector<std::string> calls = callsOfAChange(files);
    ASSERT_GT(calls.size(), 8u);
    for (std::size_t call = 1; call <= calls.size(); ++call) {
      SCOPED_TRACE(calls[call - 1] + ", call " + std::to_string(call) + ": " + std::make_error_code(error).message());
      const std::string told = writeWith(files, call, Fault::Error);
      const std::string left = folder.read("file");
      const bool lastSync = calls[call - 1] == "sync" && call == calls.size() && !inPlace();
      EXPECT_EQ(left, told.empty() || lastSync ? kNew : kOld);
      if (lastSync) {
        EXPECT_EQ(told, std::make_error_code(error).message());
      }
      if (inPlace()) {
        EXPECT_EQ(folder.read("other"), left);
      }
      files.at = 0;
      EXPECT_EQ(writeFile(path(), "afterwards"), "");
      EXPECT_EQ(folder.read("file"), "afterwards");
      EXPECT_EQ(names().size(), filesThere());
    }
  }
}

TEST_P(FaultsTest, AnInterruptedOrHalfDoneCallIsMadeAgain) {
  FaultyFiles files;
  const std::vector<std::string> calls = callsOfAChange(files);
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    SCOPED_TRACE(calls[call - 1] + ", call " + std::to_string(call));
    EXPECT_EQ(writeWith(files, call, Fault::HalfWay), "");
    EXPECT_EQ(folder.read("file"), kNew);
    // The others are over at once and are never interrupted.
    if (const auto& name = calls[call - 1];
        name.starts_with("status") || name == "linkTarget" || name == "names" || name == "remove") {
      continue;
    }
    EXPECT_EQ(writeWith(files, call, Fault::Interrupted), "");
    EXPECT_EQ(folder.read("file"), kNew);
    EXPECT_EQ(names().size(), filesThere());
  }
}

TEST_P(FaultsTest, ADiskThatTakesNothingIsFull) {
  FaultyFiles files;
  files.only = "write";
  EXPECT_EQ(writeWith(files, 1, Fault::Stuck), "No space left on device");
  EXPECT_EQ(folder.read("file"), kOld);
  EXPECT_EQ(names().size(), filesThere());
}

TEST_P(FaultsTest, AKillLeavesTheOldFileOrTheNewOne) {
  FaultyFiles files;
  files.kill = [] { raise(SIGKILL); };
  const std::vector<std::string> calls = callsOfAChange(files);
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    for (const Fault fault : {Fault::KilledBefore, Fault::KilledBehind}) {
      SCOPED_TRACE(calls[call - 1] + ", call " + std::to_string(call));
      const pid_t child = fork();
      if (child == 0) {
        static_cast<void>(writeWith(files, call, fault));
        _exit(0);
      }
      int status = 0;
      waitpid(child, &status, 0);
      ASSERT_TRUE(WIFSIGNALED(status)) << "the call was not made";
      const std::string left = folder.read("file");
      EXPECT_TRUE(left == kOld || left == kNew) << left;
      files.at = 0;
      EXPECT_EQ(writeFile(path(), "afterwards"), "");
      EXPECT_EQ(names().size(), filesThere()) << "what the kill has left is gone";
    }
  }
}

TEST_F(WriteFileTest, ACutThatFailsGivesTheOldBytesBack) {
  folder.write("file", kOld);
  fs::create_hard_link(path(), path("other"));
  FaultyFiles files;
  files.only = "cut";
  files.at = 1;
  EXPECT_EQ(writeFile(path(), "short"), "Input/output error");
  EXPECT_EQ(folder.read("file"), kOld);
}

TEST_F(WriteFileTest, AFileThatGoesAwayMeanwhileIsNotMadeAnew) {
  folder.write("file", kOld);
  FaultyFiles files;
  files.only = "status";
  files.at = 2;
  files.error = std::errc::no_such_file_or_directory;
  EXPECT_EQ(writeFile(path(), kNew), "it has just been removed");
  EXPECT_EQ(folder.read("file"), kOld);
}

INSTANTIATE_TEST_SUITE_P(Ways, FaultsTest, testing::Bool(),
                         [](const auto& way) { return way.param ? "WrittenOver" : "Replaced"; });

TEST_F(WriteFileTest, ANewFileThatCannotBeMadeIsToldAndNothingIsLeft) {
  FaultyFiles files;
  EXPECT_EQ(writeFile(path(), kNew), "");
  const std::vector<std::string> calls = files.calls;
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    SCOPED_TRACE(calls[call - 1] + ", call " + std::to_string(call));
    fs::remove(path());
    files.calls.clear();
    files.at = static_cast<int>(call);
    const std::string told = writeFile(path(), kNew);
    const bool lastSync = call == calls.size();
    EXPECT_EQ(fs::exists(path()), told.empty() || lastSync);
    if (fs::exists(path())) {
      EXPECT_EQ(folder.read("file"), kNew);
    }
    EXPECT_EQ(names().size(), fs::exists(path()) ? 1u : 0u);
  }
}

TEST_F(WriteFileTest, AnErrorOfTheLastCloseIsToldBeforeTheOldFileIsGone) {
  folder.write("file", kOld);
  FaultyFiles files;
  files.only = "close";
  std::set<std::string> left;
  for (files.at = 1; files.at <= 4; ++files.at) {
    folder.write("file", kOld);
    files.calls.clear();
    const std::string told = writeFile(path(), kNew);
    EXPECT_EQ(folder.read("file"), told.empty() ? kNew : kOld);
    left.insert(told);
  }
  EXPECT_EQ(left, (std::set{""s, "Input/output error"s})) << "the new file's close counts, the others do not";
}

TEST_F(WriteFileTest, AFullDiskLeavesTheOldFile) {
  folder.write("file", kOld);
  fs::create_hard_link(path(), path("other"));
  folder.write("alone", kOld);
  inAProcessOfItsOwn([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{kOld.size() + 2, kOld.size() + 2};
    setrlimit(RLIMIT_FSIZE, &full);
    EXPECT_EQ(writeFile(path(), kNew), "File too large");
    EXPECT_EQ(writeFile(path("alone"), kNew), "File too large");
  });
  EXPECT_EQ(folder.read("file"), kOld);
  EXPECT_EQ(folder.read("alone"), kOld);
}

TEST_F(WriteFileTest, AFileThatShallBeNewTouchesNothingThatIsThere) {
  folder.write("file", kOld);
  fs::create_symlink("elsewhere", path("link"));
  EXPECT_EQ(writeNewFile(path(), kNew), std::errc::file_exists);
  EXPECT_EQ(writeNewFile(path("link"), kNew), std::errc::file_exists);
  EXPECT_EQ(folder.read("file"), kOld);
  EXPECT_FALSE(fs::exists(path("elsewhere")));
  EXPECT_FALSE(writeNewFile(path("new"), kNew));
  EXPECT_EQ(folder.read("new"), kNew);
  FaultyFiles files;
  files.only = "write";
  files.at = 1;
  files.error = std::errc::no_space_on_device;
  EXPECT_EQ(writeNewFile(path("full"), kNew), std::errc::no_space_on_device);
  EXPECT_EQ(names(), (std::set{"file"s, "link"s, "new"s}));
}

// ---- Other copies

TEST_F(WriteFileTest, CopiesThatWriteAtTheSameTimeLoseNothing) {
  constexpr int kCopies = 4;
  constexpr int kLines = 25;
  std::vector<pid_t> children;
  for (int copy = 0; copy < kCopies; ++copy) {
    const pid_t child = fork();
    if (child == 0) {
      for (int line = 0; line < kLines; ++line) {
        const std::string mine = std::to_string(copy) + " " + std::to_string(line) + "\n";
        // On a busy machine the others may be that slow that one's patience ends.
        while (!changeFile(path(), [&](const auto& old) { return old.value_or("") + mine; }).empty()) {
        }
      }
      _exit(0);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  const std::string all = folder.read("file");
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), kCopies * kLines);
  EXPECT_EQ(names(), std::set{"file"s});
}

TEST_F(WriteFileTest, ALockThatIsNeverGivenBackIsNotWaitedForLong) {
  folder.write("file", kOld);
  const int lock = open(folder.path().c_str(), O_RDONLY | O_DIRECTORY);
  ASSERT_EQ(flock(lock, LOCK_EX), 0);
  EXPECT_EQ(writeFile(path(), kNew), "another copy of the program is writing in its folder");
  EXPECT_EQ(folder.read("file"), kOld);
  // Given back while somebody waits.
  std::thread other([&] {
    usleep(100000);
    close(lock);
  });
  EXPECT_EQ(writeFile(path(), kNew), "");
  other.join();
  EXPECT_EQ(folder.read("file"), kNew);
}

// ---- Power cuts

TEST(PowerCutTest, TheOldFileOrTheNewOneComesBackWhole) {
  constexpr unsigned kCuts = 1000;
  unsigned cuts = 0;
  unsigned olds = 0;
  for (unsigned seed = 1; cuts < kCuts; ++seed) {
    std::mt19937 random(seed);
    SimulatedDisk disk;
    const bool there = random() % 4 != 0;
    if (there) disk.put("/file", kOld);
    disk.put("/other", "another's");
    disk.cutAtCall(static_cast<int>(1 + random() % 20));
    bool told = false;
    bool cut = false;
    try {
      told = writeFile("/file", kNew).empty();
    } catch (const SimulatedDisk::PowerCut&) {
      cut = true;
    }
    // A change that was through before the power went is kept as it is.
    if (!cut) {
      EXPECT_TRUE(told);
    }
    disk.powerUp(random);
    const std::optional<std::string> left = disk.bytesOf("/file");
    const bool isOld = left == (there ? std::optional(kOld) : std::nullopt);
    EXPECT_TRUE(left == kNew || (cut && isOld)) << "seed " << seed << ": " << left.value_or("no file");
    EXPECT_EQ(disk.bytesOf("/other"), "another's");
    EXPECT_EQ(writeFile("/file", "afterwards"), "");
    disk.powerUp(random);
    EXPECT_EQ(disk.bytesOf("/file"), "afterwards");
    EXPECT_EQ(disk.files(), 2u) << "what the cut has left is gone";
    ++cuts;
    if (isOld) ++olds;
  }
  EXPECT_GT(olds, kCuts / 10) << "the cuts fell before the new file stood, too";
  EXPECT_LT(olds, kCuts - kCuts / 10) << "and behind it";
}

TEST(PowerCutTest, TheDiskWouldCatchAFileThatIsNotSynced) {
  // The disk of the test above must be able to lose something.
  unsigned lost = 0;
  for (unsigned seed = 1; seed <= 100; ++seed) {
    std::mt19937 random(seed);
    SimulatedDisk disk;
    disk.put("/file", kOld);
    FileSystem::File file = -1;
    std::size_t put = 0;
    ASSERT_FALSE(disk.create("/fresh", 0600, file));
    ASSERT_FALSE(disk.write(file, 0, kNew, put));
    ASSERT_FALSE(disk.rename("/fresh", "/file"));
    disk.powerUp(random);
    const auto left = disk.bytesOf("/file");
    if (left != kOld && left != kNew) ++lost;
  }
  EXPECT_GT(lost, 20u);
}

TEST(PowerCutTest, WrittenOverTheFileOutlastsACutBehindTheChange) {
  for (unsigned seed = 1; seed <= 100; ++seed) {
    std::mt19937 random(seed);
    SimulatedDisk disk;
    disk.put("/file", kOld);
    disk.takesNoNewFile = true;
    EXPECT_EQ(writeFile("/file", seed % 2 == 0 ? kNew : "short"), "");
    disk.powerUp(random);
    EXPECT_EQ(disk.bytesOf("/file"), seed % 2 == 0 ? kNew : "short");
  }
}

}  // namespace
}  // namespace zelvs
