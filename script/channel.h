#pragma once

#include <array>
#include <streambuf>
#include <string>

namespace zelvs {

/// The bytes of a stream, straight from the system or to it. The first time that it cannot read or write it says why
/// on standard error, by its name: a script that was not read to its end, and answers that went nowhere, must not look
/// like a run that went well.
class Channel final : public std::streambuf {
 public:
  /// The descriptor stays open. name: what errors call it.
  Channel(int descriptor, std::string name);
  Channel(const Channel&) = delete;
  Channel& operator=(const Channel&) = delete;

  /// Reads from a file from here on. The result is empty, or why it is no script: only plain files of at most
  /// kLongestScript bytes and pipes are. A pipe that nobody has opened for writing gets a moment, and no longer.
  std::string open(const std::string& name);

 protected:
  int_type underflow() override;
  int_type overflow(int_type byte) override;
  int sync() override;

 private:
  bool writerComes();
  void tellFailure(const std::string& what);

  int descriptor_;
  std::string name_;
  bool told_ = false;
  std::array<char, 1 << 16> bytes_;
};

/// Of a file. What comes through a pipe or the standard input is a conversation, which may be of any length.
inline constexpr long long kLongestScript = 16LL << 20;

}  // namespace zelvs
