#include "script/channel.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ios>
#include <utility>

#include "text/shortText.h"

namespace zelvs {

namespace {

/// True when a call that gave this is to be made again: a signal came between, or the other end was not ready and is
/// now.
bool again(ssize_t result, int descriptor, short awaited) {
  if (result >= 0) return false;
  if (errno != EAGAIN) return errno == EINTR;
  pollfd end{descriptor, awaited, 0};
  ::poll(&end, 1, -1);
  return true;
}

}  // namespace

Channel::Channel(int descriptor, std::string name) : descriptor_(descriptor), name_(std::move(name)) {}

std::string Channel::open(const std::string& name) {
  std::string cannot = "cannot read " + name;
  struct stat file {};
  // Asked before it is opened: some devices do things when they are.
  if (::stat(name.c_str(), &file) != 0 || S_ISDIR(file.st_mode)) return cannot;
  const bool pipe = S_ISFIFO(file.st_mode);
  if (!pipe && !S_ISREG(file.st_mode)) return cannot + ": it is a device, no file";
  if (file.st_size > kLongestScript) return cannot + ": it is longer than " + std::to_string(kLongestScript) + " bytes";
  const int descriptor = ::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) return cannot;
  descriptor_ = descriptor;
  name_ = name;
  return pipe && !writerComes() ? cannot + ": nobody writes into this pipe" : std::string();
}

bool Channel::writerComes() {
  // Programs that are started together open its two ends in any order.
  constexpr int kTries = 100;
  constexpr int kPause = 10;  // milliseconds
  for (int tries = 0; tries < kTries; ++tries) {
    const ssize_t got = ::read(descriptor_, bytes_.data(), bytes_.size());
    if (got < 0) return errno == EAGAIN;
    if (got > 0) {
      setg(bytes_.data(), bytes_.data(), bytes_.data() + got);
      return true;
    }
    pollfd end{descriptor_, POLLIN, 0};
    if (::poll(&end, 1, kPause) > 0) return true;
  }
  return false;
}

void Channel::tellFailure(const std::string& what) {
  if (std::exchange(told_, true)) return;
  const std::string why = std::strerror(errno);
  std::fprintf(stderr, "zelvs-script: cannot %s: %s\n", shortened(what, kLongestTold).c_str(), why.c_str());
}

Channel::int_type Channel::underflow() {
  ssize_t got = 0;
  do {
    got = ::read(descriptor_, bytes_.data(), bytes_.size());
  } while (again(got, descriptor_, POLLIN));
  if (got < 0) {
    tellFailure("read " + name_ + " to its end");
    throw std::ios_base::failure("read");  // a stream takes it and goes bad, which it does no other way
  }
  setg(bytes_.data(), bytes_.data(), bytes_.data() + got);
  return got == 0 ? traits_type::eof() : traits_type::to_int_type(*gptr());
}

Channel::int_type Channel::overflow(int_type byte) {
  if (sync() != 0) return traits_type::eof();
  return traits_type::eq_int_type(byte, traits_type::eof()) ? traits_type::not_eof(byte)
                                                            : sputc(traits_type::to_char_type(byte));
}

int Channel::sync() {
  for (const char* at = pbase(); at < pptr();) {
    const ssize_t put = ::write(descriptor_, at, static_cast<std::size_t>(pptr() - at));
    if (put >= 0) {
      at += put;
    } else if (!again(put, descriptor_, POLLOUT)) {
      tellFailure("write " + name_);
      return -1;
    }
  }
  setp(bytes_.data(), bytes_.data() + bytes_.size());
  return 0;
}

}  // namespace zelvs
