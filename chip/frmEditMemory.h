#pragma once

#include <cstdint>
#include <string>

#include "chip/writeDialog.h"

namespace zelvs {

/// Writes a byte or word of the chip's memory. Before it is shown modally, the opener calls chooseAccess() and tells
/// the cell, the first row's caption and the cells of its window; the rest happens when the dialog is shown.
class FrmEditMemory final : public WriteDialog {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmEditMemory();

  Label Label1{this, "Label1"};

  std::int16_t editCellIndex = 0;
  std::string editFirstRowCaption;
  /// The two cells of the word are marked in it; forgotten when the dialog is hidden. Null: nothing is marked.
  ControlArray<Label>* cells = nullptr;

 protected:
  void refresh() override;
  void write() override;
  void unmark() override;

 private:
  int address() const;
  void mark(Colour clicked, Colour other);
};

inline FormRef<FrmEditMemory> frmEditMemory{"frmEditMemory"};

}  // namespace zelvs
