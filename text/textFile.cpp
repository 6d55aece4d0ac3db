#include "text/textFile.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "text/codePage932.h"

namespace zelvs {

std::string fileIn(const std::string& folder, std::string_view name) {
  std::string own(name);
  std::replace(own.begin(), own.end(), '\\', '/');
  return folder + own;
}

std::optional<std::string> readFile(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (!file || error) return std::nullopt;
  std::string bytes;
  bytes.resize(static_cast<std::size_t>(size));
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
  return bytes;
}

std::optional<std::vector<std::string>> readTextFile(const std::string& path) {
  const std::optional<std::string> bytes = readFile(path);
  if (!bytes) return std::nullopt;
  const std::string text = utf8FromCodePage932(*bytes);
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const bool carriageReturn = end < text.size() && end > at && text[end - 1] == '\r';
    lines.push_back(text.substr(at, end - at - (carriageReturn ? 1 : 0)));
    at = end + 1;
  }
  return lines;
}

std::vector<std::string> fieldsOf(const std::string& line, std::size_t most) {
  std::vector<std::string> fields;
  std::size_t at = 0;
  for (std::size_t tab = line.find('\t'); tab != std::string::npos && fields.size() + 1 < most;
       tab = line.find('\t', at)) {
    fields.push_back(line.substr(at, tab - at));
    at = tab + 1;
  }
  fields.push_back(line.substr(at));
  return fields;
}

}  // namespace zelvs
