#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "files/readFile.h"

namespace zelvs {

/// Makes a file's new bytes from its old ones, which are nothing where there is no file yet.
using Change = std::function<std::string(const std::optional<std::string>& old)>;

/// Everything that the program writes goes through here. Reads the file, lets `change` make its new bytes and puts
/// these in the place of the old ones. The result is empty, or why the file could not be written, without its name: the
/// old one stands then, whole, and `change` may not even have been asked. Only when the folder's sync is what failed
/// the new one stands all the same.
///
/// The new bytes go into a file of its own beside the old one, with a new name and no link followed; it gets the old
/// one's owner, attributes and mode, is synced, takes the old one's place at one stroke, and the folder is synced. So
/// whoever looks, also after a kill or a power cut, finds the old file or the new one. What a kill leaves behind is
/// taken away by the next change. A link stays a link: what it leads to is written, also when that is not there yet.
///
/// Where no new file can take the place of the old one (the folder takes none or lets nobody replace another's file,
/// the owner or an attribute cannot be given to it, there are hard links), the old one is written over: what differs,
/// in one call and synced. If that fails half-way the old bytes are put back. A kill between two calls, or a power cut,
/// can then leave a mixture.
///
/// Meanwhile the folder is locked against other copies of the program, which wait for at most a second; so two that
/// change the same file lose none of each other's lines. Where the system has no such lock it goes without.
///
/// Refused are: what is no plain file, a file without any bit of its mode for writing (an administrator could, and
/// shall not), one that cannot be read whole or has more than `most` bytes.
std::string changeFile(const std::string& path, const Change& change, std::size_t most = kLargestText);

/// The same with bytes that do not hang on the old ones, of which there may be 256 MiB.
std::string writeFile(const std::string& path, std::string_view bytes);

/// A file that was not there before; whatever bears the name, also a link to nowhere, is left alone and is
/// std::errc::file_exists. Others may read it as the user's mask says. One that cannot be written whole is taken away.
std::error_code writeNewFile(const std::string& path, std::string_view bytes);

}  // namespace zelvs
