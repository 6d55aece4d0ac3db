#include "ui/waveFile.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace zelvs {

bool isWaveFile(const std::string& path) {
  // A pipe that nobody writes to would be waited for without end.
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return false;
  std::ifstream file(path, std::ios::binary);
  std::array<char, 12> head{};
  file.read(head.data(), head.size());
  return file && std::string_view(head.data(), 4) == "RIFF" && std::string_view(head.data() + 8, 4) == "WAVE";
}

}  // namespace zelvs
