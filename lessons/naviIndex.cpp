#include "lessons/naviIndex.h"

#include <filesystem>
#include <optional>
#include <vector>

#include "state/state.h"
#include "text/textFile.h"

namespace zelvs {

namespace {

constexpr std::size_t kFields = 3;  // file name, title, note

Flag isLesson(const std::string& fileName) {
  std::error_code error;
  return std::filesystem::is_regular_file(naviPath(fileName), error) ? kTrue : kFalse;
}

[[noreturn]] void refuse(const std::string& path, std::size_t number, const std::string& line) {
  runTimeError(path + ", line " + std::to_string(number) + ": no file name, title and note with a TAB between: \"" +
               line + "\"");
}

}  // namespace

void readNaviIndex() {
  naviDataPath = programFolder + "/NaviData/";
  naviIndex.clear();
  const std::string path = naviPath("NaviIndex.txt");
  const Deed deed("reading the list of lessons", path);
  const std::optional<std::vector<std::string>> lines = readTextFile(path);
  if (!lines) return;
  for (std::size_t i = 0; i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (line.starts_with(';')) continue;
    const std::vector<std::string> fields = fieldsOf(line, kFields);
    if (fields.size() < kFields) refuse(path, i + 1, line);
    naviIndex.push_back({fields[0], fields[1], fields[2], isLesson(fields[0])});
  }
}

std::string naviPath(std::string_view fileName) {
  return fileIn(naviDataPath, fileName);
}

}  // namespace zelvs
