#include "script/scriptRunner.h"

#include <cstdlib>
#include <iostream>

#include "script/commands.h"
#include "ui/desk.h"

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
  if (!std::getline(in_, line)) return false;
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
  runLine(line);
  if (prompt_) conversation_.out.flush();
  return true;
}

void ScriptRunner::runLine(const std::string& line) {
  const auto words = wordsOf(line);
  if (words && words->empty()) return;
  const std::string why = words ? carryOut(conversation_, *words) : "a quotation is left open";
  if (!why.empty()) {
    conversation_.out << "error: " << why << '\n';
    ++conversation_.refusals;
    conversation_.lastRefused = true;
  } else if (words->front() != "expect") {
    // What an opener of a modal window was refused was told before the commands inside it: nothing to keep here.
    conversation_.lastRefused = false;
  }
}

void ScriptRunner::runInside() {
  if (runNext()) return;
  // The input ended inside a modal window: what opened it will never go on.
  conversation_.out.flush();
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

int ScriptRunner::status() const {
  return conversation_.refusals + conversation_.failures > 0 ? 1 : 0;
}

}  // namespace zelvs
