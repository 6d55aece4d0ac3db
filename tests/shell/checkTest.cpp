// What a look over the program folder finds.

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "panel/frmKAIROZU.h"
#include "shell/check.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "shell/iniFile.h"
#include "support/program.h"
#include "text/codePage932.h"

namespace zelvs {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

/// A whole program folder of links to the shipped files, with settings of its own.
class CheckTest : public ProgramTest {
 protected:
  CheckTest() { makeWhole(); }

  void makeWhole() {
    for (const char* name : {"NaviData", "HintData", "Kairozu"}) {
      fs::remove_all(folder.file(name));
      fs::create_directory(folder.file(name));
      for (const auto& file : fs::directory_iterator(fs::path(ZELVS_FOLDER) / name)) {
        fs::create_symlink(file.path(), fs::path(folder.file(name)) / file.path().filename());
      }
    }
    fs::remove(folder.file("BEEP.WAV"));
    fs::create_symlink(ZELVS_FOLDER "/BEEP.WAV", folder.file("BEEP.WAV"));
    fs::remove_all(folder.file("ZELVS.INI"));
    folder.write("ZELVS.INI", makerIni());
  }

  /// A file of the folder in place of the shipped one.
  void put(const std::string& name, const std::string& utf8) {
    std::size_t lackingAt = 0;
    fs::remove(folder.file(name));
    folder.write(name, *codePage932FromUtf8(utf8, lackingAt));
  }
  static Words wrongs() {
    Words texts;
    for (const Finding& finding : checkFolder()) {
      if (!finding.right) texts.push_back(finding.text);
    }
    return texts;
  }
};

TEST_F(CheckTest, AWholeFolderHasOneLineAPart) {
  Words lines;
  for (const Finding& finding : checkFolder()) {
    EXPECT_TRUE(finding.right) << finding.text;
    lines.push_back(finding.text);
  }
  EXPECT_EQ(lines,
            (Words{"program folder: " + folder.path(), "ZELVS.INI: 20 settings, and they can be saved",
                   "NaviData: 3 lessons", "HintData: 9 hints", "Kairozu: 17 schematics", "BEEP.WAV: a wave file"}));
}

TEST_F(CheckTest, WhatIsWrongIsNamed) {
  struct Row {
    std::function<void()> damage;
    Words found;
  };
  const auto remove = [this](const char* name) { return [this, name] { fs::remove_all(folder.file(name)); }; };
  const Row table[] = {
      {remove("ZELVS.INI"), {"ZELVS.INI: is missing: every setting counts as 0"}},
      {[this] {
         fs::remove(folder.file("ZELVS.INI"));
         fs::create_directory(folder.file("ZELVS.INI"));
       },
       {"ZELVS.INI: is no plain file: every setting counts as 0"}},
      {[this] { folder.write("ZELVS.INI", "[init2]\r\nCPUTYPE=1\r\n"); },
       {"ZELVS.INI: has no setting in a section [INIT]: every one counts as 0"}},
      {[this] { folder.write("ZELVS.INI", std::string("\xFF\xFE[\0I\0", 6)); },
       {"ZELVS.INI: has no setting in a section [INIT]: every one counts as 0"}},
      {[this] { fs::permissions(folder.file("ZELVS.INI"), fs::perms::owner_read); },
       {"ZELVS.INI: may not be written: no settings are saved"}},

      {remove("NaviData/NaviIndex.txt"), {"NaviData: NaviIndex.txt is missing: the list of lessons is empty"}},
      {[this] {
         put("NaviData/NaviIndex.txt",
             "; none.txt\r\none.txt\t表\t\r\nno lesson\r\nempty.txt\tb\t\r\nnone.txt\tc\t\r\n");
         put("NaviData/one.txt", "a\r\nb\r\nc\r\n");
         put("NaviData/empty.txt", "a\r\nb\r\n");
       },
       {"NaviData: NaviIndex.txt, line 3 is no file name, title and note: the program ends there",
        "NaviData: the lesson empty.txt has no page: a page has three lines",
        "NaviData: the lesson none.txt is missing"}},

      {remove("HintData/RegsterHint.TXT"),
       {"HintData: RegsterHint.TXT is missing or cannot be read: there are no hints"}},
      {[this] { put("HintData/RegsterHint.TXT", "; none.BMP\r\nSCR.BMP\tSCR\r\nHPR.BMP\r\nnone.BMP\tNone\r\n"); },
       {"HintData: HPR.BMP has no caption",
        "HintData: none.BMP is missing or no picture: the tabs behind it show the wrong hints"}},

      {remove("BEEP.WAV"), {"BEEP.WAV: is missing or no wave file: the system's beep takes its place"}},
      {[this] { put("BEEP.WAV", "RIFF"); },
       {"BEEP.WAV: is missing or no wave file: the system's beep takes its place"}},
  };
  for (const Row& row : table) {
    makeWhole();
    row.damage();
    EXPECT_EQ(wrongs(), row.found);
  }
}

TEST_F(CheckTest, EveryPictureIsOpened) {
  put("HintData/BCR.BMP", "no picture");
  fs::remove(folder.file("Kairozu/QVT40_NEST.BMP"));
  put("Kairozu/Qvt50_add_half.bmp", "BM");
  EXPECT_EQ(wrongs(),
            (Words{"HintData: BCR.BMP is missing or no picture: the tabs behind it show the wrong hints",
                   "Kairozu: QVT40_NEST.BMP is missing or no picture: the program ends when it is to be shown",
                   "Kairozu: Qvt50_add_half.bmp is missing or no picture: the program ends when it is to be shown"}));
}

TEST_F(CheckTest, EachSettingIsHeldAgainstItsList) {
  struct Row {
    const char* key;
    const char* value;
    const char* found;
  };
  const Row table[] = {
      {"CPUTYPE", "3", ""},
      {"CPUTYPE", "4", "ZELVS.INI: CPUTYPE=4 is outside 0 to 3"},
      {"CPUTYPE", "-1", "ZELVS.INI: CPUTYPE=-1 is outside 0 to 3"},
      {"SA-QVT50", "62", ""},
      {"SA-QVT50", "63", "ZELVS.INI: SA-QVT50=63 is outside 0 to 62"},
      {"IOS-QVT50", "65536", "ZELVS.INI: IOS-QVT50=65536 is outside 0 to 7"},
      {"MEMORYCLEAR", "2", "ZELVS.INI: MEMORYCLEAR=2 is outside 0 to 1"},
      {"CLOCK-QVT50", "2 apples", "ZELVS.INI: CLOCK-QVT50=2 apples is no whole number and counts as 2"},
      {"MODE-QVT50", "1.5", "ZELVS.INI: MODE-QVT50=1.5 is no whole number and counts as 2"},
      {"MODE-QVT50", "", "ZELVS.INI: MODE-QVT50= is no whole number and counts as 0"},
  };
  for (const Row& row : table) {
    folder.write("ZELVS.INI", makerIni({{row.key, row.value}}));
    EXPECT_EQ(wrongs(), *row.found == 0 ? Words{} : Words{row.found}) << row.key << "=" << row.value;
  }
  std::string ini = makerIni();
  ini.replace(ini.find("TRANSFER"), 8, "TRANFSER");
  folder.write("ZELVS.INI", ini);
  EXPECT_EQ(wrongs(), Words{"ZELVS.INI: TRANSFER is missing and counts as 0"});
}

TEST_F(CheckTest, ASettingHasAsManyValuesAsItsListHasRows) {
  start();
  FrmDefault& form = *frmDefault;
  const std::pair<const char*, int> rows[] = {
      {"CPUTYPE", form.cmbCPUType.ListCount()},        {"SA-QVT40-1", form.cmbSA(0).ListCount()},
      {"SA-QVT40-3", form.cmbSA(2).ListCount()},       {"SA-QVT50", form.cmbSA(4).ListCount()},
      {"CLOCK-QVT60", form.cmbClock(0).ListCount()},   {"CLOCK-QVT40-1", form.cmbClock(1).ListCount()},
      {"CLOCK-QVT40-3", form.cmbClock(3).ListCount()}, {"CLOCK-QVT50", form.cmbClock(5).ListCount()},
      {"IOS-QVT50", form.cmbIOS.ListCount()},          {"MODE-QVT50", form.cmbMode.ListCount()},
  };
  for (const Setting& setting : settings()) {
    const auto row =
        std::find_if(std::begin(rows), std::end(rows), [&](const auto& list) { return list.first == setting.key; });
    EXPECT_EQ(setting.values, row == std::end(rows) ? 2 : row->second) << setting.key;
  }
}

TEST_F(CheckTest, EverySchematicOfTheProgramFolderIsLookedAt) {
  Words there;
  for (const auto& file : fs::directory_iterator(schematicsFolder()))
    there.push_back(file.path().filename().string());
  std::sort(there.begin(), there.end());
  EXPECT_EQ(schematicFiles(), there);
}

TEST_F(CheckTest, AFolderThatIsNotThereHasNothingRight) {
  for (const std::string& path : {std::string("/nowhere/at/all"), "/" + std::string(5000, 'x')}) {
    programFolder = path;
    const std::vector<Finding> findings = checkFolder();
    EXPECT_EQ(findings.size(), 5 + schematicFiles().size());
    for (const Finding& finding : findings) {
      EXPECT_FALSE(finding.right) << finding.text;
      EXPECT_LE(finding.text.size(), 202U);
    }
  }
}

TEST_F(CheckTest, NothingIsChanged) {
  folder.write("ZELVS.INI", makerIni({{"CPUTYPE", "9"}}));
  const auto before = fs::last_write_time(folder.path());
  const auto iniBefore = fs::last_write_time(folder.file("ZELVS.INI"));
  checkFolder();
  EXPECT_EQ(fs::last_write_time(folder.path()), before);
  EXPECT_EQ(fs::last_write_time(folder.file("ZELVS.INI")), iniBefore);
  EXPECT_EQ(folder.read("ZELVS.INI"), makerIni({{"CPUTYPE", "9"}}));
  EXPECT_TRUE(desk().forms().empty());
}

TEST_F(CheckTest, TheStatusTellsWhetherAnythingIsWrong) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(tellFindings({}), 0);
  EXPECT_EQ(tellFindings({{true, "a"}, {true, "b"}}), 0);
  EXPECT_EQ(tellFindings({{true, "a"}, {false, "b"}, {true, "c"}}), 1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "right  a\nright  b\nright  a\nWRONG  b\nright  c\n");
}

}  // namespace
}  // namespace zelvs
