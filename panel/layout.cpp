// Where everything stands on the panel: pixels of the board, twips inside the frames of counters and pins. Boards 1
// to 4 come from one description; what only a master has is a second one.

#include <array>
#include <string>
#include <string_view>

#include "panel/frmHard.h"
#include "panel/panelSetup.h"

namespace zelvs {

namespace {

constexpr Colour kBoardGreen = 0x3C6414;
constexpr double kPixel = kTwipsPerPixel;

struct Place {
  double left, top, width, height;
};

// Index: picBoard. The masters stand in the left column, the slaves and the motor in the right one.
constexpr std::array<Place, 7> kBoards = {{
    {70, 8, 440, 150},
    {70, 168, 440, 250},
    {536, 168, 340, 250},
    {70, 428, 440, 250},
    {536, 428, 340, 250},
    {70, 688, 440, 262},
    {536, 688, 340, 262},
}};

void put(Control& control, Control& holder, const Place& place) {
  control.placeIn(holder);
  control.move(place.left, place.top, place.width, place.height);
}

void put(Label& label, Control& holder, const Place& place, std::string_view text) {
  put(static_cast<Control&>(label), holder, place);
  label.Caption = text;
  label.ForeColor = kWhite;
  label.FontSize = 8;
}

void put(PictureBox& picture, Control& holder, const Place& place, std::string_view tip) {
  put(static_cast<Control&>(picture), holder, place);
  picture.ToolTipText = tip;
  picture.Transparent = true;
}

/// A column of sixteen pins, bit 0 at the top, inside a frame of its own.
constexpr double kPinPitch = 14 * kPixel;
constexpr double kFirstPin = 8 * kPixel;
constexpr double kSwitchLeft = 240;
constexpr double kSwitchWidth = 30 * kPixel;
constexpr double kLedLeft = 352;
constexpr double kLedWidth = 15 * kPixel;
constexpr double kPinHeight = 13 * kPixel;
constexpr double kOutputColumn = 48 * kPixel;

/// What every QVT40 board has, master or slave. right is the left edge of this block on the board.
void layOutQvt40(FrmHard& panel, int board, double x) {
  PictureBox& holder = panel.picBoard(board);
  const int i = board - 1;
  put(panel.lblBoardName(board), holder, {x + 8, 4, 60, 16}, "QVT40");
  put(panel.lblSatteliteNo(i), holder, {x + 80, 4, 70, 16}, "Board-" + std::to_string(board));
  put(panel.picQVT(board), holder, {x + 112, 40, 96, 80}, "");
  put(panel.picReset(board), holder, {x + 8, 216, 26, 26}, "リセット押しボタン・スイッチ");
  put(panel.picCLR(i), holder, {x + 60, 216, 26, 26}, "DO強制クリア プッシュ・スイッチ");
  put(panel.picFConn(i), holder, {board % 2 == 1 ? x + 316.0 : 4.0, 100, 16, 60}, "スレーブ基盤接続コネクタ");
  put(panel.picSDI(i), holder, {x + 8, 120, 60, 36},
      "シリアルデータを入力する回路です。ダブルクリックでデータの入力が可能です。");
  put(panel.picSerialInt(i), holder, {x + 74, 128, 26, 20}, "");
  put(panel.picSE(i), holder, {x + 8, 164, 15, 13}, "SE端子接続 LED(緑)");
  put(panel.picSSA(i), holder, {x + 112, 140, 30, 13},
      i == 0 ? "DI取得タイミング設定ディップ・スイッチ" : "DI取り込みタイミング設定ディップ・スイッチ");
  put(panel.picSSB(i), holder, {x + 112, 164, 30, 13}, "DI取得ハンドシェーク設定ディップ・スイッチ");
  put(panel.picSTB(2 * i), holder, {x + 112, 190, 40, 16}, "DOデータ更新タイミング・ストローブ");
  put(panel.picSTB(2 * i + 1), holder, {x + 160, 190, 40, 16}, "DIデータ取り込みタイミング・ストローブ");

  put(panel.fraCounter(i), holder, {x + 8, 28, 96, 76});
  for (int counter = 0; counter < 6; ++counter) {
    put(panel.picCounter(6 * i + counter), panel.fraCounter(i),
        {(6 + counter % 3 * 30) * kPixel, (14 + counter / 3 * 30) * kPixel, 26 * kPixel, 26 * kPixel},
        "16ビット・カウンタ 入力端子接続 プッシュ・スイッチ");
  }
  put(panel.fraPIO(i), holder, {x + 214, 8, 96, 236});
  for (int bit = 0; bit < 16; ++bit) {
    const double top = kFirstPin + bit * kPinPitch;
    put(panel.picPI(16 * i + bit), panel.fraPIO(i), {kSwitchLeft, top, kSwitchWidth, kPinHeight},
        "DI端子接続 入力ディップ・スイッチ");
    put(panel.picPO(16 * i + bit), panel.fraPIO(i), {kSwitchLeft + kOutputColumn, top, kLedWidth, kPinHeight},
        "DO端子接続 LED(緑）");
  }
}

/// Address, clock, jumper and line parts of a board that has a cable of its own. index: 0 board 1, 1 board 3, 2
/// board 5.
void layOutLine(FrmHard& panel, int board, int index) {
  PictureBox& holder = panel.picBoard(board);
  put(panel.picSA(2 * index), holder, {44, 24, 24, 24}, "");
  put(panel.picSA(2 * index + 1), holder, {72, 24, 24, 24}, "");
  put(panel.picClock(index + 1), holder, {44, 56, 24, 20}, "");
  put(panel.lblClock(index + 1), holder, {72, 58, 40, 14}, panel.lblClock(index + 1).Caption.get());
  put(panel.picJumper(index + 1), holder, {44, 84, 24, 20}, "Full／Half 切替ジャンパ・スイッチ");
  put(panel.lblHF(index + 1), holder, {72, 86, 40, 14}, "JMP-F");
  put(panel.picTRX(index + 2), holder, {40, 114, 30, 30}, "差動伝送ドライバ／レシーバ");
  put(panel.picPTR(4 + 2 * index), holder, {76, 114, 26, 26}, "パルストランス(QPT900-X)");
  put(panel.picPTR(5 + 2 * index), holder, {76, 144, 26, 26}, "パルストランス(QPT900-X)");
  put(panel.picTermR(index + 2), holder, {44, 178, 24, 12}, "ターミネーション抵抗");
  put(panel.lblRt(index + 2), holder, {72, 176, 24, 14}, "Rt");
  put(panel.picBOARD2_RXD(2 * index), holder, {2, 24, 34, 28}, "コネクタ着脱");
  put(panel.picBOARD2_RXD(2 * index + 1), holder, {2, 190, 34, 28}, "コネクタ着脱");
  put(panel.cmbSA(index), holder, {40, 24, 76, 200});
  put(panel.cmbClock(index + 1), holder, {40, 56, 76, 60});
}

void layOutCenter(FrmHard& panel) {
  PictureBox& holder = panel.picBoard(0);
  put(panel.lblBoardName(7), holder, {120, 4, 100, 16}, "Center-Board");
  put(panel.lblBoardName(0), holder, {240, 4, 60, 16}, "QVT60");
  put(panel.lblMaker(0), holder, {320, 4, 70, 16}, "ZEL-VS");
  put(panel.lblMaker(1), holder, {320, 22, 70, 16}, "Learning");
  put(panel.picQVT(0), holder, {226, 30, 84, 84}, "");
  put(panel.picReset(0), holder, {400, 110, 26, 26}, "リセット押しボタン・スイッチ");
  put(panel.picClock(0), holder, {120, 28, 24, 20}, "");
  put(panel.lblClock(0), holder, {150, 30, 44, 14}, "48MHz");
  put(panel.picJumper(0), holder, {120, 58, 24, 20}, "Full／Half 切替ジャンパ・スイッチ");
  put(panel.lblHF(0), holder, {150, 60, 44, 14}, "JMP-F");
  put(panel.picCPU, holder, {340, 46, 84, 44}, "CPU接続種別選択");
  put(panel.picScanLed, holder, {120, 120, 15, 13}, "スキャン端子接続 LED(緑)");
  put(panel.lblB1_LED(0), holder, {138, 119, 32, 14}, "SCAN");
  put(panel.picChkLED(0), holder, {176, 120, 15, 13}, "#CHK1端子接続 LED(赤)");
  put(panel.lblB1_LED(1), holder, {194, 119, 32, 14}, "Chk1");
  put(panel.picChkLED(1), holder, {232, 120, 15, 13}, "#CHK2端子接続 LED(赤)");
  put(panel.lblB1_LED(2), holder, {250, 119, 32, 14}, "Chk2");
  put(panel.picInt, holder, {312, 96, 60, 20}, "");
  for (int port = 0; port < 2; ++port) {
    const double top = port == 0 ? 16 : 54;
    put(panel.picBOARD1_RXD(port), holder, {2, top, 34, 28}, "コネクタ着脱");
    put(panel.picTRX(port), holder, {76, top, 30, 26}, "差動伝送ドライバ／レシーバ");
    put(panel.picPTR(2 * port), holder, {42, top - 2, 14, 26}, "パルストランス(QPT900-X)");
    put(panel.picPTR(2 * port + 1), holder, {58, top - 2, 14, 26}, "パルストランス(QPT900-X)");
    put(panel.picTermR(port), holder, {4, port == 0 ? 98.0 : 120.0, 24, 12}, "ターミネーション抵抗");
    put(panel.lblRt(port), holder, {32, port == 0 ? 97.0 : 119.0, 24, 14}, "Rt");
    panel.picBOARD1_RXD(port).setUnit(kPixel);
  }
  put(panel.cmbClock(0), holder, {116, 28, 76, 60});
  put(panel.cmbCPUType, holder, {300, 46, 136, 80});
}

void layOutIoBoard(FrmHard& panel) {
  PictureBox& holder = panel.picBoard(5);
  layOutLine(panel, 5, 2);
  put(panel.lblBoardName(5), holder, {128, 4, 60, 16}, "QVT50");
  put(panel.lblSatteliteNo(4), holder, {196, 4, 70, 16}, "Board-5");
  put(panel.picQVT(5), holder, {226, 40, 96, 80}, "");
  put(panel.picReset(5), holder, {122, 226, 26, 26}, "リセット押しボタン・スイッチ");
  put(panel.picCLR(4), holder, {164, 226, 26, 26}, "IO強制クリア プッシュ・スイッチ");
  put(panel.picIOS, holder, {122, 28, 44, 26}, "IOS0-2端子接続 モード設定");
  put(panel.picMode, holder, {172, 28, 44, 26}, "CM0,1端子接続 カウンタモード設定");
  put(panel.picBPSS, holder, {122, 62, 30, 13}, "駆動クロック選択用の入力端子");
  put(panel.lblPBPSS, holder, {158, 61, 50, 14}, "BPSS-L");
  put(panel.picB1_LED(5), holder, {122, 84, 15, 13}, "#MON端子接続 LED(緑)");
  put(panel.lblB1_LED(5), holder, {140, 83, 30, 14}, "MON");
  put(panel.lblPWMSSA(0), holder, {256, 134, 30, 14}, "SSA");
  put(panel.picSSA(4), holder, {222, 134, 30, 13}, "DI取り込みタイミング設定ディップ・スイッチ");
  put(panel.lblPWMSSA(1), holder, {256, 154, 30, 14}, "SSB");
  put(panel.picSSB(4), holder, {222, 154, 30, 13}, "DI取得ハンドシェーク設定ディップ・スイッチ");
  put(panel.picSTB(8), holder, {222, 176, 40, 16}, "DOデータ更新タイミング・ストローブ");
  put(panel.picSTB(9), holder, {222, 198, 40, 16}, "DIデータ取り込みタイミング・ストローブ");
  put(panel.lblSTB2, holder, {266, 199, 34, 14}, "STB2");
  constexpr std::array<std::string_view, 4> kPwmPins = {"CWON", "CCWON", "CW-Pulse", "CCW-Pulse"};
  for (int i = 0; i < 4; ++i) {
    put(panel.picCW(i), holder, {310.0, 134.0 + 20 * i, 15, 13}, "");
    put(panel.lblPWMTitle(i), holder, {222.0, 133.0 + 20 * i, 84, 14}, kPwmPins[static_cast<std::size_t>(i)]);
  }
  put(panel.fraCounter(4), holder, {122, 110, 90, 60});
  for (int i = 24; i <= 25; ++i) {
    put(panel.picCounter(i), panel.fraCounter(4), {(8 + (i - 24) * 40) * kPixel, 20 * kPixel, 26 * kPixel, 26 * kPixel},
        "12ビット・カウンタ 入力端子接続 プッシュ・スイッチ");
  }
  put(panel.fraPIO(4), holder, {334, 8, 60, 236});
  for (int bit = 0; bit < 16; ++bit) {
    put(panel.picPI(64 + bit), panel.fraPIO(4), {kSwitchLeft, kFirstPin + bit * kPinPitch, kSwitchWidth, kPinHeight},
        "IO端子接続 入力ディップ・スイッチ");
  }
  put(panel.cmbIOS, holder, {120, 28, 260, 130});
  put(panel.cmbMode, holder, {172, 28, 130, 80});
}

void layOutMotorBoard(FrmHard& panel) {
  PictureBox& holder = panel.picBoard(6);
  put(panel.picPWM, holder, {12, 40, 80, 60}, "PWMモータドライブ回路。ダブルクリックで回路図を表示します。");
  put(panel.imgBelt, holder, {130, 40, 160, 120});
  put(panel.picTriangle, holder, {190, 170, 40, 30}, "");
  for (int i = 0; i < 6; ++i) {
    put(panel.picPower(i), holder, {14.0 + 20 * i, 220, 15, 13}, "この表示はQVT50内部の状態です");
  }
}

void layOutTable(FrmHard& panel) {
  constexpr std::array<Place, 3> kUp = {{{40, 24, 30, 28}, {40, 358, 30, 28}, {40, 618, 30, 28}}};
  constexpr std::array<Place, 3> kRole = {{{4, 70, 40, 100}, {4, 390, 40, 50}, {4, 650, 40, 50}}};
  constexpr std::array<Place, 3> kDown = {{{40, 192, 30, 28}, {40, 452, 30, 28}, {40, 712, 30, 28}}};
  const auto put = [](Control& control, const Place& place) {
    control.move(place.left, place.top, place.width, place.height);
  };
  for (int cable = 0; cable < 3; ++cable) {
    const auto at = static_cast<std::size_t>(cable);
    put(panel.picCableUp(cable), kUp[at]);
    put(panel.picCableRole(cable), kRole[at]);
    put(panel.picCableDn(cable), kDown[at]);
    panel.picCableUp(cable).Transparent = true;
    panel.picCableRole(cable).Transparent = true;
    panel.picCableDn(cable).Transparent = true;
  }
  for (int pair = 0; pair < 2; ++pair) {
    put(panel.picBridge(pair), {505, pair == 0 ? 270.0 : 530.0, 36, 56});
    panel.picBridge(pair).ToolTipText = "スレーブ基盤接続ケーブル";
    panel.picBridge(pair).Transparent = true;
  }
  put(panel.picPWMBridge, {505, 800, 36, 56});
  panel.picPWMBridge.Transparent = true;
  put(panel.picNoise, {14, 940, 40, 40});
  panel.picNoise.Transparent = true;
}

}  // namespace

void layOutPanel(FrmHard& panel) {
  for (PictureBox& board : panel.picBoard) {
    const Place& place = kBoards[static_cast<std::size_t>(board.index())];
    board.setUnit(kPixel);
    board.BackColor = kBoardGreen;
    board.move(place.left, place.top, place.width, place.height);
  }
  layOutCenter(panel);
  for (const int board : {1, 2, 3, 4}) {
    const bool master = board % 2 == 1;
    layOutQvt40(panel, board, master ? 120 : 20);
    if (master) layOutLine(panel, board, board / 2);
  }
  layOutIoBoard(panel);
  layOutMotorBoard(panel);
  layOutTable(panel);
}

}  // namespace zelvs
