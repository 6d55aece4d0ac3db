// The list of hints, RegsterHint.TXT: the input is the file. Nothing in it is ever refused.

#include <algorithm>
#include <string>
#include <vector>

#include "fuzz/memoryFiles.h"
#include "fuzz/programs/judge.h"
#include "monitor/frmHint.h"
#include "state/state.h"
#include "support/bitmap.h"
#include "text/textFile.h"
#include "ui/headless/scriptedPlatform.h"

namespace zelvs {
namespace {

const std::string kFolder = "/zelvs/HintData/";

void judge(const std::string& bytes) {
  constexpr std::size_t kMostHints = 1000;
  static MemoryFiles files;
  static HeadlessPlatform platform;
  setPlatform(&platform);
  programFolder = "/zelvs";
  files.put(kFolder + "a.bmp", bitmapOf(20, 10));
  files.put(kFolder + "RegsterHint.TXT", bytes);
  if (const auto refusal = refusalOf([] { frmHint->initHint(); })) fail("the load of hints reports: " + *refusal);

  std::vector<std::string> hints = readTextFile(kFolder + "RegsterHint.TXT").value_or(std::vector<std::string>());
  std::erase_if(hints, [](const std::string& line) { return line.starts_with(';'); });
  hints.resize(std::min(hints.size(), kMostHints));
  const auto tabs = static_cast<std::size_t>(frmHint->tabHint.Tabs);
  expect(tabs == std::max<std::size_t>(1, hints.size()), "a tab a line");
  for (std::size_t i = 0; i < hints.size(); ++i) {
    const std::vector<std::string> fields = fieldsOf(hints[i], 3);
    const std::string& caption = frmHint->tabHint.TabCaption(static_cast<int>(i));
    expect(fields.size() < 2 || caption == fields[1], "the caption is the line's");
  }
  expect(static_cast<std::size_t>(frmHint->ilsHint.count()) <= hints.size(), "at most an image a line");
}

}  // namespace
}  // namespace zelvs

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zelvs::judge(zelvs::bytesOf(data, size));
  return 0;
}
