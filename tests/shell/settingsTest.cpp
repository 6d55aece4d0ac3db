// What the settings of ZELVS.INI do at start-up.

#include <algorithm>
#include <map>
#include <string>

#include "monitor/frmRegister.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "shell/iniFile.h"
#include "state/randomSource.h"
#include "support/program.h"

namespace zelvs {
namespace {

class SettingsTest : public ProgramTest {
 protected:
  /// How many of the three boards hang on the line: board 1, 3 and 5 by the upper end of their cable.
  int connected() {
    const auto plugged = [](int connector) { return frmHard->picBOARD2_RXD(connector).Tag == "1"; };
    return plugged(0) + plugged(1) + plugged(3);
  }
};

TEST_F(SettingsTest, AListPositionOutsideItsListEndsTheStartWithKeyAndValue) {
  struct Row {
    const char* key;
    const char* value;
    const char* read;
    int last;
  };
  const Row table[] = {
      {"CPUTYPE", "4", "4", 3},       {"CPUTYPE", "-1", "-1", 3},     {"CPUTYPE", "65535", "-1", 3},
      {"CPUTYPE", "3.5", "4", 3},     {"SA-QVT40-1", "63", "63", 62}, {"SA-QVT40-1", "-1", "-1", 62},
      {"SA-QVT40-3", "63", "63", 62}, {"SA-QVT50", "63", "63", 62},   {"CLOCK-QVT60", "3", "3", 2},
      {"CLOCK-QVT40-1", "3", "3", 2}, {"CLOCK-QVT40-3", "3", "3", 2}, {"CLOCK-QVT50", "3", "3", 2},
      {"CLOCK-QVT50", "-1", "-1", 2}, {"IOS-QVT50", "8", "8", 7},     {"IOS-QVT50", "-1", "-1", 7},
      {"MODE-QVT50", "4", "4", 3},    {"MODE-QVT50", "-1", "-1", 3},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(std::string(row.key) + "=" + row.value);
    EXPECT_EXIT(
        start({{row.key, row.value}}), testing::ExitedWithCode(kRunTimeErrorStatus),
        std::string("ZELVS\\.INI: ") + row.key + "=" + row.read + " is no position .*0 to " + std::to_string(row.last));
  }
}

TEST_F(SettingsTest, TheLastPositionOfEachListStarts) {
  start({{"CPUTYPE", "3"},
         {"SA-QVT40-1", "62"},
         {"SA-QVT40-3", "59"},
         {"SA-QVT50", "57"},
         {"CLOCK-QVT60", "2"},
         {"CLOCK-QVT40-1", "2"},
         {"CLOCK-QVT40-3", "2"},
         {"CLOCK-QVT50", "2"},
         {"IOS-QVT50", "7"},
         {"MODE-QVT50", "3"}});
  EXPECT_EQ(frmHard->cmbCPUType.ListIndex, 3);
  EXPECT_EQ(frmHard->cmbSA(0).Text(), "0x3F");
  EXPECT_EQ(saSetting[0], 63) << "the list position has become a station";
  EXPECT_EQ(saSetting[1], 60);
  EXPECT_EQ(saSetting[2], 58);
  EXPECT_EQ(frmHard->cmbIOS.ListIndex, 7);
  EXPECT_EQ(frmHard->cmbMode.ListIndex, 3);
}

TEST_F(SettingsTest, HalvesSelectTheEvenRow) {
  for (const auto& [text, row] : std::map<std::string, int>{{"0.5", 0}, {"1.5", 2}, {"2.5", 2}, {"2abc", 2}}) {
    desk().clear();
    start({{"CPUTYPE", text}});
    EXPECT_EQ(frmHard->cmbCPUType.ListIndex, row) << text;
    EXPECT_EQ(cpuType, row) << text;
  }
}

TEST_F(SettingsTest, OnlyExactlyOneConnectsTheCables) {
  for (const auto& [text, connects] :
       std::map<std::string, bool>{{"1", true}, {"0", false}, {"2", false}, {"-1", false}}) {
    desk().clear();
    start({{"CABLECONNECTION", text}});
    EXPECT_EQ(connected(), connects ? 3 : 0) << text;
  }
}

TEST_F(SettingsTest, AnyNumberButZeroClearsTheMemory) {
  const auto filled = [] {
    return std::any_of(&chipMemory[0], &chipMemory[0] + kDataEnd, [](int b) { return b != 0; });
  };
  for (const auto& [text, clears] :
       std::map<std::string, bool>{{"1", true}, {"-1", true}, {"2", true}, {"0", false}, {"abc", false}, {"", false}}) {
    desk().clear();
    chipMemory[0] = 0x55;
    start({{"MEMORYCLEAR", text}});
    EXPECT_EQ(filled(), !clears) << text;
  }
}

TEST_F(SettingsTest, TheModesOfTheIoBoardReadZeroWhileThePanelShowsTheFile) {
  start({{"IOS-QVT50", "3"}, {"MODE-QVT50", "3"}});
  EXPECT_EQ(frmHard->cmbIOS.ListIndex, 3);
  EXPECT_EQ(frmHard->cmbMode.ListIndex, 3);
  EXPECT_EQ(ioBoardMode, 0);
  EXPECT_EQ(ioBoardCounterMode, 0);
}

TEST_F(SettingsTest, TheRegisterWindowOpensWhenAsked) {
  for (const auto& [text, opens] : std::map<std::string, bool>{{"1", true}, {"-1", true}, {"0", false}}) {
    desk().clear();
    start({{"OPENWINDOW1", text}});
    EXPECT_TRUE(frmRegister.loaded());
    EXPECT_EQ(frmRegister.visible(), opens) << text;
    EXPECT_EQ(frmRegister->owner(), opens ? frmMDI.form() : nullptr);
  }
}

TEST_F(SettingsTest, WithoutAFileTheProgramStartsWithZeros) {
  startUp();
  EXPECT_EQ(connected(), 0);
  EXPECT_EQ(frmHard->cmbCPUType.Text(), "16bit-Bus Little");
  for (int list = 0; list < 3; ++list) {
    EXPECT_EQ(saSetting[list], 1) << "all collide on station 1, without a word";
  }
  EXPECT_FALSE(frmRegister.visible());
  EXPECT_FALSE(std::filesystem::exists(iniFilePath));
}

TEST_F(SettingsTest, ADamagedFileStartsLikeNone) {
  for (const std::string& bytes : {std::string(), std::string(1000, '\0'), std::string("\xFF\xFE[\0I\0N\0", 8),
                                   std::string("[INIT]\r\nCPUTYPE"), std::string("=\r\n=\r\n[]\r\n]\r\n")}) {
    desk().clear();
    folder.write("ZELVS.INI", bytes);
    startUp();
    EXPECT_EQ(cpuType, 0);
    EXPECT_EQ(startupDone, kTrue);
    EXPECT_EQ(folder.read("ZELVS.INI"), bytes) << "the start writes nothing";
  }
}

TEST_F(SettingsTest, TheStartEndsWithTheContinuousScanAsked) {
  for (const auto& [transfer, bcr] : std::map<std::string, int>{{"0", 0x13}, {"1", 0x03}}) {
    desk().clear();
    clearState();
    programFolder = folder.path();
    start({{"TRANSFER", transfer}});
    EXPECT_EQ(startupDone, kTrue);
    EXPECT_EQ(runMode, kRun);
    EXPECT_EQ(chipMemory[kScrLow], 5);
    EXPECT_EQ(chipMemory[kBcrLow], bcr);
    EXPECT_EQ(std::string(&chipMemory[kChipName], &chipMemory[kChipName] + 6), "QVT60 ");
    EXPECT_EQ(continuousScanActive, kFalse) << "no step has run";
  }
}

}  // namespace
}  // namespace zelvs
