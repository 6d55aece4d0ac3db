// Feeds a program of this folder with files, where no fuzzer does. usage: PROGRAM FILE/FOLDER...
//
// Each file's name is printed before it is fed, so that the last one printed is the one that ended the program.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/programs/judge.h"

namespace {

std::vector<std::string> filesOf(const std::string& path) {
  if (!std::filesystem::is_directory(path)) return {path};
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(path))
    files.push_back(entry.path().string());
  std::sort(files.begin(), files.end());
  return files;
}

bool feed(const std::string& path) {
  std::printf("%s\n", path.c_str());
  std::fflush(stdout);
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  if (!file) return false;
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  int fed = 0;
  for (int i = 1; i < argc; ++i) {
    for (const std::string& file : filesOf(argv[i])) {
      if (!feed(file)) {
        std::fprintf(stderr, "cannot read %s\n", file.c_str());
        return 1;
      }
      ++fed;
    }
  }
  // A corpus that has gone would look like one that is fine.
  if (fed == 0) std::fprintf(stderr, "no file was fed\n");
  return fed > 0 ? 0 : 1;
}
