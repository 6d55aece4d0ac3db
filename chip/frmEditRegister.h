#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "chip/writeDialog.h"

namespace zelvs {

/// The cells of the opener's window that show one register: each half as digits and in binary.
struct RegisterCells {
  std::array<Label*, 2> high{};
  std::array<Label*, 2> low{};
};

/// Writes a register of the chip. The opener tells which one, and the cells to mark, before it shows the dialog.
class FrmEditRegister final : public WriteDialog {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmEditRegister();

  std::int16_t editRow = 0;              ///< the register's row, from 1
  std::int16_t editLowByte = 0;          ///< in byte access, 1: the low byte, 0: the high byte
  std::int16_t editRegisterAddress = 0;  ///< even
  std::string editRegisterName;
  std::int16_t editAccess = 0;  ///< 0 word, 1 byte
  RegisterCells cells;          ///< what is being written is red in them; forgotten when the dialog is hidden

 protected:
  void refresh() override;
  void write() override;
  void unmark() override;

 private:
  /// As the CPU gives it.
  int address() const;
  void mark(bool high, bool low);
  bool writesHigh() const { return wordAccess() || editLowByte == 0; }
  bool writesLow() const { return wordAccess() || editLowByte != 0; }
};

inline FormRef<FrmEditRegister> frmEditRegister{"frmEditRegister"};

}  // namespace zelvs
