#include "learning/naviIndex.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <vector>

#include "kernel/startUp.h"
#include "kernel/state.h"
#include "ui/textFile.h"

namespace zelvs {

namespace {

Flag isLesson(const std::string& fileName) {
  std::error_code error;
  return std::filesystem::is_regular_file(naviPath(fileName), error) ? kTrue : kFalse;
}

[[noreturn]] void refuse(const std::string& path, std::size_t number, const std::string& line) {
  runTimeError(path + ", line " + std::to_string(number) + ": no file name, title and note with a TAB between: \"" +
               line + "\"");
}

/// Nothing when the line has fewer than two TABs. The third field takes all further ones.
std::optional<NaviRecord> entryOf(const std::string& line) {
  const std::size_t first = line.find('\t');
  if (first == std::string::npos) return std::nullopt;
  const std::size_t second = line.find('\t', first + 1);
  if (second == std::string::npos) return std::nullopt;
  const std::string fileName = line.substr(0, first);
  return NaviRecord{fileName, line.substr(first + 1, second - first - 1), line.substr(second + 1), isLesson(fileName)};
}

}  // namespace

void readNaviIndex() {
  showProcessMessage("ナビゲーションウィンドウ設定中です。");
  naviDataPath = programFolder + "/NaviData/";
  naviIndex.clear();
  const std::string path = naviPath("NaviIndex.txt");
  const std::optional<std::vector<std::string>> lines = readTextFile(path);
  if (!lines) return;
  for (std::size_t i = 0; i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (line.starts_with(';')) continue;
    const std::optional<NaviRecord> entry = entryOf(line);
    if (!entry) refuse(path, i + 1, line);
    naviIndex.push_back(*entry);
  }
}

std::string naviPath(std::string_view fileName) {
  std::string path = naviDataPath + std::string(fileName);
  std::replace(path.begin() + static_cast<std::ptrdiff_t>(naviDataPath.size()), path.end(), '\\', '/');
  return path;
}

}  // namespace zelvs
