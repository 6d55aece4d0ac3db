// Cables, slave boards and jumpers. The connector's Tag is the whole state of a cable.

#include <array>
#include <string>

#include "bench/frmHard.h"
#include "dialogs/messages.h"
#include "panel/frmKAIROZU.h"
#include "panel/panel.h"
#include "panel/panelParts.h"
#include "state/state.h"

namespace zelvs {

namespace {

constexpr std::string_view kPlugged = "1";
constexpr std::string_view kPulled = "0";

constexpr double kTopAtPort0 = 24;
constexpr double kTopAtPort1 = 62;
constexpr double kPortLimit = 40;

/// The connector of picBOARD2_RXD that holds the state of cable k.
constexpr std::array<int, 3> kHolder = {0, 1, 3};

void showCable(int cable, bool plugged) {
  frmHard->picCableUp(cable).Picture = frmHard->ilsCable.image(plugged ? kUpperPlugged : kUpperPulled);
  frmHard->picCableDn(cable).Picture = frmHard->ilsCable.image(plugged ? kLowerPlugged : kLowerPulled);
}

void showTerminator(int index, bool visible) {
  frmHard->picTermR(index).Visible = visible;
  frmHard->lblRt(index).Visible = visible;
}

void setTermination() {
  showTerminator(0, isOn(frmHard->picBOARD1_RXD(0)));
  showTerminator(1, isOn(frmHard->picBOARD1_RXD(1)));
  // A connector that nobody has touched is walked past as if plugged: only "0" ends the line.
  int connected = 0;
  for (const int holder : kHolder) {
    if (frmHard->picBOARD2_RXD(holder).Tag == kPulled) break;
    ++connected;
  }
  constexpr int kFirstOfBoards = 2;
  for (int cables = 1; cables <= 3; ++cables)
    showTerminator(kFirstOfBoards + cables - 1, connected == cables);
}

void afterCableChange() {
  setTermination();
  chkSADup();
}

void picBOARD1_RXD_DblClick(int port) {
  PictureBox& here = frmHard->picBOARD1_RXD(port);
  const bool plug = !isOn(here);
  showCable(0, plug);
  if (plug) {
    // A cable that sits in the other port moves across, and the link stays up.
    frmHard->picCableUp(0).Top = port == 0 ? kTopAtPort0 : kTopAtPort1;
    here.Tag = kPlugged;
    frmHard->picBOARD1_RXD(1 - port).Tag = kPulled;
  } else {
    here.Tag = kPulled;
  }
  frmHard->picBOARD2_RXD(0).Tag = plug ? kPlugged : kPulled;
  afterCableChange();
}

/// Cable 0, worked from the board's side.
void turnFirstCable() {
  PictureBox& holder = frmHard->picBOARD2_RXD(0);
  const bool plug = !isOn(holder);
  showCable(0, plug);
  if (plug) {
    // No port stands at 30, so port 1 is marked whatever the cable is drawn at. Only its terminator shows it.
    constexpr double kTopAsked = 30;
    frmHard->picBOARD1_RXD(frmHard->picCableUp(0).Top == kTopAsked ? 0 : 1).Tag = kPlugged;
  } else {
    frmHard->picBOARD1_RXD(0).Tag = kPulled;
    frmHard->picBOARD1_RXD(1).Tag = kPulled;
  }
  holder.Tag = plug ? kPlugged : kPulled;
}

void turnCable(int cable) {
  PictureBox& holder = frmHard->picBOARD2_RXD(kHolder[static_cast<std::size_t>(cable)]);
  const bool plug = !isOn(holder);
  showCable(cable, plug);
  holder.Tag = plug ? kPlugged : kPulled;
}

void picBOARD2_RXD_DblClick(int connector) {
  if (connector == 0) turnFirstCable();
  if (connector == 1 || connector == 2) turnCable(1);
  if (connector == 3 || connector == 4) turnCable(2);
  // The second connector of board 5 has no cable.
  afterCableChange();
}

void picCableUp_Click(int cable) {
  if (cable == 0) {
    picBOARD1_RXD_DblClick(frmHard->picCableUp(0).Top < kPortLimit ? 0 : 1);
  } else {
    picBOARD2_RXD_DblClick(cable == 1 ? 1 : 3);
  }
}

void picCableDn_Click(int cable) {
  picBOARD2_RXD_DblClick(2 * cable);
}

void showSlave(int pair, bool present) {
  const int slave = 2 * pair + 2;
  frmHard->picBridge(pair).Visible = present;
  frmHard->picBoard(slave).Visible = present;
  frmHard->picBoard(slave).Tag = present ? kPlugged : kPulled;
}

void picFConn_DblClick(int connector) {
  // The connectors on the slaves themselves plug nothing.
  if (connector == 0 || connector == 2) showSlave(connector / 2, true);
  setFormWidth();
  // For board 3's connector this names board 5, and it stays so.
  changeKAIROZU(2 * connector + 1);
}

void picBridge_DblClick(int pair) {
  showSlave(pair, false);
  setFormWidth();
  if (frmKAIROZU.visible()) frmKAIROZU->hide();
}

void showTransfer(bool full) {
  for (PictureBox& transformer : frmHard->picPTR) {
    if (transformer.index() % 2 == 1) transformer.Visible = full;
  }
  for (PictureBox& jumper : frmHard->picJumper)
    jumper.Picture = frmHard->ilsJumper.image(full ? 1 : 2);
  for (Label& label : frmHard->lblHF)
    label.Caption = full ? "JMP-F" : "JMP-H";
}

void picJumper_DblClick(int /*index*/) {
  // Asks for true itself, where the registers ask for anything but false.
  if (continuousScanActive == kTrue || oneShotScanActive == kTrue) {
    showMessage("スキャン中の変更は禁止です。");
    return;
  }
  constexpr int kAgreed = 1;
  if (askDialog("すべてのボードの通信方式を切り替えます。\r\nよろしいですか？", DialogMode::TwoButtons,
                "切り替え確認") == kAgreed) {
    boardFullHalf = boardFullHalf == 0 ? kBcrFullDuplex : 0;
    showTransfer(boardFullHalf != 0);
  }
  // Jumper and register are two separate settings: the warning comes also when the user did not agree.
  if ((chipMemory[kBcrLow] & kBcrFullDuplex) != boardFullHalf) {
    askDialog("設定がＱＶＴ６０のレジスタ設定と一致していません。", DialogMode::OneButton, kWarningTitle);
  }
  for (int board = 0; board <= 5; ++board)
    changeKAIROZU(board);
}

}  // namespace

void attachCabling(FrmHard& panel) {
  panel.picBOARD1_RXD.on(&Control::onDblClick, picBOARD1_RXD_DblClick);
  panel.picBOARD2_RXD.on(&Control::onDblClick, picBOARD2_RXD_DblClick);
  panel.picCableUp.on(&Control::onClick, picCableUp_Click);
  panel.picCableDn.on(&Control::onClick, picCableDn_Click);
  panel.picFConn.on(&Control::onDblClick, picFConn_DblClick);
  panel.picBridge.on(&Control::onDblClick, picBridge_DblClick);
  panel.picJumper.on(&Control::onDblClick, picJumper_DblClick);
}

void applyDefaults() {
  if (cableConnection == 1) {
    if (!isOn(frmHard->picBOARD1_RXD(0))) picBOARD1_RXD_DblClick(0);
    for (const int connector : {1, 3}) {
      if (!isOn(frmHard->picBOARD2_RXD(connector))) picBOARD2_RXD_DblClick(connector);
    }
  }
  if (cascadeSetting[1] == 1) picFConn_DblClick(0);
  if (cascadeSetting[2] == 1) picFConn_DblClick(2);
  const bool half = transferSetting[0] == 1;
  boardFullHalf = half ? 0 : kBcrFullDuplex;
  showTransfer(!half);
}

}  // namespace zelvs
