// Bytes from the system and to it, where its ends are not always ready.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <istream>
#include <ostream>
#include <string>
#include <thread>

#include "script/channel.h"

namespace zelvs {
namespace {

/// Two ends, neither of which waits for the other.
class ChannelTest : public testing::Test {
 protected:
  ChannelTest() {
    int ends[2];
    EXPECT_EQ(::pipe2(ends, O_NONBLOCK), 0);
    from = ends[0];
    to = ends[1];
  }
  ~ChannelTest() override { ::close(from); }

  int from = -1;
  int to = -1;  ///< whoever writes closes it
};

constexpr int kLines = 30000;  // more than a pipe holds
const std::string kLine = "what is read is what was written";

TEST_F(ChannelTest, AnEndThatIsNotReadyIsWaitedFor) {
  std::thread writer([this] {
    Channel channel(to, "the pipe");
    std::ostream out(&channel);
    for (int line = 0; line < kLines; ++line)
      out << kLine << '\n';
    EXPECT_TRUE(out.flush());
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    out << "late";
    EXPECT_TRUE(out.flush());
    ::close(to);
  });
  Channel channel(from, "the pipe");
  std::istream in(&channel);
  std::string line;
  for (int number = 0; number < kLines && std::getline(in, line); ++number)
    ASSERT_EQ(line, kLine) << number;
  EXPECT_TRUE(std::getline(in, line));
  EXPECT_EQ(line, "late");
  EXPECT_FALSE(std::getline(in, line));
  EXPECT_FALSE(in.bad()) << "an end is no failure";
  writer.join();
}

TEST_F(ChannelTest, AFailureIsToldOnce) {
  ::close(to);
  Channel channel(-1, "nothing");
  testing::internal::CaptureStderr();
  std::istream in(&channel);
  EXPECT_EQ(in.get(), EOF);
  EXPECT_TRUE(in.bad());
  in.clear();
  EXPECT_EQ(in.get(), EOF);
  std::ostream out(&channel);
  out << "x";
  EXPECT_FALSE(out.flush());
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "zelvs-script: cannot read nothing to its end: Bad file descriptor\n");
}

}  // namespace
}  // namespace zelvs
