// The dialog of defaults: what it reads, shows, saves and sets.

#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/settingLists.h"
#include "monitor/frmDumpSel.h"
#include "monitor/frmRegister.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "shell/iniFile.h"
#include "support/program.h"
#include "support/userFixture.h"
#include "ui/runTimeError.h"

namespace zelvs {
namespace {

namespace fs = std::filesystem;

/// A file with other values than the maker's, in an order of its own.
const std::string kOther =
    "; our class\r\n"
    "[OTHER]\r\nCPUTYPE=9\r\n"
    "[INIT]\r\n"
    "OPENWINDOW5=1\r\nOPENWINDOW4=1\r\nOPENWINDOW3=0\r\nOPENWINDOW2=0\r\nOPENWINDOW1=0\r\n"
    "NOTE=kept\r\n"
    "MODE-QVT50=3\r\nIOS-QVT50=7\r\nCASCADE-QVT40-34=0\r\nCASCADE-QVT40-12=0\r\n"
    "CLOCK-QVT50=2\r\nCLOCK-QVT40-3=1\r\nCLOCK-QVT40-1=2\r\nCLOCK-QVT60=1\r\n"
    "SA-QVT50=62\r\nSA-QVT40-3=30\r\nSA-QVT40-1=9\r\n"
    "TRANSFER=1\r\nCPUTYPE=3\r\nMEMORYCLEAR=0\r\nCABLECONNECTION=0\r\n";

class DefaultsTest : public ProgramTest {
 protected:
  DefaultsTest() { start({{"OPENWINDOW2", "0"}}); }

  /// Puts another file in place behind the running program's back.
  void write(const std::string& text) { folder.write("ZELVS.INI", text); }
  std::string file() { return folder.read("ZELVS.INI"); }
  /// As when the program has ended: the next start is a new one.
  void endAll() {
    desk().clear();
    clearState();
    programFolder = folder.path();
  }
  static void open() { click(frmMDI->lblDefault); }
  static void press(int button) { click(frmDefault->cmdAction(button)); }
  static void setNow() { press(1); }
  static void save() { press(2); }
  static void makerValues() { press(3); }

  /// What all controls show, in the order of the file's keys.
  static std::vector<int> shown() {
    const FrmDefault& form = *frmDefault;
    return {
        form.chkDef(0).Value,       form.chkDef(1).Value,       form.cmbCPUType.ListIndex,  form.optHF(1).Value ? 1 : 0,
        form.cmbSA(0).ListIndex,    form.cmbSA(2).ListIndex,    form.cmbSA(4).ListIndex,    form.cmbClock(0).ListIndex,
        form.cmbClock(1).ListIndex, form.cmbClock(3).ListIndex, form.cmbClock(5).ListIndex, form.chkCascade(0).Value,
        form.chkCascade(1).Value,   form.cmbIOS.ListIndex,      form.cmbMode.ListIndex,     form.chkDef(2).Value,
        form.chkDef(3).Value,       form.chkDef(4).Value,       form.chkDef(5).Value,       form.chkDef(6).Value};
  }
  static const std::vector<int> kMaker;
};

const std::vector<int> DefaultsTest::kMaker = {1, 1, 0, 0, 0, 2, 4, 0, 0, 0, 0, 1, 1, 5, 0, 1, 1, 1, 0, 0};

TEST_F(DefaultsTest, TheLabelShowsItInFrontAndClosesTheDropDown) {
  EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblMemoryWindow), "");
  ASSERT_TRUE(frmDumpSel.visible());
  open();
  EXPECT_FALSE(frmDumpSel.visible());
  EXPECT_TRUE(frmDefault.visible());
  EXPECT_FALSE(frmDefault->modal());
  EXPECT_EQ(frmDefault->Left.get(), 4700.0);
  EXPECT_EQ(frmDefault->Top.get(), 4000.0);
  EXPECT_EQ(frmDefault->Caption.get(), "システムデフォルト設定");
  EXPECT_TRUE(frmDefault->topmost());
  EXPECT_EQ(gesture::activate(*frmRegister), "");
  EXPECT_EQ(desk().forms().front(), frmDefault.get()) << "stays above the window that the user turned to";
}

TEST_F(DefaultsTest, ItStaysWhereTheUserHasPutIt) {
  open();
  frmDefault->move(20000, 9000);  // partly off the screen
  EXPECT_EQ(gesture::activate(*frmHard), "");
  EXPECT_EQ(gesture::activate(*frmDefault), "");
  EXPECT_EQ(frmDefault->Left.get(), 20000.0);
  EXPECT_EQ(frmDefault->Top.get(), 9000.0);
}

TEST_F(DefaultsTest, AQuestionStandsInFrontOfIt) {
  open();
  chipMemory[kScrLow] = 0;
  platform.advance(100);
  bool asked = false;
  platform.onModal = [&](Form& form) {
    asked = true;
    EXPECT_EQ(desk().forms().front(), &form);
    form.hide();
  };
  EXPECT_EQ(gesture::doubleClick(*frmHard, &frmHard->picJumper(0)), "");
  EXPECT_TRUE(asked);
}

TEST_F(DefaultsTest, ItsTexts) {
  open();
  const FrmDefault& form = *frmDefault;
  const std::pair<const Control&, const char*> table[] = {
      {form.Frame1(0), "立ち上げ時　初期設定と動作"},
      {form.Frame1(1), "立ち上げ時　開く窓"},
      {form.Frame2, "メモリウィンドウ"},
      {form.frmBoard(0), "QVT60 Center-Board"},
      {form.frmBoard(1), "Board No1 ： QVT40"},
      {form.frmBoard(3), "Board No3 ： QVT40"},
      {form.frmBoard(5), "Board No5 ： QVT50"},
      {form.chkDef(0), "通信ケーブルをすべて接続"},
      {form.chkDef(1), "メモリ全域00Hクリア実行"},
      {form.chkDef(2), "レジスタ"},
      {form.chkDef(3), "レジスタヒント"},
      {form.chkDef(4), "コントロール+DI+DO"},
      {form.chkDef(5), "C1～C7"},
      {form.chkDef(6), "DRC"},
      {form.chkCascade(0), "No2.カスケード接続"},
      {form.chkCascade(1), "No4.カスケード接続"},
      {form.optHF(0), "全2重"},
      {form.optHF(1), "半2重"},
      {form.lblDesc(0), "（※次回立ち上げ時に設定が反映)"},
      {form.lblDesc(1), "（※セット状態からリスタートします)"},
      {form.cmdAction(0), "閉じる"},
      {form.cmdAction(1), "今すぐ設定"},
      {form.cmdAction(2), "設定をファイルに保存"},
      {form.cmdAction(3), "メーカ推奨値に戻す"},
  };
  for (const auto& [control, caption] : table)
    EXPECT_EQ(control.Caption.get(), caption);
  EXPECT_EQ(form.Frame2.container(), &form.Frame1(1));
}

TEST_F(DefaultsTest, ItsLists) {
  open();
  const FrmDefault& form = *frmDefault;
  const auto rows = [](const ListControl& list) {
    std::vector<std::string> texts;
    for (int row = 0; row < list.ListCount(); ++row)
      texts.push_back(list.List(row));
    return texts;
  };
  using Texts = std::vector<std::string>;
  EXPECT_EQ(rows(form.cmbCPUType),
            (Texts{"16bit-Bus Little", " 8bit-Bus Little", "16bit-Bus  Big  ", " 8bit-Bus  Big  "}));
  for (const int board : {0, 1, 3, 5})
    EXPECT_EQ(rows(form.cmbClock(board)), (Texts{"48MHz", "24MHz", "12MHz"})) << board;
  for (const int list : {0, 2, 4}) {
    EXPECT_EQ(form.cmbSA(list).ListCount(), 63);
    EXPECT_EQ(form.cmbSA(list).List(0), "0x01");
    EXPECT_EQ(form.cmbSA(list).List(9), "0x0A");
    EXPECT_EQ(form.cmbSA(list).List(62), "0x3F");
  }
  EXPECT_EQ(rows(form.cmbIOS), (Texts{"0 DI=16bit", "1 DI=12bit DO= 4bit", "2 DI= 8bit DO= 8bit", "3 DI= 4bit DO=12bit",
                                      "4 DI= 2bit DO=14bit", "5 DO=16bit", "6 DI= 8bit DO= 4bit & PWM ",
                                      "7 DI= 4bit DO= 4bit & PWM + Counter"}));
  EXPECT_EQ(rows(form.cmbMode), (Texts{"0 フリーカウント", "1 内部ゲート1", "2 内部ゲート2", "3 外部ゲート"}));
  EXPECT_FALSE(form.cmbClock(0).Enabled) << "the center's clock is shown only";
  for (const int board : {1, 3, 5})
    EXPECT_TRUE(form.cmbClock(board).Enabled);
}

TEST_F(DefaultsTest, LoadingReadsTheFileAndNotTheRunningState) {
  write(kOther);
  open();
  EXPECT_EQ(shown(), (std::vector<int>{0, 0, 3, 1, 9, 30, 62, 1, 2, 1, 2, 0, 0, 7, 3, 0, 0, 0, 1, 1}));
  EXPECT_EQ(cpuType, 0);
}

TEST_F(DefaultsTest, WhatTheFileLacksReadsAsZero) {
  fs::remove(folder.file("ZELVS.INI"));
  open();
  EXPECT_EQ(shown(), std::vector<int>(20, 0));
  EXPECT_FALSE(fs::exists(folder.file("ZELVS.INI")));
}

TEST_F(DefaultsTest, NumbersOfTheFile) {
  struct Row {
    const char* value;
    int checked;  // above 0, as it stands in the file
    int row;      // rounded, halves to even
  };
  for (const Row& row : {Row{"1", 1, 1}, Row{"-1", 0, -1}, Row{"0.4", 1, 0}, Row{"1.5", 1, 2}, Row{"2.5", 1, 2},
                         Row{"2 and more", 1, 2}, Row{"many", 0, 0}, Row{"-0.4", 0, 0}}) {
    SCOPED_TRACE(row.value);
    const std::string list = row.row < 0 ? "0" : row.value;
    write(std::string("[INIT]\r\nCABLECONNECTION=") + row.value + "\r\nTRANSFER=" + row.value +
          "\r\nCASCADE-QVT40-12=" + row.value + "\r\nOPENWINDOW4=" + row.value + "\r\nCPUTYPE=" + list + "\r\n");
    if (frmDefault.loaded()) frmDefault->unload();
    open();
    EXPECT_EQ(frmDefault->chkDef(0).Value, row.checked);
    EXPECT_EQ(frmDefault->chkCascade(0).Value, row.checked);
    EXPECT_EQ(frmDefault->chkDef(5).Value, row.checked);
    EXPECT_EQ(frmDefault->optHF(1).Value, row.checked == 1);
    EXPECT_EQ(frmDefault->optHF(0).Value, row.checked == 0);
    EXPECT_EQ(frmDefault->cmbCPUType.ListIndex, std::max(row.row, 0));
  }
}

TEST_F(DefaultsTest, APositionOutsideItsListEndsTheProgramWithKeyAndValue) {
  const std::pair<const char*, const char*> table[] = {
      {"CPUTYPE", "4"},       {"CPUTYPE", "-1"},    {"SA-QVT40-1", "63"},   {"SA-QVT40-3", "63"},
      {"SA-QVT50", "-1"},     {"CLOCK-QVT60", "3"}, {"CLOCK-QVT40-1", "3"}, {"CLOCK-QVT40-3", "3"},
      {"CLOCK-QVT50", "2.6"}, {"IOS-QVT50", "8"},   {"MODE-QVT50", "4"},
  };
  for (const auto& [key, value] : table) {
    write(std::string("[INIT]\r\n") + key + "=" + value + "\r\n");
    EXPECT_EXIT(open(), testing::ExitedWithCode(kRunTimeErrorStatus), std::string(key) + "=.* is no position")
        << key << " " << value;
  }
}

TEST_F(DefaultsTest, SavingWritesTheKeysInTheirOrder) {
  fs::remove(folder.file("ZELVS.INI"));
  open();
  makerValues();
  save();
  EXPECT_EQ(file(),
            "[INIT]\r\nCABLECONNECTION=1\r\nMEMORYCLEAR=1\r\nTRANSFER=0\r\nCPUTYPE=0\r\nSA-QVT40-1=0\r\n"
            "SA-QVT40-3=2\r\nSA-QVT50=4\r\nCLOCK-QVT60=0\r\nCLOCK-QVT40-1=0\r\nCLOCK-QVT40-3=0\r\nCLOCK-QVT50=0\r\n"
            "CASCADE-QVT40-12=1\r\nCASCADE-QVT40-34=1\r\nIOS-QVT50=5\r\nMODE-QVT50=0\r\nOPENWINDOW1=1\r\n"
            "OPENWINDOW2=1\r\nOPENWINDOW3=1\r\nOPENWINDOW4=0\r\nOPENWINDOW5=0\r\n");
  EXPECT_TRUE(frmDefault.visible()) << "it stays open";
  EXPECT_EQ(platform.beeps(), 0);
}

TEST_F(DefaultsTest, SavingKeepsForeignLinesAndTheirPlaces) {
  write(kOther);
  open();
  save();
  EXPECT_EQ(file(), kOther) << "nothing was changed";
  frmDefault->cmbSA(0).ListIndex = 10;
  frmDefault->chkDef(6).Value = 0;
  save();
  std::string wanted = kOther;
  wanted.replace(wanted.find("SA-QVT40-1=9"), 12, "SA-QVT40-1=10");
  wanted.replace(wanted.find("OPENWINDOW5=1"), 13, "OPENWINDOW5=0");
  EXPECT_EQ(file(), wanted);
}

TEST_F(DefaultsTest, EachControlIsSavedUnderItsKey) {
  open();
  FrmDefault& form = *frmDefault;
  makerValues();
  const auto flip = [](CheckBox& box) { return [&box] { box.Value = 1 - box.Value; }; };
  const auto turn = [](ComboBox& list, int row) { return [&list, row] { list.ListIndex = row; }; };
  struct Row {
    std::function<void()> change;
    const char* line;
  };
  const Row table[] = {
      {flip(form.chkDef(0)), "CABLECONNECTION=0"},
      {flip(form.chkDef(1)), "MEMORYCLEAR=0"},
      {[&] { form.optHF(1).Value = true; }, "TRANSFER=1"},
      {turn(form.cmbCPUType, 3), "CPUTYPE=3"},
      {turn(form.cmbSA(0), 62), "SA-QVT40-1=62"},
      {turn(form.cmbSA(2), 61), "SA-QVT40-3=61"},
      {turn(form.cmbSA(4), 60), "SA-QVT50=60"},
      {turn(form.cmbClock(0), 2), "CLOCK-QVT60=2"},
      {turn(form.cmbClock(1), 1), "CLOCK-QVT40-1=1"},
      {turn(form.cmbClock(3), 2), "CLOCK-QVT40-3=2"},
      {turn(form.cmbClock(5), 1), "CLOCK-QVT50=1"},
      {flip(form.chkCascade(0)), "CASCADE-QVT40-12=0"},
      {flip(form.chkCascade(1)), "CASCADE-QVT40-34=0"},
      {turn(form.cmbIOS, 7), "IOS-QVT50=7"},
      {turn(form.cmbMode, 3), "MODE-QVT50=3"},
      {flip(form.chkDef(2)), "OPENWINDOW1=0"},
      {flip(form.chkDef(3)), "OPENWINDOW2=0"},
      {flip(form.chkDef(4)), "OPENWINDOW3=0"},
      {flip(form.chkDef(5)), "OPENWINDOW4=1"},
      {flip(form.chkDef(6)), "OPENWINDOW5=1"},
  };
  const std::vector<int> before = shown();
  save();
  const auto lines = [this] { return "\n" + file(); };
  for (const Row& row : table) {
    EXPECT_EQ(lines().find("\n" + std::string(row.line) + "\r"), std::string::npos) << row.line;
    row.change();
    save();
    EXPECT_NE(lines().find("\n" + std::string(row.line) + "\r"), std::string::npos) << row.line;
  }
  for (std::size_t i = 0; i < before.size(); ++i)
    EXPECT_NE(shown()[i], before[i]) << "every control was changed: " << i;
}

TEST_F(DefaultsTest, AReadOnlyFileStaysAndNobodyIsTold) {
  write(kOther);
  open();
  makerValues();
  ASSERT_EQ(chmod(folder.file("ZELVS.INI").c_str(), 0444), 0);
  save();
  EXPECT_EQ(file(), kOther);
  EXPECT_EQ(platform.beeps(), 0);
  EXPECT_EQ(desk().modal(), nullptr);
  EXPECT_EQ(shown(), kMaker) << "what was entered is not lost";
}

TEST_F(DefaultsTest, ADiskThatFillsUpLeavesTheOldFileWhole) {
  write(kOther);
  open();
  makerValues();
  // No file may grow past this: the save fails in its middle.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  const rlimit full{100, old.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
  save();
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &old), 0);
  EXPECT_EQ(file(), kOther);
  const auto files = std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator());
  EXPECT_EQ(files, 1) << "no half-written file is left";
  save();
  EXPECT_NE(file(), kOther) << "with room again it is saved";
}

TEST_F(DefaultsTest, TheMakersValuesGoIntoTheControlsOnly) {
  write(kOther);
  open();
  makerValues();
  EXPECT_EQ(shown(), kMaker);
  EXPECT_EQ(file(), kOther);
  EXPECT_EQ(cpuType, 0);
  press(0);
  EXPECT_FALSE(frmDefault.visible());
  open();
  EXPECT_EQ(shown(), kMaker) << "as they were left, whatever the file says";
}

TEST_F(DefaultsTest, TheCloseBoxHidesItToo) {
  open();
  frmDefault->cmbCPUType.ListIndex = 2;
  EXPECT_EQ(gesture::close(*frmDefault), "");
  EXPECT_FALSE(frmDefault.visible());
  open();
  EXPECT_EQ(frmDefault->cmbCPUType.ListIndex, 2);
}

TEST_F(DefaultsTest, ThePanelDoesNotShowUpHere) {
  open();
  frmHard->cmbSA(0).ListIndex = 20;
  EXPECT_EQ(gesture::click(*frmDefault, &frmDefault->cmdAction(0)), "");
  open();
  EXPECT_EQ(frmDefault->cmbSA(0).ListIndex, 0);
  save();
  EXPECT_NE(file().find("SA-QVT40-1=0\r"), std::string::npos);
}

TEST_F(DefaultsTest, ApplyingCopiesTheControlsButForTwo) {
  write(kOther);
  open();
  applyDialogSettings();
  const auto values = [](auto& array) { return std::vector<int>(array.begin(), array.end()); };
  EXPECT_EQ(cableConnection, 0);
  EXPECT_EQ(memoryClear, 0);
  EXPECT_EQ(cpuType, 3);
  EXPECT_EQ(values(transferSetting), (std::vector<int>{1, 1, 1, 1, 1}));
  EXPECT_EQ(values(saSetting), (std::vector<int>{9, 30, 62}));
  EXPECT_EQ(values(clockSetting), (std::vector<int>{0, 2, 1, 2})) << "the center's clock is 0 whatever its list shows";
  EXPECT_EQ(values(cascadeSetting), (std::vector<int>{0, 0}));
  EXPECT_EQ(ioBoardMode, 7);
  EXPECT_EQ(ioBoardCounterMode, 0) << "0 whatever the list shows";
  EXPECT_EQ(values(openWindow), (std::vector<int>{0, 0, 0, 1, 1}));
  EXPECT_EQ(file(), kOther) << "nothing is saved";
  EXPECT_EQ(frmDefault->cmbClock(0).ListIndex, 1);
  EXPECT_EQ(frmDefault->cmbMode.ListIndex, 3);
}

TEST_F(DefaultsTest, SetNowRestartsWithWhatTheDialogShows) {
  EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRunMode(1)), "");
  open();
  FrmDefault& form = *frmDefault;
  form.cmbCPUType.ListIndex = 1;
  form.cmbSA(0).ListIndex = 20;
  form.cmbIOS.ListIndex = 3;
  form.optHF(1).Value = true;
  form.chkDef(2).Value = 0;
  const std::string before = file();
  setNow();
  EXPECT_FALSE(frmDefault.visible());
  EXPECT_EQ(runMode, kRun);
  EXPECT_EQ(startupDone, kTrue);
  EXPECT_EQ(cpuType, 1);
  EXPECT_EQ(frmHard->cmbCPUType.ListIndex, 1);
  EXPECT_EQ(saSetting[0], 21) << "a station from here on";
  EXPECT_EQ(boardFullHalf, 0);
  EXPECT_FALSE(frmRegister.visible());
  EXPECT_EQ(ioBoardMode, 0) << "the reset comes before the new panel";
  EXPECT_EQ(frmHard->cmbIOS.ListIndex, 0);
  EXPECT_EQ(file(), before) << "the file is not written";
  open();
  EXPECT_EQ(frmDefault->cmbIOS.ListIndex, 3);
}

TEST_F(DefaultsTest, ASavedCounterModeShowsAtTheNextStartWhileTheVariableIsZero) {
  open();
  frmDefault->cmbMode.ListIndex = 3;
  save();
  endAll();
  startUp();
  EXPECT_EQ(frmHard->cmbMode.ListIndex, 3);
  EXPECT_EQ(ioBoardCounterMode, 0);
}

TEST_F(DefaultsTest, ANegativeSettingClearsMemoryAtTheStartButShowsUnchecked) {
  endAll();
  start({{"MEMORYCLEAR", "-1"}, {"CABLECONNECTION", "-1"}});
  const auto data = std::find_if(chipMemory.begin(), chipMemory.begin() + 0x580, [](auto byte) { return byte != 0; });
  EXPECT_EQ(data - chipMemory.begin(), 0x580) << "nothing but zeroes";
  EXPECT_EQ(frmHard->picBOARD2_RXD(0).Tag.get() == "1", false) << "the panel wants exactly 1";
  open();
  EXPECT_EQ(frmDefault->chkDef(1).Value, 0);
  EXPECT_EQ(frmDefault->chkDef(0).Value, 0);
}

}  // namespace
}  // namespace zelvs
