#include "lessons/naviIndex.h"

#include <vector>

#include "files/fileSystem.h"
#include "text/shortText.h"
#include "text/textFile.h"

namespace zelvs {

namespace {

Flag isLesson(const std::string& fileName) {
  FileSystem::Status status;
  const bool there = !fileSystem().status(naviPath(fileName), status);
  return there && status.kind == FileSystem::Kind::Plain ? kTrue : kFalse;
}

[[noreturn]] void refuse(const std::string& path, const std::string& why) {
  runTimeError(shortPath(path) + why);
}

[[noreturn]] void refuseLine(const std::string& path, std::size_t number, const std::string& line) {
  constexpr std::size_t kMostOfLine = 40;
  refuse(path, ", line " + std::to_string(number) + ": no file name, title and note with a TAB between: \"" +
                   shortened(line, kMostOfLine) + "\"");
}

}  // namespace

std::string lessonsFolder() {
  return programFolder + "/NaviData/";
}

std::optional<NaviRecord> naviRecordOf(const std::string& line) {
  constexpr std::size_t kFields = 3;  // file name, title, note
  const std::vector<std::string> fields = fieldsOf(line, kFields);
  if (fields.size() < kFields) return std::nullopt;
  return NaviRecord{fields[0], fields[1], fields[2], kFalse};
}

void readNaviIndex() {
  naviDataPath = lessonsFolder();
  naviIndex.clear();
  const std::string path = naviPath(kIndexOfLessons);
  const Deed deed("reading the list of lessons", path);
  std::string refusal;
  const std::optional<std::vector<std::string>> lines = readTextFile(path, &refusal);
  if (!refusal.empty()) refuse(path, " cannot be read: " + refusal);
  if (!lines) return;
  for (std::size_t i = 0; i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (line.starts_with(';')) continue;
    std::optional<NaviRecord> record = naviRecordOf(line);
    if (!record) refuseLine(path, i + 1, line);
    if (naviIndex.size() == kMostLessons) {
      refuse(path, " has more than " + std::to_string(kMostLessons) + " entries at line " + std::to_string(i + 1));
    }
    record->exists = isLesson(record->fileName);
    naviIndex.push_back(std::move(*record));
  }
}

std::string naviPath(std::string_view fileName) {
  return fileIn(naviDataPath, fileName);
}

}  // namespace zelvs
