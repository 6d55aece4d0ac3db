#pragma once

#include <array>
#include <string_view>

namespace zelvs {

/// One of board 5's IOS modes. The pattern reads from bit 15 down to bit 0: I input, O output, * not a pin.
struct IoMode {
  std::string_view text;
  std::string_view pattern;
  bool pwm;
};

/// Index: ioBoardMode.
inline constexpr std::array<IoMode, 8> kIoModes = {{
    {"0 DI=16bit", "IIIIIIIIIIIIIIII", false},
    {"1 DI=12bit DO= 4bit", "OOOOIIIIIIIIIIII", false},
    {"2 DI= 8bit DO= 8bit", "OOOOOOOOIIIIIIII", false},
    {"3 DI= 4bit DO=12bit", "OOOOOOOOOOOOIIII", false},
    {"4 DI= 2bit DO=14bit", "OOOOOOOOOOOOOOII", false},
    {"5 DO=16bit", "OOOOOOOOOOOOOOOO", false},
    {"6 DI= 8bit DO= 4bit & PWM ", "****OOOOIIIIIIII", true},
    {"7 DI= 4bit DO= 4bit & PWM + Counter", "****OOOO****IIII", true},
}};

}  // namespace zelvs
