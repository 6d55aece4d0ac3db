#include "text/textFile.h"

#include <algorithm>

#include "files/readFile.h"
#include "text/codePage932.h"

namespace zelvs {

std::string fileIn(const std::string& folder, std::string_view name) {
  std::string own(name);
  std::replace(own.begin(), own.end(), '\\', '/');
  return folder + own;
}

std::optional<std::vector<std::string>> readTextFile(const std::string& path, std::string* refusal) {
  const std::optional<std::string> bytes = readFile(path, refusal);
  if (!bytes) return std::nullopt;
  std::vector<std::string> lines;
  // No second byte of a character is a line feed or a carriage return.
  for (std::size_t at = 0; at < bytes->size();) {
    const std::size_t end = std::min(bytes->find('\n', at), bytes->size());
    const bool carriageReturn = end < bytes->size() && end > at && (*bytes)[end - 1] == '\r';
    const std::size_t length = end - at - (carriageReturn ? 1 : 0);
    if (length > kLongestLine) {
      if (refusal != nullptr) {
        *refusal =
            "line " + std::to_string(lines.size() + 1) + " is longer than " + std::to_string(kLongestLine) + " bytes";
      }
      return std::nullopt;
    }
    lines.push_back(utf8FromCodePage932(std::string_view(*bytes).substr(at, length)));
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
