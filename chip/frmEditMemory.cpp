#include "chip/frmEditMemory.h"

#include "chip/bus.h"
#include "state/cellAddress.h"
#include "state/state.h"
#include "text/hexText.h"
#include "ui/hexField.h"

namespace zelvs {

FrmEditMemory::FrmEditMemory() : WriteDialog("frmEditMemory", kKind, EnterKey::Ignored) {
  Caption = "Memory Write";
  Label1.Caption = "Address";
  Label1.FontSize = 10;
  Label1.move(lblAdr.Left, lblAdr.Top + 30, 900, 255);
  lblAdr.Left = Label1.Left + Label1.Width;
  lblAdr.Width = 900;
  addMember("editCellIndex", &editCellIndex);
  addMember("editFirstRowCaption", &editFirstRowCaption);
}

int FrmEditMemory::address() const {
  const int clicked = addressOfCell(editFirstRowCaption, editCellIndex);
  return wordAccess() ? clicked & ~1 : clicked;
}

void FrmEditMemory::refresh() {
  const int at = address();
  lblAdr.Caption = hexText(static_cast<unsigned>(at), 3);
  lblBitInd.Caption = wordAccess() ? "bit 15----0" : "bit 7--0";
  showValue(wordAccess() ? readWord(at) : chipMemory[indexOfAddress(at)]);
  mark(kRed, wordAccess() ? kRed : kBlack);
}

void FrmEditMemory::write() {
  const Written written = wordAccess() ? writeWord(address(), enteredWord()) : writeByte(address(), enteredByte());
  unmark();
  tellWritten();
  hide();
  tell(written.answer);
}

void FrmEditMemory::unmark() {
  mark(kBlack, kBlack);
  cells = nullptr;
}

void FrmEditMemory::mark(Colour clicked, Colour other) {
  if (cells == nullptr) return;
  (*cells)(editCellIndex).ForeColor = clicked;
  (*cells)(editCellIndex ^ 1).ForeColor = other;
}

}  // namespace zelvs
