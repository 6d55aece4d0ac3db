#pragma once

#include "ui/controls.h"

namespace zelvs {

/// What a hex field does with Enter and Escape.
enum class EnterKey {
  ToLastDigit,  ///< selects the last digit, and the key goes no further
  Ignored,      ///< swallows the key: no button answers it either
  PassedOn      ///< leaves the key to the form, whose default button may answer
};

struct HexFieldRules {
  int length;  ///< digits; becomes the field's MaxLength
  bool upperCase;
  EnterKey enterKey;
};

/// Makes a field one that is overtyped digit by digit: exactly one character is selected, typing replaces it and goes
/// on to the next. The length may be changed later through MaxLength.
void attachHexField(TextBox& field, const HexFieldRules& rules);

}  // namespace zelvs
