// The list of lessons, NaviIndex.txt: the input is the file.

#include <algorithm>
#include <string>
#include <vector>

#include "fuzz/memoryFiles.h"
#include "fuzz/programs/judge.h"
#include "lessons/naviIndex.h"
#include "state/state.h"
#include "text/codePage932.h"

namespace zelvs {
namespace {

const std::string kFolder = "/zelvs/NaviData/";

/// The file's entries as it would be written to have them: what is no entry is left out.
std::vector<std::string> entriesOf(const std::string& bytes) {
  std::vector<std::string> entries;
  const std::string text = utf8FromCodePage932(bytes);
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    std::string line = text.substr(at, end - at);
    if (end < text.size() && line.ends_with('\r')) line.pop_back();
    if (!line.starts_with(';')) entries.push_back(line);
    at = end + 1;
  }
  return entries;
}

void judge(const std::string& bytes) {
  static MemoryFiles files;
  programFolder = "/zelvs";
  files.put(kFolder + "NaviIndex.txt", bytes);
  files.put(kFolder + "a.txt", "");
  files.put(kFolder + "b/c.txt", "");
  const auto refusal = refusalOf([] { readNaviIndex(); });
  if (refusal) {
    judgeRefusal(*refusal, "NaviIndex.txt");
    return;
  }
  const std::vector<std::string> entries = entriesOf(bytes);
  expect(naviIndex.size() == entries.size(), "an entry a line");
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const NaviRecord& record = naviIndex[i];
    expect(record.fileName + "\t" + record.title + "\t" + record.note == entries[i], "the fields make up the line");
    std::string path = record.fileName;
    std::replace(path.begin(), path.end(), '\\', '/');
    expect(record.exists == (files.has(kFolder + path) ? kTrue : kFalse), "what is there is found");
  }
}

}  // namespace
}  // namespace zelvs

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zelvs::judge(zelvs::bytesOf(data, size));
  return 0;
}
