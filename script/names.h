#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "state/state.h"
#include "ui/inspect.h"

namespace zelvs {

/// How the texts of a script reach what they name. Each result is empty, or why the text names nothing; then what was
/// to be found is as it was.

/// What a gesture is made at; without a control, the form itself.
struct Target {
  Form* form = nullptr;
  Control* control = nullptr;
};

/// A shared variable and the place in it: an index from the variable's own first one, 0 when it is no array.
struct VariablePlace {
  const VariableName* variable = nullptr;
  int index = 0;
};

/// A loaded form.
std::string findForm(std::string_view name, Form*& form);
/// "frmHard", "frmHard.picNoise", "frmHard.picPI(3)", of a loaded form.
std::string findTarget(std::string_view text, Target& target);
/// "runMode", "boardDo(1)".
std::string findVariable(std::string_view text, VariablePlace& place);
/// count bytes of chip memory from address on; first becomes the address, from 0. All of them must be there.
std::string findBytes(const std::string& address, std::int64_t count, int& first);

/// Whatever can be looked at: "frmHard.picPI(3).Picture", "frmMDI.Caption", "frmDialog.dialogResult", "screen.Width",
/// "boardDo(1)", "iniFilePath". A form that is not loaded has one property: it is not visible.
std::string look(std::string_view what, Value& value);
/// Bytes of chip memory that findBytes() found: "05 00 81".
std::string bytesText(int first, int count);

}  // namespace zelvs
