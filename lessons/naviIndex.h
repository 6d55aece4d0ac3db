#pragma once

#include <string>
#include <string_view>

namespace zelvs {

/// Fills naviDataPath and naviIndex. Without an index file the list is empty; a line
/// that is no entry is a run-time error.
void readNaviIndex();

/// Where a file of the lessons' folder lies. Names are those of the index, with either separator.
std::string naviPath(std::string_view fileName);

}  // namespace zelvs
