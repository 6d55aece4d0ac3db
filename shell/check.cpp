#include "shell/check.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "dialogs/beep.h"
#include "lessons/frmNavigation.h"
#include "lessons/naviIndex.h"
#include "monitor/frmHint.h"
#include "panel/frmKAIROZU.h"
#include "shell/iniFile.h"
#include "state/state.h"
#include "text/shortText.h"
#include "text/textFile.h"
#include "ui/picture.h"
#include "ui/waveFile.h"

namespace zelvs {

namespace fs = std::filesystem;

namespace {

/// What is looked over together: it has one line when all of it is right, else one for each thing that is wrong.
class Part {
 public:
  explicit Part(std::string name) : name_(std::move(name)) {}

  void wrong(const std::string& what) { findings_.push_back({false, shortened(name_ + ": " + what, kLongestTold)}); }
  std::vector<Finding> otherwise(const std::string& what) const {
    return findings_.empty() ? std::vector<Finding>{{true, shortened(name_ + ": " + what, kLongestTold)}} : findings_;
  }

 private:
  std::string name_;
  std::vector<Finding> findings_;
};

std::vector<Finding> checkProgramFolder() {
  Part part("program folder");
  std::error_code error;
  const fs::directory_iterator files(programFolder, error);
  if (error) part.wrong(programFolder + " cannot be read: " + error.message());
  return part.otherwise(programFolder);
}

bool isWholeNumber(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void checkSetting(Part& part, const Setting& setting, const std::optional<std::string>& value) {
  const std::string key(setting.key);
  if (!value) {
    part.wrong(key + " is missing and counts as 0");
    return;
  }
  const double number = leadingNumber(*value);
  if (number < 0 || number > setting.values - 1) {
    part.wrong(key + "=" + *value + " is outside 0 to " + std::to_string(setting.values - 1));
  } else if (!isWholeNumber(*value)) {
    part.wrong(key + "=" + *value + " is no whole number and counts as " + std::to_string(wholeNumber16(number)));
  }
}

/// Asked without writing anything. An administrator may write all, and the program still minds the file's own mode.
bool writable(const std::string& path) {
  std::error_code error;
  constexpr auto kWriters = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((fs::status(path, error).permissions() & kWriters) == fs::perms::none) return false;
  std::FILE* file = std::fopen(path.c_str(), "r+b");
  if (file != nullptr) std::fclose(file);
  return file != nullptr;
}

std::vector<Finding> checkSettings() {
  Part part("ZELVS.INI");
  const std::string path = iniPath();
  std::string refusal;
  const std::optional<Profile> profile = Profile::read(path, refusal);
  if (!profile) {
    std::error_code error;
    const bool there = fs::exists(fs::symlink_status(path, error));
    const std::string absent = there ? "is no plain file" : "is missing";
    part.wrong(refusal.empty() ? absent + ": every setting counts as 0" : "cannot be read: " + refusal);
    return part.otherwise("");
  }
  std::vector<std::string_view> keys;
  for (const Setting& setting : settings())
    keys.push_back(setting.key);
  const auto values = profile->values(kIniSection, keys);
  if (std::none_of(values.begin(), values.end(), [](const auto& value) { return value.has_value(); })) {
    part.wrong("has no setting in a section [" + std::string(kIniSection) + "]: every one counts as 0");
  } else {
    for (std::size_t i = 0; i < keys.size(); ++i)
      checkSetting(part, settings()[i], values[i]);
  }
  if (!writable(path)) part.wrong("may not be written: no settings are saved");
  return part.otherwise(std::to_string(keys.size()) + " settings, and they can be saved");
}

/// What is wrong with a file that readFile() gave nothing of.
std::string absence(const std::string& refusal) {
  return refusal.empty() ? " is missing" : " cannot be read: " + refusal;
}

void checkLesson(Part& part, const std::string& fileName) {
  std::string refusal;
  const auto lines = readTextFile(fileIn(lessonsFolder(), fileName), &refusal);
  if (!lines) {
    part.wrong("the lesson " + fileName + absence(refusal));
    return;
  }
  const std::size_t pages = lines->size() / kLinesOfPage;
  if (pages == 0) part.wrong("the lesson " + fileName + " has no page: a page has three lines");
  if (pages > std::numeric_limits<std::int16_t>::max()) part.wrong("the lesson " + fileName + " has too many pages");
}

std::vector<Finding> checkLessons() {
  Part part("NaviData");
  const std::string index(kIndexOfLessons);
  std::string refusal;
  const auto lines = readTextFile(fileIn(lessonsFolder(), index), &refusal);
  if (!lines) part.wrong(index + absence(refusal) + (refusal.empty() ? ": the list of lessons is empty" : ""));
  std::size_t lessons = 0;
  for (std::size_t i = 0; lines && i < lines->size(); ++i) {
    const std::string& line = (*lines)[i];
    if (line.starts_with(';')) continue;
    ++lessons;
    if (const auto record = naviRecordOf(line)) {
      checkLesson(part, record->fileName);
    } else {
      part.wrong(index + ", line " + std::to_string(i + 1) +
                 " is no file name, title and note: the program ends there");
    }
  }
  if (lessons > kMostLessons) part.wrong(index + " has more than " + std::to_string(kMostLessons) + " lessons");
  return part.otherwise(std::to_string(lessons) + " lessons");
}

void checkPicture(Part& part, const std::string& folder, const std::string& fileName, const std::string& consequence) {
  if (loadPictureIfThere(fileIn(folder, fileName)).none()) {
    part.wrong(fileName + " is missing or no picture: " + consequence);
  }
}

std::vector<Finding> checkHints() {
  Part part("HintData");
  const auto hints = readHintList();
  if (!hints) part.wrong(std::string(kListOfHints) + " is missing or cannot be read: there are no hints");
  for (const HintRecord& hint : hints.value_or(std::vector<HintRecord>())) {
    if (!hint.caption) part.wrong(hint.fileName + " has no caption");
    checkPicture(part, hintsFolder(), hint.fileName, "the tabs behind it show the wrong hints");
  }
  return part.otherwise(std::to_string(hints ? hints->size() : 0) + " hints");
}

std::vector<Finding> checkSchematics() {
  Part part("Kairozu");
  const std::vector<std::string> files = schematicFiles();
  for (const std::string& file : files)
    checkPicture(part, schematicsFolder(), file, "the program ends when it is to be shown");
  return part.otherwise(std::to_string(files.size()) + " schematics");
}

std::vector<Finding> checkBeep() {
  Part part("BEEP.WAV");
  if (!isWaveFile(beepPath())) part.wrong("is missing or no wave file: the system's beep takes its place");
  return part.otherwise("a wave file");
}

}  // namespace

std::vector<Finding> checkFolder() {
  std::vector<Finding> all;
  for (const auto check : {checkProgramFolder, checkSettings, checkLessons, checkHints, checkSchematics, checkBeep}) {
    for (Finding& finding : check())
      all.push_back(std::move(finding));
  }
  return all;
}

int tellFindings(const std::vector<Finding>& findings) {
  bool right = true;
  for (const Finding& finding : findings) {
    std::printf("%s  %s\n", finding.right ? "right" : "WRONG", finding.text.c_str());
    right = right && finding.right;
  }
  return std::fflush(stdout) == 0 && right ? 0 : 1;
}

}  // namespace zelvs
