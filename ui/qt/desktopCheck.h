#pragma once

#include <string>
#include <vector>

#include "ui/finding.h"

namespace zelvs {

/// Looks at what the windows need of the machine: a display, the family of letters that texts are drawn in, an output
/// for sound, and whether the sound of that path can be played. Where there is no display it says so. The toolkit's own
/// arguments are taken off the command line.
std::vector<Finding> checkDesktop(int& argc, char** argv, const std::string& sound);

}  // namespace zelvs
