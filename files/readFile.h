#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace zelvs {

/// The largest text that is read, in bytes: many times what anybody writes by hand.
inline constexpr std::size_t kLargestText = 16 << 20;

/// The bytes of a plain file, links followed. Nothing, and an empty refusal, when there is none: anything else that
/// bears the name (a folder, a pipe, a device) counts as none and is not opened. Nothing, and why, when it is there and
/// cannot be read whole: no permission, a read error, an end before the file's size, more than `most` bytes. The
/// refusal does not name the file; whoever does not ask for it takes such a file for none.
std::optional<std::string> readFile(const std::string& path, std::string* refusal = nullptr,
                                    std::size_t most = kLargestText);

}  // namespace zelvs
