// The language of scripts: the input is a script. Its words, names and numbers are read and each command is carried
// out, on a program that has started once, but its hands move nothing and time stands: what gestures do is tried by
// handsFuzz.cpp, at a thousandth of the speed.

#include <algorithm>
#include <cstring>
#include <istream>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/programs/judge.h"
#include "fuzz/programs/startedProgram.h"
#include "script/commands.h"
#include "script/names.h"
#include "script/scriptRunner.h"
#include "ui/headless/headlessHands.h"
#include "ui/inspect.h"

namespace zelvs {
namespace {

/// Hands that find what they reach for and do nothing with it.
class IdleHands final : public Hands {
 public:
  std::string press(Form&, Control*) override { return {}; }
  std::string release(Form&, Control*) override { return {}; }
  std::string click(Form&, Control*) override { return {}; }
  std::string doubleClick(Form&, Control*, bool) override { return {}; }
  std::string move(Form&, Control*) override { return {}; }
  std::string pick(Control&, int) override { return {}; }
  std::string focus(Control&) override { return {}; }
  std::string type(Control&, char32_t) override { return {}; }
  std::string keyDown(Control&, int) override { return {}; }
  std::string close(Form&) override { return {}; }
  std::string activate(Form&) override { return {}; }
  std::optional<Point> placeOf(Form& form, Control* control, std::optional<int> row) override {
    return finder_.placeOf(form, control, row);
  }
  void handMove(Point) override {}
  void handDown() override {}
  void handUp() override {}
  void handKey(const Key&) override {}

 private:
  HeadlessHands finder_;
};

/// Every shared variable, as one row of bytes.
std::string store() {
  std::string all;
  for (const VariableName& variable : variableNames()) {
    const int count = std::max(variable.count, 1);
    all.append(static_cast<const char*>(variable.first), static_cast<std::size_t>(variable.width * count));
  }
  return all;
}

void restore(const std::string& all) {
  const char* at = all.data();
  for (const VariableName& variable : variableNames()) {
    const auto size = static_cast<std::size_t>(variable.width * std::max(variable.count, 1));
    std::memcpy(variable.first, at, size);
    at += size;
  }
}

/// Lets time go on, or the simulation.
bool movesTime(const Words& words) {
  if (words.empty() || (words[0] != "wait" && words[0] != "step" && words[0] != "tick")) return false;
  const auto count = words.size() > 1 ? wholeNumber(words[1]) : std::optional<std::int64_t>(1);
  return count && *count > 0;
}

/// A script, line by line, and what each of them has done.
class Script final : public std::streambuf {
 public:
  Script(std::string_view text, ScriptedPlatform& platform) : rest_(text), platform_(platform) {}

  int run() {
    std::istream in(this);
    ScriptRunner runner(in, out_, platform_, hands_, false);
    const int status = runner.run();
    platform_.onWait = nullptr;
    platform_.onMessageBox = nullptr;
    return status;
  }

 private:
  int_type underflow() override {
    if (!line_.empty()) judgeLine();
    do {
      if (rest_.empty()) return traits_type::eof();
      line_ = rest_.substr(0, rest_.find('\n'));
      rest_.remove_prefix(std::min(line_.size() + 1, rest_.size()));
      words_ = wordsOf(std::string_view(line_).substr(line_.starts_with("\xEF\xBB\xBF") ? 3 : 0)).value_or(Words());
    } while (movesTime(words_));
    line_ += '\n';  // or the next one would be asked for before this one is carried out
    before_ = store();
    printed_ = out_.view().size();
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_[0]);
  }

  void judgeLine() {
    for (const std::string& word : words_)
      expect(wordsOf(quoted(word)) == Words{word}, "a quoted word is that word");
    const bool writes = !words_.empty() && (words_[0] == "set" || words_[0] == "poke");
    const bool refused = lastPrinted().starts_with("error: ");
    expect((writes && !refused) || store() == before_, "only set and poke write, and only when they are taken");
    if (!words_.empty() && words_[0] == "get" && !refused) judgeLooks();
  }

  /// The last line that was printed for this one. A refusal is.
  std::string_view lastPrinted() const {
    std::string_view printed = out_.view().substr(printed_);
    if (printed.ends_with('\n')) printed.remove_suffix(1);
    return printed.substr(printed.rfind('\n') + 1);
  }

  /// What is printed can be expected.
  void judgeLooks() {
    const std::string printed(out_.view().substr(printed_));
    std::string wanted;
    std::ostringstream judged;
    Conversation again{judged, platform_, hands_};
    for (std::size_t i = 1; i < words_.size(); ++i) {
      Value value;
      expect(look(words_[i], value).empty(), "what was seen is there");
      wanted += words_[i] + " = " + value.printed() + "\n";
      if (value.kind == Value::Kind::Text)
        expect(wordsOf(value.printed()) == Words{value.plain()}, "a text is one word");
      expect(carryOut(again, {"expect", words_[i], value.plain()}).empty() && again.failures == 0, "it is as it is");
    }
    expect(printed == wanted, "each value is printed");
  }

  std::string_view rest_;
  ScriptedPlatform& platform_;
  IdleHands hands_;
  std::ostringstream out_;
  std::string line_;
  Words words_;
  std::string before_;
  std::size_t printed_ = 0;
};

/// Started once, with every window made, so that its controls have names.
StartedProgram& program() {
  static StartedProgram started;
  static const bool once = [] {
    started.start();
    for (FormPlace* place : FormPlace::all()) {
      if (place->name() != "frmOsiro") place->load();
    }
    return true;
  }();
  static_cast<void>(once);
  return started;
}

void judge(const std::string& script) {
  ScriptedPlatform& platform = program().platform;
  static const std::string start = store();
  const int status = Script(script, platform).run();
  expect(status == 0 || status == 1, "a script ends well or not");
  restore(start);
  clearRandom();
  platform.setPointer({0, 0});
}

}  // namespace
}  // namespace zelvs

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zelvs::judge(zelvs::bytesOf(data, size));
  return 0;
}
