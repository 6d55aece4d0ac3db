#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <memory>
#include <sstream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/randomStart.h"
#include "fuzz/randomUser.h"
#include "fuzz/watcher.h"
#include "script/scriptRunner.h"
#include "support/program.h"
#include "ui/runTimeError.h"

// Sessions of a user who does anything at all (randomUser.h), from anything that a start may find (randomStart.h), with
// somebody looking at the program after each line (watcher.h). A session is lines of the script language, thought of
// one by one while the program runs. Each runs in a process of its own, so that one that ends the program is a failure
// like any other, and can be tried again with fewer lines.

namespace zelvs {

using Lines = std::vector<std::string>;

/// What the program runs on.
class Stage {
 public:
  virtual ~Stage() = default;
  virtual ScriptedPlatform& platform() = 0;
  virtual Hands& hands() = 0;
  /// Looks at what only this kind of stage has, after a line. boxOpen: a message box has the user.
  virtual void look(bool /*boxOpen*/) {}
};

inline std::string theFaultFile;

/// Ends a session's process; the other one reads why.
[[noreturn]] inline void endWithFault(const std::string& what) {
  constexpr int kFaultStatus = 4;
  std::ofstream(theFaultFile) << what;
  std::_Exit(kFaultStatus);
}

/// A script that is being thought of while it runs. When the user has had enough, the way out of whatever is open
/// follows.
class Session : public std::streambuf {
 public:
  /// next: the user's next line, empty at the end. record: is told each line before it is carried out.
  Session(Stage& stage, const std::function<std::string()>& next, const std::string& record)
      : stage_(stage), next_(next), record_(record) {}

  void run() {
    std::istream in(this);
    std::ostringstream out;
    ScriptedPlatform& platform = stage_.platform();
    ScriptRunner runner(in, out, platform, stage_.hands(), false);
    platform.onMessageBox = [this, answered = platform.onMessageBox](const auto& title, const auto& text,
                                                                     MessageButtons buttons) {
      boxes_.push_back(buttons);
      const bool ok = answered(title, text, buttons);
      boxes_.pop_back();
      return ok;
    };
    look();
    runner.run();
    look();
    // The program ends beneath whatever the user has left open, and nobody answers any more.
    platform.onWait = nullptr;
    platform.onMessageBox = nullptr;
    desk().clear();
  }

 private:
  int_type underflow() override {
    constexpr unsigned kLongestLine = 50;  // seconds
    alarm(kLongestLine);
    if (begun_) look();
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

  void look() {
    watcher_.after();
    if (!desk().ended()) stage_.look(!boxes_.empty());
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

  Stage& stage_;
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

/// A number that the environment gives, or else usual.
inline unsigned wantedNumber(const char* name, unsigned usual) {
  const char* wanted = std::getenv(name);
  return wanted != nullptr ? static_cast<unsigned>(std::atoi(wanted)) : usual;
}

/// How many lines were carried out in how many sessions, told at the end.
class Count : public testing::Environment {
 public:
  void add(std::size_t lines) {
    ++sessions_;
    lines_ += lines;
  }
  void TearDown() override {
    if (sessions_ == 0) return;
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began_;
    std::printf("%zu lines in %zu sessions, %.1f s, %.0f lines a second\n", lines_, sessions_, took.count(),
                static_cast<double>(lines_) / took.count());
  }

 private:
  std::size_t sessions_ = 0;
  std::size_t lines_ = 0;
  std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
};
inline Count& count() {
  // The test program deletes it.
  static Count& only = *static_cast<Count*>(testing::AddGlobalTestEnvironment(new Count));
  return only;
}

/// A session for each seed. What comes of it is told as a script for tests/runCase.sh, as short as it could be made.
class SessionTest : public testing::TestWithParam<unsigned> {
 protected:
  /// patience: for making a script shorter.
  explicit SessionTest(std::chrono::seconds patience) : patience_(patience) {}

  /// Made in the session's own process, before anything of the program.
  virtual std::unique_ptr<Stage> stage(const Screen& screen) = 0;

  void play(unsigned usualLines) {
    RandomUser user(GetParam());
    int left = static_cast<int>(wantedNumber("ZELVS_FUZZ_LINES", usualLines));
    const Outcome outcome = outcomeOf([&] { return left-- > 0 ? user.line() : std::string(); });
    count().add(outcome.lines.size());
    if (outcome.fault.empty()) return;
    ADD_FAILURE() << "seed " << GetParam() << ", line " << outcome.lines.size() << ": " << outcome.fault << "\n"
                  << scriptOf(shortened(outcome));
  }

 private:
  /// quiet: what ends the session has been told of before.
  Outcome outcomeOf(const std::function<std::string()>& next, bool quiet = false) {
    const TemporaryFolder folder;
    const TemporaryFolder notes;
    theFaultFile = notes.file("fault");
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
      if (quiet && std::freopen("/dev/null", "w", stderr) == nullptr) std::_Exit(1);
      run(folder, next, notes.file("session"));
    }
    int status = 0;
    waitpid(child, &status, 0);
    Outcome outcome;
    std::istringstream record(notes.read("session"));
    for (std::string line; std::getline(record, line);)
      outcome.lines.push_back(line);
    outcome.fault = notes.read("fault");
    if (outcome.fault.empty() && WIFSIGNALED(status)) outcome.fault = strsignal(WTERMSIG(status));
    if (outcome.fault.empty() && status != 0) outcome.fault = "status " + std::to_string(WEXITSTATUS(status));
    return outcome;
  }

  [[noreturn]] void run(const TemporaryFolder& folder, const std::function<std::string()>& next,
                        const std::string& record) {
    setRunTimeErrorTeller([](const std::string& text) { endWithFault("run-time error: " + text); });
    const RandomStart from(GetParam());
    from.prepare(folder);
    {
      const std::unique_ptr<Stage> on = stage(from.screen);
      programFolder = folder.path();
      startUp();
      Session(*on, next, record).run();
    }
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
    const auto end = std::chrono::steady_clock::now() + patience_;
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

  static std::string scriptOf(const Outcome& outcome) {
    std::string text = RandomStart(GetParam()).head();
    for (const std::string& line : outcome.lines)
      text += line + "\n";
    return text + "# " + outcome.fault + "\n";
  }

  std::chrono::seconds patience_;
};

/// The seeds that the environment asks for: from ZELVS_FUZZ_FIRST on, or 1, as many as ZELVS_FUZZ_SEEDS says.
inline auto wantedSeeds(unsigned usual) {
  const unsigned first = wantedNumber("ZELVS_FUZZ_FIRST", 1);
  return testing::Range(first, first + wantedNumber("ZELVS_FUZZ_SEEDS", usual));
}

}  // namespace zelvs
