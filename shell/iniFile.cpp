#include "shell/iniFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include "bench/pinModes.h"
#include "bench/settingKeys.h"
#include "bench/settingLists.h"
#include "files/readFile.h"
#include "files/writeFile.h"
#include "state/state.h"
#include "text/number.h"
#include "text/shortText.h"
#include "text/utf16.h"
#include "ui/runTimeError.h"

namespace zelvs {

namespace {

constexpr std::size_t kLongestValue = 255;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!text.empty() && blank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && blank(text.back()))
    text.remove_suffix(1);
  return text;
}

bool sameName(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return lower(x) == lower(y); });
}

/// One "key=value" line; positions are bytes of the file's text.
struct Entry {
  std::string_view key;
  std::string_view value;  // as it stands behind the "="
  std::size_t lineStart = 0;
  std::size_t lineEnd = 0;  // behind the line, without its line end
};

/// Calls visit with each entry of the first section of that name, until it returns false. The result is the position
/// behind the section's last line that is not blank, its line end included, as far as it was read; nothing when there
/// is no such section.
template <class Visit>
std::optional<std::size_t> walkSection(std::string_view text, std::string_view section, Visit visit) {
  std::optional<std::size_t> sectionEnd;
  std::size_t at = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    const std::size_t next = std::min(end + 1, text.size());
    const std::string_view line = trimmed(text.substr(at, end - at));
    if (line.starts_with('[')) {
      if (sectionEnd) return sectionEnd;
      const std::size_t close = line.find(']');
      if (close != std::string_view::npos && sameName(trimmed(line.substr(1, close - 1)), section)) sectionEnd = next;
    } else if (sectionEnd && !line.empty()) {
      sectionEnd = next;
      const std::size_t equals = line.find('=');
      if (!line.starts_with(';') && equals != std::string_view::npos) {
        const std::size_t lineEnd = text[end - 1] == '\r' ? end - 1 : end;
        if (!visit(Entry{trimmed(line.substr(0, equals)), line.substr(equals + 1), at, lineEnd})) return sectionEnd;
      }
    }
    at = next;
  }
  return sectionEnd;
}

std::string valueOf(const Entry& entry) {
  std::string_view value = trimmed(entry.value);
  if (value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'')) {
    value = value.substr(1, value.size() - 2);
  }
  return std::string(value.substr(0, kLongestValue));
}

/// A file's bytes as UTF-8. Nothing where they begin as UTF-16 and are none.
std::optional<std::string> decoded(const std::string& bytes) {
  const std::optional<ByteOrder> order = byteOrderOf(bytes);
  return order ? utf8FromUtf16(bytes, *order) : bytes;
}

}  // namespace

std::optional<Profile> Profile::read(const std::string& path, std::string& refusal) {
  const std::optional<std::string> bytes = readFile(path, &refusal, kLargestIniFile);
  if (!bytes) return std::nullopt;
  std::optional<std::string> text = decoded(*bytes);
  if (!text) {
    refusal = "it begins as UTF-16 and is none";
    return std::nullopt;
  }
  Profile profile;
  profile.text_ = std::move(*text);
  return profile;
}

Profile::Profile(const std::string& path) {
  std::string refusal;
  std::optional<Profile> profile = read(path, refusal);
  if (!refusal.empty()) runTimeError(shortPath(path) + " cannot be read: " + refusal);
  if (profile) text_ = std::move(profile->text_);
}

std::vector<std::optional<std::string>> Profile::values(std::string_view section,
                                                        const std::vector<std::string_view>& keys) const {
  std::vector<std::optional<std::string>> values(keys.size());
  std::size_t missing = keys.size();
  walkSection(text_, section, [&](const Entry& entry) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
      if (values[i] || !sameName(entry.key, keys[i])) continue;
      values[i] = valueOf(entry);
      --missing;
    }
    return missing > 0;
  });
  return values;
}

double leadingNumber(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789";
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  std::size_t end = std::min(text.find_first_not_of(kDigits), text.size());
  if (text.substr(end).starts_with('.')) end = std::min(text.find_first_not_of(kDigits, end + 1), text.size());
  // Read as a whole: a sum of its digits, or of its whole part and its fraction, would be another number in its last
  // bit than the text that it is written back as.
  const double number = readNumber("0" + std::string(text.substr(0, end))).value_or(0);
  // "-x" is plain 0, not a negative one.
  return negative && number != 0 ? -number : number;
}

std::int16_t wholeNumber16(double number) {
  constexpr double kRange = 65536;
  const double whole = std::fmod(std::nearbyint(number), kRange);
  return static_cast<std::int16_t>(static_cast<std::int64_t>(whole));
}

namespace {

/// The leading number of a value, as text and without an exponent, which it would be read only up to; the empty text
/// when there is no value.
std::string numberText(const std::string& value) {
  return value.empty() ? value : plainNumber(leadingNumber(value));
}

/// The old file's lines with one key replaced or added.
std::string withValue(const std::string& text, std::string_view section, std::string_view key, std::string_view value) {
  std::optional<Entry> old;
  const std::optional<std::size_t> sectionEnd = walkSection(text, section, [&](const Entry& entry) {
    if (sameName(entry.key, key)) old = entry;
    return !old;
  });
  const bool unixLines = text.find('\n') != std::string::npos && text.find("\r\n") == std::string::npos;
  const std::string lineEnd = unixLines ? "\n" : "\r\n";
  const std::string line = std::string(key) + "=" + std::string(value);
  std::string result = text;
  if (old) {
    result.replace(old->lineStart, old->lineEnd - old->lineStart, line);
    return result;
  }
  std::size_t at = sectionEnd.value_or(text.size());
  const auto add = [&](const std::string& piece) {
    result.insert(at, piece);
    at += piece.size();
  };
  if (at > 0 && text[at - 1] != '\n') add(lineEnd);
  if (!sectionEnd) add("[" + std::string(section) + "]" + lineEnd);
  add(line + lineEnd);
  return result;
}

}  // namespace

std::string getIniValue(std::string_view section, std::string_view key, std::string_view fallback) {
  return numberText(Profile(iniFilePath).values(section, {key})[0].value_or(std::string(fallback)));
}

std::vector<std::string> getIniValues(std::string_view section, const std::vector<std::string_view>& keys) {
  std::vector<std::string> numbers;
  for (const std::optional<std::string>& value : Profile(iniFilePath).values(section, keys))
    numbers.push_back(numberText(value.value_or(std::string())));
  return numbers;
}

void writeIniValues(std::string_view section, const std::vector<IniValue>& values) {
  const Change withValues = [&](const std::optional<std::string>& old) {
    const std::optional<ByteOrder> order = byteOrderOf(old.value_or(""));
    // A missing file is no error: the first value written makes it.
    std::optional<std::string> text = decoded(old.value_or(""));
    if (!text) return *old;
    for (const auto& [key, value] : values)
      text = withValue(*text, section, key, value);
    return order ? utf16FromUtf8(*text, *order) : *text;
  };
  static_cast<void>(changeFile(iniFilePath, withValues, kLargestIniFile));
}

void writeIniValue(std::string_view section, std::string_view key, std::string_view value) {
  writeIniValues(section, {{key, std::string(value)}});
}

std::span<const Setting> settings() {
  constexpr int kFlag = 2;
  static const std::array<Setting, 20> table = {{
      {kCablesKey, &cableConnection, 1, kFlag},
      {kMemoryClearKey, &memoryClear, 1, kFlag},
      {kCpuTypeKey, &cpuType, 0, std::ssize(kCpuTypes)},
      {kTransferKey, &transferSetting[0], 0, kFlag},
      {kAddressKeys[0], &saSetting[0], 0, kStations},
      {kAddressKeys[1], &saSetting[1], 2, kStations},
      {kAddressKeys[2], &saSetting[2], 4, kStations},
      {kClockKeys[0], &clockSetting[0], 0, std::ssize(kClocks)},
      {kClockKeys[1], &clockSetting[1], 0, std::ssize(kClocks)},
      {kClockKeys[2], &clockSetting[2], 0, std::ssize(kClocks)},
      {kClockKeys[3], &clockSetting[3], 0, std::ssize(kClocks)},
      {kCascadeKeys[0], &cascadeSetting[1], 1, kFlag},
      {kCascadeKeys[1], &cascadeSetting[2], 1, kFlag},
      {kIoModeKey, &ioBoardMode, 5, std::ssize(kIoModes)},
      {kCounterModeKey, &ioBoardCounterMode, 0, std::ssize(kCounterModes)},
      {kOpenWindowKeys[0], &openWindow[1], 1, kFlag},
      {kOpenWindowKeys[1], &openWindow[2], 1, kFlag},
      {kOpenWindowKeys[2], &openWindow[3], 1, kFlag},
      {kOpenWindowKeys[3], &openWindow[4], 0, kFlag},
      {kOpenWindowKeys[4], &openWindow[5], 0, kFlag},
  }};
  return table;
}

void copyTransferSetting() {
  std::fill(transferSetting.begin() + 1, transferSetting.end(), transferSetting[0]);
}

std::string iniPath() {
  return programFolder + "/ZELVS.INI";
}

void readIniFile() {
  iniFilePath = iniPath();
  const Deed deed("reading the settings", iniFilePath);
  std::vector<std::string_view> keys;
  for (const Setting& setting : settings())
    keys.push_back(setting.key);
  const std::vector<std::string> values = getIniValues(kIniSection, keys);
  for (std::size_t i = 0; i < keys.size(); ++i)
    *settings()[i].variable = wholeNumber16(leadingNumber(values[i]));
  copyTransferSetting();
}

void Mdef_Set() {
  for (const Setting& setting : settings())
    *setting.variable = setting.makerValue;
  copyTransferSetting();
}

}  // namespace zelvs
