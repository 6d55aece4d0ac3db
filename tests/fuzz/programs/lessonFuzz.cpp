// A lesson: the input is its file, of which the pages are turned.

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/memoryFiles.h"
#include "fuzz/programs/judge.h"
#include "lessons/frmNavigation.h"
#include "state/state.h"
#include "text/codePage932.h"
#include "ui/headless/scriptedPlatform.h"

namespace zelvs {
namespace {

constexpr int kMostTurned = 40;  // pages: the others look like these
constexpr int kLinesOfPage = 3;

/// What any text of the code page has in common.
void judgeText(const std::string& bytes) {
  const std::string text = utf8FromCodePage932(bytes);
  const std::u32string characters = charactersOf(text);
  expect(textOf(characters) == text, "the text is well-formed");
  expect(characters.size() <= bytes.size(), "no byte is read twice");
  std::size_t lackingAt = 0;
  if (const std::optional<std::string> back = codePage932FromUtf8(text, lackingAt)) {
    expect(utf8FromCodePage932(*back) == text, "the text is the same there and back");
  } else {
    expect(text.find("\uFFFD") == lackingAt, "only what was no character has no code");
  }
}

std::string withoutMarks(std::string line) {
  std::erase_if(line, [](char c) { return c == '&' || c == '#' || c == '\\'; });
  return line;
}

void judgePage(int page) {
  frmNavigation->showPage(page);
  for (int strip = 0; strip < 2; ++strip) {
    std::string shown;
    for (const DrawingOperation& piece : frmNavigation->picNav(strip).drawing())
      shown += piece.text;
    const auto line = static_cast<std::size_t>(kLinesOfPage * (page - 1) + strip);
    expect(shown == withoutMarks(frmNavigation->naviLines[line]), "what is shown is the line without its marks");
  }
}

void judge(const std::string& bytes) {
  static MemoryFiles files;
  static HeadlessPlatform platform;
  setPlatform(&platform);
  naviDataPath = "/zelvs/NaviData/";
  files.put("/zelvs/NaviData/a.txt", bytes);
  judgeText(bytes);
  const auto refusal = refusalOf([] { frmNavigation->setNavigation("a.txt"); });
  const auto& lines = frmNavigation->naviLines;
  if (refusal) {
    judgeRefusal(*refusal, "a.txt");
    expect(lines.size() < 2, "only a lesson without a whole first page is refused: " + *refusal);
    return;
  }
  const int pages = static_cast<int>(lines.size()) / kLinesOfPage;
  expect(frmNavigation->pageCount == pages, "three lines a page");
  expect(frmNavigation->currentPage == 1, "it begins at its begin");
  for (int page = 1; page <= std::min(pages, kMostTurned); ++page)
    judgePage(page);
  if (pages > 0) judgePage(pages);
}

}  // namespace
}  // namespace zelvs

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zelvs::judge(zelvs::bytesOf(data, size));
  return 0;
}
