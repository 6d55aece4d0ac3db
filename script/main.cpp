// zelvs-script: the whole simulator with its user taken from a text.

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <istream>
#include <ostream>
#include <string>

#include "script/channel.h"
#include "script/scriptRunner.h"
#include "shell/ownFolder.h"
#include "shell/startUp.h"
#include "shell/writeSignals.h"
#include "state/state.h"
#include "text/shortText.h"
#include "ui/desk.h"
#include "ui/headless/headlessHands.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"
#ifdef ZELVS_DESKTOP
#include "ui/qt/desktopScript.h"
#endif

namespace {

constexpr int kWrongCommandLine = 2;
constexpr const char* kUsage = "usage: zelvs-script [--desktop] [--folder DIR] [--prompt] [FILE]\n";

struct Options {
  bool desktop = false;
  bool prompt = false;
  std::string folder;
  std::string file;
};

/// The result is empty, or what is wrong with the command line.
std::string readOptions(int argc, char** argv, Options& options) {
  bool haveFile = false;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--desktop") {
      options.desktop = true;
    } else if (word == "--prompt") {
      options.prompt = true;
    } else if (word == "--folder") {
      if (++i == argc) return "--folder needs a folder";
      options.folder = argv[i];
      std::error_code error;
      if (!std::filesystem::is_directory(options.folder, error)) return "no such folder: " + options.folder;
    } else if (word.starts_with("-")) {
      return "unknown option: " + word;
    } else if (haveFile) {
      return "more than one file: " + word;
    } else {
      haveFile = true;
      options.file = word;
    }
  }
#ifndef ZELVS_DESKTOP
  if (options.desktop) return "this build has no desktop";
#endif
  return {};
}

/// The standard output. It lives to the end: a run-time error may have to be told at any time.
std::ostream& output() {
  static zelvs::Channel channel(STDOUT_FILENO, "the standard output");
  static std::ostream stream(&channel);
  return stream;
}

void tellFatal(const std::string& text) {
  output() << "fatal: " << text << std::endl;
  for (const std::string& words : zelvs::deedWords())
    std::fprintf(stderr, "zelvs-script: %s\n", words.c_str());
}

int runScript(zelvs::Channel& script, zelvs::ScriptedPlatform& platform, zelvs::Hands& hands, bool prompt) {
  std::istream commands(&script);
  commands.tie(&output());  // whoever types or writes the next line sees first what the last one has done
  zelvs::ScriptRunner runner(commands, output(), platform, hands, prompt);
  zelvs::startUp();
  const int status = runner.run();
  zelvs::desk().clear();
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  zelvs::ignoreWriteSignals();
  Options options;
  std::string wrong = readOptions(argc, argv, options);
  zelvs::Channel script(STDIN_FILENO, "the standard input");
  if (wrong.empty() && !options.file.empty()) wrong = script.open(options.file);
  if (!wrong.empty()) {
    const std::string told = zelvs::shortened(wrong, zelvs::kLongestTold);
    std::fprintf(stderr, "zelvs-script: %s\n%s", told.c_str(), kUsage);
    return kWrongCommandLine;
  }
  zelvs::setRunTimeErrorTeller(tellFatal);
  zelvs::programFolder = options.folder.empty() ? zelvs::ownFolder(argv[0]) : options.folder;

#ifdef ZELVS_DESKTOP
  if (options.desktop) {
    zelvs::DesktopScript desktop(argc, argv);
    return runScript(script, desktop.platform(), desktop.hands(), options.prompt);
  }
#endif
  zelvs::HeadlessPlatform platform;
  zelvs::setPlatform(&platform);
  zelvs::HeadlessHands hands;
  return runScript(script, platform, hands, options.prompt);
}
