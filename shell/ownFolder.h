#pragma once

#include <string>

namespace zelvs {

/// The folder of the running program, links resolved, without a separator at its end. program: its name as called.
std::string ownFolder(const char* program);

}  // namespace zelvs
