// zelvs-script: the whole simulator with its user taken from a text.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "script/scriptRunner.h"
#include "shell/ownFolder.h"
#include "shell/startUp.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/headless/headlessHands.h"
#include "ui/platform.h"
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
      if (!std::filesystem::is_directory(options.folder)) return "no such folder: " + options.folder;
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

/// The result is empty, or why the file cannot be read.
std::string openScript(const std::string& name, std::ifstream& file) {
  // A folder opens like a file and then reads as empty: a script that would pass without one command. A pipe is fine:
  // another program may be writing the script.
  std::error_code error;
  if (!std::filesystem::is_directory(name, error)) file.open(name);
  return file.is_open() ? std::string() : "cannot read " + name;
}

void tellFatal(const std::string& text) {
  std::cout << "fatal: " << text << std::endl;
}

int runScript(std::istream& commands, zelvs::ScriptedPlatform& platform, zelvs::Hands& hands, bool prompt) {
  zelvs::ScriptRunner runner(commands, std::cout, platform, hands, prompt);
  zelvs::startUp();
  const int status = runner.run();
  std::cout.flush();
  zelvs::desk().clear();
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  std::string wrong = readOptions(argc, argv, options);
  std::ifstream file;
  if (wrong.empty() && !options.file.empty()) wrong = openScript(options.file, file);
  if (!wrong.empty()) {
    std::fprintf(stderr, "zelvs-script: %s\n%s", wrong.c_str(), kUsage);
    return kWrongCommandLine;
  }
  std::istream& commands = options.file.empty() ? std::cin : file;
  zelvs::setRunTimeErrorTeller(tellFatal);
  zelvs::programFolder = options.folder.empty() ? zelvs::ownFolder(argv[0]) : options.folder;

#ifdef ZELVS_DESKTOP
  if (options.desktop) {
    zelvs::DesktopScript desktop(argc, argv);
    return runScript(commands, desktop.platform(), desktop.hands(), options.prompt);
  }
#endif
  zelvs::HeadlessPlatform platform;
  zelvs::setPlatform(&platform);
  zelvs::HeadlessHands hands;
  return runScript(commands, platform, hands, options.prompt);
}
