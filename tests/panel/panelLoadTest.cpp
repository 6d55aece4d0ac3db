// What the panel is when it has loaded: boards, shadows, first pictures, tips and pointers.

#include "bench/ilsMouse.h"
#include "support/panelFixture.h"

namespace zelvs {
namespace {

class PanelLoadTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    start();
  }
};

TEST_F(PanelLoadTest, BoardsAndTheirNames) {
  EXPECT_EQ(frmHard->Caption, std::string_view("HardWare"));
  const std::pair<int, const char*> names[] = {{7, "Center-Board"}, {0, "QVT60"}, {1, "QVT40"}, {2, "QVT40"},
                                               {3, "QVT40"},        {4, "QVT40"}, {5, "QVT50"}};
  for (const auto& [index, name] : names)
    EXPECT_EQ(frmHard->lblBoardName(index).Caption, std::string_view(name));
  EXPECT_FALSE(frmHard->lblBoardName.has(6));
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(frmHard->lblSatteliteNo(i).Caption, "Board-" + std::to_string(i + 1));
  EXPECT_EQ(frmHard->lblMaker(0).Caption, std::string_view("ZEL-VS"));
  const std::pair<int, const char*> lamps[] = {{0, "SCAN"}, {1, "Chk1"}, {2, "Chk2"}, {5, "MON"}};
  for (const auto& [index, name] : lamps)
    EXPECT_EQ(frmHard->lblB1_LED(index).Caption, std::string_view(name));
  const char* pwm[] = {"CWON", "CCWON", "CW-Pulse", "CCW-Pulse"};
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(frmHard->lblPWMTitle(i).Caption, std::string_view(pwm[i]));
  EXPECT_EQ(frmHard->lblPWMSSA(0).Caption, std::string_view("SSA"));
  EXPECT_EQ(frmHard->lblPWMSSA(1).Caption, std::string_view("SSB"));
  EXPECT_EQ(frmHard->lblSTB2.Caption, std::string_view("STB2"));
}

struct ArrayRow {
  const char* name;
  int first;
  int last;
};

TEST_F(PanelLoadTest, ControlArraysHaveTheirMembers) {
  const ArrayRow rows[] = {
      {"picBoard", 0, 6},    {"picShadow", 0, 6}, {"lblSatteliteNo", 0, 4}, {"picQVT", 0, 5},
      {"picReset", 0, 5},    {"picClock", 0, 3},  {"cmbClock", 0, 3},       {"lblClock", 0, 3},
      {"picJumper", 0, 3},   {"lblHF", 0, 3},     {"picTermR", 0, 4},       {"lblRt", 0, 4},
      {"picTRX", 0, 4},      {"picPTR", 0, 9},    {"picBOARD1_RXD", 0, 1},  {"picBOARD2_RXD", 0, 5},
      {"cmbSA", 0, 2},       {"picSA", 0, 5},     {"picFConn", 0, 3},       {"picSerialInt", 0, 3},
      {"picSE", 0, 3},       {"picSDI", 0, 3},    {"picCLR", 0, 4},         {"picSSA", 0, 4},
      {"picSSB", 0, 4},      {"picSTB", 0, 9},    {"fraCounter", 0, 4},     {"fraPIO", 0, 4},
      {"picCounter", 0, 25}, {"picPI", 0, 79},    {"picPO", 0, 63},         {"picChkLED", 0, 1},
      {"lblMaker", 0, 1},    {"picCW", 0, 3},     {"lblPWMTitle", 0, 3},    {"lblPWMSSA", 0, 1},
      {"picPower", 0, 5},    {"picBridge", 0, 1}, {"picCableUp", 0, 2},     {"picCableDn", 0, 2},
      {"picCableRole", 0, 2}};
  for (const ArrayRow& row : rows) {
    for (int i = row.first; i <= row.last; ++i)
      EXPECT_NE(frmHard->find(row.name, i), nullptr) << row.name << " " << i;
    EXPECT_EQ(frmHard->find(row.name, row.last + 1), nullptr) << row.name;
  }
  for (const char* single :
       {"picCPU", "cmbCPUType", "picScanLed", "picInt", "picIOS", "cmbIOS", "picMode", "cmbMode", "picBPSS", "lblPBPSS",
        "picPWMBridge", "picPWM", "imgBelt", "picTriangle", "picNoise", "timMotor", "timSE", "mmcBeep", "lblSTB2"}) {
    EXPECT_NE(frmHard->find(single, -1), nullptr) << single;
  }
  EXPECT_NE(frmHard->find("picB1_LED", 5), nullptr);
}

TEST_F(PanelLoadTest, PictureListsHaveTheirImages) {
  const std::pair<const ImageList*, int> lists[] = {
      {&frmHard->ilsTriangle, 9}, {&frmHard->ilsCount, 4}, {&frmHard->ilsInt, 4},   {&frmHard->ilsJumper, 2},
      {&frmHard->ilsNOISE, 2},    {&frmHard->ilsRESET, 2}, {&frmHard->ilsCable, 4}, {&frmHard->ilsLED_R, 2},
      {&frmHard->ilsLED_G, 2},    {&frmHard->ilsRSW, 16},  {&frmHard->ilsDIP1, 4},  {&frmHard->ilsDIP3, 8},
      {&frmHard->ilsMotor, 11},   {&ilsMouse, 2}};
  for (const auto& [list, count] : lists)
    EXPECT_EQ(list->count(), count) << list->name();
}

TEST_F(PanelLoadTest, ShadowsLieFivePixelsBesideTheirBoards) {
  for (int i = 0; i < 7; ++i) {
    const PictureBox& board = frmHard->picBoard(i);
    const Shape& shadow = frmHard->picShadow(i);
    EXPECT_EQ(shadow.Left.get(), board.Left.get() + 5);
    EXPECT_EQ(shadow.Top.get(), board.Top.get() + 5);
    EXPECT_EQ(shadow.Width.get(), board.Width.get());
    EXPECT_EQ(shadow.Height.get(), board.Height.get());
  }
  for (std::size_t i = 0; i < 7; ++i)
    EXPECT_EQ(frmHard->topControls()[i]->name(), "picShadow") << "behind everything else";
}

TEST_F(PanelLoadTest, FirstTagsAndPictures) {
  for (int i = 0; i < 64; ++i) {
    EXPECT_EQ(frmHard->picPI(i).Tag, std::string_view("I0")) << i;
    EXPECT_EQ(shown(frmHard->picPI(i).Picture), "ilsDIP1 1") << i;
    EXPECT_EQ(frmHard->picPO(i).Tag, std::string_view("")) << i;
    EXPECT_EQ(shown(frmHard->picPO(i).Picture), "ilsLED_G 1") << i;
  }
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(frmHard->picSSA(i).Tag, std::string_view("")) << i;
    EXPECT_EQ(frmHard->picSSB(i).Tag, std::string_view("")) << i;
    EXPECT_EQ(shown(frmHard->picSSA(i).Picture), "ilsDIP1 3") << i;
    EXPECT_EQ(shown(frmHard->picSSB(i).Picture), "ilsDIP1 3") << i;
  }
  EXPECT_EQ(shown(frmHard->picInt.Picture), "ilsInt 1");
  EXPECT_FALSE(frmHard->picInt.Visible);
  EXPECT_EQ(frmHard->picScanLed.Tag, std::string_view(""));
  EXPECT_EQ(frmHard->picBPSS.Tag, std::string_view(""));
  EXPECT_EQ(shown(frmHard->picNoise.Picture), "ilsNOISE 1");
}

struct WidthRow {
  const char* name;
  const char* cascade12;
  const char* cascade34;
  const char* ios;
  bool wide;
};

class WidthTest : public PanelTest, public testing::WithParamInterface<WidthRow> {};

TEST_P(WidthTest, TheRightColumnExistsOnlyWithSomethingToShow) {
  const WidthRow& row = GetParam();
  // The width that the load gives; what follows the load has forgotten the mode by then.
  double loaded = 0;
  folder.write(
      "ZELVS.INI",
      makerIni({{"CASCADE-QVT40-12", row.cascade12}, {"CASCADE-QVT40-34", row.cascade34}, {"IOS-QVT50", row.ios}}));
  startUp();
  loaded = frmHard->Width;
  EXPECT_EQ(loaded, row.wide ? 13330 : 7890);
  const bool present[] = {true, true, row.cascade12[0] == '1', true, row.cascade34[0] == '1', true, row.ios[0] >= '6'};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(frmHard->picBoard(i).Visible.get(), present[i]) << i;
    EXPECT_EQ(frmHard->picShadow(i).Visible.get(), present[i]) << i;
  }
  EXPECT_EQ(frmHard->picBridge(0).Visible.get(), present[2]);
  EXPECT_EQ(frmHard->picBridge(1).Visible.get(), present[4]);
  EXPECT_EQ(frmHard->picPWMBridge.Visible.get(), present[6]);
}

INSTANTIATE_TEST_SUITE_P(Settings, WidthTest,
                         testing::Values(WidthRow{"Nothing", "0", "0", "5", false},
                                         WidthRow{"Slave2", "1", "0", "0", true},
                                         WidthRow{"Slave4", "0", "1", "5", true}, WidthRow{"Both", "1", "1", "5", true},
                                         WidthRow{"Pwm", "0", "0", "6", true},
                                         WidthRow{"PwmWithCounter", "0", "0", "7", true},
                                         WidthRow{"OnlyAOneCounts", "2", "0", "5", false}),
                         [](const auto& row) { return row.param.name; });

TEST_F(PanelTest, TheWidthFollowsTheUser) {
  start({{"CASCADE-QVT40-12", "0"}, {"CASCADE-QVT40-34", "0"}});
  EXPECT_EQ(frmHard->Width.get(), 7890);
  const auto chooseMode = [](int mode) { choose(frmHard->picIOS, frmHard->cmbIOS, mode); };
  const std::pair<int, double> modes[] = {{6, 13330}, {5, 7890}, {7, 13330}, {0, 7890}};
  for (const auto& [mode, width] : modes) {
    chooseMode(mode);
    EXPECT_EQ(frmHard->Width.get(), width) << mode;
  }
  doubleClick(frmHard->picFConn(2));
  EXPECT_EQ(frmHard->Width.get(), 13330);
  doubleClick(frmHard->picBridge(1));
  EXPECT_EQ(frmHard->Width.get(), 7890);
  EXPECT_TRUE(frmHard->visible());
}

TEST_F(PanelLoadTest, ActivatingThePanelSetsItsShadowsAndPrintsItsPorts) {
  frmHard->picShadow(2).Visible = false;
  frmHard->picBoard(4).Visible = false;
  gesture::activate(*frmMDI);
  gesture::activate(*frmHard);
  EXPECT_TRUE(frmHard->picShadow(2).Visible);
  EXPECT_FALSE(frmHard->picShadow(4).Visible);
  for (const int port : {0, 1}) {
    const auto& drawing = frmHard->picBOARD1_RXD(port).drawing();
    ASSERT_EQ(drawing.size(), 1u) << "printed once, however often the panel was activated";
    EXPECT_EQ(drawing[0].text, std::to_string(port + 1) + "RXD");
  }
}

// ---- Tips

TEST_F(PanelLoadTest, TipsOfTheControls) {
  const struct {
    const char* array;
    int first;
    int last;
    const char* tip;
  } rows[] = {
      {"picPI", 0, 63, "DI端子接続 入力ディップ・スイッチ"},
      {"picPO", 0, 63, "DO端子接続 LED(緑）"},
      {"picPI", 64, 79, "IO端子接続 LED(緑）"},  // the maker's mode makes all of them outputs
      {"picCounter", 0, 23, "16ビット・カウンタ 入力端子接続 プッシュ・スイッチ"},
      {"picCounter", 24, 25, "12ビット・カウンタ 入力端子接続 プッシュ・スイッチ"},
      {"picCLR", 0, 3, "DO強制クリア プッシュ・スイッチ"},
      {"picCLR", 4, 4, "IO強制クリア プッシュ・スイッチ"},
      {"picReset", 0, 5, "リセット押しボタン・スイッチ"},
      {"picSE", 0, 3, "SE端子接続 LED(緑)"},
      {"picSDI", 0, 3, "シリアルデータを入力する回路です。ダブルクリックでデータの入力が可能です。"},
      {"picSSA", 0, 0, "DI取得タイミング設定ディップ・スイッチ"},
      {"picSSA", 1, 4, "DI取り込みタイミング設定ディップ・スイッチ"},
      {"picSSB", 0, 4, "DI取得ハンドシェーク設定ディップ・スイッチ"},
      {"picPWM", -1, -1, "PWMモータドライブ回路。ダブルクリックで回路図を表示します。"},
      {"picCPU", -1, -1, "CPU接続種別選択"},
      {"picScanLed", -1, -1, "スキャン端子接続 LED(緑)"},
      {"picChkLED", 0, 0, "#CHK1端子接続 LED(赤)"},
      {"picChkLED", 1, 1, "#CHK2端子接続 LED(赤)"},
      {"picIOS", -1, -1, "IOS0-2端子接続 モード設定"},
      {"picMode", -1, -1, "CM0,1端子接続 カウンタモード設定"},
      {"picBPSS", -1, -1, "駆動クロック選択用の入力端子"},
      {"picB1_LED", 5, 5, "#MON端子接続 LED(緑)"},
      {"picPower", 0, 5, "この表示はQVT50内部の状態です"},
      {"picBridge", 0, 1, "スレーブ基盤接続ケーブル"},
      {"picFConn", 0, 3, "スレーブ基盤接続コネクタ"},
      {"picBOARD1_RXD", 0, 1, "コネクタ着脱"},
      {"picBOARD2_RXD", 0, 5, "コネクタ着脱"},
      {"picTermR", 0, 4, "ターミネーション抵抗"},
      {"picJumper", 0, 3, "Full／Half 切替ジャンパ・スイッチ"},
      {"picPTR", 0, 9, "パルストランス(QPT900-X)"},
      {"picTRX", 0, 4, "差動伝送ドライバ／レシーバ"},
  };
  for (const auto& row : rows) {
    for (int i = row.first; i <= row.last; ++i) {
      const Control* control = frmHard->find(row.array, i);
      ASSERT_NE(control, nullptr) << row.array;
      EXPECT_EQ(control->ToolTipText, std::string_view(row.tip)) << control->fullName();
    }
  }
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(frmHard->picSTB(i).ToolTipText, std::string_view(i % 2 == 0 ? "DOデータ更新タイミング・ストローブ"
                                                                          : "DIデータ取り込みタイミング・ストローブ"));
  }
}

TEST_F(PanelLoadTest, EveryControlStandsOnItsBoard) {
  const auto boardOf = [](const Control& control) {
    const Control* at = &control;
    while (at->container() != nullptr)
      at = at->container();
    return at->name() == "picBoard" ? at->index() : -1;
  };
  for (int i = 0; i < 80; ++i)
    EXPECT_EQ(boardOf(frmHard->picPI(i)), i / 16 + 1) << i;
  for (int i = 0; i < 64; ++i)
    EXPECT_EQ(boardOf(frmHard->picPO(i)), i / 16 + 1) << i;
  for (int i = 0; i < 24; ++i)
    EXPECT_EQ(boardOf(frmHard->picCounter(i)), i / 6 + 1) << i;
  for (const int i : {24, 25})
    EXPECT_EQ(boardOf(frmHard->picCounter(i)), 5);
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(boardOf(frmHard->picSTB(i)), i / 2 + 1);
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(boardOf(frmHard->picSSA(i)), i + 1);
    EXPECT_EQ(boardOf(frmHard->picSSB(i)), i + 1);
    EXPECT_EQ(boardOf(frmHard->picCLR(i)), i + 1);
  }
  constexpr int kWithLine[] = {0, 1, 3, 5};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(boardOf(frmHard->picClock(i)), kWithLine[i]);
    EXPECT_EQ(boardOf(frmHard->picJumper(i)), kWithLine[i]);
  }
  constexpr int kTerminated[] = {0, 0, 1, 3, 5};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(boardOf(frmHard->picTermR(i)), kTerminated[i]);
    EXPECT_EQ(boardOf(frmHard->picTRX(i)), kTerminated[i]);
  }
  constexpr int kTransformers[] = {0, 0, 0, 0, 1, 1, 3, 3, 5, 5};
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(boardOf(frmHard->picPTR(i)), kTransformers[i]);
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(boardOf(frmHard->picBOARD2_RXD(i)), kWithLine[i / 2 + 1]);
    EXPECT_EQ(boardOf(frmHard->picSA(i)), kWithLine[i / 2 + 1]);
  }
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(boardOf(frmHard->picFConn(i)), i + 1);
    EXPECT_EQ(boardOf(frmHard->picSE(i)), i + 1);
    EXPECT_EQ(boardOf(frmHard->picSDI(i)), i + 1);
    EXPECT_EQ(boardOf(frmHard->picSerialInt(i)), i + 1);
  }
}

TEST_F(PanelTest, ASettingOutsideItsListEndsTheProgramWithItsName) {
  const std::pair<const char*, const char*> settings[] = {{"SA-QVT40-1", "63"},   {"SA-QVT50", "-1"},
                                                          {"CLOCK-QVT40-3", "3"}, {"CPUTYPE", "4"},
                                                          {"IOS-QVT50", "8"},     {"MODE-QVT50", "4"}};
  for (const auto& [key, value] : settings)
    EXPECT_DEATH(start({{key, value}}), std::string(key) + "=" + value) << key;
}

}  // namespace
}  // namespace zelvs
