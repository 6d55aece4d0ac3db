// Where everything stands on the panel, and the pictures that never change. All places are pixels of what holds the
// control. Boards 1 to 4 come from one description; what only a board with a cable of its own has is a second one.

#include "bench/layout.h"

#include <array>
#include <string>
#include <string_view>

#include "bench/frmHard.h"
#include "bench/settingLists.h"

namespace zelvs {

namespace {

constexpr double kPixel = kTwipsPerPixel;
constexpr Colour kShadow = 0x9AA6AA;
constexpr Colour kInkOnTable = 0x403830;
constexpr double kSmall = 7.5;
constexpr double kNormal = 8;

struct Place {
  double left, top, width, height;

  constexpr Place shifted(double x, double y) const { return {left + x, top + y, width, height}; }
};

using PictureArray = ControlArray<PictureBox> FrmHard::*;
using LabelArray = ControlArray<Label> FrmHard::*;
using ListArray = ControlArray<ComboBox> FrmHard::*;
using Images = ImageList FrmHard::*;

/// A member of a picture array. Its index on the n-th board of a kind is stride * n + offset. Parts whose picture
/// shows a state have no image here: what keeps the state gives them theirs.
struct Part {
  PictureArray array;
  int stride, offset;
  Place place;
  std::string_view tip = {};
  Images list = nullptr;
  int image = 1;
};

struct SinglePart {
  PictureBox FrmHard::*picture;
  Place place;
  std::string_view tip = {};
  Images list = nullptr;
  int image = 1;
};

/// A label that changes, or that its index tells from others.
struct Text {
  LabelArray array;
  int stride, offset;
  Place place;
  std::string_view text = {};
};

/// A fixed text of lblTitle.
struct Title {
  std::string_view text;
  Place place;
  Alignment align = Alignment::Left;
};

struct List {
  ListArray array;
  int stride, offset;
  Place place;
};

// ---------------------------------------------------------------------------------------------------- boards, table

struct Board {
  Place place;
  Images ground;
  Colour mask;  ///< the colour of the ground where nothing is drawn on it
};

constexpr Colour kCenterMask = 0x6A3E16;
constexpr Colour kGreenMask = 0x3A5E12;
constexpr Colour kIoMask = 0x565212;
constexpr Colour kMotorMask = 0x322C28;

/// Index: picBoard. Boards with a cable of their own stand in the left column, the slaves and the motor in the right
/// one, each beside the board that it hangs on.
constexpr std::array<Board, 7> kBoards = {{
    {{66, 8, 448, 150}, &FrmHard::ilsBoardCenter, kCenterMask},
    {{66, 170, 448, 252}, &FrmHard::ilsBoardMaster, kGreenMask},
    {{536, 170, 344, 252}, &FrmHard::ilsBoardSlave, kGreenMask},
    {{66, 432, 448, 252}, &FrmHard::ilsBoardMaster, kGreenMask},
    {{536, 432, 344, 252}, &FrmHard::ilsBoardSlave, kGreenMask},
    {{66, 694, 448, 252}, &FrmHard::ilsBoardIo, kIoMask},
    {{536, 694, 344, 252}, &FrmHard::ilsBoardMotor, kMotorMask},
}};

// A cable's two ends are pictures of one size. The plug stands kPlugCentre from that side of the picture where the
// cable does not leave it, and its nose reaches kPlugReach into the board, as far as the jack's shell.
constexpr double kCableEndWidth = 48;
constexpr double kCableEndHeight = 66;
constexpr double kPlugCentre = 14;
constexpr double kPlugReach = 8;
constexpr double kJackSize = 34;

// Where the middles of the connectors stand on their boards. The cable that comes from the center is put to Top 24 or
// 62 by whoever plugs it, so the center's ports follow from those two numbers.
constexpr std::array<double, 2> kUpperEndTops = {24, 62};
constexpr std::array<double, 2> kPortMiddles = {kUpperEndTops[0] + kPlugCentre - kBoards[0].place.top,
                                                kUpperEndTops[1] + kPlugCentre - kBoards[0].place.top};
constexpr double kJackInMiddle = 70;
constexpr double kJackOutMiddle = 168;

constexpr Place jackAt(double middle) {
  return {kPlugReach, middle - kJackSize / 2, kJackSize, kJackSize};
}

/// The boards that cable k runs between.
constexpr std::array<int, 3> kUpperBoard = {0, 1, 3};
constexpr std::array<int, 3> kLowerBoard = {1, 3, 5};

// The coil's picture begins where the cable's upper end leaves a plug that is put to Top 62; it hangs straight for the
// 38 pixels between the two ports, so that it meets the end at either of them.
constexpr double kCoilBelowPlug = kCableEndHeight - (kUpperEndTops[1] - kUpperEndTops[0]);
constexpr Place kCoil = {4, 0, 58, 122};

constexpr std::string_view kNoiseTitle = "NOISE";
constexpr int kNoiseTitleIndex = 164;
constexpr Place kNoiseButton = {16, 262, 40, 40};
constexpr Place kNoiseLabel = {16, 303, 40, 14};

// Ribbons reach as far into a board as a plug does.
constexpr double kBridgeLeft = kBoards[1].place.left + kBoards[1].place.width - 6;
constexpr double kBridgeWidth = kBoards[2].place.left + 6 - kBridgeLeft;
constexpr double kHeaderTop = 90;
constexpr double kHeaderHeight = 72;
constexpr Place kMotorCable = {kBridgeLeft, 100, kBridgeWidth, 56};

// ------------------------------------------------------------------------------------------------------- pin columns

// A row is 14 pixels, with a little more between the two bytes. An input and an output of one pin of board 5 take
// turns at Left 240 and 352 twips, which puts the middle of the narrower lamp under the middle of the switch.
constexpr double kFirstPin = 17;
constexpr double kPinPitch = 14;
constexpr double kByteGap = 3;
constexpr double kPinHeight = 13;
constexpr double kSwitchLeft = 16;
constexpr double kSwitchWidth = 30;
constexpr double kLedWidth = 15;
constexpr double kLedLeft = 67;
constexpr double kNumberWidth = 13;
constexpr double kInputNumber = 1;
constexpr double kOutputNumber = 51;

constexpr double pinTop(int bit) {
  return kFirstPin + bit * kPinPitch + (bit >= 8 ? kByteGap : 0);
}

constexpr std::array<std::string_view, 16> kPinNumbers = {"0", "1", "2",  "3",  "4",  "5",  "6",  "7",
                                                          "8", "9", "10", "11", "12", "13", "14", "15"};

constexpr Title kInputHeading = {"DI", {kSwitchLeft, 2, kSwitchWidth, 14}, Alignment::Center};
constexpr Title kOutputHeading = {"DO", {kLedLeft - 4, 2, kLedWidth + 8, 14}, Alignment::Center};

// -------------------------------------------------------------------------------------------------- QVT40, any of four

// Where the common block stands: behind the line parts of a board with a cable, behind the connector of a slave.
constexpr double kMasterBlock = 108;
constexpr double kSlaveBlock = 26;
constexpr double kMasterHeader = 424;
constexpr double kSlaveHeader = 6;
constexpr double kHeaderWidth = 18;

constexpr Place kPinFrame = {218, 3, 94, 246};
constexpr Place kCounterFrame = {2, 24, 104, 86};
constexpr Place kButton = {0, 0, 26, 26};

// Index: board - 1.
constexpr auto kQvt40Parts = std::to_array<Part>({
    {&FrmHard::picSDI,
     1,
     0,
     {6, 124, 60, 36},
     "シリアルデータを入力する回路です。ダブルクリックでデータの入力が可能です。",
     &FrmHard::ilsSerial,
     1},
    {&FrmHard::picSerialInt, 1, 0, {68, 132, 36, 22}, "", &FrmHard::ilsSerial, 2},
    {&FrmHard::picSE, 1, 0, {10, 168, 15, 13}, "SE端子接続 LED(緑)"},
    {&FrmHard::picSSA, 1, 0, {120, 122, 30, 13}, "DI取り込みタイミング設定ディップ・スイッチ"},
    {&FrmHard::picSSB, 1, 0, {120, 140, 30, 13}, "DI取得ハンドシェーク設定ディップ・スイッチ"},
    {&FrmHard::picSTB, 2, 0, {115, 158, 40, 16}, "DOデータ更新タイミング・ストローブ", &FrmHard::ilsStrobe, 1},
    {&FrmHard::picSTB, 2, 1, {115, 177, 40, 16}, "DIデータ取り込みタイミング・ストローブ", &FrmHard::ilsStrobe, 2},
    {&FrmHard::picReset, 1, 1, kButton.shifted(10, 213), "リセット押しボタン・スイッチ"},
    {&FrmHard::picCLR, 1, 0, kButton.shifted(78, 213), "DO強制クリア プッシュ・スイッチ"},
});
constexpr auto kQvt40Titles = std::to_array<Title>({
    {"SE", {29, 168, 14, 14}},
    {"SSA", {160, 122, 20, 14}},
    {"SSB", {160, 140, 20, 14}},
    {"STB1", {160, 159, 24, 14}},
    {"STB2", {160, 178, 24, 14}},
    {"RESET", {39, 219, 30, 14}},
    {"CLR", {107, 219, 20, 14}},
});
constexpr Place kQvt40Chip = {114, 26, 96, 80};
constexpr Place kBoardNumber = {6, 5, 50, 16};
constexpr Place kChipName = {62, 5, 36, 16};

constexpr int kCounters = 6;
constexpr int kCountersInRow = 3;
constexpr std::array<std::string_view, kCounters> kCounterNames = {"C1", "C2", "C3", "C4", "C5", "C6"};

constexpr Place counterAt(int counter) {
  const int column = counter % kCountersInRow;
  const int row = counter / kCountersInRow;
  return kButton.shifted(6 + column * 33, 16 + row * 41);
}

// -------------------------------------------------------------------------------------------- boards with a cable

// Index: 0 board 1, 1 board 3, 2 board 5.
constexpr auto kLineParts = std::to_array<Part>({
    {&FrmHard::picSA, 2, 0, {50, 21, 24, 24}},
    {&FrmHard::picSA, 2, 1, {78, 21, 24, 24}},
    {&FrmHard::picClock, 1, 1, {48, 50, 28, 28}, "", &FrmHard::ilsPart, 5},
    {&FrmHard::picJumper, 1, 1, {50, 82, 24, 20}, "Full／Half 切替ジャンパ・スイッチ"},
    {&FrmHard::picTRX, 1, 2, {50, 114, 28, 28}, "差動伝送ドライバ／レシーバ", &FrmHard::ilsPart, 2},
    {&FrmHard::picPTR, 2, 4, {50, 157, 26, 26}, "パルストランス(QPT900-X)", &FrmHard::ilsPart, 3},
    {&FrmHard::picPTR, 2, 5, {78, 157, 26, 26}, "パルストランス(QPT900-X)", &FrmHard::ilsPart, 3},
    {&FrmHard::picTermR, 1, 2, {51, 189, 24, 24}, "ターミネーション抵抗", &FrmHard::ilsPart, 4},
    {&FrmHard::picBOARD2_RXD, 2, 0, jackAt(kJackInMiddle), "コネクタ着脱", &FrmHard::ilsPart, 1},
    {&FrmHard::picBOARD2_RXD, 2, 1, jackAt(kJackOutMiddle), "コネクタ着脱", &FrmHard::ilsPart, 1},
});
constexpr auto kLineTexts = std::to_array<Text>({
    {&FrmHard::lblClock, 1, 1, {77, 57, 28, 14}},
    {&FrmHard::lblHF, 1, 1, {77, 85, 28, 14}, "JMP-F"},
    {&FrmHard::lblRt, 1, 2, {79, 194, 14, 14}, "Rt"},
});
constexpr auto kLineTitles = std::to_array<Title>({
    {"SA.", {50, 6, 52, 14}, Alignment::Center},
    {"TRX", {81, 121, 20, 14}},
    {"PRT", {50, 143, 54, 14}, Alignment::Center},
});
// Each opens below its picture, so that the picture can still be clicked to close it.
constexpr auto kLineLists = std::to_array<List>({
    {&FrmHard::cmbSA, 1, 0, {46, 46, 60, 186}},
    {&FrmHard::cmbClock, 1, 1, {46, 79, 60, 60}},
});

// -------------------------------------------------------------------------------------------------------- center board

// Index: port.
constexpr Place kPortTerminator = {44, -6, 24, 24};
constexpr Place kPortTerminatorName = {50, -19, 14, 14};
constexpr std::array<Place, 2> kPortTransformers = {{{70, -13, 26, 26}, {98, -13, 26, 26}}};
constexpr Place kPortDriver = {126, -14, 28, 28};

constexpr auto kCenterParts = std::to_array<Part>({
    {&FrmHard::picQVT, 0, 0, {176, 28, 96, 80}, "", &FrmHard::ilsChip, 1},
    {&FrmHard::picReset, 0, 0, kButton.shifted(358, 34), "リセット押しボタン・スイッチ"},
    {&FrmHard::picClock, 0, 0, {284, 32, 28, 28}, "", &FrmHard::ilsPart, 5},
    {&FrmHard::picJumper, 0, 0, {286, 70, 24, 20}, "Full／Half 切替ジャンパ・スイッチ"},
    {&FrmHard::picChkLED, 0, 0, {228, 122, 15, 13}, "#CHK1端子接続 LED(赤)"},
    {&FrmHard::picChkLED, 0, 1, {280, 122, 15, 13}, "#CHK2端子接続 LED(赤)"},
});
constexpr auto kCenterSingles = std::to_array<SinglePart>({
    {&FrmHard::picCPU, {406, 19, 42, 112}, "CPU接続種別選択", &FrmHard::ilsBus},
    {&FrmHard::picScanLed, {176, 122, 15, 13}, "スキャン端子接続 LED(緑)"},
    {&FrmHard::picInt, {338, 110, 60, 20}},
});
constexpr auto kCenterTexts = std::to_array<Text>({
    {&FrmHard::lblBoardName, 0, 7, {176, 7, 76, 16}, "Center-Board"},
    {&FrmHard::lblBoardName, 0, 0, {262, 7, 36, 16}, "QVT60"},
    {&FrmHard::lblMaker, 0, 0, {26, 97, 72, 24}, "ZEL-VS"},
    {&FrmHard::lblMaker, 0, 1, {26, 121, 110, 14}, "Link learning bench"},
    {&FrmHard::lblClock, 0, 0, {314, 39, 28, 14}},
    {&FrmHard::lblHF, 0, 0, {314, 73, 28, 14}, "JMP-F"},
    {&FrmHard::lblB1_LED, 0, 0, {194, 121, 24, 14}, "SCAN"},
    {&FrmHard::lblB1_LED, 0, 1, {246, 121, 24, 14}, "Chk1"},
    {&FrmHard::lblB1_LED, 0, 2, {298, 121, 24, 14}, "Chk2"},
});
// One title names the two columns of line parts.
constexpr auto kCenterTitles = std::to_array<Title>({
    {"PRT     TRX", {83, 2, 70, 14}},
    {"DB", {406, 4, 42, 14}, Alignment::Center},
    {"RESET", {354, 61, 34, 14}, Alignment::Center},
});
constexpr Place kCenterClockList = {284, 62, 60, 60};
constexpr Place kCpuList = {282, 24, 122, 78};

// ------------------------------------------------------------------------------------------------------------- board 5

constexpr auto kIoParts = std::to_array<Part>({
    {&FrmHard::picQVT, 0, 5, {232, 26, 96, 80}, "", &FrmHard::ilsChip, 6},
    {&FrmHard::picReset, 0, 5, kButton.shifted(118, 213), "リセット押しボタン・スイッチ"},
    {&FrmHard::picCLR, 0, 4, kButton.shifted(186, 213), "IO強制クリア プッシュ・スイッチ"},
    {&FrmHard::picB1_LED, 0, 5, {114, 98, 15, 13}, "#MON端子接続 LED(緑)"},
    {&FrmHard::picSTB, 0, 8, {232, 118, 40, 16}, "DOデータ更新タイミング・ストローブ", &FrmHard::ilsStrobe, 1},
    {&FrmHard::picSSA, 0, 4, {237, 141, 30, 13}, "DI取り込みタイミング設定ディップ・スイッチ"},
    {&FrmHard::picSSB, 0, 4, {237, 159, 30, 13}, "DI取得ハンドシェーク設定ディップ・スイッチ"},
    {&FrmHard::picSTB, 0, 9, {232, 177, 40, 16}, "DIデータ取り込みタイミング・ストローブ", &FrmHard::ilsStrobe, 2},
});
constexpr auto kIoSingles = std::to_array<SinglePart>({
    {&FrmHard::picIOS, {114, 38, 44, 26}, "IOS0-2端子接続 モード設定"},
    {&FrmHard::picMode, {170, 38, 44, 26}, "CM0,1端子接続 カウンタモード設定", &FrmHard::ilsMode},
    {&FrmHard::picBPSS, {114, 76, 30, 13}, "駆動クロック選択用の入力端子"},
});
constexpr auto kIoTexts = std::to_array<Text>({
    {&FrmHard::lblSatteliteNo, 0, 4, kBoardNumber.shifted(108, 0), "Board-5"},
    {&FrmHard::lblBoardName, 0, 5, kChipName.shifted(108, 0), "QVT50"},
    {&FrmHard::lblB1_LED, 0, 5, {132, 97, 20, 14}, "MON"},
    {&FrmHard::lblPWMSSA, 0, 0, {277, 141, 20, 14}, "SSA"},
    {&FrmHard::lblPWMSSA, 0, 1, {277, 159, 20, 14}, "SSB"},
    {&FrmHard::lblPWMTitle, 0, 0, {251, 141, 56, 14}, "CWON"},
    {&FrmHard::lblPWMTitle, 0, 1, {251, 156, 56, 14}, "CCWON"},
    {&FrmHard::lblPWMTitle, 0, 2, {251, 171, 56, 14}, "CW-Pulse"},
    {&FrmHard::lblPWMTitle, 0, 3, {251, 186, 56, 14}, "CCW-Pulse"},
});
constexpr Place kStrobe2Name = {277, 178, 24, 14};
constexpr Place kBpssName = {148, 75, 36, 14};
constexpr auto kIoTitles = std::to_array<Title>({
    {"IOS", {114, 24, 44, 14}, Alignment::Center},
    {"Mode", {170, 24, 44, 14}, Alignment::Center},
    {"STB1", {277, 119, 24, 14}},
    {"RESET", {147, 219, 30, 14}},
    {"CLR", {215, 219, 20, 14}},
});
// The pins that the motor is driven by take the places of SSA, SSB and STB2.
constexpr Place kFirstPwmPin = {233, 141, 15, 13};
constexpr double kPwmPinPitch = 15;
constexpr int kPwmPins = 4;

constexpr Place kIoPinFrame = {340, 3, 56, 246};
constexpr Place kIoCounterFrame = {114, 124, 84, 54};
constexpr int kIoCounterButton = 24;
constexpr std::array<Place, 2> kIoCounterButtons = {kButton.shifted(9, 20), kButton.shifted(41, 20)};
constexpr Place kIosList = {112, 66, 240, 150};
constexpr Place kModeList = {170, 66, 124, 78};

// --------------------------------------------------------------------------------------------------------- motor board

constexpr SinglePart kDriveCircuit = {&FrmHard::picPWM,
                                      {24, 52, 80, 60},
                                      "PWMモータドライブ回路。ダブルクリックで回路図を表示します。",
                                      &FrmHard::ilsDrive};
constexpr SinglePart kDirection = {&FrmHard::picTriangle, {220, 182, 40, 30}, "", &FrmHard::ilsTriangle};
constexpr Place kBelt = {160, 50, 160, 120};
constexpr Place kFirstDutyLamp = {26, 176, 15, 13};
constexpr double kDutyLampPitch = 20;
constexpr Title kMotorTitle = {"Simulate", {26, 154, 52, 14}};

// ------------------------------------------------------------------------------------------------------------- walking

/// Places are pixels whatever scale the holder counts its children's places in.
void put(Control& control, Control& holder, const Place& place) {
  control.placeIn(holder);
  const double scale = kPixel / holder.unit();
  control.move(place.left * scale, place.top * scale, place.width * scale, place.height * scale);
}

void put(PictureBox& picture, Control& holder, const Place& place, std::string_view tip) {
  put(picture, holder, place);
  picture.ToolTipText = tip;
  picture.Transparent = true;
}

void put(Label& label, Control& holder, const Place& place, std::string_view text, double points,
         Alignment align = Alignment::Left) {
  put(label, holder, place);
  if (!text.empty()) label.Caption = text;
  label.ForeColor = kWhite;
  label.FontSize = points;
  label.Align = align;
}

/// Walks the tables over one panel. index tells which board of a kind is meant, x where its block stands.
class Layout {
 public:
  explicit Layout(FrmHard& panel) : panel_(panel) {}

  template <std::size_t N>
  void parts(Control& holder, int index, double x, const std::array<Part, N>& table) {
    for (const Part& part : table) {
      PictureBox& picture = (panel_.*part.array)(part.stride * index + part.offset);
      put(picture, holder, part.place.shifted(x, 0), part.tip);
      if (part.list != nullptr) picture.Picture = (panel_.*part.list).image(part.image);
    }
  }

  void single(Control& holder, const SinglePart& part) {
    PictureBox& picture = panel_.*part.picture;
    put(picture, holder, part.place, part.tip);
    if (part.list != nullptr) picture.Picture = (panel_.*part.list).image(part.image);
  }

  template <std::size_t N>
  void singles(Control& holder, const std::array<SinglePart, N>& table) {
    for (const SinglePart& part : table)
      single(holder, part);
  }

  template <std::size_t N>
  void texts(Control& holder, int index, const std::array<Text, N>& table) {
    for (const Text& text : table)
      put((panel_.*text.array)(text.stride * index + text.offset), holder, text.place, text.text, kNormal);
  }

  template <std::size_t N>
  void titles(Control& holder, double x, const std::array<Title, N>& table) {
    for (const Title& entry : table)
      title(holder, entry, x);
  }

  Label& title(Control& holder, const Title& entry, double x = 0, double points = kNormal) {
    Label& label = panel_.lblTitle(nextTitle());
    put(label, holder, entry.place.shifted(x, 0), entry.text, points, entry.align);
    return label;
  }

  template <std::size_t N>
  void lists(Control& holder, int index, const std::array<List, N>& table) {
    for (const List& list : table)
      put((panel_.*list.array)(list.stride * index + list.offset), holder, list.place);
  }

  /// The number of a pin, as high as the pin itself and right beside it.
  void pinNumber(Control& holder, int bit, double left) {
    const Title number = {
        kPinNumbers[static_cast<std::size_t>(bit)], {left, pinTop(bit), kNumberWidth, kPinHeight}, Alignment::Right};
    title(holder, number, 0, kSmall);
  }

 private:
  int nextTitle() {
    if (titlesUsed_ == kNoiseTitleIndex) ++titlesUsed_;
    return titlesUsed_++;
  }

  FrmHard& panel_;
  int titlesUsed_ = 0;
};

void layOutCenter(FrmHard& panel, Layout& layout) {
  PictureBox& holder = panel.picBoard(0);
  layout.parts(holder, 0, 0, kCenterParts);
  layout.singles(holder, kCenterSingles);
  layout.texts(holder, 0, kCenterTexts);
  layout.titles(holder, 0, kCenterTitles);
  for (int port = 0; port < 2; ++port) {
    const double middle = kPortMiddles[static_cast<std::size_t>(port)];
    const auto image = [&panel](int number) { return panel.ilsPart.image(number); };
    PictureBox& jack = panel.picBOARD1_RXD(port);
    put(jack, holder, jackAt(middle), "コネクタ着脱");
    jack.Picture = image(1);
    jack.setUnit(kPixel);  // its name is printed at a place that is told in pixels
    put(panel.picTermR(port), holder, kPortTerminator.shifted(0, middle), "ターミネーション抵抗");
    panel.picTermR(port).Picture = image(4);
    put(panel.lblRt(port), holder, kPortTerminatorName.shifted(0, middle), "Rt", kNormal);
    for (int side = 0; side < 2; ++side) {
      PictureBox& transformer = panel.picPTR(2 * port + side);
      put(transformer, holder, kPortTransformers[static_cast<std::size_t>(side)].shifted(0, middle),
          "パルストランス(QPT900-X)");
      transformer.Picture = image(3);
    }
    put(panel.picTRX(port), holder, kPortDriver.shifted(0, middle), "差動伝送ドライバ／レシーバ");
    panel.picTRX(port).Picture = image(2);
  }
  put(panel.cmbClock(0), holder, kCenterClockList);
  put(panel.cmbCPUType, holder, kCpuList);
  constexpr double kTitlePoints = 14;
  panel.lblMaker(0).FontSize = kTitlePoints;
  panel.lblMaker(0).FontBold = true;
}

void layOutPins(FrmHard& panel, Layout& layout, int board) {
  const int first = 16 * (board - 1);
  Frame& frame = panel.fraPIO(board - 1);
  for (const Title& heading : {kInputHeading, kOutputHeading})
    layout.title(frame, heading).FontBold = true;
  for (int bit = 0; bit < 16; ++bit) {
    layout.pinNumber(frame, bit, kInputNumber);
    put(panel.picPI(first + bit), frame, {kSwitchLeft, pinTop(bit), kSwitchWidth, kPinHeight},
        "DI端子接続 入力ディップ・スイッチ");
    layout.pinNumber(frame, bit, kOutputNumber);
    put(panel.picPO(first + bit), frame, {kLedLeft, pinTop(bit), kLedWidth, kPinHeight}, "DO端子接続 LED(緑）");
  }
}

void layOutQvt40(FrmHard& panel, Layout& layout, int board) {
  const bool master = board % 2 == 1;
  const double x = master ? kMasterBlock : kSlaveBlock;
  const int i = board - 1;
  PictureBox& holder = panel.picBoard(board);
  put(panel.lblSatteliteNo(i), holder, kBoardNumber.shifted(x, 0), "Board-" + std::to_string(board), kNormal);
  put(panel.lblBoardName(board), holder, kChipName.shifted(x, 0), "QVT40", kNormal);
  put(panel.picQVT(board), holder, kQvt40Chip.shifted(x, 0), "");
  panel.picQVT(board).Picture = panel.ilsChip.image(board + 1);
  layout.parts(holder, i, x, kQvt40Parts);
  layout.titles(holder, x, kQvt40Titles);
  put(panel.picFConn(i), holder, {master ? kMasterHeader : kSlaveHeader, kHeaderTop, kHeaderWidth, kHeaderHeight},
      "スレーブ基盤接続コネクタ");
  panel.picFConn(i).Picture = panel.ilsHeader.image(1);

  Frame& counters = panel.fraCounter(i);
  put(counters, holder, kCounterFrame.shifted(x, 0));
  for (int counter = 0; counter < kCounters; ++counter) {
    const Place place = counterAt(counter);
    constexpr double kNameHeight = 13;
    layout.title(counters,
                 {kCounterNames[static_cast<std::size_t>(counter)],
                  {place.left, place.top - kNameHeight, place.width, kNameHeight},
                  Alignment::Center},
                 0, kSmall);
    put(panel.picCounter(kCounters * i + counter), counters, place,
        "16ビット・カウンタ 入力端子接続 プッシュ・スイッチ");
  }
  put(panel.fraPIO(i), holder, kPinFrame.shifted(x, 0));
  layOutPins(panel, layout, board);
}

/// What a board with a cable of its own has beside its chip. index: 0 board 1, 1 board 3, 2 board 5.
void layOutLine(FrmHard& panel, Layout& layout, int board, int index) {
  PictureBox& holder = panel.picBoard(board);
  layout.parts(holder, index, 0, kLineParts);
  layout.texts(holder, index, kLineTexts);
  layout.titles(holder, 0, kLineTitles);
  layout.lists(holder, index, kLineLists);
}

void layOutIoBoard(FrmHard& panel, Layout& layout) {
  PictureBox& holder = panel.picBoard(kIoBoard);
  layOutLine(panel, layout, kIoBoard, 2);
  layout.parts(holder, 0, 0, kIoParts);
  layout.singles(holder, kIoSingles);
  layout.texts(holder, 0, kIoTexts);
  layout.titles(holder, 0, kIoTitles);
  put(panel.lblPBPSS, holder, kBpssName, panel.lblPBPSS.Caption.get(), kNormal);
  put(panel.lblSTB2, holder, kStrobe2Name, "STB2", kNormal);
  for (int pin = 0; pin < kPwmPins; ++pin) {
    put(panel.picCW(pin), holder, kFirstPwmPin.shifted(0, pin * kPwmPinPitch), "");
    panel.picCW(pin).Picture = panel.ilsPad.image(1);
  }
  Frame& counter = panel.fraCounter(kIoBoard - 1);
  put(counter, holder, kIoCounterFrame);
  counter.Caption = "Count Clear";  // each word over its button
  counter.ForeColor = kWhite;
  counter.FontSize = kNormal;
  for (int button = 0; button < 2; ++button) {
    put(panel.picCounter(kIoCounterButton + button), counter, kIoCounterButtons[static_cast<std::size_t>(button)],
        "12ビット・カウンタ 入力端子接続 プッシュ・スイッチ");
  }
  Frame& pins = panel.fraPIO(kIoBoard - 1);
  put(pins, holder, kIoPinFrame);
  for (int bit = 0; bit < 16; ++bit) {
    layout.pinNumber(pins, bit, kInputNumber);
    put(panel.picPI(16 * (kIoBoard - 1) + bit), pins, {kSwitchLeft, pinTop(bit), kSwitchWidth, kPinHeight},
        "IO端子接続 入力ディップ・スイッチ");
  }
  put(panel.cmbIOS, holder, kIosList);
  put(panel.cmbMode, holder, kModeList);
}

void layOutMotorBoard(FrmHard& panel, Layout& layout) {
  PictureBox& holder = panel.picBoard(6);
  layout.single(holder, kDriveCircuit);
  layout.single(holder, kDirection);
  layout.title(holder, kMotorTitle);
  put(panel.imgBelt, holder, kBelt);
  panel.imgBelt.Picture = panel.ilsMotor.image(1);
  for (PictureBox& lamp : panel.picPower) {
    put(lamp, holder, kFirstDutyLamp.shifted(lamp.index() * kDutyLampPitch, 0), "この表示はQVT50内部の状態です");
  }
}

void putOnTable(PictureBox& picture, const Place& place, const Picture& image) {
  picture.move(place.left, place.top, place.width, place.height);
  picture.Transparent = true;
  if (!image.none()) picture.Picture = image;
}

void layOutCables(FrmHard& panel) {
  for (int cable = 0; cable < 3; ++cable) {
    const auto k = static_cast<std::size_t>(cable);
    const Place& upper = kBoards[static_cast<std::size_t>(kUpperBoard[k])].place;
    const Place& lower = kBoards[static_cast<std::size_t>(kLowerBoard[k])].place;
    const double left = upper.left + kPlugReach - kCableEndWidth;
    const double upperTop = upper.top + (cable == 0 ? kPortMiddles[0] : kJackOutMiddle) - kPlugCentre;
    const double lowerTop = lower.top + kJackInMiddle + kPlugCentre - kCableEndHeight;
    const double coilTop = (cable == 0 ? kUpperEndTops[1] : upperTop) + kCoilBelowPlug;
    putOnTable(panel.picCableRole(cable), kCoil.shifted(0, coilTop), panel.ilsCoil.image(1));
    putOnTable(panel.picCableUp(cable), {left, upperTop, kCableEndWidth, kCableEndHeight}, {});
    putOnTable(panel.picCableDn(cable), {left, lowerTop, kCableEndWidth, kCableEndHeight}, {});
  }
}

void layOutTable(FrmHard& panel) {
  layOutCables(panel);
  for (PictureBox& bridge : panel.picBridge) {
    const int master = 2 * bridge.index() + 1;
    const double top = kBoards[static_cast<std::size_t>(master)].place.top + kHeaderTop;
    putOnTable(bridge, {kBridgeLeft, top, kBridgeWidth, kHeaderHeight}, panel.ilsBridge.image(1));
    bridge.ToolTipText = "スレーブ基盤接続ケーブル";
  }
  putOnTable(panel.picPWMBridge, kMotorCable.shifted(0, kBoards[kIoBoard].place.top), panel.ilsMotorCable.image(1));
  putOnTable(panel.picNoise, kNoiseButton, {});
  Label& noise = panel.lblTitle(kNoiseTitleIndex);
  noise.Caption = kNoiseTitle;
  noise.move(kNoiseLabel.left, kNoiseLabel.top, kNoiseLabel.width, kNoiseLabel.height);
  noise.ForeColor = kInkOnTable;
  noise.FontSize = kNormal;
  noise.FontBold = true;
  noise.Align = Alignment::Center;
}

void layOutBoards(FrmHard& panel) {
  for (PictureBox& board : panel.picBoard) {
    const Board& known = kBoards[static_cast<std::size_t>(board.index())];
    board.setUnit(kPixel);
    board.BackColor = known.mask;
    board.Picture = (panel.*known.ground).image(1);
    board.move(known.place.left, known.place.top, known.place.width, known.place.height);
  }
  for (Shape& shadow : panel.picShadow) {
    shadow.BackColor = kShadow;
    shadow.ForeColor = kShadow;
  }
}

/// Parts whose picture shows a state begin with that of rest.
void giveFirstPictures(FrmHard& panel) {
  const auto show = [](auto& pictures, const ImageList& list, int image) {
    for (auto& picture : pictures)
      picture.Picture = list.image(image);
  };
  show(panel.picCableUp, panel.ilsCable, kUpperPulled);
  show(panel.picCableDn, panel.ilsCable, kLowerPulled);
  show(panel.picCounter, panel.ilsCount, kCounterUp);
  show(panel.picCLR, panel.ilsCount, kClrUp);
  show(panel.picReset, panel.ilsRESET, kResetUp);
  show(panel.picSSA, panel.ilsDIP1, kSettingLow);
  show(panel.picSSB, panel.ilsDIP1, kSettingLow);
  show(panel.picPO, panel.ilsLED_G, kDark);
  show(panel.picSE, panel.ilsLED_G, kDark);
  show(panel.picPower, panel.ilsLED_G, kDark);
  show(panel.picChkLED, panel.ilsLED_R, kDark);
  show(panel.picB1_LED, panel.ilsLED_R, kDark);
  panel.picScanLed.Picture = panel.ilsLED_G.image(kDark);
  panel.picBPSS.Picture = panel.ilsDIP1.image(kSettingLow);
  panel.picNoise.Picture = panel.ilsNOISE.image(kNoiseUp);
}

/// What is not there until a setting or a hand brings it.
void hideWhatMayCome(FrmHard& panel) {
  const auto hide = [](auto& controls) {
    for (auto& control : controls)
      control.Visible = false;
  };
  for (const int slave : {2, 4, 6})
    panel.picBoard(slave).Visible = false;
  hide(panel.picBridge);
  hide(panel.picSerialInt);
  hide(panel.picTermR);
  hide(panel.lblRt);
  panel.picPWMBridge.Visible = false;
  panel.picInt.Visible = false;
}

// The center's own list is never opened; its odd spellings stay.
constexpr std::array<std::string_view, 3> kCenterClocks = {"48Mhz", "24MHz", "12Mhz"};

/// The clocks' lists and captions stand before any setting is taken over.
void fillClocks(FrmHard& panel) {
  for (ComboBox& list : panel.cmbClock)
    fillList(list, list.index() == 0 ? kCenterClocks : kClocks);
  for (Label& label : panel.lblClock)
    label.Caption = label.index() == 0 ? "48MHz" : "24MHz";
  panel.lblPBPSS.Caption = "BPSS-L";
}

}  // namespace

void layOutPanel(FrmHard& panel) {
  fillClocks(panel);
  Layout layout(panel);
  layOutBoards(panel);
  layOutCenter(panel, layout);
  for (const int board : {1, 2, 3, 4}) {
    layOutQvt40(panel, layout, board);
    if (board % 2 == 1) layOutLine(panel, layout, board, board / 2);
  }
  layOutIoBoard(panel, layout);
  layOutMotorBoard(panel, layout);
  layOutTable(panel);
  giveFirstPictures(panel);
  hideWhatMayCome(panel);
  for (ControlArray<Label>* names : {&panel.lblSatteliteNo, &panel.lblBoardName}) {
    for (Label& name : *names) {
      name.FontSize = 9;
      name.FontBold = true;
    }
  }
  // The first board's tip words the same switch in another way.
  panel.picSSA(0).ToolTipText = "DI取得タイミング設定ディップ・スイッチ";
}

}  // namespace zelvs
