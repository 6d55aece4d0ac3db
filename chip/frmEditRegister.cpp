#include "chip/frmEditRegister.h"

#include "chip/bus.h"
#include "chip/frmMemoryRead.h"
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

int FrmEditRegister::address() const {
  if (wordAccess()) return editRegisterAddress;
  return indexOfAddress(writesLow() ? editRegisterAddress : editRegisterAddress + 1);
}

void FrmEditRegister::refresh() {
  editAccess = wordAccess() ? 0 : 1;
  const std::string bits = wordAccess() ? "15-0" : writesLow() ? "7-0" : "15-8";
  lblAdr.Caption = hexText(static_cast<unsigned>(address()), 3) + "H " + editRegisterName + " " + bits;
  lblBitInd.Caption = "bit " + bits;
  showValue(wordAccess() ? readWord(address()) : chipMemory[indexOfAddress(address())]);
  mark(writesHigh(), writesLow());
}

void FrmEditRegister::write() {
  const Written written = wordAccess() ? writeWord(address(), enteredWord()) : writeByte(address(), enteredByte());
  if (written.readSideChanged && frmMemoryRead.visible()) frmMemoryRead->initReadMemory();
  tellWritten();
  unmark();
  hide();
  tell(written.answer);
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
