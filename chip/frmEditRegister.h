#pragma once

#include <cstdint>
#include <string>

#include "chip/writeDialog.h"

namespace zelvs {

/// Writes a register of the chip. The register window tells which one before it shows the dialog.
class FrmEditRegister final : public WriteDialog {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmEditRegister();

  std::int16_t editRow = 0;              ///< row of frmRegister to mark, from 1
  std::int16_t editLowByte = 0;          ///< in byte access, 1: the low byte, 0: the high byte
  std::int16_t editRegisterAddress = 0;  ///< even
  std::string editRegisterName;
  std::int16_t editAccess = 0;  ///< 0 word, 1 byte

 protected:
  void refresh() override;
  void write() override;
  void unmark() override;

 private:
  bool writesHigh() const { return wordAccess() || editLowByte == 0; }
  bool writesLow() const { return wordAccess() || editLowByte != 0; }
};

inline FormRef<FrmEditRegister> frmEditRegister{"frmEditRegister"};

}  // namespace zelvs
