#pragma once

#include <string>

namespace zelvs {

/// Keeps what there is to report of a run-time error, with its text, in a new file in the folder for temporary files.
/// The result tells the user where it lies, or that it could not be kept.
std::string keepReport(const std::string& text);

}  // namespace zelvs
