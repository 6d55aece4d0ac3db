#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "bench/frmHard.h"
#include "shell/startUp.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/headless/scriptedPlatform.h"
#include "ui/platform.h"

namespace zelvs {

/// A folder of its own under the system's temporary one, removed at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zelvs-test-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string path() const { return path_.string(); }
  std::string file(const std::string& name) const { return (path_ / name).string(); }
  void write(const std::string& name, const std::string& text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
  }
  std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::filesystem::path path_;
};

/// ZELVS.INI with the maker's values, some of them replaced.
inline std::string makerIni(const std::map<std::string, std::string>& changes = {}) {
  std::map<std::string, std::string> values = {
      {"CABLECONNECTION", "1"},  {"MEMORYCLEAR", "1"},   {"CPUTYPE", "0"},     {"TRANSFER", "0"},
      {"SA-QVT40-1", "0"},       {"SA-QVT40-3", "2"},    {"SA-QVT50", "4"},    {"CLOCK-QVT60", "0"},
      {"CLOCK-QVT40-1", "0"},    {"CLOCK-QVT40-3", "0"}, {"CLOCK-QVT50", "0"}, {"CASCADE-QVT40-12", "1"},
      {"CASCADE-QVT40-34", "1"}, {"IOS-QVT50", "5"},     {"MODE-QVT50", "0"},  {"OPENWINDOW1", "1"},
      {"OPENWINDOW2", "1"},      {"OPENWINDOW3", "1"},   {"OPENWINDOW4", "0"}, {"OPENWINDOW5", "0"}};
  for (const auto& [key, value] : changes)
    values[key] = value;
  std::string text = "[INIT]\r\n";
  for (const auto& [key, value] : values)
    text += key + "=" + value + "\r\n";
  return text;
}

/// The whole program on a headless platform: none of it runs until start() is called.
class ProgramTest : public testing::Test {
 protected:
  ProgramTest() {
    setPlatform(&platform);
    desk().clear();
    clearState();
    programFolder = folder.path();
  }
  ~ProgramTest() override {
    desk().clear();
    clearState();
  }

  /// Starts with the maker's values, some of them replaced.
  void start(const std::map<std::string, std::string>& changes = {}) {
    folder.write("ZELVS.INI", makerIni(changes));
    startUp();
  }

  TemporaryFolder folder;
  HeadlessPlatform platform;
};

}  // namespace zelvs
