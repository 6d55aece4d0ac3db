#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace zelvs {

/// The bytes of a plain file of at most that many. Nothing, and an empty refusal, when there is none: anything else
/// that bears the name (a folder, a pipe that nobody writes to) counts as none. Nothing, and why, when it is larger; it
/// is not opened then.
std::optional<std::string> readBoundedFile(const std::string& path, std::string& refusal, std::size_t most);

}  // namespace zelvs
