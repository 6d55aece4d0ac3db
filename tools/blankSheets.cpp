// Stands in for the tools that draw, in a build without the desktop: white sheets under the names and in the sizes of
// the schematics and hints. Nobody sees them there, but the windows that show them work as they do everywhere.
//
// usage: zelvs-blank-sheets PROGRAM-FOLDER, whose list of hints must be there

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "text/textFile.h"
#include "tools/hintSheet.h"
#include "tools/littleEndian.h"
#include "tools/schematics/boards.h"

namespace {

using zelvs::littleEndian;

/// A bitmap of one bit a pixel, both colours of which are white.
std::string whiteBitmap(int width, int height) {
  constexpr std::uint32_t kHeads = 14 + 40 + 2 * 4;
  const auto rowBytes = static_cast<std::uint32_t>((width + 31) / 32 * 4);
  const std::uint32_t pixels = rowBytes * static_cast<std::uint32_t>(height);
  std::string bytes = "BM";
  bytes += littleEndian(kHeads + pixels, 4);
  bytes += littleEndian(0, 4);
  bytes += littleEndian(kHeads, 4);
  bytes += littleEndian(40, 4);
  bytes += littleEndian(static_cast<std::uint32_t>(width), 4);
  bytes += littleEndian(static_cast<std::uint32_t>(height), 4);
  bytes += littleEndian(1, 2);  // planes
  bytes += littleEndian(1, 2);  // bits a pixel
  for (int field = 0; field < 6; ++field)
    bytes += littleEndian(0, 4);
  for (int colour = 0; colour < 2; ++colour)
    bytes += littleEndian(0x00FFFFFF, 4);
  return bytes.append(pixels, '\0');
}

bool write(const std::filesystem::path& path, int width, int height) {
  std::ofstream file(path, std::ios::binary);
  file << whiteBitmap(width, height);
  if (file.flush()) return true;
  std::fprintf(stderr, "cannot write %s\n", path.c_str());
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: zelvs-blank-sheets PROGRAM-FOLDER\n");
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  std::filesystem::create_directories(folder / "Kairozu");
  bool written = true;
  for (const schematics::Picture& picture : schematics::allPictures())
    written &= write(folder / "Kairozu" / picture.file, picture.place.w, picture.place.h);
  const std::string list = (folder / "HintData/RegsterHint.TXT").string();
  const auto lines = zelvs::readTextFile(list);
  if (!lines) {
    std::fprintf(stderr, "cannot read %s\n", list.c_str());
    return 1;
  }
  for (const std::string& line : *lines) {
    if (line.starts_with(';')) continue;
    written &= write(folder / "HintData" / zelvs::fieldsOf(line, 2)[0], zelvs::kHintWidth, zelvs::kHintHeight);
  }
  return written ? 0 : 1;
}
