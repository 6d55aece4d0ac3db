#include "tools/schematics/boards.h"

namespace schematics {

std::vector<Picture> allPictures() {
  constexpr Rect kWhole = {0, 0, kWidth, kHeight};
  std::vector<Picture> pictures = {
      {"QVT60_FULL_16BIT.BMP", centerBoard(kFull | kWide), kWhole},
      {"QVT60_FULL_8BIT.BMP", centerBoard(kFull | kNarrow), kWhole},
      {"QVT60_HALF_16BIT.BMP", centerBoard(kHalf | kWide), kWhole},
      {"QVT60_HALF_8BIT.BMP", centerBoard(kHalf | kNarrow), kWhole},
      {"QVT40_FULL.BMP", fortyBoard(kFull | kAlone), kWhole},
      {"QVT40_FULL_NEST.BMP", fortyBoard(kFull | kRibbon), kWhole},
      {"QVT40_NEST.BMP", fortyBoard(kSlave), kWhole},
      {"Qvt40_add_half.bmp", fortyBoard(kHalf | kAlone), kLinePlace},
      {"Qvt50_add_half.bmp", fiftyBoard(kHalf, 0), kLinePlace},
  };
  for (int mode = 0; mode < 8; ++mode)
    pictures.push_back({"QVT50_IOS_" + std::to_string(mode) + ".BMP", fiftyBoard(kFull, mode), kWhole});
  return pictures;
}

}  // namespace schematics
