#pragma once

#include <memory>
#include <string>

namespace zelvs {

/// The one wave sound of the program.
class WaveSound {
 public:
  WaveSound();
  ~WaveSound();
  WaveSound(const WaveSound&) = delete;
  WaveSound& operator=(const WaveSound&) = delete;

  /// False when the file is missing or no wave file.
  bool open(const std::string& path);
  /// From its start.
  void play();

 private:
  struct Player;
  std::string path_;
  std::unique_ptr<Player> player_;  // made at the first play: audio takes longer to come up than the whole program
};

}  // namespace zelvs
