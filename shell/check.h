#pragma once

#include <vector>

#include "ui/finding.h"

namespace zelvs {

/// Looks over programFolder: can it be read, do the settings make sense and can they be saved, is everything there that
/// the lists name, and are the pictures and the sound what they should be. Nothing is changed and nothing is started.
std::vector<Finding> checkFolder();

/// Prints each on a line of its own. The result is the exit status: 0 when nothing is wrong, else 1.
int tellFindings(const std::vector<Finding>& findings);

}  // namespace zelvs
