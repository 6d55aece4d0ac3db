// ZELVS.INI. The input's first line is a key and a value, "CPUTYPE=3"; what stands behind it is the file into which
// they are written and from which they must come back.

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/memoryFiles.h"
#include "fuzz/programs/judge.h"
#include "shell/iniFile.h"
#include "state/state.h"
#include "text/utf16.h"

namespace zelvs {
namespace {

const std::string kFile = "/zelvs/ZELVS.INI";

struct Input {
  std::string key;    // capitals, digits and "-", as the program's own keys; not empty
  std::string value;  // ASCII that can be printed
  std::string file;
};

Input inputOf(const std::string& bytes) {
  const std::size_t end = std::min(bytes.find('\n'), bytes.size());
  const std::size_t equals = std::min(bytes.find('='), end);
  Input input;
  for (const char c : bytes.substr(0, equals)) {
    if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-') input.key += c;
  }
  if (input.key.empty()) input.key = "K";
  for (const char c : bytes.substr(std::min(equals + 1, end), end - std::min(equals + 1, end))) {
    if (c >= ' ' && c <= '~') input.value += c;
  }
  input.file = bytes.substr(std::min(end + 1, bytes.size()));
  return input;
}

std::string withoutBlanks(const std::string& text) {
  const std::size_t from = text.find_first_not_of(" \t\r");
  return from == std::string::npos ? "" : text.substr(from, text.find_last_not_of(" \t\r") - from + 1);
}

/// What must come back of a value that was written.
std::string asRead(const std::string& value) {
  constexpr std::size_t kLongest = 255;
  std::string text = withoutBlanks(value);
  const bool quoted = text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
  if (quoted) text = text.substr(1, text.size() - 2);
  return text.substr(0, kLongest);
}

/// Each with its line end, which the last may lack.
std::vector<std::string> linesOf(const std::string& bytes) {
  const std::optional<ByteOrder> order = byteOrderOf(bytes);
  const std::string text = order ? utf8FromUtf16(bytes, *order).value() : bytes;
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = std::min(text.find('\n', at), text.size() - 1) + 1;
    lines.push_back(text.substr(at, next - at));
    at = next;
  }
  return lines;
}

std::string withoutEnd(std::string line) {
  if (line.ends_with('\n')) line.pop_back();
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

std::string upper(std::string text) {
  for (char& c : text)
    c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  return text;
}

/// One line has been replaced, or one or two have come in; all others are byte for byte there.
void judgeLines(const Input& input, const std::string& before, const std::string& after) {
  std::vector<std::string> old = linesOf(before);
  std::vector<std::string> now = linesOf(after);
  const auto sameHead = std::mismatch(old.begin(), old.end(), now.begin(), now.end());
  old.erase(old.begin(), sameHead.first);
  now.erase(now.begin(), sameHead.second);
  while (!old.empty() && !now.empty() && old.back() == now.back()) {
    old.pop_back();
    now.pop_back();
  }
  if (old.empty() && now.empty()) return;  // it stood there already
  const std::string line = input.key + "=" + input.value;
  expect(old.size() <= 1, "one line changes");
  expect(!now.empty() && withoutEnd(now.back()) == line, "the changed line is the key's");
  if (old.empty()) {
    expect(now.size() == 1 || (now.size() == 2 && withoutEnd(now.front()) == "[INIT]"), "the section comes with it");
    return;
  }
  if (now.size() == 1) {
    const std::string& was = old.front();
    const std::string key = withoutBlanks(was.substr(0, was.find('=')));
    const bool marked = key.starts_with("\xEF\xBB\xBF");
    expect(upper(withoutBlanks(marked ? key.substr(3) : key)) == input.key, "the line of this key is replaced");
    expect(was.substr(withoutEnd(was).size()) == now.front().substr(line.size()), "its end stays");
    return;
  }
  const bool gotEnd = now.front() == old.front() + "\n" || now.front() == old.front() + "\r\n";
  expect(!old.front().ends_with('\n') && gotEnd, "only a last line gets an end");
}

void judge(const Input& input) {
  static MemoryFiles files;
  files.put(kFile, input.file);
  iniFilePath = kFile;
  programFolder = "/zelvs";
  const auto refusal = refusalOf([] { readIniFile(); });
  if (refusal) judgeRefusal(*refusal, "ZELVS.INI");

  writeIniValue(kIniSection, input.key, input.value);
  expect(files.count() == 1, "nothing is left beside the file");
  const std::string once = files.bytesOf(kFile);
  if (refusal) {
    expect(once == input.file, "what cannot be read is not written over");
    return;
  }
  judgeLines(input, input.file, once);
  expect(Profile(kFile).values(kIniSection, {input.key})[0] == asRead(input.value), "the value comes back");
  expect(leadingNumber(getIniValue(kIniSection, input.key, "")) == leadingNumber(asRead(input.value)),
         "and so does its number");
  writeIniValue(kIniSection, input.key, input.value);
  expect(files.bytesOf(kFile) == once, "a second time changes nothing");
  readIniFile();
}

}  // namespace
}  // namespace zelvs

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zelvs::judge(zelvs::inputOf(zelvs::bytesOf(data, size)));
  return 0;
}
