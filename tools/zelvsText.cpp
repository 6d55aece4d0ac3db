// zelvs-text: writes a text of the sources, which is UTF-8, as the program folder holds it: in code page 932, lines
// ending in CR LF.
//
// usage: zelvs-text SOURCE TARGET
//
// Status 1, and no target written, when the source cannot be converted or the target not be written; 2 for a wrong
// command line.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "files/readFile.h"
#include "text/codePage932.h"
#include "text/utf8.h"

namespace {

using namespace zelvs;

int fail(const std::string& place, const std::string& what) {
  std::fprintf(stderr, "%s: %s\n", place.c_str(), what.c_str());
  return 1;
}

/// Why the text cannot be written from this position on.
std::string trouble(const std::string& text, std::size_t at) {
  const std::size_t start = at;
  const char32_t character = nextCharacter(text, at);
  char code[32];
  if (at - start == 1) {
    std::snprintf(code, sizeof code, "byte 0x%02X", static_cast<unsigned>(character));
    return std::string(code) + " is not UTF-8";
  }
  std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(character));
  return "\"" + text.substr(start, at - start) + "\" (" + code + ") is not in code page 932";
}

std::string withCarriageReturns(const std::string& text) {
  std::string result;
  char before = 0;
  for (const char c : text) {
    if (c == '\n' && before != '\r') result += '\r';
    result += before = c;
  }
  return result;
}

int convert(const std::string& source, const std::string& target) {
  const std::optional<std::string> read = readFile(source);
  if (!read) return fail(source, "cannot be read");
  const std::string text = withCarriageReturns(*read);
  std::size_t lackingAt = 0;
  const std::optional<std::string> bytes = codePage932FromUtf8(text, lackingAt);
  if (!bytes) {
    const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(lackingAt), '\n');
    return fail(source + ":" + std::to_string(line), trouble(text, lackingAt));
  }
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(target).parent_path(), error);
  std::ofstream file(target, std::ios::binary);
  file << *bytes;
  file.close();
  return file ? 0 : fail(target, "cannot be written");
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) {
    std::fprintf(stderr, "usage: zelvs-text SOURCE TARGET\n");
    return 2;
  }
  return convert(words[1], words[2]);
}
