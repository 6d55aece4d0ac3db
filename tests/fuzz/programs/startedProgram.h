#pragma once

#include <string>

#include "fuzz/memoryFiles.h"
#include "fuzz/programs/judge.h"
#include "shell/startUp.h"
#include "state/randomSource.h"
#include "state/state.h"
#include "support/bitmap.h"
#include "ui/desk.h"
#include "ui/headless/scriptedPlatform.h"

namespace zelvs {

/// The whole program, headless and on files in memory, with the maker's settings and all windows open.
class StartedProgram {
 public:
  StartedProgram() { setPlatform(&platform); }
  ~StartedProgram() {
    desk().clear();
    setPlatform(nullptr);
  }
  StartedProgram(const StartedProgram&) = delete;
  StartedProgram& operator=(const StartedProgram&) = delete;

  /// Starts it anew, with nothing left of what it was. Chance is the same each time, as far as 1,000 draws go.
  void start() {
    desk().clear();
    clearState();
    putFiles();
    constexpr int kDraws = 1000;
    for (int i = 0; i < kDraws; ++i)
      queueRandom(static_cast<double>(i * 37 % kDraws) / kDraws);
    // Nothing that a user does may end the program.
    setRunTimeErrorTeller([](const std::string& text) { fail("run-time error: " + text); });
    programFolder = "/zelvs";
    startUp();
  }

  MemoryFiles files;
  HeadlessPlatform platform;

 private:
  static constexpr const char* kSchematics[] = {
      "QVT60_FULL_16BIT.BMP", "QVT60_FULL_8BIT.BMP", "QVT60_HALF_16BIT.BMP", "QVT60_HALF_8BIT.BMP", "QVT40_FULL.BMP",
      "QVT40_FULL_NEST.BMP",  "QVT40_NEST.BMP",      "Qvt40_add_half.bmp",   "Qvt50_add_half.bmp",  "QVT50_IOS_0.BMP",
      "QVT50_IOS_1.BMP",      "QVT50_IOS_2.BMP",     "QVT50_IOS_3.BMP",      "QVT50_IOS_4.BMP",     "QVT50_IOS_5.BMP",
      "QVT50_IOS_6.BMP",      "QVT50_IOS_7.BMP",
  };

  void putFiles() {
    files.clear();
    std::string ini = "[INIT]\r\nCABLECONNECTION=1\r\nMEMORYCLEAR=1\r\nSA-QVT40-3=2\r\nSA-QVT50=4\r\nIOS-QVT50=5\r\n";
    for (const char window : std::string("12345"))
      ini += std::string("OPENWINDOW") + window + "=1\r\n";
    files.put("/zelvs/ZELVS.INI", ini);
    files.put("/zelvs/NaviData/NaviIndex.txt", "a.txt\tA\t-\r\nmissing.txt\tB\t-\r\n");
    files.put("/zelvs/NaviData/a.txt", "one\r\n#two&three\r\n-\r\n\\four\r\n\r\n-\r\n");
    files.put("/zelvs/HintData/RegsterHint.TXT", "a.bmp\tSCR\r\na.bmp\tSSR\r\n");
    files.put("/zelvs/HintData/a.bmp", bitmapOf(20, 10));
    for (const char* name : kSchematics)
      files.put(std::string("/zelvs/Kairozu/") + name, bitmapOf(20, 10));
  }
};

}  // namespace zelvs
