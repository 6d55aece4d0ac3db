#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "state/state.h"

namespace zelvs {

inline constexpr std::string_view kIndexOfLessons = "NaviIndex.txt";

/// The list shows every entry: more than these nobody has written by hand, or could look through.
inline constexpr std::size_t kMostLessons = 10000;

/// The lessons' folder, with its last separator, below programFolder.
std::string lessonsFolder();

/// An entry of the index, as yet without whether its lesson is there. Nothing for a line that is no entry; whoever
/// reads the index leaves comments out before, which begin with ";".
std::optional<NaviRecord> naviRecordOf(const std::string& line);

/// Fills naviDataPath and naviIndex. Without an index file the list is empty; one that cannot be read, a line that is
/// no entry and one entry too many are run-time errors.
void readNaviIndex();

/// Where a file of the lessons' folder lies. Names are those of the index, with either separator.
std::string naviPath(std::string_view fileName);

}  // namespace zelvs
