#include "chip/frmEditRegister.h"

#include "chip/accessRules.h"
#include "chip/frmMemoryRead.h"
#include "chip/registerWrite.h"
#include "dialogs/messages.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/hexField.h"

namespace zelvs {

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
  mark(writesHigh(), writesLow());
}

void FrmEditRegister::write() {
  const std::uint8_t readSide = chipMemory[kHprLow];
  RegisterValue value;
  if (writesLow()) value.low = static_cast<std::uint8_t>(enteredLow());
  if (writesHigh()) value.high = static_cast<std::uint8_t>(wordAccess() ? enteredHigh() : enteredLow());
  const WriteReport report = writeRegister(editRegisterAddress, value);
  if (chipMemory[kHprLow] != readSide && frmMemoryRead.visible()) frmMemoryRead->initReadMemory();
  tellWritten();
  unmark();
  hide();
  if (!report.message.empty()) showMessageBeside(*this, report.message);
  if (!report.warning.empty()) askDialog(report.warning, DialogMode::OneButton, kWarningTitle);
}

void FrmEditRegister::unmark() {
  mark(false, false);
  cells = {};
}

void FrmEditRegister::mark(bool high, bool low) {
  for (Label* cell : cells.high)
    if (cell != nullptr) cell->ForeColor = high ? kRed : kBlack;
  for (Label* cell : cells.low)
    if (cell != nullptr) cell->ForeColor = low ? kRed : kBlack;
}

}  // namespace zelvs
