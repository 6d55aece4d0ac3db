// A user who does anything at all, in every order: gestures and raw hands on whatever is visible, with lists left open,
// dialogs inside dialogs, message boxes and restarts among them. Nothing may end the program, leave the desk in
// disorder or touch what is gone (the sanitizers watch).
//
// A session is lines of the script language, thought of one by one while the program runs. Each runs in a process of
// its own, so that one that ends the program is a failure like any other, and can be tried again with fewer lines.

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <sstream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/randomUser.h"
#include "fuzz/watcher.h"
#include "script/scriptRunner.h"
#include "support/program.h"
#include "ui/headless/headlessHands.h"
#include "ui/runTimeError.h"

namespace zelvs {
namespace {

using Lines = std::vector<std::string>;

constexpr int kLines = 1500;              // of a session
constexpr unsigned kLongestSession = 50;  // seconds
constexpr int kFaultStatus = 4;

struct LessonLine {
  const char* file;
  const char* text;
};

/// Short lessons, and one whose file is missing.
constexpr LessonLine kLessons[] = {
    {"NaviIndex.txt", "a.txt|A|-"},
    {"NaviIndex.txt", "b.txt|B|-"},
    {"NaviIndex.txt", "missing.txt|C|-"},
    {"a.txt", "one"},
    {"a.txt", "#two&three"},
    {"a.txt", "-"},
    {"a.txt", "four"},
    {"a.txt", "-"},
    {"b.txt", "\\one"},
    {"b.txt", "-"},
};

std::string theFaultFile;

/// Ends a session's process; the other one reads why.
[[noreturn]] void endWithFault(const std::string& what) {
  std::ofstream(theFaultFile) << what;
  std::_Exit(kFaultStatus);
}

/// A script that is being thought of while it runs. When the user has had enough, the way out of whatever is open
/// follows.
class Session : public std::streambuf {
 public:
  /// next: the user's next line, empty at the end. record: is told each line before it is carried out.
  Session(ScriptedPlatform& platform, const std::function<std::string()>& next, const std::string& record)
      : platform_(platform), next_(next), record_(record) {}

  void run() {
    std::istream in(this);
    std::ostringstream out;
    HeadlessHands hands;
    ScriptRunner runner(in, out, platform_, hands, false);
    platform_.onMessageBox = [this, answered = platform_.onMessageBox](const auto& title, const auto& text,
                                                                       MessageButtons buttons) {
      boxes_.push_back(buttons);
      const bool ok = answered(title, text, buttons);
      boxes_.pop_back();
      return ok;
    };
    watcher_.after();
    runner.run();
    // The program ends beneath whatever the user has left open, and nobody answers any more.
    platform_.onWait = nullptr;
    platform_.onMessageBox = nullptr;
    desk().clear();
  }

 private:
  int_type underflow() override {
    if (begun_) watcher_.after();
    begun_ = true;
    line_ = next_();
    if (line_.empty()) line_ = wayOut();
    if (line_.empty()) return traits_type::eof();
    record_ << line_ << std::endl;
    watcher_.before(*wordsOf(line_), !boxes_.empty());
    line_ += '\n';
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_[0]);
  }

  std::string wayOut() {
    constexpr int kMostTries = 200;
    if (!boxes_.empty()) return boxes_.back() == MessageButtons::Ok ? "answer ok" : "answer cancel";
    const Form* modal = desk().modal();
    if (modal == nullptr) return {};
    if (tries_ == kMostTries) endWithFault("a modal window that nobody can leave: " + modal->name());
    Lines ways = {"close " + modal->name(), "wait 1000"};
    for (const Control* control : modal->controls()) {
      if (control->kind() == ControlKind::CommandButton) ways.push_back("click " + control->fullName());
    }
    return ways[static_cast<std::size_t>(tries_++) % ways.size()];
  }

  ScriptedPlatform& platform_;
  Watcher watcher_{endWithFault};
  const std::function<std::string()>& next_;
  std::ofstream record_;
  std::vector<MessageButtons> boxes_;
  std::string line_;
  bool begun_ = false;
  int tries_ = 0;
};

/// How a session went: its lines, and what did not hold behind the last of them.
struct Outcome {
  Lines lines;
  std::string fault;
};

class RandomGesturesTest : public ProgramTest, public testing::WithParamInterface<unsigned> {
 protected:
  RandomGesturesTest() {
    for (const char* name : {"Kairozu", "HintData", "BEEP.WAV"})
      std::filesystem::create_symlink(std::string(ZELVS_FOLDER "/") + name, folder.file(name));
    std::filesystem::create_directory(folder.file("NaviData"));
    std::map<std::string, std::string> texts;
    for (const LessonLine& line : kLessons) {
      std::string text = line.text;
      std::replace(text.begin(), text.end(), '|', '\t');
      texts[line.file] += text + "\r\n";
    }
    for (const auto& [name, text] : texts)
      folder.write("NaviData/" + name, text);
    theFaultFile = folder.file("fault");
  }

  static std::map<std::string, std::string> settings() {
    const unsigned seed = GetParam();
    return {{"MEMORYCLEAR", std::to_string(seed % 2)},
            {"CPUTYPE", std::to_string(seed % 4)},
            {"TRANSFER", std::to_string(seed / 4 % 2)},
            {"OPENWINDOW4", std::to_string(seed / 8 % 2)}};
  }

  /// quiet: what ends the session has been told of before.
  Outcome outcomeOf(const std::function<std::string()>& next, bool quiet = false) {
    std::filesystem::remove(theFaultFile);
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
      if (quiet && std::freopen("/dev/null", "w", stderr) == nullptr) std::_Exit(kFaultStatus);
      play(next);
    }
    int status = 0;
    waitpid(child, &status, 0);
    Outcome outcome;
    std::istringstream record(folder.read("session.zs"));
    for (std::string line; std::getline(record, line);)
      outcome.lines.push_back(line);
    outcome.fault = folder.read("fault");
    if (outcome.fault.empty() && WIFSIGNALED(status)) outcome.fault = strsignal(WTERMSIG(status));
    if (outcome.fault.empty() && status != 0) outcome.fault = "status " + std::to_string(WEXITSTATUS(status));
    return outcome;
  }

  [[noreturn]] void play(const std::function<std::string()>& next) {
    alarm(kLongestSession);
    setRunTimeErrorTeller([](const std::string& text) { endWithFault("run-time error: " + text); });
    start(settings());
    Session(platform, next, folder.file("session.zs")).run();
    std::exit(0);
  }

  Outcome replay(const Lines& lines) {
    std::size_t at = 0;
    return outcomeOf([&] { return at < lines.size() ? lines[at++] : std::string(); }, true);
  }

  /// Leaves out what the same fault comes without, in halves, quarters, ... single lines, and anew from few lines as
  /// long as that helps and there is time.
  Outcome shortened(Outcome known) {
    constexpr std::size_t kFew = 8;
    constexpr std::chrono::seconds kPatience(20);
    const auto end = std::chrono::steady_clock::now() + kPatience;
    std::size_t before = known.lines.size();
    for (std::size_t size = before / 2; size > 0 && std::chrono::steady_clock::now() < end;) {
      leaveOut(known, size, end);
      size /= 2;
      if (size == 0 && known.lines.size() < std::exchange(before, known.lines.size())) size = kFew;
    }
    return known;
  }

  void leaveOut(Outcome& known, std::size_t size, std::chrono::steady_clock::time_point end) {
    for (std::size_t at = 0; at < known.lines.size() && std::chrono::steady_clock::now() < end;) {
      Lines fewer = known.lines;
      const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(at);
      fewer.erase(from, from + static_cast<std::ptrdiff_t>(std::min(size, fewer.size() - at)));
      const Outcome tried = replay(fewer);
      if (tried.fault == known.fault && tried.lines.size() < known.lines.size()) {
        known = tried;
      } else {
        at += size;
      }
    }
  }

  /// A script for tests/runCase.sh.
  static std::string scriptOf(const Outcome& outcome) {
    std::string text;
    for (const auto& [key, value] : settings())
      text += "#ini " + key + "=" + value + "\n";
    for (const LessonLine& line : kLessons)
      text += std::string("#lesson ") + line.file + " " + line.text + "\n";
    for (const std::string& line : outcome.lines)
      text += line + "\n";
    return text + "# " + outcome.fault + "\n";
  }
};

TEST_P(RandomGesturesTest, NothingBreaks) {
  RandomUser user(GetParam());
  int left = kLines;
  const Outcome outcome = outcomeOf([&] { return left-- > 0 ? user.line() : std::string(); });
  if (outcome.fault.empty()) return;
  ADD_FAILURE() << "seed " << GetParam() << ", line " << outcome.lines.size() << ": " << outcome.fault << "\n"
                << scriptOf(shortened(outcome));
}

/// Seeds 1, 2, ...: a few, or as many as ZELVS_FUZZ_SEEDS says.
unsigned seeds() {
  constexpr unsigned kSeeds = 16;
  const char* wanted = std::getenv("ZELVS_FUZZ_SEEDS");
  return wanted != nullptr ? static_cast<unsigned>(std::atoi(wanted)) : kSeeds;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGesturesTest, testing::Range(1U, 1 + seeds()));

}  // namespace
}  // namespace zelvs
