#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelvs {

/// How the two bytes of a unit of sixteen bits follow each other.
enum class ByteOrder { LowFirst, HighFirst };

/// The order of bytes that begin with a byte order mark; nothing without one.
std::optional<ByteOrder> byteOrderOf(std::string_view bytes);

/// The text of bytes in UTF-16, a byte order mark included. Nothing where a unit is cut or a pair of units is not
/// whole: what could not be written back as it was is not read either.
std::optional<std::string> utf8FromUtf16(std::string_view bytes, ByteOrder order);

/// The bytes of a text in UTF-16.
std::string utf16FromUtf8(std::string_view text, ByteOrder order);

}  // namespace zelvs
