#pragma once

#include <string>

namespace zelvs {

/// True when the file starts as a RIFF wave file does.
bool isWaveFile(const std::string& path);

}  // namespace zelvs
