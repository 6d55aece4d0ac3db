#include "lessons/naviIndex.h"

#include <optional>
#include <vector>

#include "files/fileSystem.h"
#include "state/state.h"
#include "text/shortText.h"
#include "text/textFile.h"

namespace zelvs {

namespace {

constexpr std::size_t kFields = 3;  // file name, title, note

Flag isLesson(const std::string& fileName) {
  FileSystem::Status status;
  const bool there = !fileSystem().status(naviPath(fileName), status);
  return there && status.kind == FileSystem::Kind::Plain ? kTrue : kFalse;
}

/// The list shows every entry: more than these nobody has written by hand, or could look through.
constexpr std::size_t kMostEntries = 10000;

[[noreturn]] void refuse(const std::string& path, const std::string& why) {
  runTimeError(shortPath(path) + why);
}

[[noreturn]] void refuseLine(const std::string& path, std::size_t number, const std::string& line) {
  constexpr std::size_t kMostOfLine = 40;
  refuse(path, ", line " + std::to_string(number) + ": no file name, title and note with a TAB between: \"" +
                   shortened(line, kMostOfLine) + "\"");
}

}  // namespace

void readNaviIndex() {
  naviDataPath = programFolder + "/NaviData/";
  naviIndex.clear();
  const std::string path = naviPath("NaviIndex.txt");
  std::string refusal;
  const std::optional<std::vector<std::string>> lines = readTextFile(path, &refusal);
  if (!refusal.empty()) refuse(path, " cannot be read: " + refusal);
  if (!lines) return;
  for (std::size_t i = 0; i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (line.starts_with(';')) continue;
    const std::vector<std::string> fields = fieldsOf(line, kFields);
    if (fields.size() < kFields) refuseLine(path, i + 1, line);
    if (naviIndex.size() == kMostEntries) {
      refuse(path, " has more than " + std::to_string(kMostEntries) + " entries at line " + std::to_string(i + 1));
    }
    naviIndex.push_back({fields[0], fields[1], fields[2], isLesson(fields[0])});
  }
}

std::string naviPath(std::string_view fileName) {
  return fileIn(naviDataPath, fileName);
}

}  // namespace zelvs
