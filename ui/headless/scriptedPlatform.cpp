#include "ui/headless/scriptedPlatform.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <utility>

#include "ui/desk.h"

namespace zelvs {

void ScriptedPlatform::advance(std::int64_t milliseconds) {
  advanceTo(clock_ + milliseconds);
}

bool ScriptedPlatform::finishAdvance() {
  if (owed_ > clock_) advanceTo(std::exchange(owed_, 0));
  return owed_ <= clock_;
}

void ScriptedPlatform::advanceTo(std::int64_t end) {
  const Form* modal = desk().modal();
  for (auto due = desk().timers.nextDue(); due && *due <= end; due = desk().timers.nextDue()) {
    clock_ = std::max(clock_, *due);
    desk().timers.fireNext(clock_);
    if (modal != nullptr && desk().modal() != modal) {
      owed_ = end;
      return;
    }
  }
  // A modal window inside a handler may have moved the clock past the end already.
  clock_ = std::max(clock_, end);
}

void ScriptedPlatform::yield() {
  while (desk().timers.fireNext(clock_)) {
  }
}

void ScriptedPlatform::runModal(Form& form) {
  if (onModal) onModal(form);
}

bool ScriptedPlatform::messageBox(const std::string& title, const std::string& text, MessageIcon /*icon*/,
                                  MessageButtons buttons) {
  return onMessageBox && onMessageBox(title, text, buttons);
}

bool ScriptedPlatform::openSound(const std::string& path) {
  return isWaveFile(path);
}

bool isWaveFile(const std::string& path) {
  // A pipe that nobody writes to would be waited for without end.
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return false;
  std::ifstream file(path, std::ios::binary);
  std::array<char, 12> head{};
  file.read(head.data(), head.size());
  return file && std::string_view(head.data(), 4) == "RIFF" && std::string_view(head.data() + 8, 4) == "WAVE";
}

}  // namespace zelvs
