#include "chip/frmEditRegister.h"

#include "chip/accessRules.h"
#include "chip/frmMemoryRead.h"
#include "chip/hexField.h"
#include "chip/registerWrite.h"
#include "kernel/hexText.h"
#include "kernel/state.h"
#include "kernel/windowRefresh.h"
#include "learning/messages.h"
#include "monitor/frmRegister.h"

namespace zelvs {

namespace {

void mark(int row, bool high, bool low) {
  if (row < 1 || row > kRegisterRows || !frmRegister.loaded()) return;
  for (Label* cell : {&frmRegister->lblValH(row), &frmRegister->lblBinH(row)})
    cell->ForeColor = high ? kRed : kBlack;
  for (Label* cell : {&frmRegister->lblValL(row), &frmRegister->lblBinL(row)})
    cell->ForeColor = low ? kRed : kBlack;
}

}  // namespace

FrmEditRegister::FrmEditRegister() : WriteDialog("frmEditRegister", kKind, EnterKey::ToLastDigit) {
  Caption = "Register Write";
  addMember("editRow", &editRow);
  addMember("editLowByte", &editLowByte);
  addMember("editRegisterAddress", &editRegisterAddress);
  addMember("editRegisterName", &editRegisterName);
  addMember("editAccess", &editAccess);
}

void FrmEditRegister::refresh() {
  editAccess = wordAccess() ? 0 : 1;
  const int low = editRegisterAddress;
  const int high = low + 1;
  const std::string bits = wordAccess() ? "15-0" : writesLow() ? "7-0" : "15-8";
  const int address = wordAccess() ? low : indexOfAddress(writesLow() ? low : high);
  lblAdr.Caption = hexText(static_cast<unsigned>(address), 3) + "H " + editRegisterName + " " + bits;
  lblBitInd.Caption = "bit " + bits;
  showValue(chipMemory[high], chipMemory[writesLow() ? low : high]);
  mark(editRow, writesHigh(), writesLow());
}

void FrmEditRegister::write() {
  const std::uint8_t readSide = chipMemory[kHprLow];
  RegisterValue value;
  if (writesLow()) value.low = static_cast<std::uint8_t>(enteredLow());
  if (writesHigh()) value.high = static_cast<std::uint8_t>(wordAccess() ? enteredHigh() : enteredLow());
  const WriteReport report = writeRegister(editRegisterAddress, value);
  if (chipMemory[kHprLow] != readSide && frmMemoryRead.visible()) frmMemoryRead->initReadMemory();
  refreshMemoryWindows();
  refreshRegisterWindow();
  unmark();
  hide();
  if (!report.message.empty()) showMessageBeside(*this, report.message);
  if (!report.warning.empty()) askDialog(report.warning, DialogMode::OneButton, kWarningTitle);
}

void FrmEditRegister::unmark() {
  mark(editRow, false, false);
}

}  // namespace zelvs
