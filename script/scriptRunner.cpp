#include "script/scriptRunner.h"

#include <cstdlib>
#include <istream>
#include <ostream>

#include "script/commands.h"
#include "ui/desk.h"
#include "ui/runTimeError.h"

namespace zelvs {

ScriptRunner::ScriptRunner(std::istream& in, std::ostream& out, ScriptedPlatform& platform, Hands& hands, bool prompt)
    : in_(in), conversation_{out, platform, hands}, prompt_(prompt) {
  platform.onWait = [this] {
    runInside();
    return true;
  };
  platform.onMessageBox = [this](const std::string& title, const std::string& text, MessageButtons buttons) {
    return answered({title, text, buttons, std::nullopt});
  };
}

int ScriptRunner::run() {
  while (runNext()) {
  }
  return status();
}

bool ScriptRunner::runNext() {
  if (!desk().clock.finish()) return true;  // a modal window has gone meanwhile: first its opener goes on
  if (desk().ended()) return false;
  if (prompt_) conversation_.out << ">" << std::endl;
  std::string line;
  bool tooLong = false;
  if (!readLine(line, tooLong)) return false;
  if (tooLong) {
    refuse("line " + std::to_string(lines_) + " is longer than " + std::to_string(kLongestScriptLine) + " bytes");
  } else {
    runLine(line);
  }
  if (prompt_) conversation_.out.flush();
  return conversation_.out.good();  // nobody hears what comes
}

bool ScriptRunner::readLine(std::string& line, bool& tooLong) {
  constexpr int kEnd = std::istream::traits_type::eof();
  int byte = in_.get();
  if (byte == kEnd) return false;
  for (; byte != kEnd && byte != '\n'; byte = in_.get()) {
    tooLong = line.size() == kLongestScriptLine;
    if (!tooLong) line += static_cast<char>(byte);
  }
  ++lines_;
  return !in_.bad();  // the first half of a command may be another one
}

void ScriptRunner::runLine(const std::string& line) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  const std::string place = std::to_string(lines_) + ": " + line;
  const Deed deed("carrying out line", place);
  const bool marked = line.starts_with(kByteOrderMark);
  const auto words = wordsOf(std::string_view(line).substr(marked ? kByteOrderMark.size() : 0));
  if (words && words->empty()) return;
  const std::string why = words ? carryOut(conversation_, *words) : "a quotation is left open";
  if (!why.empty()) {
    refuse(why);
  } else if (words->front() != "expect") {
    // What an opener of a modal window was refused was told before the commands inside it: nothing to keep here.
    conversation_.lastRefused = false;
  }
}

void ScriptRunner::refuse(const std::string& why) {
  conversation_.out << "error: " << why << '\n';
  ++conversation_.refusals;
  conversation_.lastRefused = true;
}

void ScriptRunner::runInside() {
  if (runNext()) return;
  // The input ended inside a modal window: what opened it will never go on.
  std::_Exit(status());
}

bool ScriptRunner::answered(const MessageBox& box) {
  auto& boxes = conversation_.boxes;
  boxes.push_back(box);
  while (!boxes.back().answer)
    runInside();
  const bool ok = *boxes.back().answer;
  boxes.pop_back();
  return ok;
}

int ScriptRunner::status() {
  if (in_.bad() || !conversation_.out.flush()) return kBrokenOffStatus;
  return conversation_.refusals + conversation_.failures > 0 ? 1 : 0;
}

}  // namespace zelvs
